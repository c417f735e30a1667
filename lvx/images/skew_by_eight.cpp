// Compiled for AVX2 and FMA on x86: nothing but skew_by_eight() may come out of here.
namespace lvx::images {
namespace {

constexpr int lanes = 8;

}  // namespace
}  // namespace lvx::images

#include "lvx/images/skew_by_lanes.inl"

namespace lvx::images {

void skew_by_eight(const SkewTask& task, const SkewPart& part, const SkewApproximation& approximation) {
    PartByLanes(task, part, approximation).Run();
}

}  // namespace lvx::images
