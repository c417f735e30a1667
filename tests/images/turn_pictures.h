// Pictures to turn, with memory of their own.
#pragma once

#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "images/picture_bytes.h"
#include "lvx/images/picture_size.h"
#include "lvx/images/turn.h"

namespace lvx_test {

/// A block that is turned: a header of 40 bytes, a table or masks, and pixels.
struct TurnCase {
    Info info;
    std::string behind_header;
    std::string pixels;
    double angle = 0;

    std::uint32_t Depth() const { return info.depth; }
    lvx::images::PixelFormat Format() const {
        const auto depth = static_cast<std::uint16_t>(info.depth);
        if (info.compression != 3) {
            return lvx::images::plain_format(depth);
        }
        return {depth, number_at(behind_header, 0), number_at(behind_header, 4), number_at(behind_header, 8)};
    }
};

inline std::size_t stride_of(std::int64_t width, std::uint32_t depth) {
    return static_cast<std::size_t>(
        lvx::images::row_size(static_cast<std::uint32_t>(width), static_cast<std::uint16_t>(depth)));
}

/// What a turner made.
struct Turned {
    bool is_good;
    std::string table;
    std::string pixels;
};

/// Turns a case into memory that is all 0 before.
inline Turned turn(lvx::images::Turner* turner, const TurnCase& turned) {
    const std::string block = turned.info.Header() + turned.behind_header + turned.pixels;
    const auto* const bytes = reinterpret_cast<const unsigned char*>(block.data());
    const int rows = std::abs(turned.info.height);
    const lvx::images::TurnFrame frame = lvx::images::turn_frame(turned.info.width, rows, turned.angle);
    const std::size_t stride = stride_of(frame.width, turned.Depth());
    Turned result;
    result.table.resize(turned.Depth() <= 8 ? std::size_t{4} << turned.Depth() : 0);
    result.pixels.resize(stride * static_cast<std::size_t>(frame.height));
    BITMAPINFOHEADER header{};
    std::memcpy(&header, block.data(), sizeof header);
    header.biWidth = static_cast<std::int32_t>(frame.width);
    header.biHeight = static_cast<std::int32_t>(frame.height);
    header.biClrUsed = 0;
    const std::size_t pixels_at = 40 + turned.behind_header.size();
    result.is_good = turner(
        {{bytes,
          turned.Format(),
          {bytes + 40, turned.behind_header.size() / 4, 4},
          bytes + pixels_at,
          stride_of(turned.info.width, turned.Depth()),
          turned.info.width,
          rows,
          turned.info.height < 0},
         frame,
         {header, turned.Format(), reinterpret_cast<unsigned char*>(result.table.data()),
          reinterpret_cast<unsigned char*>(result.pixels.data()), stride, static_cast<int>(frame.width),
          static_cast<int>(frame.height), static_cast<int>(frame.height)}});
    return result;
}

/// A picture of 32 bits that is told by letters, the upper row first.
inline TurnCase letter_case(const std::vector<std::string>& rows, double angle) {
    TurnCase result;
    result.info.width = static_cast<std::int32_t>(rows[0].size());
    result.info.height = static_cast<std::int32_t>(rows.size());
    result.info.depth = 32;
    result.angle = angle;
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
        for (const char letter : *row) {
            result.pixels += std::string(4, letter);
        }
    }
    return result;
}

/// Pixels of 32 bits as letters, the upper row first; '.' is white and '#' black.
inline std::vector<std::string> letters_of(const std::string& pixels, std::size_t width) {
    std::vector<std::string> rows(pixels.size() / 4 / width);
    for (std::size_t i = 0; i < pixels.size(); i += 4) {
        const std::uint32_t word = number_at(pixels, i) & 0xFFFFFF;
        rows[rows.size() - 1 - i / 4 / width] += word == 0xFFFFFF ? '.'
                                                 : word == 0      ? '#'
                                                                  : static_cast<char>(word & 0xFF);
    }
    return rows;
}

}  // namespace lvx_test
