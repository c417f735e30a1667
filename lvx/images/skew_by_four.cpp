namespace lvx::images {
namespace {

constexpr int lanes = 4;

}  // namespace
}  // namespace lvx::images

#include "lvx/images/skew_by_lanes.inl"

namespace lvx::images {

void skew_by_four(const SkewTask& task, const SkewPart& part, const SkewApproximation& approximation) {
    PartByLanes(task, part, approximation).Run();
}

}  // namespace lvx::images
