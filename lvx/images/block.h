// lvx/images/block.h
//
// Bitmap blocks in global memory: making them, and reading header fields out of them without reading behind
// their end.
#pragma once

#include <cstdint>
#include <cstring>
#include <new>

#include "lvx/images/global_locker.h"
#include "lvx/platform/bitmap_headers.h"
#include "lvx/platform/global_memory.h"

namespace lvx::images {

/// The largest block, in bytes: a store keeps the size in 32 bits with a sign.
inline constexpr std::uint64_t largest_block = 0x7FFFFFFF;

/// Throws std::bad_alloc if `size` exceeds largest_block or there is no memory.
inline HGLOBAL allocate_block(unsigned int flags, std::uint64_t size) {
    const HGLOBAL block = size > largest_block ? nullptr : GlobalAlloc(flags, static_cast<std::size_t>(size));
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    return block;
}

/// The field of the header that the block begins with; 0 if the block ends within it or is null.
template <class Value, class Header, class Field>
Value read_field(HGLOBAL block, Field Header::*field) {
    Header header{};
    const auto* const start = reinterpret_cast<const unsigned char*>(&header);
    auto* const place = reinterpret_cast<unsigned char*>(&(header.*field));
    const auto offset = static_cast<std::size_t>(place - start);
    const LVXUtilities::GlobalLocker<const unsigned char> bytes(block);
    if (bytes.get() != nullptr && offset + sizeof(Field) <= GlobalSize(block)) {
        std::memcpy(place, bytes.get() + offset, sizeof(Field));
    }
    return static_cast<Value>(header.*field);
}

/// The first word of the block, which says how long its header is and thereby of what kind.
inline std::uint32_t header_size(HGLOBAL block) {
    return read_field<std::uint32_t>(block, &BITMAPINFOHEADER::biSize);
}

}  // namespace lvx::images
