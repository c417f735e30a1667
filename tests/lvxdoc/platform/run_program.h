// The program itself, run as a process of its own.
#pragma once

#include <string>
#include <vector>

#include "tests/lvxdoc/support.h"

/// Runs the lvxdoc that lies beside this test program, with its output in files of `folder`. The status is -1
/// if it did not end by itself.
Result run_process(const Folder& folder, const std::vector<std::string>& words);
