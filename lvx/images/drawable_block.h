// lvx/images/drawable_block.h
//
// A block as the system's drawing calls can be given it: they read as many colours and pixels as the header
// claims, whether or not the block has them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "lvx/images/global_locker.h"
#include "lvx/platform/bitmap_headers.h"
#include "lvx/platform/global_memory.h"

namespace lvx::images {

class DrawableBlock {
public:
    /// Locks `block`, which may be null, for as long as the object lives. `table_size` is what its header
    /// says of its colour table. What the block lacks of what it claims is taken for zeros, in a copy. Throws
    /// std::bad_alloc if there is no room for that.
    DrawableBlock(HGLOBAL block, std::uint64_t table_size);

    /// False for what no system can draw: no block, a header of an unknown kind, or one that claims far more
    /// than the block has.
    bool IsGood() const { return m_bytes != nullptr; }
    /// The header, with masks and colours behind it, and the pixels. Null unless IsGood().
    const BITMAPINFO* Info() const { return reinterpret_cast<const BITMAPINFO*>(m_bytes); }
    const unsigned char* Pixels() const { return m_bytes == nullptr ? nullptr : m_bytes + m_pixelsAt; }

private:
    LVXUtilities::GlobalLocker<const unsigned char> m_lock;
    std::vector<unsigned char> m_copy;
    const unsigned char* m_bytes = nullptr;
    std::size_t m_pixelsAt = 0;
};

}  // namespace lvx::images
