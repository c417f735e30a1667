// Which streams a compound file has.
#pragma once

#include <string>
#include <vector>

namespace sketch {

/// The streams below the root, in the order in which the system lists them; no more than 10,000. Throws
/// DocumentError if the file does not open as a compound file.
std::vector<std::string> StreamNames(const std::string& file);

}  // namespace sketch
