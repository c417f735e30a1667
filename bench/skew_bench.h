// bench/skew_bench.h
//
// Dragging a corner of a picture of 3 megapixels.
#pragma once

#include <vector>

#include "bench/runner.h"

namespace lvx_bench {

/// skew/3mp.
std::vector<Entry> skew_benchmarks();

}  // namespace lvx_bench
