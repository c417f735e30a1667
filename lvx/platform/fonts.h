// lvx/platform/fonts.h
//
// The fonts of the system: on Windows what its screen has, elsewhere what fontconfig knows of.
#pragma once

#include <string>
#include <vector>

namespace lvx::platform {

struct SystemFont {
    std::string face;
    int points;
    bool bold;
    bool italic;
    bool underline;
    bool strikeOut;
};

/// What the system writes with by itself. Where that is for each program to choose, it is what Windows has by
/// custom, so that documents begin alike everywhere. Throws what the framework throws.
SystemFont system_font();

/// Adds to `faces` the names of those whose size can be any, in no order, unless they are there already.
/// Throws what the framework throws where the screen cannot be asked; nothing is added if fontconfig has no
/// configuration.
void add_scalable_faces(std::vector<std::string>& faces);

}  // namespace lvx::platform
