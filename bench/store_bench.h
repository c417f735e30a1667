// bench/store_bench.h
//
// Saving and loading a drawing of 200,000 objects.
#pragma once

#include <vector>

#include "bench/runner.h"

namespace lvx_bench {

/// store/file-write, store/file-read, store/memory-write and store/memory-read.
std::vector<Entry> store_benchmarks();

}  // namespace lvx_bench
