#include "lvx/platform/fonts.h"

#include <fontconfig/fontconfig.h>

#include <algorithm>
#include <memory>
#include <string_view>

namespace lvx::platform {
namespace {

template <auto Destroy>
struct Deleter {
    template <class Object>
    void operator()(Object* object) const {
        Destroy(object);
    }
};
using Config = std::unique_ptr<FcConfig, Deleter<FcConfigDestroy>>;
using Pattern = std::unique_ptr<FcPattern, Deleter<FcPatternDestroy>>;
using Objects = std::unique_ptr<FcObjectSet, Deleter<FcObjectSetDestroy>>;
using FontSet = std::unique_ptr<FcFontSet, Deleter<FcFontSetDestroy>>;

// With a configuration of our own nobody else's in the process is touched, and what was installed a moment
// ago is seen.
FontSet scalable_fonts() {
    const Config config(FcInitLoadConfigAndFonts());
    if (config == nullptr) {
        return nullptr;
    }
    const Pattern scalable(FcPatternBuild(nullptr, FC_SCALABLE, FcTypeBool, FcTrue, nullptr));
    const Objects wanted(FcObjectSetBuild(FC_FAMILY, FC_FAMILYLANG, nullptr));
    if (scalable == nullptr || wanted == nullptr) {
        return nullptr;
    }
    return FontSet(FcFontList(config.get(), scalable.get(), wanted.get()));
}

std::string text_of(const FcPattern* font, const char* object, int place) {
    FcChar8* text = nullptr;
    if (FcPatternGetString(font, object, place, &text) != FcResultMatch) {
        return "";
    }
    return reinterpret_cast<const char*>(text);
}

void add_once(std::vector<std::string>& faces, const std::string& face) {
    if (!face.empty() && std::find(faces.begin(), faces.end(), face) == faces.end()) {
        faces.push_back(face);
    }
}

// A font may have several names: in several languages, and as a member of a larger family too. Documents go
// from system to system, so the English ones are taken; the first one where none is English.
void add_names(std::vector<std::string>& faces, const FcPattern* font) {
    bool found = false;
    for (int place = 0; !text_of(font, FC_FAMILY, place).empty(); ++place) {
        if (text_of(font, FC_FAMILYLANG, place) == "en") {
            add_once(faces, text_of(font, FC_FAMILY, place));
            found = true;
        }
    }
    if (!found) {
        add_once(faces, text_of(font, FC_FAMILY, 0));
    }
}

}  // namespace

SystemFont system_font() {
    return {"System", 12, true, false, false, false};
}

void add_scalable_faces(std::vector<std::string>& faces) {
    const FontSet fonts = scalable_fonts();
    if (fonts == nullptr) {
        return;
    }
    for (int i = 0; i < fonts->nfont; ++i) {
        add_names(faces, fonts->fonts[i]);
    }
}

}  // namespace lvx::platform
