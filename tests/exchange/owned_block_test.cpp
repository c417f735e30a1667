#include "lvx/exchange/owned_block.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

using lvx::exchange::OwnedBlock;

namespace {

void fill_with(const OwnedBlock& block, unsigned char value) {
    EXPECT_TRUE(
        block.Fill([&](std::span<unsigned char> bytes) { std::fill(bytes.begin(), bytes.end(), value); }));
}

}  // namespace

TEST(OwnedBlock, has_all_its_bytes_filled) {
    const OwnedBlock block(5);
    std::size_t size = 0;
    EXPECT_TRUE(block.Fill([&](std::span<unsigned char> bytes) {
        size = bytes.size();
        std::fill(bytes.begin(), bytes.end(), static_cast<unsigned char>(0xAB));
    }));
    EXPECT_EQ(5u, size);
    const LVXUtilities::GlobalLocker<const unsigned char> bytes(block.Get());
    EXPECT_TRUE(std::all_of(bytes.get(), bytes.get() + 5, [](unsigned char byte) { return byte == 0xAB; }));
}

TEST(OwnedBlock, is_unlocked_once_it_is_filled) {
    OwnedBlock block(5);
    fill_with(block, 1);
    // One lock and its end: there was none before.
    GlobalLock(block.Get());
    EXPECT_EQ(0, GlobalUnlock(block.Get()));
}

TEST(OwnedBlock, is_another_owners_once_it_is_released) {
    HGLOBAL handle = nullptr;
    {
        OwnedBlock block(5);
        fill_with(block, 7);
        handle = block.Release();
        EXPECT_EQ(nullptr, block.Get());
        EXPECT_EQ(nullptr, block.Release());
    }
    EXPECT_LE(5u, GlobalSize(handle));
    EXPECT_EQ(nullptr, GlobalFree(handle));
}

TEST(OwnedBlock, that_is_moved_leaves_none_behind) {
    OwnedBlock first(5);
    const HGLOBAL handle = first.Get();
    const OwnedBlock second(std::move(first));
    EXPECT_EQ(handle, second.Get());
    EXPECT_EQ(nullptr, first.Get());
    fill_with(second, 2);
}

TEST(OwnedBlock, that_is_none_is_not_filled) {
    bool called = false;
    EXPECT_FALSE(OwnedBlock().Fill([&](std::span<unsigned char>) { called = true; }));
    EXPECT_FALSE(called);
    EXPECT_EQ(nullptr, OwnedBlock().Get());
}

TEST(OwnedBlock, that_finds_no_memory_is_none) {
    OwnedBlock block(static_cast<std::size_t>(-1) / 2);
    EXPECT_EQ(nullptr, block.Get());
    EXPECT_FALSE(block.Fill([](std::span<unsigned char>) {}));
}
