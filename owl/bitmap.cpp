#include "owl/bitmap.h"

#include <array>
#include <cstring>
#include <vector>

#include "owl/clipboard.h"
#include "owl/dib.h"
#include "owl/last_error.h"
#include "owl/memory_dc.h"
#include "owl/palette.h"
#include "owl/window_dc.h"

namespace owl {
namespace {

HBITMAP MakeBlack(HDC dc, int width, int height) {
    if (::GetObjectType(dc) == OBJ_METADC)
        return MakeBlack(TScreenDC(), width, height);
    return Require<TXGdi>("CreateCompatibleBitmap",
                          [&] { return ::CreateCompatibleBitmap(dc, width, height); });
}

HBITMAP MakeOfBits(int width, int height, int planes, int bitCount, const void* bits) {
    if (planes < 0 || bitCount < 0)
        throw TXGdi("CreateBitmap: a negative depth", ERROR_INVALID_PARAMETER);
    return Require<TXGdi>("CreateBitmap", [&] {
        return ::CreateBitmap(width, height, static_cast<UINT>(planes), static_cast<UINT>(bitCount), bits);
    });
}

HBITMAP Load(HINSTANCE module, TResId id) {
    return Require<TXGdi>("LoadBitmap", [&] { return ::LoadBitmap(module, id); });
}

/// A header with room for all the colours of a section, or its masks.
struct SectionInfo {
    BITMAPINFOHEADER header;
    std::array<RGBQUAD, 256> colours;

    BITMAPINFO* Get() { return reinterpret_cast<BITMAPINFO*>(this); }
};

/// A section with the depth, the colours and the pixels of `source`. The system does not tell whether the
/// upper or the lower row of a section stands first, but puts them in order when it hands them out.
HBITMAP CopySection(HBITMAP source, const DIBSECTION& section) {
    SectionInfo info{section.dsBmih, {}};
    const std::size_t rows = static_cast<std::size_t>(section.dsBm.bmHeight);
    std::vector<BYTE> pixels(rows * static_cast<std::size_t>(section.dsBm.bmWidthBytes));
    const TMemoryDC dc;
    Require<TXGdi>("GetDIBits", [&] {
        return ::GetDIBits(dc, source, 0, static_cast<UINT>(rows), pixels.data(), info.Get(), DIB_RGB_COLORS);
    });
    void* bits = nullptr;
    const HBITMAP copy = Require<TXGdi>("CreateDIBSection", [&] {
        return ::CreateDIBSection(nullptr, info.Get(), DIB_RGB_COLORS, &bits, nullptr, 0);
    });
    std::memcpy(bits, pixels.data(), pixels.size());
    return copy;
}

/// A bitmap of the same size and depth with the same pixels.
HBITMAP CopyPixels(HBITMAP source, const BITMAP& shape) {
    std::vector<BYTE> pixels(static_cast<std::size_t>(shape.bmWidthBytes) *
                             static_cast<std::size_t>(shape.bmHeight) * shape.bmPlanes);
    Require<TXGdi>("GetBitmapBits",
                   [&] { return ::GetBitmapBits(source, static_cast<LONG>(pixels.size()), pixels.data()); });
    const HBITMAP copy =
        MakeOfBits(shape.bmWidth, shape.bmHeight, shape.bmPlanes, shape.bmBitsPixel, nullptr);
    ::SetBitmapBits(copy, static_cast<DWORD>(pixels.size()), pixels.data());
    return copy;
}

HBITMAP Copy(HBITMAP source) {
    if (!source)
        return nullptr;
    DIBSECTION section{};
    const int size =
        Require<TXGdi>("GetObject", [&] { return ::GetObject(source, sizeof section, &section); });
    if (size == sizeof section && section.dsBm.bmBits)
        return CopySection(source, section);
    return CopyPixels(source, section.dsBm);
}

HBITMAP MakeOfPicture(const TDib& dib, const TPalette* palette) {
    TScreenDC screen;
    if (palette) {
        screen.SelectObject(*palette);
        screen.RealizePalette();
    }
    return Require<TXGdi>("CreateDIBitmap", [&] {
        return ::CreateDIBitmap(screen, &dib.GetInfo()->bmiHeader, CBM_INIT, dib.GetBits(), dib.GetInfo(),
                                DIB_RGB_COLORS);
    });
}

}  // namespace

TBitmap::TBitmap(HBITMAP handle, TAutoDelete autoDelete) : TGdiObject(handle, autoDelete) {}

TBitmap::TBitmap(const TDC& dc, int width, int height)
    : TGdiObject(MakeBlack(dc, width, height), AutoDelete) {}

TBitmap::TBitmap(int width, int height, int planes, int bitCount, const void* bits)
    : TGdiObject(MakeOfBits(width, height, planes, bitCount, bits), AutoDelete) {}

TBitmap::TBitmap(HINSTANCE module, TResId id) : TGdiObject(Load(module, id), AutoDelete) {}

TBitmap::TBitmap(const TBitmap& other) : TGdiObject(Copy(other), AutoDelete) {}

TBitmap::TBitmap(const TClipboard& clipboard)
    : TGdiObject(Copy(static_cast<HBITMAP>(clipboard.RequireClipboardData(CF_BITMAP))), AutoDelete) {}

TBitmap::TBitmap(const TDib& dib, const TPalette* palette)
    : TGdiObject(MakeOfPicture(dib, palette), AutoDelete) {}

TBitmap::~TBitmap() = default;

bool TBitmap::GetObject(BITMAP& description) const {
    description = {};
    return ::GetObject(GetHandle(), sizeof description, &description) != 0;
}

int TBitmap::Width() const {
    return Size().cx;
}

int TBitmap::Height() const {
    return Size().cy;
}

TSize TBitmap::Size() const {
    BITMAP description;
    GetObject(description);
    return TSize(description.bmWidth, description.bmHeight);
}

int TBitmap::BitsPixel() const {
    BITMAP description;
    GetObject(description);
    return description.bmBitsPixel;
}

int TBitmap::Planes() const {
    BITMAP description;
    GetObject(description);
    return description.bmPlanes;
}

bool TBitmap::GetBitmapDimension(TSize& size) const {
    size = TSize();
    if (!::GetBitmapDimensionEx(*this, &size))
        return false;
    if (size == TSize())
        size = Size();
    return true;
}

bool TBitmap::SetBitmapDimension(const TSize& size) {
    return ::SetBitmapDimensionEx(*this, size.cx, size.cy, nullptr) != FALSE;
}

void TBitmap::ToClipboard(TClipboard& clipboard) const {
    TBitmap copy(*this);
    clipboard.SetClipboardData(CF_BITMAP, copy.GetHandle());
    copy.Detach();
}

}  // namespace owl
