// bench/raw_bitmap.h
//
// A bitmap file as one read into the memory where the pixels stay, or one write out of it: what no library
// can do with fewer calls.
#pragma once

#include <cstddef>
#include <memory>
#include <string>

namespace lvx_bench {

/// The headers of a bitmap file with 24 bits per pixel.
constexpr std::size_t raw_header_bytes = 54;

struct Freer {
    void operator()(void* memory) const;
};
/// A whole file in memory that malloc gave.
using RawFile = std::unique_ptr<unsigned char[], Freer>;

/// The benchmarks' picture as a bitmap file.
RawFile make_raw_bitmap();

/// Throws std::runtime_error if the file is not as long as the benchmarks' bitmap.
RawFile load_raw_bitmap(const std::string& path);
/// Throws std::runtime_error if it cannot be written.
void save_raw_bitmap(const std::string& path, const RawFile& file);

}  // namespace lvx_bench
