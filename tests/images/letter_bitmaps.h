// Pictures told by letters, as images.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "lvx/images/dibitmap.h"
#include "picture_bytes.h"
#include "tests/owl/letter_picture.h"

namespace lvx_test {

using Letters = std::vector<std::string>;

/// The image of a picture whose rows are told from the upper one on. With one bit a pixel its letters are '#'
/// and '.'.
inline DIBitmap letter_bitmap(const Letters& rows, int depth, bool upper_row_first = false) {
    const owl_test::LetterPicture picture(rows, depth, upper_row_first);
    const std::size_t colours = depth <= 8 ? std::size_t{1} << depth : 0;
    const std::size_t stride = (rows[0].size() * static_cast<std::size_t>(depth) + 31) / 32 * 4;
    const auto* const info = reinterpret_cast<const char*>(picture.Info());
    const auto* const pixels = static_cast<const char*>(picture.Bits());
    const std::string block = std::string(info, sizeof(BITMAPINFOHEADER) + colours * sizeof(RGBQUAD)) +
                              std::string(pixels, stride * rows.size());
    return DIBitmap(make_block(block), DIBitmap::Adopt);
}

/// The image of one pixel row of 32 bits, told by its words.
inline DIBitmap word_bitmap(const std::vector<std::uint32_t>& words) {
    std::string block = Info{static_cast<std::int32_t>(words.size()), 1, 32}.Header();
    for (const std::uint32_t word : words) {
        block += little_endian(word, 4);
    }
    return DIBitmap(make_block(block), DIBitmap::Adopt);
}

}  // namespace lvx_test
