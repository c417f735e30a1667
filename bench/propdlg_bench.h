// bench/propdlg_bench.h
//
// Dialogs with tabs.
#pragma once

#include <vector>

#include "bench/runner.h"

namespace lvx_bench {

/// propdlg/open-walk-close and propdlg/open-on-demand.
std::vector<Entry> propdlg_benchmarks();

}  // namespace lvx_bench
