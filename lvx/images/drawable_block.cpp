#include "lvx/images/drawable_block.h"

#include <algorithm>

#include "lvx/images/block_layout.h"

namespace lvx::images {
namespace {

// Masks lie behind 40 bytes of the header, wherever the pixels begin.
std::uint64_t end_of_masks(const BlockLayout& layout) {
    constexpr std::uint64_t masks_size = 3 * sizeof(std::uint32_t);
    return layout.header.biCompression == BI_BITFIELDS ? sizeof(BITMAPINFOHEADER) + masks_size : 0;
}

bool is_known_header(std::uint64_t size) {
    return size == sizeof(BITMAPCOREHEADER) || size >= sizeof(BITMAPINFOHEADER);
}

// The pixels as they are drawn: of compressed ones the codes, as many bytes as are claimed.
std::uint64_t drawn_size(const BlockLayout& layout) {
    const std::uint32_t compression = layout.header.biCompression;
    const bool is_compressed = compression != BI_RGB && compression != BI_BITFIELDS;
    return is_compressed ? std::uint64_t{layout.header.biSizeImage} : layout.PixelsSize();
}

}  // namespace

DrawableBlock::DrawableBlock(HGLOBAL block, std::uint64_t table_size) : m_lock(block) {
    const BlockLayout layout = layout_of(block, table_size);
    const std::uint64_t pixels = drawn_size(layout);
    const std::uint64_t claimed = std::max(layout.pixels_at + pixels, end_of_masks(layout));
    if (m_lock.get() == nullptr || !is_known_header(layout.table_at) || claimed < pixels ||
        !is_credible_picture(claimed, layout.size)) {
        return;
    }
    m_pixelsAt = static_cast<std::size_t>(layout.pixels_at);
    m_bytes = m_lock.get();
    if (layout.size < claimed) {
        m_copy.assign(m_bytes, m_bytes + layout.size);
        m_copy.resize(static_cast<std::size_t>(claimed));
        m_bytes = m_copy.data();
    }
}

}  // namespace lvx::images
