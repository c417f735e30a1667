// Processes whose output goes where a test wants it.
#pragma once

#include <string>
#include <vector>

/// Runs the program with these descriptors as its output and its messages. The status is -1 if a signal ended
/// it.
int run_with_descriptors(const std::vector<std::string>& words, int out, int err);
