#include "lvx/platform/posix/stream_bytes.h"

#include <gtest/gtest.h>

#include <string>

using lvx::platform::StreamBytes;

namespace {

constexpr std::size_t block = 16 * 1024;

std::span<const unsigned char> bytes_of(const std::string& text) {
    return {reinterpret_cast<const unsigned char*>(text.data()), text.size()};
}

bool write(StreamBytes& stream, std::uint64_t position, const std::string& text) {
    return stream.Write(position, bytes_of(text));
}

std::string read(const StreamBytes& stream, std::uint64_t position, std::size_t size) {
    std::string text(size, '#');
    text.resize(stream.Read(position, {reinterpret_cast<unsigned char*>(text.data()), size}));
    return text;
}

std::string all_pieces(const StreamBytes& stream) {
    std::string text;
    EXPECT_TRUE(stream.ForEachPiece([&](std::span<const unsigned char> piece) {
        text.append(piece.begin(), piece.end());
        return true;
    }));
    return text;
}

}  // namespace

TEST(StreamBytes, are_none_at_first) {
    const StreamBytes stream;
    EXPECT_EQ(0u, stream.Size());
    EXPECT_EQ("", read(stream, 0, 10));
    EXPECT_EQ("", all_pieces(stream));
}

TEST(StreamBytes, come_back_across_the_ends_of_blocks) {
    for (const std::size_t position : {std::size_t{0}, block - 3, block, 3 * block - 1}) {
        StreamBytes stream;
        ASSERT_TRUE(write(stream, position, "hello"));
        EXPECT_EQ(position + 5, stream.Size());
        EXPECT_EQ("hello", read(stream, position, 5));
        EXPECT_EQ("lo", read(stream, position + 3, 100));
        EXPECT_TRUE(std::string(position, '\0') + "hello" == all_pieces(stream));
    }
}

TEST(StreamBytes, are_overwritten_in_place) {
    StreamBytes stream;
    ASSERT_TRUE(write(stream, 0, std::string(2 * block, 'a')));
    ASSERT_TRUE(write(stream, block - 1, "bb"));
    EXPECT_EQ(2 * block, stream.Size());
    EXPECT_EQ("abba", read(stream, block - 2, 4));
}

TEST(StreamBytes, of_a_gap_are_zeros_and_take_no_memory) {
    StreamBytes stream;
    ASSERT_TRUE(write(stream, 3'000'000'000, "x"));
    EXPECT_EQ(3'000'000'001u, stream.Size());
    EXPECT_EQ(std::string(2, '\0') + "x", read(stream, 2'999'999'998, 10));
    EXPECT_EQ(std::string(3, '\0'), read(stream, 5, 3));
}

TEST(StreamBytes, end_where_32_bits_end) {
    StreamBytes stream;
    EXPECT_TRUE(write(stream, StreamBytes::longest - 2, "ab"));
    EXPECT_FALSE(write(stream, StreamBytes::longest - 1, "ab"));
    EXPECT_FALSE(write(stream, StreamBytes::longest + 1, "a"));
    EXPECT_FALSE(write(stream, UINT64_MAX, "ab"));
    EXPECT_EQ(StreamBytes::longest, stream.Size());
    EXPECT_EQ("ab", read(stream, StreamBytes::longest - 2, 10));
}

TEST(StreamBytes, do_not_grow_by_writing_nothing) {
    StreamBytes stream;
    EXPECT_TRUE(write(stream, 100, ""));
    EXPECT_EQ(0u, stream.Size());
}

TEST(StreamBytes, are_handed_over_until_nobody_takes_them) {
    StreamBytes stream;
    ASSERT_TRUE(write(stream, 0, std::string(3 * block, 'a')));
    int pieces = 0;
    EXPECT_FALSE(stream.ForEachPiece([&](std::span<const unsigned char>) { return ++pieces < 2; }));
    EXPECT_EQ(2, pieces);
}
