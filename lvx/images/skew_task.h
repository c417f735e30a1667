// lvx/images/skew_task.h
//
// The work of skewing one picture: from which pixels, by which map, into which. The memory belongs to the
// caller and is locked by it throughout.
#pragma once

#include <cstddef>
#include <cstdint>

#include "lvx/images/skew_map.h"
#include "lvx/images/skew_source.h"
#include "lvx/platform/little_endian.h"

namespace lvx::images {

using SkewWord = platform::LittleEndian<std::uint32_t>;

struct SkewTask {
    SkewMap map;
    SkewSource source;
    /// Where the source lies in the new picture.
    SkewPoint origin;
    /// The word that is seen where the source is not, and a pixel of nothing but that.
    std::uint32_t background;
    std::uint32_t nothing;
    /// The new picture, 4 bytes a pixel, in rows without a gap.
    int width;
    int height;
    unsigned char* pixels;
    /// The bytes from there to the end of its block, which may be fewer than the pixels take.
    std::size_t room;
};

/// A part of the new picture that is worked on at a time; not empty.
struct SkewPart {
    static constexpr int most_width = 128;
    static constexpr int most_height = 16;
    int x;
    int y;
    int width;
    int height;
};

/// Which pixel a coordinate of the new picture is on, -1 if on none of `count` that begin at `origin`. The
/// whole part is taken before the origin is: just below 0 a place counts as 0, in a picture that lies there.
inline std::int64_t pixel_of(double place, std::int64_t origin, std::int64_t count) {
    // What no pixel can have is left out first, as it need not fit into a whole number.
    constexpr double farthest = 1e10;
    if (!(place > -1 && place < farthest)) {
        return -1;
    }
    const std::int64_t pixel = static_cast<std::int64_t>(place) - origin;
    return pixel >= 0 && pixel < count ? pixel : -1;
}

/// The word of the source that is seen at a point of the new picture; the background outside.
inline std::uint32_t skewed_word(const SkewTask& task, const SkewMap::Column& column, double y) {
    const SkewPlace place = task.map.Map(column, y);
    const std::int64_t source_x = pixel_of(place.x, task.origin.x, task.source.width);
    const std::int64_t source_y = pixel_of(place.y, task.origin.y, task.source.height);
    return source_x < 0 || source_y < 0 ? task.background : task.source.Word(source_x, source_y);
}

/// A pixel of the new picture.
std::uint32_t skewed_pixel(const SkewTask& task, int x, int y);

/// Writes a part in which nothing of the source is seen.
void skew_nothing(const SkewTask& task, const SkewPart& part);

/// Writes `width` pixels of a row, as far as there is room.
void store_skewed(const SkewTask& task, int x, int y, const SkewWord* pixels, int width);

}  // namespace lvx::images
