#include "lvx/platform/fonts.h"

#include <windows.h>

#include <exception>

#include "lvx/drawing/bitmap.h"
#include "lvx/drawing/my_font.h"
#include "lvx/drawing/stock_tools.h"
#include "owl/dc.h"

namespace lvx::platform {
namespace {

// What add_face throws must not pass through the system.
struct Enumeration {
    std::vector<std::string>& faces;
    std::exception_ptr failure;
};

int CALLBACK visit(const LOGFONTA* font, const TEXTMETRICA* metrics, DWORD type, LPARAM parameter) {
    auto& enumeration = *reinterpret_cast<Enumeration*>(parameter);
    try {
        // For TrueType fonts it is a NEWTEXTMETRIC that is handed over.
        return ::add_face(const_cast<LOGFONTA*>(font),
                          reinterpret_cast<NEWTEXTMETRICA*>(const_cast<TEXTMETRICA*>(metrics)),
                          static_cast<short>(type), reinterpret_cast<char*>(&enumeration.faces));
    } catch (...) {
        enumeration.failure = std::current_exception();
        return 0;
    }
}

}  // namespace

SystemFont system_font() {
    const LVXFont& font = *brushes_etc::GetSysFont();
    return {font.face(), font.pointSize(), font.bold(), font.italic(), font.underline(), font.strikeOut()};
}

void add_scalable_faces(std::vector<std::string>& faces) {
    LVXBitmap bitmap(1, 1, true);
    Enumeration enumeration{faces, nullptr};
    ::EnumFontFamiliesA(*bitmap.AcquireDC(), nullptr, &visit, reinterpret_cast<LPARAM>(&enumeration));
    bitmap.ReleaseDC();
    if (enumeration.failure) {
        std::rethrow_exception(enumeration.failure);
    }
}

}  // namespace lvx::platform
