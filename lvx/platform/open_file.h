// lvx/platform/open_file.h
//
// What an open file is, and how long.
#pragma once

#include <cstdint>
#include <cstdio>
#include <optional>

namespace lvx::platform {

/// The bytes between the position of `file` and its end; nothing for what has no length (a pipe, a device) or
/// cannot be asked. Requires: an unbuffered file.
std::optional<std::uint64_t> remaining_length(std::FILE* file);

/// Whether `file` is a directory, which some systems open for reading as if it were a file.
bool is_directory(std::FILE* file);

}  // namespace lvx::platform
