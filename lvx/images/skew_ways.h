// lvx/images/skew_ways.h
//
// Skewing a part of a picture, in several ways that come to the same bits.
#pragma once

#include "lvx/images/skew_approximation.h"
#include "lvx/images/skew_task.h"

namespace lvx::images {

/// Sample by sample with doubles: on every machine, for every picture.
void skew_plainly(const SkewTask& task, const SkewPart& part);

/// Several samples at once with floats, and with doubles the pixels of which floats cannot tell what is seen
/// there. Requires: a machine whose words are little-endian, a source of at least one whole word whose bytes
/// and whose bits in a row can be counted in 31 bits, and an approximation of the part.
using SkewByLanes = void(const SkewTask& task, const SkewPart& part, const SkewApproximation& approximation);

/// Four at once, as the processors can that this is built for.
SkewByLanes skew_by_four;

/// Eight at once, for processors with AVX2 and FMA only.
SkewByLanes skew_by_eight;

}  // namespace lvx::images
