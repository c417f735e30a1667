// bench/raw_jpeg.h
//
// The decoder's own interface used plainly: row after row of red, green and blue into a buffer of our own.
#pragma once

#include <string>

#include "bench/raw_bitmap.h"

namespace lvx_bench {

/// Writes the benchmarks' picture in quality 90, as cameras have it. Ends the process if it cannot.
void save_raw_jpeg(const std::string& path);

/// The pixels from the top down. Throws std::runtime_error if the file cannot be opened; ends the process if
/// it is damaged.
RawFile load_raw_jpeg(const std::string& path);

}  // namespace lvx_bench
