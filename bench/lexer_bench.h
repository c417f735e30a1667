// bench/lexer_bench.h
//
// Finding the tokens of C source by patterns.
#pragma once

#include <vector>

#include "bench/runner.h"

namespace lvx_bench {

/// lexer/c-source.
std::vector<Entry> lexer_benchmarks();

}  // namespace lvx_bench
