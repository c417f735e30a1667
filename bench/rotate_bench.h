// bench/rotate_bench.h
//
// Turning a picture of 3 megapixels.
#pragma once

#include <vector>

#include "bench/runner.h"

namespace lvx_bench {

/// rotate/3mp.
std::vector<Entry> rotate_benchmarks();

}  // namespace lvx_bench
