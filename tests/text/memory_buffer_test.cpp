#include "lvx/text/memory_buffer.h"

#include <gtest/gtest.h>

#include <climits>
#include <istream>
#include <limits>
#include <string>

namespace {

using lvx::text::MemoryBuffer;

constexpr int end = std::char_traits<char>::eof();

struct Text {
    explicit Text(const std::string& characters) : text(characters) {}
    std::string text;
    MemoryBuffer buffer{text.data(), static_cast<int>(text.size())};
};

}  // namespace

TEST(MemoryBuffer, gives_each_character_and_then_the_end) {
    Text text(std::string("a\0\xff", 3));
    EXPECT_EQ(3, text.buffer.in_avail());
    EXPECT_EQ('a', text.buffer.sbumpc());
    EXPECT_EQ(0, text.buffer.sbumpc());
    EXPECT_EQ(255, text.buffer.sgetc());
    EXPECT_EQ(255, text.buffer.sbumpc());
    EXPECT_EQ(end, text.buffer.sgetc());
    EXPECT_EQ(end, text.buffer.sbumpc());
    EXPECT_EQ(-1, text.buffer.in_avail());
}

TEST(MemoryBuffer, no_text_and_no_length_are_empty) {
    char text[] = "abc";
    EXPECT_EQ(end, MemoryBuffer(nullptr, 3).sgetc());
    EXPECT_EQ(end, MemoryBuffer(nullptr, 0).sgetc());
    EXPECT_EQ(end, MemoryBuffer(text, 0).sgetc());
    EXPECT_EQ(end, MemoryBuffer(text, -1).sgetc());
    EXPECT_EQ(end, MemoryBuffer(text, INT_MIN).sgetc());
    EXPECT_EQ('a', MemoryBuffer(text, 1).sgetc());
}

TEST(MemoryBuffer, an_empty_text_can_be_sought_to_its_only_place) {
    MemoryBuffer empty(nullptr, 0);
    EXPECT_EQ(std::streampos(0), empty.pubseekpos(0, std::ios_base::in));
    EXPECT_EQ(std::streampos(0), empty.pubseekoff(0, std::ios_base::end, std::ios_base::in));
    EXPECT_EQ(std::streampos(-1), empty.pubseekpos(1, std::ios_base::in));
}

TEST(MemoryBuffer, seeks_from_the_start_the_place_and_the_end) {
    Text text("abcdef");
    EXPECT_EQ(std::streampos(2), text.buffer.pubseekoff(2, std::ios_base::beg, std::ios_base::in));
    EXPECT_EQ(std::streampos(3), text.buffer.pubseekoff(1, std::ios_base::cur, std::ios_base::in));
    EXPECT_EQ('d', text.buffer.sgetc());
    EXPECT_EQ(std::streampos(4), text.buffer.pubseekoff(-2, std::ios_base::end, std::ios_base::in));
    EXPECT_EQ('e', text.buffer.sgetc());
    EXPECT_EQ(std::streampos(6), text.buffer.pubseekpos(6, std::ios_base::in));
    EXPECT_EQ(end, text.buffer.sgetc());
    EXPECT_EQ(6, text.buffer.Position());
}

TEST(MemoryBuffer, a_place_outside_the_text_is_refused_and_nothing_moves) {
    Text text("abcdef");
    text.buffer.pubseekpos(2, std::ios_base::in);
    constexpr std::streamoff greatest = std::numeric_limits<std::streamoff>::max();
    constexpr std::streamoff least = std::numeric_limits<std::streamoff>::min();
    for (const auto direction : {std::ios_base::beg, std::ios_base::cur, std::ios_base::end}) {
        for (const std::streamoff offset : {greatest, least, std::streamoff{7}, std::streamoff{-7}}) {
            EXPECT_EQ(std::streampos(-1), text.buffer.pubseekoff(offset, direction, std::ios_base::in));
        }
    }
    EXPECT_EQ(std::streampos(-1), text.buffer.pubseekpos(7, std::ios_base::in));
    EXPECT_EQ(std::streampos(-1), text.buffer.pubseekpos(-1, std::ios_base::in));
    EXPECT_EQ(2, text.buffer.Position());
}

TEST(MemoryBuffer, has_no_place_for_writing) {
    Text text("abc");
    EXPECT_EQ(std::streampos(-1), text.buffer.pubseekoff(0, std::ios_base::cur, std::ios_base::out));
    EXPECT_EQ(end, text.buffer.sputc('x'));
    EXPECT_EQ("abc", text.text);
}

TEST(MemoryBuffer, takes_back_only_what_stands_there) {
    Text text("abc");
    EXPECT_EQ(end, text.buffer.sungetc());
    text.buffer.sbumpc();
    EXPECT_EQ(end, text.buffer.sputbackc('x'));
    EXPECT_EQ('a', text.buffer.sputbackc('a'));
    EXPECT_EQ('a', text.buffer.sbumpc());
    EXPECT_EQ('a', text.buffer.sungetc());
    EXPECT_EQ("abc", text.text);
}

TEST(MemoryBuffer, tells_its_ends_and_is_set_to_a_place) {
    Text text("abcdef");
    EXPECT_EQ(text.text.data(), text.buffer.Begin());
    EXPECT_EQ(text.text.data() + 6, text.buffer.End());
    text.buffer.SetNext(text.text.data() + 4);
    EXPECT_EQ('e', text.buffer.sgetc());
    text.buffer.SetNext(text.text.data() + 1);
    EXPECT_EQ(text.text.data() + 1, text.buffer.Next());
    text.buffer.SetPosition(5);
    EXPECT_EQ('f', text.buffer.sgetc());
    EXPECT_EQ(5, text.buffer.Position());
}

TEST(MemoryBuffer, reads_in_blocks_as_any_other) {
    Text text("abcdef");
    std::istream stream(&text.buffer);
    char block[4] = {};
    stream.read(block, 4);
    EXPECT_EQ("abcd", std::string(block, 4));
    stream.read(block, 4);
    EXPECT_EQ(2, stream.gcount());
    EXPECT_TRUE(stream.eof());
}
