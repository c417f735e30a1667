// bench/shapes_bench.h
//
// Drawing shapes through a port.
#pragma once

#include <vector>

#include "bench/runner.h"

namespace lvx_bench {

/// shapes/fill-frame.
std::vector<Entry> shapes_benchmarks();

}  // namespace lvx_bench
