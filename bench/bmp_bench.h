// bench/bmp_bench.h
//
// Loading and saving a bitmap file of 36 MB.
#pragma once

#include <vector>

#include "bench/runner.h"

namespace lvx_bench {

/// bmp/load and bmp/save.
std::vector<Entry> bmp_benchmarks();

}  // namespace lvx_bench
