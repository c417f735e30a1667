// Pictures to skew, and the ways to skew them.
#pragma once

#include <cstdint>
#include <cstring>
#include <ostream>
#include <random>
#include <string>

#include "images/picture_bytes.h"
#include "lvx/images/skew.h"
#include "lvx/images/skew_pixel.h"

namespace lvx_test {

/// A picture that is skewed: what it is, which corner is dragged, and how far.
struct SkewCase {
    int width = 1;
    int height = 1;
    std::uint32_t depth = 24;
    int corner = LVXUtilities::Rectangles::TopLeft;
    int dx = 0;
    int dy = 0;
    std::uint32_t used = 0;
    std::uint32_t compression = 0;

    std::uint32_t TableEntries() const {
        const bool has_masks = depth > 8 && compression == 3;
        return used != 0 ? used : depth <= 8 ? 1u << depth : has_masks ? 3 : 0;
    }
    std::size_t Stride() const { return (static_cast<std::size_t>(width) * depth + 31) / 32 * 4; }
    std::size_t PixelsAt() const { return 40 + std::size_t{4} * TableEntries(); }

    std::string Header() const {
        Info info;
        info.width = width;
        info.height = height;
        info.depth = depth;
        info.used = used;
        info.compression = compression;
        return info.Header();
    }
    std::size_t BlockSize() const { return PixelsAt() + Stride() * static_cast<std::size_t>(height); }
};

inline void PrintTo(const SkewCase& skewed, std::ostream* out) {
    *out << skewed.width << " by " << skewed.height << ", " << skewed.depth << " bits, corner "
         << skewed.corner << " by (" << skewed.dx << ", " << skewed.dy << "), " << skewed.used << " used";
}

inline std::string described(const SkewCase& skewed) {
    return testing::PrintToString(skewed);
}

/// Draws cases and pixels, the same in every run.
class SkewDice {
public:
    explicit SkewDice(unsigned seed) : m_random(seed) {}

    int Number(int low, int high) {
        return low + static_cast<int>(m_random() % (static_cast<unsigned>(high - low) + 1));
    }

    template <class Value, std::size_t count>
    Value OneOf(const Value (&values)[count]) {
        return values[m_random() % count];
    }

    /// A corner that comes anywhere up to far beyond its picture, also onto the edges of it.
    SkewCase Case(int most) {
        SkewCase result;
        result.width = Number(1, most);
        result.height = Number(1, most);
        result.depth = OneOf({1u, 4u, 8u, 16u, 24u, 32u});
        result.corner = OneOf({5, 6, 9, 10});
        result.dx = Way(result.width);
        result.dy = Way(result.height);
        return result;
    }

    /// The block, with random table and pixels.
    std::string Block(const SkewCase& skewed) {
        std::string block = skewed.Header();
        while (block.size() < skewed.BlockSize()) {
            block += static_cast<char>(m_random());
        }
        return block;
    }

private:
    int Way(int size) {
        switch (Number(0, 4)) {
            case 0:
                return 0;
            case 1:
                return Number(-size - 1, -size + 1);
            case 2:
                return Number(-3, 3);
            default:
                return Number(-2 * size, 2 * size);
        }
    }

    std::mt19937 m_random;
};

/// The pixels that `task` makes of its source.
inline std::string pixels_of(lvx::images::SkewTask& task, lvx::images::SkewWay way) {
    std::string pixels(static_cast<std::size_t>(task.width) * static_cast<std::size_t>(task.height) * 4,
                       '\x55');
    task.pixels = reinterpret_cast<unsigned char*>(pixels.data());
    task.room = pixels.size();
    lvx::images::skew(task, way);
    return pixels;
}

/// The task of a case, with memory of the exact size: who reads or writes beside it is found out by the
/// sanitizers. Throws as place_skew() and SkewMap do.
class SkewWork {
public:
    SkewWork(const SkewCase& skewed, const std::string& block, std::uint32_t background = 0x00FFFFFF)
        : m_pixels(block.begin() + static_cast<std::ptrdiff_t>(skewed.PixelsAt()), block.end()),
          m_frame(lvx::images::place_skew(skewed.width, skewed.height,
                                          static_cast<LVXUtilities::Rectangles::Corner>(skewed.corner),
                                          skewed.dx, skewed.dy)),
          task{lvx::images::SkewMap(m_frame.corners),
               {m_pixels.data(), m_pixels.size(), skewed.width, skewed.height, skewed.Stride(), skewed.depth},
               m_frame.origin,
               background,
               lvx::images::mean_of_four(background, background, background, background),
               static_cast<int>(m_frame.width),
               static_cast<int>(m_frame.height),
               nullptr,
               0} {}
    SkewWork(const SkewWork&) = delete;
    SkewWork& operator=(const SkewWork&) = delete;

    std::string Pixels(lvx::images::SkewWay way) { return pixels_of(task, way); }

private:
    std::vector<unsigned char> m_pixels;
    lvx::images::SkewFrame m_frame;

public:
    lvx::images::SkewTask task;
};

}  // namespace lvx_test
