#include "owl/turned_blit.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <utility>
#include <vector>

#include "owl/device_space.h"
#include "owl/true_color_section.h"
#include "owl/turned_picture.h"

namespace owl {
namespace {

/// Of a strip that is drawn at once.
constexpr int mostPixels = 1 << 20;

/// Of all the strips that an enhanced metafile is to keep.
constexpr std::int64_t mostRecorded = 1 << 26;

/// Where a picture comes to lie in logical units.
struct Place {
    /// What the whole of what was asked for fills. Not normal where that is mirrored.
    TRect dest;
    /// The size of the whole in pixels.
    TSize all;
    /// Where in the whole the pixels begin that there are.
    TPoint begin;
};

/// From the pixels of a picture to the device.
TPictureTransform PictureToDevice(HDC dc, const Place& place) {
    const TPictureTransform t = LogicalToDevice(dc);
    const double scaleX = static_cast<double>(place.dest.Width()) / place.all.cx;
    const double scaleY = static_cast<double>(place.dest.Height()) / place.all.cy;
    const double left = place.dest.left + scaleX * place.begin.x;
    const double top = place.dest.top + scaleY * place.begin.y;
    TPictureTransform result;
    result.m11 = t.m11 * scaleX;
    result.m12 = t.m12 * scaleX;
    result.m21 = t.m21 * scaleY;
    result.m22 = t.m22 * scaleY;
    result.dx = left * t.m11 + top * t.m21 + t.dx;
    result.dy = left * t.m12 + top * t.m22 + t.dy;
    return result;
}

/// From the first place of both to the last one.
TTurnedPicture::TRun Hull(const TTurnedPicture::TRun& a, const TTurnedPicture::TRun& b) {
    if (a.begin >= a.end)
        return b;
    if (b.begin >= b.end)
        return a;
    return {std::min(a.begin, b.begin), std::max(a.end, b.end)};
}

/// Some rows of the turned picture.
class Strip {
public:
    Strip(const TrueColorSection& picture, const TTurnedPicture& turned, const TRect& rect)
        : m_rect(rect),
          m_pixels(static_cast<std::size_t>(rect.Width()) * static_cast<std::size_t>(rect.Height())) {
        TTurnedPicture::TRun above = turned.RunOf(rect.top - 1);
        TTurnedPicture::TRun here = turned.RunOf(rect.top);
        for (int y = rect.top; y < rect.bottom; ++y) {
            const TTurnedPicture::TRun below = turned.RunOf(y + 1);
            CoverRow(here, y);
            FillRow(picture, turned, Hull(Hull(above, below), here), y);
            above = here;
            here = below;
        }
    }

    bool DrawOn(HDC dc, unsigned long rop) const {
        if (m_covered.empty())
            return true;
        const int saved = ::SaveDC(dc);
        const bool clipped = saved && ClipToCovered(dc);
        const BITMAPINFO info = TrueColorInfo(m_rect.Width(), m_rect.Height());
        const bool drawn = clipped && ::StretchDIBits(dc, m_rect.left, m_rect.top, m_rect.Width(),
                                                      m_rect.Height(), 0, 0, m_rect.Width(), m_rect.Height(),
                                                      m_pixels.data(), &info, DIB_RGB_COLORS, rop) != 0;
        ::RestoreDC(dc, saved);
        return drawn;
    }

private:
    void CoverRow(const TTurnedPicture::TRun& run, int y) {
        const TRect row = TRect(run.begin, y, run.end, y + 1) & m_rect;
        if (!row.IsEmpty())
            m_covered.push_back(row);
    }

    /// Also the places about those that are covered: a printer clips by outlines and not by pixels, and shows
    /// some of them.
    void FillRow(const TrueColorSection& picture, const TTurnedPicture& turned,
                 const TTurnedPicture::TRun& run, int y) {
        const TRect row = TRect(run.begin - 1, y, run.end + 1, y + 1) & m_rect;
        if (run.begin >= run.end || row.IsEmpty())
            return;
        std::uint32_t* const out = m_pixels.data() +
                                   static_cast<std::ptrdiff_t>(y - m_rect.top) * m_rect.Width() +
                                   (row.left - m_rect.left);
        turned.CopyRun(picture.Pixels(), picture.Size().cx, y, {row.left, row.right}, out);
    }

    bool ClipToCovered(HDC dc) const {
        const HRGN region = MakeRegion(m_covered);
        const bool clipped = region && ::ExtSelectClipRgn(dc, region, RGN_AND) != ERROR;
        if (region)
            ::DeleteObject(region);
        return clipped;
    }

    TRect m_rect;
    std::vector<std::uint32_t> m_pixels;
    std::vector<TRect> m_covered;
};

bool DrawInStrips(HDC dc, const TrueColorSection& picture, const TTurnedPicture& turned, const TRect& visible,
                  unsigned long rop) {
    if (visible.IsEmpty())
        return true;
    const int rows = std::max(1, mostPixels / visible.Width());
    for (int top = visible.top; top < visible.bottom; top += rows) {
        const TRect rect(visible.left, top, visible.right, std::min<int>(top + rows, visible.bottom));
        if (!Strip(picture, turned, rect).DrawOn(dc, rop))
            return false;
    }
    return true;
}

bool Refuse() {
    ::SetLastError(ERROR_INVALID_PARAMETER);
    return false;
}

/// Draws the whole of `picture`.
bool Draw(HDC dc, const TrueColorSection& picture, const Place& place, unsigned long rop) {
    const TTurnedPicture turned(picture.Size(), PictureToDevice(dc, place));
    const DeviceUnits units(dc);
    if (!units.IsGood())
        return false;
    const TRect visible = turned.Bounds() & VisiblePart(dc);
    if (IsRecorded(dc) && std::int64_t{visible.Width()} * visible.Height() > mostRecorded)
        return Refuse();
    return DrawInStrips(dc, picture, turned, visible, rop);
}

/// `dest` with those sides exchanged that are exchanged in `src`.
TRect MirroredAlike(const TRect& dest, const TRect& src) {
    TRect result = dest;
    if (src.Width() < 0)
        std::swap(result.left, result.right);
    if (src.Height() < 0)
        std::swap(result.top, result.bottom);
    return result;
}

TRect WholePicture(const BITMAPINFO& info) {
    if (info.bmiHeader.biSize == sizeof(BITMAPCOREHEADER)) {
        const auto& core = reinterpret_cast<const BITMAPCOREHEADER&>(info);
        return TRect(0, 0, core.bcWidth, core.bcHeight);
    }
    const LONG height = info.bmiHeader.biHeight;
    return TRect(0, 0, info.bmiHeader.biWidth, height < 0 ? detail::Difference(0, height) : height);
}

/// All that can be copied from `source`, in its logical units: of memory its bitmap.
TRect WholeSource(HDC source) {
    BITMAP bitmap{};
    if (::GetObjectType(source) != OBJ_MEMDC ||
        !::GetObject(::GetCurrentObject(source, OBJ_BITMAP), sizeof bitmap, &bitmap))
        return everywhere;
    TPoint corners[2] = {TPoint(), TPoint(bitmap.bmWidth, bitmap.bmHeight)};
    ::DPtoLP(source, corners, 2);
    return TRect(corners[0], corners[1]).Normalize();
}

constexpr COLORREF quarters[4] = {RGB(255, 0, 0), RGB(0, 255, 0), RGB(0, 0, 255), RGB(255, 255, 0)};

/// A picture of 8 by 8 pixels whose quarters have four colours, the upper row first.
std::vector<std::uint32_t> ProbePicture() {
    std::vector<std::uint32_t> pixels;
    for (int i = 0; i < 64; ++i) {
        const COLORREF color = quarters[(i / 32) * 2 + (i % 8) / 4];
        pixels.push_back(RGB(GetBValue(color), GetGValue(color), GetRValue(color)));
    }
    return pixels;
}

/// Whether a picture that is turned by an angle about the middle of a surface of 64 pixels lies where it
/// should.
bool TurnsBy(double angle) {
    const TrueColorSection surface(64, 64);
    if (!surface.IsGood())
        return false;
    const auto cosine = static_cast<float>(std::cos(angle));
    const auto sine = static_cast<float>(std::sin(angle));
    const XFORM transform = {cosine, sine, -sine, cosine, 32, 32};
    const BITMAPINFO info = TrueColorInfo(8, 8);
    const std::vector<std::uint32_t> picture = ProbePicture();
    ::SetGraphicsMode(surface.GetHDC(), GM_ADVANCED);
    ::SetWorldTransform(surface.GetHDC(), &transform);
    ::StretchDIBits(surface.GetHDC(), -16, -16, 32, 32, 0, 0, 8, 8, picture.data(), &info, DIB_RGB_COLORS,
                    SRCCOPY);
    ::ModifyWorldTransform(surface.GetHDC(), nullptr, MWT_IDENTITY);
    bool right = ::GetPixel(surface.GetHDC(), 32, 58) == 0;
    for (int quarter = 0; quarter < 4; ++quarter) {
        const double x = quarter % 2 ? 8 : -8;
        const double y = quarter / 2 ? 8 : -8;
        const COLORREF found =
            ::GetPixel(surface.GetHDC(), static_cast<int>(32 + x * std::cos(angle) - y * std::sin(angle)),
                       static_cast<int>(32 + x * std::sin(angle) + y * std::cos(angle)));
        right = right && found == quarters[quarter];
    }
    return right;
}

/// Whether half a turn of a picture of 2 by 2 pixels leaves it where it was.
bool MirrorsWithinEdges() {
    const TrueColorSection surface(3, 3);
    if (!surface.IsGood())
        return false;
    const XFORM transform = {-1, 0, 0, -1, 2, 2};
    const BITMAPINFO info = TrueColorInfo(2, 2);
    const std::uint32_t picture[] = {1, 2, 3, 4};
    ::SetGraphicsMode(surface.GetHDC(), GM_ADVANCED);
    ::SetWorldTransform(surface.GetHDC(), &transform);
    ::StretchDIBits(surface.GetHDC(), 0, 0, 2, 2, 0, 0, 2, 2, picture, &info, DIB_RGB_COLORS, SRCCOPY);
    const std::uint32_t wanted[] = {4, 3, 0, 2, 1, 0, 0, 0, 0};
    return std::equal(std::begin(wanted), std::end(wanted), surface.Pixels());
}

}  // namespace

bool PlatformTurnsPictures() {
    static const bool turns = TurnsBy(0.5) && TurnsBy(2 * std::atan(1.0));
    return turns;
}

bool PlatformMirrorsPictures() {
    static const bool mirrors = MirrorsWithinEdges();
    return mirrors;
}

bool NeedsTurnedPictures(HDC dc) {
    const XFORM world = WorldOf(dc);
    if (IsTurned(world))
        return !PlatformTurnsPictures();
    return IsMirrored(world) && !PlatformMirrorsPictures();
}

bool StretchTurnedDIBits(HDC dc, const TRect& dest, const TRect& src, const void* bits,
                         const BITMAPINFO* info, unsigned int usage, unsigned long rop) {
    if (!bits || !info)
        return Refuse();
    const TRect asked = src.Normalized();
    const TRect part = asked & WholePicture(*info);
    if (part.IsEmpty())
        return !asked.IsEmpty() || Refuse();
    const TrueColorSection picture(part.Width(), part.Height());
    if (!picture.IsGood())
        return Refuse();
    if (usage == DIB_PAL_COLORS)
        ::SelectPalette(picture.GetHDC(), static_cast<HPALETTE>(::GetCurrentObject(dc, OBJ_PAL)), TRUE);
    if (!::StretchDIBits(picture.GetHDC(), 0, 0, part.Width(), part.Height(), part.left, part.top,
                         part.Width(), part.Height(), bits, info, usage, SRCCOPY))
        return false;
    // The part is counted upward.
    const TPoint begin(part.left - asked.left, asked.bottom - part.bottom);
    return Draw(dc, picture, {MirroredAlike(dest, src), asked.Size(), begin}, rop);
}

bool StretchTurned(HDC dc, const TRect& dest, HDC source, const TRect& from, unsigned long rop) {
    const TRect asked = from.Normalized();
    if (IsTurned(WorldOf(source)))
        return Refuse();
    const TRect part = asked & WholeSource(source);
    if (part.IsEmpty())
        return !asked.IsEmpty() || Refuse();
    const TrueColorSection picture(part.Width(), part.Height());
    if (!picture.IsGood())
        return Refuse();
    // The colours of a monochrome source are those of the context that is drawn on.
    ::SetTextColor(picture.GetHDC(), ::GetTextColor(dc));
    ::SetBkColor(picture.GetHDC(), ::GetBkColor(dc));
    if (!::BitBlt(picture.GetHDC(), 0, 0, part.Width(), part.Height(), source, part.left, part.top, SRCCOPY))
        return false;
    const TPoint begin(part.left - asked.left, part.top - asked.top);
    return Draw(dc, picture, {MirroredAlike(dest, from), asked.Size(), begin}, rop);
}

}  // namespace owl
