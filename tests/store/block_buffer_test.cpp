#include "lvx/store/block_buffer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

using lvx::store::BlockReader;
using lvx::store::BlockWriter;

namespace {

// A medium in memory that can break after a number of bytes.
class MemoryMedium : public lvx::store::Medium {
public:
    explicit MemoryMedium(std::string content = "") : data(std::move(content)) {}

    std::size_t Fetch(void* target, std::size_t size) override {
        const std::size_t count = std::min({size, data.size() - position, at_once});
        std::copy_n(data.data() + position, count, static_cast<char*>(target));
        position += count;
        return count;
    }
    bool Deliver(const void* source, std::size_t size) override {
        ++deliveries;
        if (data.size() + size > capacity) {
            return false;
        }
        data.append(static_cast<const char*>(source), size);
        return true;
    }
    void SkipToEnd() override { position = data.size(); }
    std::optional<std::uint64_t> Remaining() override { return data.size() - position; }

    std::string data;
    std::size_t position = 0;
    std::size_t capacity = SIZE_MAX;
    std::size_t at_once = SIZE_MAX;
    int deliveries = 0;
};

std::string pattern(std::size_t size) {
    std::string text(size, '\0');
    for (std::size_t i = 0; i < size; ++i) {
        text[i] = static_cast<char>(i * 2654435761u >> 13);
    }
    return text;
}

}  // namespace

TEST(BlockWriter, gathers_small_pieces_into_one_block) {
    MemoryMedium medium;
    BlockWriter writer(medium);
    for (int i = 0; i < 1000; ++i) {
        EXPECT_TRUE(writer.Write("ab", 2));
    }
    EXPECT_EQ(0, medium.deliveries);
    EXPECT_TRUE(writer.Flush());
    EXPECT_EQ(1, medium.deliveries);
    EXPECT_EQ(2000u, medium.data.size());
}

TEST(BlockWriter, a_flush_of_nothing_delivers_nothing) {
    MemoryMedium medium;
    BlockWriter writer(medium);
    EXPECT_TRUE(writer.Flush());
    EXPECT_EQ(0, medium.deliveries);
}

TEST(BlockWriter, tells_when_the_medium_refuses) {
    MemoryMedium medium;
    medium.capacity = 10;
    BlockWriter writer(medium);
    EXPECT_TRUE(writer.Write("abcdef", 6));
    EXPECT_TRUE(writer.Write("abcdef", 6));
    EXPECT_FALSE(writer.HasFailed());
    EXPECT_FALSE(writer.Flush());
    EXPECT_TRUE(writer.HasFailed());
}

TEST(BlockWriter, a_piece_larger_than_the_block_that_is_refused_is_told) {
    MemoryMedium medium;
    medium.capacity = 10;
    BlockWriter writer(medium);
    EXPECT_FALSE(writer.Write(pattern(100000).data(), 100000));
    EXPECT_TRUE(writer.HasFailed());
}

TEST(BlockReader, gives_what_the_medium_has_in_any_pieces) {
    const std::string data = pattern(500000);
    MemoryMedium medium(data);
    BlockReader reader(medium);
    std::mt19937 random(1);
    std::string read;
    while (read.size() < data.size()) {
        const std::size_t largest = random() % 4 == 0 ? 150000 : 100;
        std::string piece(std::min(data.size() - read.size(), random() % largest), '\0');
        EXPECT_TRUE(reader.Read(piece.data(), piece.size()));
        read += piece;
        EXPECT_EQ(data.size() - read.size(), *reader.Remaining());
    }
    EXPECT_TRUE(data == read);
    EXPECT_EQ(-1, reader.Get());
}

TEST(BlockWriter, takes_nothing_more_once_the_medium_refused) {
    MemoryMedium medium;
    medium.capacity = 10;
    BlockWriter writer(medium);
    EXPECT_TRUE(writer.Write("abcdefabcdef", 12));
    EXPECT_FALSE(writer.Flush());
    medium.capacity = SIZE_MAX;
    EXPECT_EQ(nullptr, writer.Claim(1));
    EXPECT_FALSE(writer.Write("a", 1)) << "bytes behind a gap are no document";
    EXPECT_FALSE(writer.Flush());
    EXPECT_EQ("", medium.data);
}

TEST(BlockReader, puts_pieces_of_a_medium_that_gives_little_at_once_together) {
    const std::string data = pattern(200000);
    MemoryMedium medium(data);
    medium.at_once = 7;
    BlockReader reader(medium);
    std::string read(data.size(), '\0');
    EXPECT_TRUE(reader.Read(read.data(), 10));
    EXPECT_TRUE(reader.Read(read.data() + 10, 199990));
    EXPECT_TRUE(data == read);
    EXPECT_FALSE(reader.Read(read.data(), 1));
}

TEST(BlockReader, SkipToEnd_leaves_nothing) {
    MemoryMedium medium(pattern(200000));
    BlockReader reader(medium);
    reader.Get();
    reader.SkipToEnd();
    EXPECT_EQ(-1, reader.Get());
    EXPECT_EQ(0u, *reader.Remaining());
}

TEST(BlockReader, a_short_read_consumes_what_there_was) {
    MemoryMedium medium("abc");
    BlockReader reader(medium);
    char data[4] = {};
    EXPECT_FALSE(reader.Read(data, 4));
    EXPECT_STREQ("abc", data);
    EXPECT_EQ(-1, reader.Get());
}

TEST(BlockReader, Peek_gives_only_what_the_block_holds) {
    MemoryMedium medium("abcd");
    BlockReader reader(medium);
    EXPECT_EQ(nullptr, reader.Peek(1)) << "nothing was fetched yet";
    EXPECT_EQ('a', reader.Get());
    EXPECT_EQ(nullptr, reader.Peek(4));
    EXPECT_EQ('b', *reader.Peek(3));
    reader.Skip(3);
    EXPECT_EQ(nullptr, reader.Peek(1));
}

TEST(BlockReader, steps_back_inside_the_block_only) {
    MemoryMedium medium("ab" + pattern(200000));
    BlockReader reader(medium);
    EXPECT_FALSE(reader.StepBack());
    EXPECT_EQ('a', reader.Get());
    EXPECT_TRUE(reader.StepBack());
    EXPECT_FALSE(reader.StepBack());
    EXPECT_EQ('a', reader.Get());
    std::string large(200000, '\0');
    EXPECT_TRUE(reader.Read(large.data(), large.size()));
    EXPECT_FALSE(reader.StepBack()) << "the last byte went past the block";
}

TEST(BlockReader, Drop_tells_how_far_the_medium_is_ahead) {
    MemoryMedium medium("abcdef");
    BlockReader reader(medium);
    EXPECT_EQ(0u, reader.Drop());
    EXPECT_EQ('a', reader.Get());
    EXPECT_EQ(5u, reader.Drop());
    EXPECT_EQ(-1, reader.Get());
}
