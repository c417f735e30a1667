// lvx/platform/posix/native_path.h
//
// From drive-letter paths to the system's, and back. Those without an argument for the drives go by the
// process's at that moment.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "lvx/platform/posix/drive_set.h"

namespace lvx::platform {

/// What the system calls `path`: `\` and '/' separate, "." and ".." are gone, and a separator at the end is
/// kept as a '/'. Relative to the current directory where that is enough. Nothing for an empty path, a drive
/// that is not there, and for "\\server".
std::optional<std::string> native_path(std::string_view path);
std::optional<std::string> native_path(std::string_view path, const DriveSet& drives);

/// Where a path leads that names its drive. Nothing if it names none, or one that is not there.
std::optional<DrivePlace> named_place(std::string_view path, const DriveSet& drives);

/// What a drive-letter path calls `absolute`, as "C:\tmp". Nothing if no drive leads there, or a name in it
/// holds a `\`.
std::optional<std::string> drive_path(const std::string& absolute);

/// Where the process's current directory is. Nothing if no drive leads there, or a name in it holds a `\`.
std::optional<DrivePlace> current_place(const DriveSet& drives);

/// The current directory of a drive: the process's if it is in that drive.
std::string current_directory_of(char letter, const DriveSet& drives);

bool is_separator(char character);

/// Whether `path` has a ':' in second place.
bool names_drive(std::string_view path);

}  // namespace lvx::platform
