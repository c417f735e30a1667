#include "lvx/platform/palette.h"

#include "owl/error.h"

namespace lvx::platform {

lvx::auto_ptr<Palette> make_palette(const std::vector<images::PaletteColour>& colours) {
    std::vector<PALETTEENTRY> entries;
    for (const images::PaletteColour& colour : colours) {
        entries.push_back({colour.red, colour.green, colour.blue, 0});
    }
    try {
        return lvx::auto_ptr<Palette>(new Palette(entries.data(), static_cast<int>(entries.size())));
    } catch (const owl::TXGdi&) {
        return {};
    }
}

}  // namespace lvx::platform
