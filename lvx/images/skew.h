// lvx/images/skew.h
//
// Skewing a whole picture, part by part, in the way that is the fastest on this machine.
#pragma once

#include "lvx/images/skew_task.h"

namespace lvx::images {

enum class SkewWay { plain, by_four, by_eight };

/// The fastest one that this processor can go.
SkewWay fastest_skew_way();

/// Writes every pixel for which there is room, the same bits whatever the way. A picture that has no use for
/// floats, and a part where they are of none, goes the plain way. Requires: a processor that can go `way`.
void skew(const SkewTask& task, SkewWay way);

}  // namespace lvx::images
