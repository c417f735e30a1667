// lvx/platform/open_file.h
//
// What an open file is, and how long.
#pragma once

#include <cstdint>
#include <cstdio>
#include <optional>

namespace lvx::platform {

/// The bytes between the position of `file` and its end; nothing for what has no length (a pipe, a device) or
/// cannot be asked. Requires: nothing has been read through the C library's buffer.
std::optional<std::uint64_t> remaining_length(std::FILE* file);

/// Reads up to `size` bytes past the C library's buffer: what is there without waiting, but at least one
/// byte. 0 at the end, and when the file cannot be read.
std::size_t read_available(std::FILE* file, void* data, std::size_t size);

/// Whether `file` is a directory, which some systems open for reading as if it were a file.
bool is_directory(std::FILE* file);

}  // namespace lvx::platform
