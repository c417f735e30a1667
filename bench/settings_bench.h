// bench/settings_bench.h
//
// Reading one value out of a settings file.
#pragma once

#include <vector>

#include "bench/runner.h"

namespace lvx_bench {

/// settings/read-key.
std::vector<Entry> settings_benchmarks();

}  // namespace lvx_bench
