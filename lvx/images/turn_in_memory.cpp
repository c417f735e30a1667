#include <algorithm>
#include <bit>
#include <cstdint>
#include <vector>

#include "lvx/images/colour_writer.h"
#include "lvx/images/default_colours.h"
#include "lvx/images/turn.h"
#include "owl/turned_picture.h"

namespace lvx::images {
namespace {

using Colours = std::vector<std::uint32_t>;

constexpr std::uint32_t white = 0x00FFFFFF;
constexpr std::uint32_t black = 0;

// The pixels as colours: those of the block itself where they are, else read from it.
class SourceColours {
public:
    explicit SourceColours(const TurnSource& source) {
        if (AreColours(source)) {
            Borrow(source);
        } else {
            Read(source);
        }
    }
    SourceColours(const SourceColours&) = delete;
    SourceColours& operator=(const SourceColours&) = delete;

    const std::uint32_t* UpperRow() const { return m_upper_row; }
    /// From a row to the one below it.
    std::ptrdiff_t Stride() const { return m_stride; }

private:
    static bool AreColours(const TurnSource& source) {
        const bool is_aligned = reinterpret_cast<std::uintptr_t>(source.pixels) % alignof(std::uint32_t) == 0;
        return source.format.depth == 32 && !source.format.HasMasks() && is_aligned &&
               std::endian::native == std::endian::little;
    }

    void Borrow(const TurnSource& source) {
        const std::ptrdiff_t rows = source.rows;
        m_stride = source.is_top_down ? source.width : -std::ptrdiff_t{source.width};
        m_upper_row = reinterpret_cast<const std::uint32_t*>(source.pixels) -
                      (source.is_top_down ? 0 : (rows - 1) * m_stride);
    }

    void Read(const TurnSource& source) {
        const auto width = static_cast<std::size_t>(source.width);
        const auto rows = static_cast<std::size_t>(source.rows);
        m_colours.resize(width * rows);
        const ColourReader reader(source.format, source.table);
        for (std::size_t y = 0; y < rows; ++y) {
            const std::size_t row = source.is_top_down ? y : rows - 1 - y;
            reader.Read(source.pixels + row * source.stride, width, &m_colours[y * width]);
        }
        m_upper_row = m_colours.data();
        m_stride = source.width;
    }

    Colours m_colours;
    const std::uint32_t* m_upper_row = nullptr;
    std::ptrdiff_t m_stride = 0;
};

owl::TTurnedPicture turned_picture(const TurnTask& task) {
    const TurnFrame& frame = task.frame;
    return owl::TTurnedPicture(owl::TSize(task.source.width, task.source.rows),
                               {frame.cosine, -frame.sine, frame.sine, frame.cosine, frame.dx, frame.dy});
}

void draw_ground(int y, int height, Colours& row) {
    const bool is_edge = y == 0 || y == height - 1;
    std::fill(row.begin(), row.end(), is_edge ? black : white);
    row.front() = black;
    row.back() = black;
}

void write_default_table(const TurnTarget& target) {
    if (!target.format.HasTable()) {
        return;
    }
    unsigned char* entry = target.table;
    for (std::size_t i = 0; i < std::size_t{1} << target.format.depth; ++i) {
        const std::uint32_t colour = default_colour(target.format.depth, i);
        *entry++ = static_cast<unsigned char>(colour);
        *entry++ = static_cast<unsigned char>(colour >> 8);
        *entry++ = static_cast<unsigned char>(colour >> 16);
        *entry++ = 0;
    }
}

}  // namespace

bool turn_in_memory(const TurnTask& task) {
    const TurnTarget& target = task.target;
    const SourceColours colours(task.source);
    const owl::TTurnedPicture turned = turned_picture(task);
    ColourWriter writer(target.format);
    Colours row(static_cast<std::size_t>(target.width));
    for (int from_bottom = 0; from_bottom < target.filled_rows; ++from_bottom) {
        const int y = target.height - 1 - from_bottom;
        draw_ground(y, target.height, row);
        owl::TTurnedPicture::TRun run = turned.RunOf(y);
        run = {std::max(run.begin, 0), std::min(run.end, target.width)};
        if (run.begin < run.end) {
            turned.CopyRun(colours.UpperRow(), colours.Stride(), y, run,
                           &row[static_cast<std::size_t>(run.begin)]);
        }
        writer.Write(row.data(), row.size(),
                     target.pixels + static_cast<std::size_t>(from_bottom) * target.stride);
    }
    write_default_table(target);
    return true;
}

}  // namespace lvx::images
