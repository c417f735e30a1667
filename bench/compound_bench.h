// bench/compound_bench.h
//
// Saving and loading the drawing of the store's benchmarks as one stream of a compound file.
#pragma once

#include <vector>

#include "bench/runner.h"

namespace lvx_bench {

/// store/compound-write and store/compound-read.
std::vector<Entry> compound_benchmarks();

}  // namespace lvx_bench
