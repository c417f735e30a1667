// Bitmap files and blocks, byte by byte.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <sstream>
#include <string>
#include <string_view>

#include "lvx/images/dibitmap.h"
#include "lvx/platform/global_memory.h"
#include "lvx/store/object_store_stream.h"
#include "support/bytes.h"

namespace lvx_test {

using LVXUtilities::DIBitmap;

/// The lowest `count` bytes of `value`, little-endian.
inline std::string little_endian(std::uint32_t value, int count) {
    std::string result;
    for (int i = 0; i < count; ++i) {
        result += static_cast<char>(value >> (8 * i) & 0xFF);
    }
    return result;
}

inline std::uint32_t number_at(std::string_view data, std::size_t offset, int count = 4) {
    std::uint32_t result = 0;
    for (int i = 0; i < count; ++i) {
        result |= std::uint32_t{static_cast<unsigned char>(data.at(offset + static_cast<std::size_t>(i)))}
                  << (8 * i);
    }
    return result;
}

inline std::string file_header(std::uint32_t pixels_at) {
    return "BM" + bytes("EEEEEEEE 1111 2222") + little_endian(pixels_at, 4);
}

struct Info {
    std::int32_t width = 1;
    std::int32_t height = 1;
    std::uint32_t depth = 24;
    std::uint32_t compression = 0;
    std::uint32_t image_size = 0;
    std::uint32_t used = 0;
    std::uint32_t size_word = 40;

    /// The 40 bytes. Resolution and important colours have values that show where a table was read from.
    std::string Header() const {
        return little_endian(size_word, 4) + little_endian(static_cast<std::uint32_t>(width), 4) +
               little_endian(static_cast<std::uint32_t>(height), 4) + little_endian(1, 2) +
               little_endian(depth, 2) + little_endian(compression, 4) + little_endian(image_size, 4) +
               bytes("01020304 05060708") + little_endian(used, 4) + bytes("090A0B0C");
    }
};

inline std::string core_header(std::uint32_t width, std::uint32_t height, std::uint32_t depth) {
    return little_endian(12, 4) + little_endian(width, 2) + little_endian(height, 2) + little_endian(1, 2) +
           little_endian(depth, 2);
}

/// A block of global memory; whoever gets it frees it.
inline HGLOBAL make_block(std::string_view data) {
    const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, data.size());
    if (!data.empty()) {
        std::memcpy(GlobalLock(block), data.data(), data.size());
        GlobalUnlock(block);
    }
    return block;
}

/// What a store gets: the size and the bytes of the block.
inline std::string stored(const DIBitmap& bitmap) {
    std::ostringstream stream;
    ObjectStoreStream store;
    store.OpenStream(&stream);
    bitmap.PutTo(store);
    store.CloseStream();
    return stream.str();
}

/// The bytes of the block.
inline std::string block_of(const DIBitmap& bitmap) {
    const std::string all = stored(bitmap);
    EXPECT_EQ(all.size() - 4, number_at(all, 0));
    return all.substr(4);
}

/// Whether each of `count` bytes is 255; at least one.
inline bool is_white(const unsigned char* pixels, std::size_t count) {
    return pixels[0] == 0xFF && std::memcmp(pixels, pixels + 1, count - 1) == 0;
}

inline bool is_locked(HGLOBAL block) {
    GlobalLock(block);
    return GlobalUnlock(block) != 0;
}

/// The text that `action` throws; "" if it throws nothing.
template <class Action>
std::string thrown_words(Action&& action) {
    try {
        action();
    } catch (const char* text) {
        return text;
    }
    return "";
}

}  // namespace lvx_test

// In hexadecimal, so that a difference can be found.
#define EXPECT_BYTES(expected, actual) EXPECT_EQ(lvx_test::hex(expected), lvx_test::hex(actual))
#define ASSERT_BYTES(expected, actual) ASSERT_EQ(lvx_test::hex(expected), lvx_test::hex(actual))
