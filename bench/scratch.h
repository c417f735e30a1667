// bench/scratch.h
//
// A folder for the files that the benchmarks write and read, gone when the program ends.
#pragma once

#include <string>

namespace lvx_bench {

/// The path of a file of this name in the folder, which is made below $TMPDIR or /tmp at the first call.
std::string scratch_file(const std::string& name);

/// Deletes the file if it is there, so that each writing run makes a new one.
void remove_scratch_file(const std::string& path);

/// The contents of a whole file, wherever it lies. Throws std::runtime_error if it cannot be read.
std::string read_scratch_file(const std::string& path);

}  // namespace lvx_bench
