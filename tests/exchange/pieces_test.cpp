#include "lvx/exchange/pieces.h"

#include <gmock/gmock.h>

#include <numeric>
#include <vector>

namespace {

using lvx::exchange::transfer_in_pieces;
using testing::ElementsAre;
using testing::IsEmpty;

using Bytes = std::vector<unsigned char>;

/// A file that takes all bytes, but of the piece at `full_at` only `room`.
struct Disk {
    std::size_t operator()(std::span<const unsigned char> piece) {
        const std::size_t taken = sizes.size() == full_at ? room : piece.size();
        sizes.push_back(piece.size());
        content.insert(content.end(), piece.begin(), piece.begin() + static_cast<std::ptrdiff_t>(taken));
        return taken;
    }

    std::size_t full_at = 99;
    std::size_t room = 0;
    std::vector<std::size_t> sizes;
    Bytes content;
};

Bytes some_bytes(std::size_t size) {
    Bytes bytes(size);
    for (std::size_t i = 0; i < size; ++i) {
        bytes[i] = static_cast<unsigned char>(i * 7 + i / 251);
    }
    return bytes;
}

std::size_t transfer(const Bytes& bytes, Disk& disk) {
    return transfer_in_pieces(std::span<const unsigned char>(bytes),
                              [&](std::span<const unsigned char> piece) { return disk(piece); });
}

}  // namespace

TEST(Pieces, are_of_32_kilobytes_and_a_rest) {
    Disk disk;
    const Bytes bytes = some_bytes(0x8000 * 2 + 5);
    EXPECT_EQ(bytes.size(), transfer(bytes, disk));
    EXPECT_THAT(disk.sizes, ElementsAre(0x8000, 0x8000, 5));
    EXPECT_EQ(bytes, disk.content);
}

TEST(Pieces, have_no_empty_one_behind_a_full_one) {
    Disk disk;
    const Bytes bytes = some_bytes(0x8000);
    EXPECT_EQ(0x8000u, transfer(bytes, disk));
    EXPECT_THAT(disk.sizes, ElementsAre(0x8000));
}

TEST(Pieces, around_the_limit_are_one_or_two) {
    Disk below;
    transfer(some_bytes(0x7FFF), below);
    EXPECT_THAT(below.sizes, ElementsAre(0x7FFF));
    Disk above;
    transfer(some_bytes(0x8001), above);
    EXPECT_THAT(above.sizes, ElementsAre(0x8000, 1));
}

TEST(Pieces, of_nothing_are_none) {
    Disk disk;
    EXPECT_EQ(0u, transfer({}, disk));
    EXPECT_THAT(disk.sizes, IsEmpty());
}

TEST(Pieces, end_behind_a_short_one) {
    Disk disk;
    disk.full_at = 1;
    disk.room = 3;
    const Bytes bytes = some_bytes(0x8000 * 3);
    EXPECT_EQ(0x8003u, transfer(bytes, disk));
    EXPECT_THAT(disk.sizes, ElementsAre(0x8000, 0x8000));
    EXPECT_EQ(Bytes(bytes.begin(), bytes.begin() + 0x8003), disk.content);
}

TEST(Pieces, end_where_nothing_goes_any_more) {
    Disk disk;
    disk.full_at = 0;
    EXPECT_EQ(0u, transfer(some_bytes(10), disk));
    EXPECT_THAT(disk.sizes, ElementsAre(10));
}

TEST(Pieces, come_as_well_as_they_go) {
    Bytes place(0x8000 + 2, 0);
    unsigned char next = 0;
    const std::size_t came = transfer_in_pieces(std::span(place), [&](std::span<unsigned char> piece) {
        std::iota(piece.begin(), piece.end(), next);
        next = static_cast<unsigned char>(piece.back() + 1);
        return piece.size();
    });
    EXPECT_EQ(place.size(), came);
    EXPECT_EQ(0x01, place.back());
    EXPECT_EQ(0xFF, place[0x7FFF]);
}
