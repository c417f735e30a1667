// bench/report.h
//
// The results as a table for people and as an array for programs.
#pragma once

#include <ostream>
#include <vector>

#include "bench/runner.h"

namespace lvx_bench {

/// The lines of one benchmark: ours, then a line for each peer. Requires: at least one result.
void print_table(std::ostream& out, const std::vector<Result>& results);

/// All results as one JSON array with an object for each pair of a benchmark and a peer.
void print_json(std::ostream& out, const std::vector<Result>& results);

}  // namespace lvx_bench
