#include "lvx/platform/palette.h"

namespace lvx::platform {

lvx::auto_ptr<Palette> make_palette(const std::vector<images::PaletteColour>&) {
    return {};
}

}  // namespace lvx::platform
