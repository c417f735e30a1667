#include "lvx/store/stream_area.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>

#include "support/temp_folder.h"

using lvx::store::StreamArea;

TEST(StreamArea, claimed_room_is_written_at_once) {
    std::ostringstream stream;
    stream << "ab";
    unsigned char* const place = StreamArea::Claim(stream, 3);
    ASSERT_NE(nullptr, place);
    place[0] = place[1] = place[2] = 'c';
    EXPECT_EQ(5, stream.tellp());
    stream << 'd';
    EXPECT_EQ("abcccd", stream.str());
}

TEST(StreamArea, an_empty_buffer_has_no_room_and_is_left_alone) {
    std::ostringstream stream;
    EXPECT_EQ(nullptr, StreamArea::Claim(stream, 1));
    EXPECT_EQ("", stream.str());
    EXPECT_TRUE(stream.good());
}

TEST(StreamArea, room_behind_the_bytes_of_a_string_is_used_up_to_its_end) {
    std::stringstream stream("0123456789");
    EXPECT_NE(nullptr, StreamArea::Claim(stream, 10));
    std::ostream& out = stream;
    out.seekp(4);
    unsigned char* const place = StreamArea::Claim(stream, 2);
    ASSERT_NE(nullptr, place);
    place[0] = place[1] = '!';
    EXPECT_EQ("0123!!6789", stream.str());
}

TEST(StreamArea, a_stream_that_has_failed_gives_nothing) {
    std::stringstream stream("abc");
    stream.setstate(std::ios_base::failbit);
    EXPECT_EQ(nullptr, StreamArea::Peek(stream, 1));
    EXPECT_EQ(nullptr, StreamArea::Claim(stream, 1));
}

TEST(StreamArea, a_stream_without_a_buffer_gives_nothing) {
    std::ostream out(nullptr);
    std::istream in(nullptr);
    EXPECT_EQ(nullptr, StreamArea::Claim(out, 1));
    EXPECT_EQ(nullptr, StreamArea::Peek(in, 1));
}

TEST(StreamArea, a_stream_that_flushes_each_piece_does_so_still) {
    std::stringstream stream("abc");
    stream << std::unitbuf;
    EXPECT_EQ(nullptr, StreamArea::Claim(stream, 1));
}

TEST(StreamArea, a_stream_that_flushes_another_one_first_does_so_still) {
    std::ostringstream other;
    std::stringstream stream("abc");
    stream.tie(&other);
    EXPECT_EQ(nullptr, StreamArea::Claim(stream, 1));
    EXPECT_EQ(nullptr, StreamArea::Peek(stream, 1));
}

TEST(StreamArea, a_look_consumes_nothing) {
    std::istringstream stream("abc");
    ASSERT_NE(nullptr, StreamArea::Peek(stream, 3));
    EXPECT_EQ('a', *StreamArea::Peek(stream, 1));
    EXPECT_EQ(nullptr, StreamArea::Peek(stream, 4));
    EXPECT_EQ(0, stream.tellg());
    StreamArea::Skip(stream, 2);
    EXPECT_EQ('c', stream.get());
}

TEST(StreamArea, a_file_stream_keeps_its_bytes_in_order) {
    const lvx_test::TempFolder folder;
    const std::string name = folder.File("area");
    std::string expected;
    {
        std::ofstream out(name, std::ios_base::binary);
        for (int i = 0; i < 100'000; ++i) {
            const auto byte = static_cast<char>(i * 7);
            unsigned char* const place = StreamArea::Claim(out, 1);
            if (place != nullptr) {
                *place = static_cast<unsigned char>(byte);
            } else {
                out.put(byte);
            }
            expected += byte;
        }
    }
    std::ifstream in(name, std::ios_base::binary);
    std::string found;
    while (found.size() < expected.size()) {
        const unsigned char* const place = StreamArea::Peek(in, 3);
        if (place != nullptr) {
            found.append(reinterpret_cast<const char*>(place), 3);
            StreamArea::Skip(in, 3);
        } else {
            found += static_cast<char>(in.get());
        }
    }
    EXPECT_EQ(expected, found);
}
