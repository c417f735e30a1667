// bench/program.h
//
// What the programs of all systems do with the benchmarks that they have.
#pragma once

#include <vector>

#include "bench/runner.h"

namespace lvx_bench {

/// Measures those of `entries` that the arguments of main() name, prints the table, and the numbers to the
/// file that they name. The exit code: 0; 1 if something failed; 2 if the arguments make no sense.
int run_program(int count, char** arguments, const std::vector<Entry>& entries);

}  // namespace lvx_bench
