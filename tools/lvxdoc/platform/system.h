// tools/lvxdoc/platform/system.h
//
// What the tool asks of the system beyond the C++ library.
#pragma once

#include <cstdio>
#include <filesystem>
#include <string>

namespace lvxdoc::platform {

/// The path that `name`, as it came from the command line, means to the system.
std::filesystem::path native_path(const std::string& name);

/// The other way: the name under which the C library opens `path`.
std::string narrow_name(const std::filesystem::path& path);

/// Makes the file `path` and opens it for writing. Null, with errno set, if that fails or anything is there.
/// It can be removed while it is open; the name may stay taken until it is closed.
std::FILE* create_new(const std::filesystem::path& path);

/// Whether a person looks at `file`.
bool is_terminal(std::FILE* file);

/// A number that no other running process has.
unsigned long process_number();

/// Keeps `file` from changing line ends.
void make_binary(std::FILE* file);

/// Lets a write to a closed pipe fail, in place of ending the process by a signal.
void ignore_broken_pipes();

/// Whether `error`, a value of errno after a failed write, says that the other end is closed.
bool is_broken_pipe(int error);

}  // namespace lvxdoc::platform
