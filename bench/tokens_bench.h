// bench/tokens_bench.h
//
// A token stream over 20 MB of C headers.
#pragma once

#include <vector>

#include "bench/runner.h"

namespace lvx_bench {

/// tokens/c-source. Throws std::runtime_error if the flex scanner finds other tokens.
std::vector<Entry> tokens_benchmarks();

}  // namespace lvx_bench
