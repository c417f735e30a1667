// lvx/platform/posix/profile_section.h
//
// Where a section stands in the text of a settings file.
#pragma once

#include <string_view>

#include "lvx/platform/posix/profile_line.h"

namespace lvx::platform {

/// Moves `lines`, which stand at the beginning, behind the header of the first section of that name; for an
/// empty name nowhere, for the lines in front of the first header have none. False if there is no such
/// section.
bool find_profile_section(ProfileLines& lines, std::string_view section);

}  // namespace lvx::platform
