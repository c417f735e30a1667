#include "owl/font.h"

#include "owl/last_error.h"

namespace owl {
namespace {

HFONT MakeFont(const LOGFONT& description) {
    return Require<TXGdi>("CreateFontIndirect", [&] { return ::CreateFontIndirect(&description); });
}

LOGFONT Description(const TFont& font) {
    LOGFONT description;
    Require<TXGdi>("GetObject", [&] { return font.GetObject(description); });
    return description;
}

}  // namespace

TFont::TFont(const LOGFONT& description) : TGdiObject(MakeFont(description), AutoDelete) {}

TFont::TFont(HFONT handle, TAutoDelete autoDelete) : TGdiObject(handle, autoDelete) {}

TFont::TFont(const TFont& other) : TFont(Description(other)) {}

TFont::~TFont() = default;

bool TFont::GetObject(LOGFONT& description) const {
    description = {};
    return ::GetObject(GetHandle(), sizeof description, &description) != 0;
}

}  // namespace owl
