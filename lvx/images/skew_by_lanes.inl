// lvx/images/skew_by_lanes.inl
//
// Skewing a part by several lanes, for the sources that are compiled for vectors of one width each, and that
// have said how many `lanes` those have. They may be given instructions that not every machine has, so
// nothing in here gets a name that the linker could share with the rest of the program.
#pragma once

#include <stdint.h>
#include <string.h>

#include "lvx/images/skew_ways.h"

namespace lvx::images {
namespace {

typedef float Floats __attribute__((vector_size(lanes * 4)));
typedef int32_t Ints __attribute__((vector_size(lanes * 4)));
typedef uint32_t Words __attribute__((vector_size(lanes * 4)));

inline Floats load(const float* numbers) {
    Floats result;
    memcpy(&result, numbers, sizeof result);
    return result;
}

inline Floats lesser(Floats a, Floats b) {
    return a < b ? a : b;
}

inline Floats greater(Floats a, Floats b) {
    return a > b ? a : b;
}

// 0, 1, 2 and so on.
inline Floats count_up() {
    Floats result;
    for (int lane = 0; lane < lanes; ++lane) {
        result[lane] = static_cast<float>(lane);
    }
    return result;
}

// Of masks, whose lanes have all bits or none.
inline bool is_any(Ints mask) {
    uint64_t parts[lanes / 2];
    memcpy(parts, &mask, sizeof parts);
    uint64_t all = 0;
    for (const uint64_t part : parts) {
        all |= part;
    }
    return all != 0;
}

class PartByLanes {
public:
    PartByLanes(const SkewTask& task, const SkewPart& part, const SkewApproximation& approximation)
        : m_task(task),
          m_part(part),
          m_map(approximation),
          m_stride(static_cast<uint32_t>(task.source.stride)),
          m_depth(task.source.depth),
          m_last_column(static_cast<float>(part.width - 1)),
          m_last_word(static_cast<int32_t>(task.source.size < INT32_MAX ? task.source.size : INT32_MAX) - 4) {
    }

    void Run() const {
        SkewCover covers[most_blocks];
        for (int i = 0; i < m_part.width; i += block_width) {
            covers[i / block_width] = cover_of(m_map, i, EndOfBlock(i), m_part.height);
        }
        SkewWord row[SkewPart::most_width];
        for (int y = 0; y < m_part.height; ++y) {
            for (int i = 0; i < m_part.width; i += block_width) {
                FillBlock(covers[i / block_width], i, y, row);
            }
            store_skewed(m_task, m_part.x, m_part.y + y, row, m_part.width);
        }
    }

private:
    // Large enough that asking how much of a block is in the source costs nothing.
    static constexpr int block_width = 32;
    static constexpr int most_blocks = SkewPart::most_width / block_width;

    // Of the four samples in several pixels.
    struct Sums {
        // The bytes 0 and 2 of the words, and the bytes 1 and 3.
        Words lower;
        Words upper;
        // The least and the greatest of what the coordinates have behind the point.
        Floats least;
        Floats greatest;
        // Which have a word that reaches behind the end of the block.
        Ints cut;
    };

    int EndOfBlock(int begin) const {
        const int rest = m_part.width - begin;
        return begin + (rest < block_width ? rest : block_width);
    }

    void FillBlock(SkewCover cover, int begin, int y, SkewWord* row) const {
        const int end = EndOfBlock(begin);
        for (int i = begin; i < end; i += lanes) {
            const Words pixels = cover == SkewCover::all    ? PixelsAt<true>(i, y)
                                 : cover == SkewCover::some ? PixelsAt<false>(i, y)
                                                            : Words{} + m_task.nothing;
            memcpy(static_cast<void*>(row + i), &pixels, sizeof pixels);
        }
    }

    // Whether `all` is known to be in the source.
    template <bool all>
    Words PixelsAt(int i, int y) const {
        Sums sums = {{}, {}, Floats{} + 0.5F, Floats{} + 0.5F, {}};
        // Lanes behind the last column see what it sees.
        const Floats x = lesser(count_up() + static_cast<float>(i), Floats{} + m_last_column);
#pragma GCC unroll 4
        for (int sample = 0; sample < skew_samples; ++sample) {
            AddSample<all>(sample, i, x, static_cast<float>(y + skew_sample_y[sample]), sums);
        }
        Words pixels = (sums.lower >> 2 & skew_byte_pair) | (sums.upper >> 2 & skew_wrapped_pair) << 8;
        const Ints in_doubt = (sums.least <= m_map.guard) | (sums.greatest >= 1 - m_map.guard) | sums.cut;
        if (is_any(in_doubt)) {
            SettleDoubts(i, y, in_doubt, pixels);
        }
        return pixels;
    }

    template <bool all>
    void AddSample(int sample, int i, Floats x, float y, Sums& sums) const {
        Floats new_y = load(m_map.y_start[sample] + i) + y * load(m_map.y_factor[sample] + i);
        const Floats divisor = m_map.divisor_start + m_map.divisor_slope * new_y;
        Floats new_x = (m_map.x_start[sample] + x + m_map.lever * new_y) / divisor;
        Ints near = {};
        if constexpr (!all) {
            near = (new_y > m_map.low_y) & (new_y < m_map.high_y) & (new_x > m_map.low_x) &
                   (new_x < m_map.high_x);
            new_x = (Floats)((Ints)new_x & near);
            new_y = (Floats)((Ints)new_y & near);
        }
        Ints pixel_x = __builtin_convertvector(new_x, Ints);
        Ints pixel_y = __builtin_convertvector(new_y, Ints);
        Floats part_x = new_x - __builtin_convertvector(pixel_x, Floats);
        Floats part_y = new_y - __builtin_convertvector(pixel_y, Floats);
        pixel_x += m_map.base_x;
        pixel_y += m_map.base_y;
        Words words;
        if constexpr (all) {
            words = WordsAt(OffsetsOf(pixel_x, pixel_y));
        } else {
            // Just before the first pixel is on it.
            const Words offsets =
                OffsetsOf(pixel_x & ~(pixel_x >> 31), pixel_y & ~(pixel_y >> 31)) & (Words)near;
            const Ints whole = (Ints)offsets <= m_last_word;
            words = WordsAt(offsets & (Words)whole);
            words = (words & (Words)near) | (m_task.background & ~(Words)near);
            sums.cut |= ~whole;
            const Floats half = Floats{} + 0.5F;
            part_x = (Floats)(((Ints)part_x & near) | ((Ints)half & ~near));
            part_y = (Floats)(((Ints)part_y & near) | ((Ints)half & ~near));
        }
        sums.least = lesser(lesser(sums.least, part_x), part_y);
        sums.greatest = greater(greater(sums.greatest, part_x), part_y);
        sums.lower += words & skew_byte_pair;
        sums.upper += words >> 8 & skew_byte_pair;
    }

    Words OffsetsOf(Ints pixel_x, Ints pixel_y) const {
        return (Words)pixel_y * m_stride + ((Words)pixel_x * m_depth >> 3);
    }

    Words WordsAt(Words offsets) const {
        Words words;
        for (int lane = 0; lane < lanes; ++lane) {
            uint32_t word;
            memcpy(&word, m_task.source.pixels + offsets[lane], sizeof word);
            words[lane] = word;
        }
        return words;
    }

    __attribute__((noinline)) void SettleDoubts(int i, int y, Ints in_doubt, Words& pixels) const {
        for (int lane = 0; lane < lanes; ++lane) {
            if (in_doubt[lane] != 0) {
                pixels[lane] = skewed_pixel(m_task, m_part.x + i + lane, m_part.y + y);
            }
        }
    }

    const SkewTask& m_task;
    const SkewPart& m_part;
    const SkewApproximation& m_map;
    uint32_t m_stride;
    uint32_t m_depth;
    float m_last_column;
    int32_t m_last_word;
};

}  // namespace
}  // namespace lvx::images
