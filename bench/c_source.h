// bench/c_source.h
//
// Text that people wrote, for what reads text: the C headers of the kernel and of the C library, as the
// packages that every compiler needs install them.
#pragma once

#include <cstddef>
#include <string>

namespace lvx_bench {

constexpr std::size_t c_source_size = 20'000'000;

/// The headers behind each other in the order of their paths, exactly `c_source_size` bytes; where they are
/// fewer, as they are (5.5 MB with Debian 12), they follow again from the first. The same on every machine
/// with the same packages. Throws std::runtime_error if there are none.
std::string make_c_source();

}  // namespace lvx_bench
