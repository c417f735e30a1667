// lvx/platform/profile_directory.h
//
// Where settings files lie that are named without a directory. Any thread may ask and set.
#pragma once

#include <string>

#include "lvx/platform/export.h"

namespace lvx {

/// The profile directory, as the system writes paths and without a separator at the end. On Windows that of
/// the system. Elsewhere what set_profile_directory() was given, or else $XDG_CONFIG_HOME if it is an
/// absolute path, or else .config in the user's home; empty if there is none, and then no settings file is
/// found or written by its bare name.
LVX_EXPORT std::string profile_directory();

/// Puts the profile directory elsewhere for this process; empty means the usual one again. The first write
/// makes it. A relative one counts from the current directory of now, and does not move with that.
/// False, and all stays as it was, if `directory` holds a NUL, or is relative while the current directory is
/// gone. On Windows always: the directory is the system's affair there.
LVX_EXPORT bool set_profile_directory(const std::string& directory);

}  // namespace lvx
