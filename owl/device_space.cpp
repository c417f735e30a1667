#include "owl/device_space.h"

#include <cstring>

namespace owl {

XFORM WorldOf(HDC dc) {
    XFORM world = {1, 0, 0, 1, 0, 0};
    if (::GetGraphicsMode(dc) == GM_ADVANCED)
        ::GetWorldTransform(dc, &world);
    return world;
}

bool IsTurned(const XFORM& world) {
    return world.eM12 != 0 || world.eM21 != 0;
}

bool IsMirrored(const XFORM& world) {
    return world.eM11 < 0 || world.eM22 < 0;
}

TPictureTransform LogicalToDevice(HDC dc) {
    const XFORM world = WorldOf(dc);
    TPoint windowOrigin, viewportOrigin;
    TSize window(1, 1), viewport(1, 1);
    ::GetWindowOrgEx(dc, &windowOrigin);
    ::GetWindowExtEx(dc, &window);
    ::GetViewportOrgEx(dc, &viewportOrigin);
    ::GetViewportExtEx(dc, &viewport);
    const double scaleX = static_cast<double>(viewport.cx) / window.cx;
    const double scaleY = static_cast<double>(viewport.cy) / window.cy;
    TPictureTransform result;
    result.m11 = world.eM11 * scaleX;
    result.m12 = world.eM12 * scaleY;
    result.m21 = world.eM21 * scaleX;
    result.m22 = world.eM22 * scaleY;
    result.dx = (static_cast<double>(world.eDx) - windowOrigin.x) * scaleX + viewportOrigin.x;
    result.dy = (static_cast<double>(world.eDy) - windowOrigin.y) * scaleY + viewportOrigin.y;
    return result;
}

bool IsRecorded(HDC dc) {
    return ::GetObjectType(dc) == OBJ_ENHMETADC;
}

TRect VisiblePart(HDC dc) {
    if (IsRecorded(dc))
        return everywhere;
    TRect box;
    if (::GetClipBox(dc, &box) != ERROR)
        return box;
    return TRect(0, 0, ::GetDeviceCaps(dc, HORZRES), ::GetDeviceCaps(dc, VERTRES));
}

HRGN MakeRegion(const std::vector<TRect>& rects) {
    const std::size_t bytes = rects.size() * sizeof(RECT);
    std::vector<char> data(sizeof(RGNDATAHEADER) + bytes);
    RGNDATAHEADER header{};
    header.dwSize = sizeof header;
    header.iType = RDH_RECTANGLES;
    header.nCount = static_cast<DWORD>(rects.size());
    header.nRgnSize = static_cast<DWORD>(bytes);
    TRect bounds;
    for (const TRect& rect : rects)
        bounds |= rect;
    header.rcBound = bounds;
    std::memcpy(data.data(), &header, sizeof header);
    if (!rects.empty())
        std::memcpy(data.data() + sizeof header, rects.data(), bytes);
    return ::ExtCreateRegion(nullptr, static_cast<DWORD>(data.size()),
                             reinterpret_cast<const RGNDATA*>(data.data()));
}

DeviceUnits::DeviceUnits(HDC dc) : m_dc(dc), m_saved(::SaveDC(dc)) {
    ::ModifyWorldTransform(dc, nullptr, MWT_IDENTITY);
    ::SetMapMode(dc, MM_TEXT);
    ::SetWindowOrgEx(dc, 0, 0, nullptr);
    ::SetViewportOrgEx(dc, 0, 0, nullptr);
}

DeviceUnits::~DeviceUnits() {
    if (m_saved)
        ::RestoreDC(m_dc, m_saved);
}

}  // namespace owl
