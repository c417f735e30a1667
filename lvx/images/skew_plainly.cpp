#include "lvx/images/skew_pixel.h"
#include "lvx/images/skew_ways.h"

namespace lvx::images {
namespace {

struct PixelColumn {
    SkewMap::Column samples[skew_samples];
};

std::uint32_t pixel_at(const SkewTask& task, const PixelColumn& column, int y) {
    std::uint32_t words[skew_samples];
    for (int sample = 0; sample < skew_samples; ++sample) {
        words[sample] = skewed_word(task, column.samples[sample], y + skew_sample_y[sample]);
    }
    return mean_of_four(words[0], words[1], words[2], words[3]);
}

}  // namespace

void skew_plainly(const SkewTask& task, const SkewPart& part) {
    PixelColumn columns[SkewPart::most_width];
    for (int i = 0; i < part.width; ++i) {
        for (int sample = 0; sample < skew_samples; ++sample) {
            columns[i].samples[sample] = task.map.At(part.x + i + skew_sample_x[sample]);
        }
    }
    SkewWord row[SkewPart::most_width];
    for (int y = part.y; y < part.y + part.height; ++y) {
        for (int i = 0; i < part.width; ++i) {
            row[i] = pixel_at(task, columns[i], y);
        }
        store_skewed(task, part.x, y, row, part.width);
    }
}

}  // namespace lvx::images
