// bench/jpeg_bench.h
//
// Loading a JPEG file of 12 megapixels.
#pragma once

#include <vector>

#include "bench/runner.h"

namespace lvx_bench {

/// jpeg/load.
std::vector<Entry> jpeg_benchmarks();

}  // namespace lvx_bench
