// lvx/platform/posix/profile_writer.h
//
// Changes a settings file.
#pragma once

#include <string_view>

#include "lvx/platform/posix/profile_path.h"

namespace lvx::platform {

/// Sets a value in the file there: see set_profile_value. The file is read and replaced under the lock of its
/// directory, and is not touched if it has that value. False if it could not be done; the file is then as it
/// was. Throws std::bad_alloc.
bool write_profile(const ProfilePath& place, std::string_view section, std::string_view key,
                   std::string_view value);

}  // namespace lvx::platform
