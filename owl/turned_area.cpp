#include "owl/turned_area.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "owl/device_space.h"
#include "owl/true_color_section.h"
#include "owl/turned_picture.h"

namespace owl {
namespace {

/// Of an area. No device has as many.
constexpr int mostRows = 1 << 18;

/// A region, deleted at the end of the object.
class Region {
public:
    explicit Region(HRGN handle) : m_handle(handle) {}
    ~Region() {
        if (m_handle)
            ::DeleteObject(m_handle);
    }
    Region(const Region&) = delete;
    Region& operator=(const Region&) = delete;
    operator HRGN() const { return m_handle; }
    HRGN Release() {
        const HRGN handle = m_handle;
        m_handle = nullptr;
        return handle;
    }

private:
    HRGN m_handle;
};

/// Rows of pixels, put together where they touch.
class Rows {
public:
    void Add(const TRect& row) {
        m_rows.push_back(row);
        if (m_rows.size() > m_enough) {
            Join();
            m_enough = 2 * m_rows.size() + many;
        }
    }
    std::size_t Count() const { return m_rows.size(); }
    HRGN MakeRegion() {
        Join();
        return owl::MakeRegion(m_rows);
    }

private:
    static constexpr std::size_t many = 1 << 16;

    void Join() {
        std::sort(m_rows.begin(), m_rows.end(), [](const TRect& a, const TRect& b) {
            return a.top != b.top ? a.top < b.top : a.left < b.left;
        });
        std::size_t joined = 0;
        for (const TRect& row : m_rows) {
            TRect* const last = joined > 0 ? &m_rows[joined - 1] : nullptr;
            if (last && last->top == row.top && last->right >= row.left)
                last->right = std::max(last->right, row.right);
            else
                m_rows[joined++] = row;
        }
        m_rows.resize(joined);
    }

    std::vector<TRect> m_rows;
    std::size_t m_enough = many;
};

/// The rectangles that a region consists of; none of no region.
std::vector<TRect> RectsOf(HRGN region) {
    const DWORD size = ::GetRegionData(region, 0, nullptr);
    std::vector<std::max_align_t> data(size / sizeof(std::max_align_t) + 1);
    auto* const header = reinterpret_cast<RGNDATA*>(data.data());
    if (size == 0 || ::GetRegionData(region, size, header) == 0)
        return {};
    const auto* const first = reinterpret_cast<const RECT*>(header->Buffer);
    return std::vector<TRect>(first, first + header->rdh.nCount);
}

/// From the upper left corner of `box`, in logical units, to the device.
TPictureTransform From(HDC dc, const TPoint& corner) {
    TPictureTransform t = LogicalToDevice(dc);
    t.dx += corner.x * t.m11 + corner.y * t.m21;
    t.dy += corner.x * t.m12 + corner.y * t.m22;
    return t;
}

/// Adds the rows of one of the rectangles of `all`; false if they are too many.
bool AddRows(Rows& rows, HDC dc, const TTurnedPicture& all, const TRect& box, const TRect& rect,
             const TRect& visible) {
    const TTurnedPicture alone(rect.Size(), From(dc, rect.TopLeft()));
    // One more on each side: where the two are rounded differently, all of it decides.
    const TRect bounds = alone.Bounds().InflatedBy(1, 1) & visible;
    if (bounds.Height() > mostRows)
        return false;
    const TRect part = rect - (box.TopLeft() - TPoint());
    for (int y = bounds.top; y < bounds.bottom; ++y) {
        const TTurnedPicture::TRun run = all.RunOf(y, part);
        const TRect row = TRect(run.begin, y, run.end, y + 1) & visible;
        if (!row.IsEmpty())
            rows.Add(row);
    }
    return true;
}

/// What the rectangles, which lie in `box`, cover of the device.
HRGN TurnedRects(HDC dc, const std::vector<TRect>& rects, const TRect& box) {
    const TTurnedPicture all(box.Size(), From(dc, box.TopLeft()));
    TRect visible;
    {
        const DeviceUnits units(dc);
        visible = VisiblePart(dc);
    }
    Rows rows;
    for (const TRect& rect : rects) {
        if (!AddRows(rows, dc, all, box, rect, visible))
            return nullptr;
    }
    return rows.MakeRegion();
}

/// Fills a region that is told in the device's units.
bool FillArea(HDC dc, HRGN area, unsigned long rop) {
    TRect box;
    if (!area || ::GetRgnBox(area, &box) == ERROR)
        return false;
    const DeviceUnits units(dc);
    return units.IsGood() && ::ExtSelectClipRgn(dc, area, RGN_AND) != ERROR &&
           ::PatBlt(dc, box.left, box.top, box.Width(), box.Height(), rop) != FALSE;
}

/// Whether a square of 16 pixels about the middle of a surface, turned by half a right angle, reaches as far
/// as its corners and leaves those of the upright square out; and whether half a turn leaves one where it
/// was.
bool TurnsAreas() {
    const TrueColorSection surface(32, 32);
    if (!surface.IsGood())
        return false;
    const HDC dc = surface.GetHDC();
    const auto half = static_cast<float>(std::sqrt(0.5));
    const XFORM turn = {half, half, -half, half, 16, 16};
    const XFORM mirror = {-1, 0, 0, -1, 2, 2};
    ::SetGraphicsMode(dc, GM_ADVANCED);
    ::SetWorldTransform(dc, &turn);
    ::PatBlt(dc, -8, -8, 16, 16, WHITENESS);
    ::SetWorldTransform(dc, &mirror);
    ::PatBlt(dc, 0, 0, 2, 2, WHITENESS);
    const std::uint32_t* const pixels = surface.Pixels();
    const auto isWhite = [&](int x, int y) { return (pixels[y * 32 + x] & 0xFFFFFF) != 0; };
    const bool turned = isWhite(16, 6) && isWhite(6, 16) && isWhite(25, 16) && isWhite(16, 25);
    const bool alone = !isWhite(9, 9) && !isWhite(22, 9) && !isWhite(9, 22) && !isWhite(22, 22);
    return turned && alone && isWhite(0, 0) && isWhite(1, 1) && !isWhite(2, 2);
}

}  // namespace

bool PlatformTurnsAreas() {
    static const bool turns = TurnsAreas();
    return turns;
}

bool NeedsTurnedAreas(HDC dc) {
    if (::GetGraphicsMode(dc) != GM_ADVANCED)
        return false;
    const XFORM world = WorldOf(dc);
    return (IsTurned(world) || IsMirrored(world)) && !PlatformTurnsAreas();
}

HRGN TurnedArea(HDC dc, const TRect& rect) {
    const TRect normal = rect.Normalized();
    return TurnedRects(dc, {normal}, normal);
}

HRGN TurnedArea(HDC dc, HRGN region) {
    TRect box;
    if (::GetRgnBox(region, &box) == ERROR)
        return nullptr;
    return TurnedRects(dc, RectsOf(region), box);
}

bool FillTurned(HDC dc, const TRect& rect, unsigned long rop) {
    return FillArea(dc, Region(TurnedArea(dc, rect)), rop);
}

bool FillTurned(HDC dc, HRGN region, unsigned long rop) {
    return FillArea(dc, Region(TurnedArea(dc, region)), rop);
}

int ClipTurned(HDC dc, const TRect& rect, int mode) {
    const Region area(TurnedArea(dc, rect));
    return area ? ::ExtSelectClipRgn(dc, area, mode) : ERROR;
}

bool IsTurnedVisible(HDC dc, const TRect& rect) {
    const std::vector<TRect> rows = RectsOf(Region(TurnedArea(dc, rect)));
    const DeviceUnits units(dc);
    return std::any_of(rows.begin(), rows.end(),
                       [&](const TRect& row) { return ::RectVisible(dc, &row) == TRUE; });
}

HRGN FrameOf(HRGN region, const TSize& width) {
    Region inside(::CreateRectRgn(0, 0, 0, 0));
    const Region moved(::CreateRectRgn(0, 0, 0, 0));
    if (!inside || !moved || ::CombineRgn(inside, region, nullptr, RGN_COPY) == ERROR)
        return nullptr;
    const std::array<TSize, 4> ways = {TSize(width.cx, 0), TSize(-width.cx, 0), TSize(0, width.cy),
                                       TSize(0, -width.cy)};
    for (const TSize& way : ways) {
        ::CombineRgn(moved, region, nullptr, RGN_COPY);
        ::OffsetRgn(moved, way.cx, way.cy);
        ::CombineRgn(inside, inside, moved, RGN_AND);
    }
    ::CombineRgn(inside, region, inside, RGN_DIFF);
    return inside.Release();
}

}  // namespace owl
