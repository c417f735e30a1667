// Skewed pictures: what becomes of the block around the pixels.
#include <algorithm>
#include <cstring>
#include <limits>
#include <new>
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

bool is_too_large(const SkewFrame& frame) {
    constexpr std::int64_t most = std::numeric_limits<std::int32_t>::max();
    return frame.width > most || frame.height > most ||
           skewed_pixels_size(frame) > lvx::images::largest_block;
}

// As long as if the new block had the old one's header and table, though its header has 40 bytes always.
std::uint64_t skewed_block_size(const BlockLayout& source, const SkewFrame& frame) {
    return std::max<std::uint64_t>(source.pixels_at + skewed_pixels_size(frame), sizeof(BITMAPINFOHEADER));
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

// What neither the header nor a pixel will cover becomes 0. The pixels are nearly all of the block, and are
// not to be written twice.
void clear_around(const BlockBytes& pixels, std::uint64_t pixels_size, const BlockBytes& target) {
    const std::size_t before = target.size - pixels.size - sizeof(BITMAPINFOHEADER);
    std::memset(target.From(sizeof(BITMAPINFOHEADER)).start, 0, before);
    const BlockBytes behind = pixels.From(pixels_size);
    std::memset(behind.start, 0, behind.size);
}

void skew_pixels(const BlockLayout& layout, const SkewFrame& frame, const lvx::images::SkewMap& map,
                 const BlockBytes& source, const BlockBytes& target) {
    const BlockBytes pixels = source.From(layout.pixels_at);
    const std::uint32_t word = skew_background;
    const SkewTask task{
        map,
        {pixels.start, pixels.size, layout.width, layout.rows, layout.stride, layout.header.biBitCount},
        frame.origin,
        word,
        lvx::images::mean_of_four(word, word, word, word),
        static_cast<int>(frame.width),
        static_cast<int>(frame.height),
        target.start,
        target.size};
    lvx::images::skew(task, lvx::images::fastest_skew_way());
}

}  // namespace

void DIBitmap::DebugSkew() {
    skew_background = 0x00FFFF80;
}

lvx::auto_ptr<DIBitmap> DIBitmap::SkewPoint(Rectangles::Corner corner, int dx, int dy) const {
    const BlockLayout layout = lvx::images::layout_of(m_block, m_strategy->GetClrTabSize(m_block));
    const SkewFrame frame = lvx::images::place_skew(layout.width, layout.rows, corner, dx, dy);
    const lvx::images::SkewMap map(frame.corners);
    if (!layout.IsCredible()) {
        throw std::runtime_error("Not a valid bitmap");
    }
    if (is_too_large(frame)) {
        throw std::bad_alloc();
    }
    lvx::auto_ptr<DIBitmap> result(new DIBitmap(nullptr, Adopt));
    result->m_block = lvx::images::allocate_block(GMEM_MOVEABLE, skewed_block_size(layout, frame));
    const GlobalLocker<unsigned char> source_lock(m_block);
    const GlobalLocker<unsigned char> target_lock(result->m_block);
    const BlockBytes source{source_lock.get(), static_cast<std::size_t>(layout.size)};
    const BlockBytes target{target_lock.get(), GlobalSize(result->m_block)};

    const BITMAPINFOHEADER header = skewed_header(layout, frame);
    std::memcpy(target.start, &header, sizeof header);
    result->m_strategy = &Strategy::Select(result->m_block);
    const BlockBytes pixels = target.From(result->GetBitsOffset());
    clear_around(pixels, header.biSizeImage, target);
    copy_table(layout, source, target);
    skew_pixels(layout, frame, map, source, pixels);
    return result;
}

}  // namespace LVXUtilities
