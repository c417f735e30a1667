#include "lvx/images/skew_task.h"

#include <algorithm>
#include <cstring>

#include "lvx/images/skew_pixel.h"

namespace lvx::images {

std::uint32_t skewed_pixel(const SkewTask& task, int x, int y) {
    std::uint32_t words[skew_samples];
    for (int sample = 0; sample < skew_samples; ++sample) {
        const SkewMap::Column column = task.map.At(x + skew_sample_x[sample]);
        words[sample] = skewed_word(task, column, y + skew_sample_y[sample]);
    }
    return mean_of_four(words[0], words[1], words[2], words[3]);
}

void skew_nothing(const SkewTask& task, const SkewPart& part) {
    SkewWord row[SkewPart::most_width];
    std::fill_n(row, part.width, SkewWord(task.nothing));
    for (int y = part.y; y < part.y + part.height; ++y) {
        store_skewed(task, part.x, y, row, part.width);
    }
}

void store_skewed(const SkewTask& task, int x, int y, const SkewWord* pixels, int width) {
    const std::size_t first =
        static_cast<std::size_t>(y) * static_cast<std::size_t>(task.width) + static_cast<std::size_t>(x);
    const std::size_t place = first * sizeof(SkewWord);
    if (place < task.room) {
        const std::size_t size = static_cast<std::size_t>(width) * sizeof(SkewWord);
        std::memcpy(task.pixels + place, pixels, std::min(size, task.room - place));
    }
}

}  // namespace lvx::images
