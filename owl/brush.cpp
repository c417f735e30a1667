#include "owl/brush.h"

#include "owl/bitmap.h"
#include "owl/last_error.h"

namespace owl {
namespace {

HBRUSH MakeBrush(const LOGBRUSH& description) {
    return Require<TXGdi>("CreateBrushIndirect", [&] { return ::CreateBrushIndirect(&description); });
}

/// What the screen shows of `color` without a dither.
TColor Pure(TColor color) {
    if (color != color.Rgb())
        return color;
    HDC screen = ::GetDC(nullptr);
    if (!screen)
        return color;
    const bool hasPalette = (::GetDeviceCaps(screen, RASTERCAPS) & RC_PALETTE) != 0;
    const COLORREF nearest = hasPalette ? ::GetNearestColor(screen, color) : CLR_INVALID;
    ::ReleaseDC(nullptr, screen);
    return nearest == CLR_INVALID ? color : TColor(nearest);
}

HBRUSH MakePatternBrush(const TBitmap& pattern) {
    return Require<TXGdi>("CreatePatternBrush", [&] { return ::CreatePatternBrush(pattern); });
}

}  // namespace

TBrush::TBrush(TColor color) : TBrush(LOGBRUSH{BS_SOLID, color, 0}) {}

TBrush::TBrush(TColor color, bool pure) : TBrush(pure ? Pure(color) : color) {}

TBrush::TBrush(TColor color, int hatch)
    : TBrush(LOGBRUSH{BS_HATCHED, color, static_cast<ULONG_PTR>(static_cast<unsigned int>(hatch))}) {}

TBrush::TBrush(const TBitmap& pattern) : TGdiObject(MakePatternBrush(pattern), AutoDelete) {}

TBrush::TBrush(const LOGBRUSH& description) : TGdiObject(MakeBrush(description), AutoDelete) {}

TBrush::TBrush(HBRUSH handle, TAutoDelete autoDelete) : TGdiObject(handle, autoDelete) {}

TBrush::~TBrush() = default;

bool TBrush::GetObject(LOGBRUSH& description) const {
    description = {};
    return ::GetObject(GetHandle(), sizeof description, &description) != 0;
}

}  // namespace owl
