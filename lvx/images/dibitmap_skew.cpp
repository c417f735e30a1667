// Skewed pictures: what becomes of the block around the pixels.
#include <algorithm>
#include <cstring>
#include <stdexcept>

#include "lvx/images/block.h"
#include "lvx/images/block_layout.h"
#include "lvx/images/dibitmap.h"
#include "lvx/images/dibitmap_strategy.h"
#include "lvx/images/skew.h"
#include "lvx/images/skew_pixel.h"

namespace LVXUtilities {
namespace {

using lvx::images::BlockBytes;
using lvx::images::BlockLayout;
using lvx::images::SkewFrame;
using lvx::images::SkewTask;

constexpr std::uint16_t skewed_depth = 32;

std::uint32_t skew_background = 0x00FFFFFF;

std::uint64_t skewed_pixels_size(const SkewFrame& frame) {
    return lvx::images::picture_size(static_cast<std::uint32_t>(frame.width),
                                     static_cast<std::uint32_t>(frame.height), skewed_depth);
}

// As long as if the new block had the old one's header and table, though its header has 40 bytes always.
std::uint64_t skewed_block_size(const BlockLayout& source, const SkewFrame& frame) {
    const std::uint64_t pixels = skewed_pixels_size(frame);
    if (pixels > lvx::images::largest_block) {
        throw std::bad_alloc();
    }
    return std::max<std::uint64_t>(source.pixels_at + pixels, sizeof(BITMAPINFOHEADER));
}

// A picture whose first row is the top one keeps it there.
BITMAPINFOHEADER skewed_header(const BlockLayout& source, const SkewFrame& frame) {
    BITMAPINFOHEADER header = source.header;
    const auto height = static_cast<std::int32_t>(frame.height);
    header.biWidth = static_cast<std::int32_t>(frame.width);
    header.biHeight = source.header.biHeight < 0 ? -height : height;
    header.biBitCount = skewed_depth;
    header.biSizeImage = static_cast<std::uint32_t>(skewed_pixels_size(frame));
    return header;
}

// Four times as many bytes as the table has are copied, as far as both blocks reach: that has always been so,
// and shows in what the pixels do not cover.
void copy_table(const BlockLayout& layout, const BlockBytes& source, const BlockBytes& target) {
    const BlockBytes from = source.From(layout.table_at);
    const BlockBytes to = target.From(sizeof(BITMAPINFOHEADER));
    const std::uint64_t size = std::min<std::uint64_t>({4 * layout.table_size, from.size, to.size});
    std::memcpy(to.start, from.start, static_cast<std::size_t>(size));
}

std::uint32_t mean_of(std::uint32_t word) {
    return lvx::images::mean_of_four(word, word, word, word);
}

}  // namespace

void DIBitmap::DebugSkew() {
    skew_background = 0x00FFFF80;
}

lvx::auto_ptr<DIBitmap> DIBitmap::SkewPoint(Rectangles::Corner corner, int dx, int dy) const {
    const BlockLayout source = lvx::images::layout_of(m_block, m_strategy->GetClrTabSize(m_block));
    const SkewFrame frame = lvx::images::place_skew(source.width, source.rows, corner, dx, dy);
    const lvx::images::SkewMap map(frame.corners);
    if (!source.IsCredible()) {
        throw std::runtime_error("Not a valid bitmap");
    }
    lvx::auto_ptr<DIBitmap> result(new DIBitmap(nullptr, Adopt));
    result->m_block = lvx::images::allocate_block(GHND, skewed_block_size(source, frame));
    const GlobalLocker<unsigned char> source_lock(m_block);
    const GlobalLocker<unsigned char> target_lock(result->m_block);
    const BlockBytes source_bytes{source_lock.get(), static_cast<std::size_t>(source.size)};
    const BlockBytes target_bytes{target_lock.get(), GlobalSize(result->m_block)};

    const BITMAPINFOHEADER header = skewed_header(source, frame);
    std::memcpy(target_bytes.start, &header, sizeof header);
    result->m_strategy = &Strategy::Select(result->m_block);
    copy_table(source, source_bytes, target_bytes);

    const BlockBytes pixels = source_bytes.From(source.pixels_at);
    const BlockBytes target = target_bytes.From(result->GetBitsOffset());
    const SkewTask task{
        map,
        {pixels.start, pixels.size, source.width, source.rows, source.stride, source.header.biBitCount},
        frame.origin,
        skew_background,
        mean_of(skew_background),
        static_cast<int>(frame.width),
        static_cast<int>(frame.height),
        target.start,
        target.size};
    lvx::images::skew(task, lvx::images::fastest_skew_way());
    return result;
}

}  // namespace LVXUtilities
