#include "lvx/images/skew.h"

#include <algorithm>
#include <bit>
#include <limits>

#include "lvx/images/skew_ways.h"

namespace lvx::images {
namespace {

// Whether 32 bits are enough to find every word of the source, in the machine's own order of bytes.
bool are_lanes_enough(const SkewSource& source) {
    constexpr std::uint64_t most = std::numeric_limits<std::int32_t>::max();
    const std::uint64_t bits = static_cast<std::uint64_t>(source.width) * source.depth;
    return std::endian::native == std::endian::little && source.size >= sizeof(SkewWord) && bits <= most &&
           source.stride != 0 && source.stride <= most / static_cast<std::uint64_t>(source.height);
}

class PartSkewer {
public:
    PartSkewer(const SkewTask& task, SkewByLanes* by_lanes)
        : m_task(task), m_by_lanes(by_lanes), m_approximator(task) {}

    void SetColumns(const SkewPart& part) { m_approximator.SetColumns(part); }

    void Skew(const SkewPart& part) {
        switch (m_approximator.Approximate(part, m_approximation)) {
            case SkewView::something:
                m_by_lanes(m_task, part, m_approximation);
                break;
            case SkewView::nothing:
                skew_nothing(m_task, part);
                break;
            case SkewView::unknown:
                skew_plainly(m_task, part);
                break;
        }
    }

private:
    const SkewTask& m_task;
    SkewByLanes* m_by_lanes;
    SkewApproximator m_approximator;
    SkewApproximation m_approximation;
};

class PlainSkewer {
public:
    explicit PlainSkewer(const SkewTask& task) : m_task(task) {}

    void SetColumns(const SkewPart&) {}
    void Skew(const SkewPart& part) { skew_plainly(m_task, part); }

private:
    const SkewTask& m_task;
};

// A column of parts after the other: what is reckoned for the columns serves them all.
template <class Skewer>
void skew_by_parts(const SkewTask& task, Skewer skewer) {
    SkewPart part{};
    for (part.x = 0; part.x < task.width; part.x += part.width) {
        part.width = std::min(task.width - part.x, SkewPart::most_width);
        skewer.SetColumns(part);
        for (part.y = 0; part.y < task.height; part.y += part.height) {
            part.height = std::min(task.height - part.y, SkewPart::most_height);
            skewer.Skew(part);
        }
    }
}

}  // namespace

SkewWay fastest_skew_way() {
#if defined(__x86_64__) || defined(__i386__)
    // This asks the system too, whether it keeps the wide registers.
    if (__builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma")) {
        return SkewWay::by_eight;
    }
#endif
    return SkewWay::by_four;
}

void skew(const SkewTask& task, SkewWay way) {
    if (way == SkewWay::plain || !are_lanes_enough(task.source)) {
        skew_by_parts(task, PlainSkewer(task));
    } else {
        skew_by_parts(task, PartSkewer(task, way == SkewWay::by_eight ? skew_by_eight : skew_by_four));
    }
}

}  // namespace lvx::images
