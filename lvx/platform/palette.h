// lvx/platform/palette.h
//
// The palette of the windowed framework; elsewhere a type without objects, so that what makes palettes has
// its place in the interface of images on every system.
#pragma once

#include <vector>

#include "lvx/images/palette_colours.h"
#include "lvx/text/ownership.h"

#ifdef _WIN32

#include "owl/palette.h"

namespace lvx::platform {
using Palette = owl::TPalette;
}

#else

namespace lvx::platform {
class Palette {
    Palette() = delete;
};
}  // namespace lvx::platform

#endif

namespace lvx::platform {

/// Null for no colours, if the system refuses a palette of them, and on systems without palettes.
lvx::auto_ptr<Palette> make_palette(const std::vector<images::PaletteColour>& colours);

}  // namespace lvx::platform
