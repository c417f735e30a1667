#include "owl/dc.h"

namespace owl {

int TDC::SetMapMode(int mode) {
    return ::SetMapMode(m_handle, mode);
}

int TDC::GetMapMode() const {
    return ::GetMapMode(m_handle);
}

bool TDC::SetWindowOrg(const TPoint& origin) {
    return ::SetWindowOrgEx(m_handle, origin.x, origin.y, nullptr) != FALSE;
}

TPoint TDC::GetWindowOrg() const {
    TPoint origin;
    ::GetWindowOrgEx(m_handle, &origin);
    return origin;
}

bool TDC::SetWindowExt(const TSize& extent) {
    return ::SetWindowExtEx(m_handle, extent.cx, extent.cy, nullptr) != FALSE;
}

TSize TDC::GetWindowExt() const {
    TSize extent;
    ::GetWindowExtEx(m_handle, &extent);
    return extent;
}

bool TDC::SetViewportOrg(const TPoint& origin) {
    return ::SetViewportOrgEx(m_handle, origin.x, origin.y, nullptr) != FALSE;
}

TPoint TDC::GetViewportOrg() const {
    TPoint origin;
    ::GetViewportOrgEx(m_handle, &origin);
    return origin;
}

bool TDC::SetViewportExt(const TSize& extent) {
    return ::SetViewportExtEx(m_handle, extent.cx, extent.cy, nullptr) != FALSE;
}

TSize TDC::GetViewportExt() const {
    TSize extent;
    ::GetViewportExtEx(m_handle, &extent);
    return extent;
}

bool TDC::LPtoDP(TPoint* points, int count) const {
    return ::LPtoDP(m_handle, points, count) != FALSE;
}

bool TDC::DPtoLP(TPoint* points, int count) const {
    return ::DPtoLP(m_handle, points, count) != FALSE;
}

int TDC::SetGraphicsMode(int mode) {
    return ::SetGraphicsMode(m_handle, mode);
}

int TDC::GetGraphicsMode() const {
    return ::GetGraphicsMode(m_handle);
}

bool TDC::SetWorldTransform(const XFORM& transform) {
    return ::SetWorldTransform(m_handle, &transform) != FALSE;
}

bool TDC::GetWorldTransform(XFORM& transform) const {
    return ::GetWorldTransform(m_handle, &transform) != FALSE;
}

bool TDC::ModifyWorldTransform(const XFORM& transform, unsigned int mode) {
    return ::ModifyWorldTransform(m_handle, &transform, mode) != FALSE;
}

}  // namespace owl
