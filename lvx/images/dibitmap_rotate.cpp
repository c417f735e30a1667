// Turned pictures: what becomes of the block around the pixels.
#include <algorithm>
#include <cstring>
#include <limits>
#include <new>
#include <vector>

#include "lvx/images/block.h"
#include "lvx/images/block_layout.h"
#include "lvx/images/colour_table.h"
#include "lvx/images/dibitmap.h"
#include "lvx/images/dibitmap_strategy.h"
#include "lvx/images/turn.h"
#include "lvx/platform/turn.h"
#include "lvx/store/byte_order.h"

namespace LVXUtilities {
namespace {

using lvx::images::BlockBytes;
using lvx::images::BlockLayout;
using lvx::images::PixelFormat;
using lvx::images::TurnFrame;

// Where the masks of bit fields are, behind a header of 40 bytes or in a longer one, and where they end.
constexpr std::size_t masks_at = sizeof(BITMAPINFOHEADER);
constexpr std::size_t least_block = masks_at + 3 * sizeof(std::uint32_t);

bool has_core_header(const BlockLayout& layout) {
    return layout.table_at == sizeof(BITMAPCOREHEADER);
}

bool has_fields(const BlockLayout& layout) {
    return layout.header.biCompression == BI_BITFIELDS;
}

bool can_be_turned(const BlockLayout& layout) {
    const bool has_header = has_core_header(layout) || layout.table_at >= sizeof(BITMAPINFOHEADER);
    return has_header && layout.width != 0 && layout.rows != 0 &&
           lvx::images::is_readable(layout.header.biBitCount, layout.header.biCompression,
                                    layout.header.biPlanes) &&
           layout.IsCredible();
}

// The bytes of a locked block, and zeros behind them if it lacks some that it claims.
class WholeBlock {
public:
    WholeBlock(const unsigned char* bytes, const BlockLayout& layout) : m_bytes(bytes) {
        const std::uint64_t claimed =
            std::max(layout.pixels_at + layout.PixelsSize(), std::uint64_t{least_block});
        if (layout.size < claimed) {
            m_copy.assign(bytes, bytes + layout.size);
            m_copy.resize(static_cast<std::size_t>(claimed));
        }
    }

    const unsigned char* Bytes() const { return m_copy.empty() ? m_bytes : m_copy.data(); }

private:
    const unsigned char* m_bytes;
    std::vector<unsigned char> m_copy;
};

PixelFormat format_of(const BlockLayout& layout, const unsigned char* bytes) {
    if (!has_fields(layout)) {
        return lvx::images::plain_format(layout.header.biBitCount);
    }
    const unsigned char* const masks = bytes + masks_at;
    return {layout.header.biBitCount, lvx::store::decode<std::uint32_t>(masks),
            lvx::store::decode<std::uint32_t>(masks + 4), lvx::store::decode<std::uint32_t>(masks + 8)};
}

lvx::images::TurnSource turn_source(const BlockLayout& layout, const unsigned char* bytes) {
    const std::size_t entry_size = has_core_header(layout) ? sizeof(RGBTRIPLE) : sizeof(RGBQUAD);
    return {bytes,
            format_of(layout, bytes),
            {bytes + layout.table_at, static_cast<std::size_t>(layout.table_size) / entry_size, entry_size},
            bytes + layout.pixels_at,
            static_cast<std::size_t>(layout.stride),
            static_cast<int>(layout.width),
            static_cast<int>(layout.rows),
            layout.header.biHeight < 0};
}

// The bottom row comes first, whatever was. The system that reads pictures back counts no colours as used.
BITMAPINFOHEADER turned_header(const BlockLayout& source, const TurnFrame& frame) {
    BITMAPINFOHEADER header = source.header;
    header.biWidth = static_cast<std::int32_t>(frame.width);
    header.biHeight = static_cast<std::int32_t>(frame.height);
    header.biSizeImage = static_cast<std::uint32_t>(
        lvx::images::picture_size(static_cast<std::uint32_t>(frame.width),
                                  static_cast<std::uint32_t>(frame.height), header.biBitCount));
    header.biClrUsed = 0;
    return header;
}

bool is_too_large(const BlockLayout& source, const TurnFrame& frame) {
    constexpr std::int64_t most = std::numeric_limits<std::int32_t>::max();
    return frame.width > most || frame.height > most ||
           lvx::images::picture_size(static_cast<std::uint32_t>(frame.width),
                                     static_cast<std::uint32_t>(frame.height),
                                     source.header.biBitCount) > lvx::images::largest_block;
}

std::uint64_t turned_header_size(const BlockLayout& source) {
    return has_core_header(source) ? sizeof(BITMAPINFOHEADER) : source.table_at;
}

// As long as if the new block had the old one's table, or longer if it has more colours.
std::uint64_t turned_block_size(const BlockLayout& source, const BITMAPINFOHEADER& header) {
    const std::uint64_t entries =
        lvx::images::entries_of_info(header.biClrUsed, header.biBitCount, header.biCompression);
    const std::uint64_t pixels_at = turned_header_size(source) + entries * sizeof(RGBQUAD);
    return std::max(source.pixels_at, pixels_at) + header.biSizeImage;
}

// Of a longer header no more than this is kept, the rest is 0; but of bit fields all that there are.
void write_header(const BlockLayout& source, const unsigned char* source_bytes, BITMAPINFOHEADER header,
                  const BlockBytes& target) {
    const std::size_t kept = has_fields(source) ? least_block : sizeof(BITMAPINFO);
    if (!has_core_header(source)) {
        std::memcpy(target.start, source_bytes, std::min(kept, target.size));
    }
    header.biSize = static_cast<std::uint32_t>(turned_header_size(source));
    std::memcpy(target.start, &header, sizeof header);
}

}  // namespace

lvx::auto_ptr<DIBitmap> DIBitmap::Rotated(double angle) const {
    const BlockLayout layout = lvx::images::layout_of(m_block, m_strategy->GetClrTabSize(m_block));
    const TurnFrame frame = lvx::images::turn_frame(layout.width, layout.rows, angle);
    if (!can_be_turned(layout) || frame.width == 0 || frame.height == 0) {
        return {};
    }
    if (is_too_large(layout, frame)) {
        throw std::bad_alloc();
    }
    const GlobalLocker<const unsigned char> lock(m_block);
    const WholeBlock whole(lock.get(), layout);
    const BITMAPINFOHEADER header = turned_header(layout, frame);

    lvx::auto_ptr<DIBitmap> result(new DIBitmap(nullptr, Adopt));
    result->m_block = lvx::images::allocate_block(GHND, turned_block_size(layout, header));
    const GlobalLocker<unsigned char> target_lock(result->m_block);
    const BlockBytes target{target_lock.get(), GlobalSize(result->m_block)};
    write_header(layout, whole.Bytes(), header, target);
    result->m_strategy = &Strategy::Select(result->m_block);

    const lvx::images::TurnSource source = turn_source(layout, whole.Bytes());
    const bool turned =
        lvx::platform::turn({source,
                             frame,
                             {header, source.format, target.From(result->GetClrTabOffset()).start,
                              target.From(result->GetBitsOffset()).start,
                              static_cast<std::size_t>(lvx::images::row_size(
                                  static_cast<std::uint32_t>(frame.width), header.biBitCount)),
                              static_cast<int>(frame.width), static_cast<int>(frame.height),
                              static_cast<int>(frame.height & 0xFFFF)}});
    return turned ? result : lvx::auto_ptr<DIBitmap>();
}

}  // namespace LVXUtilities
