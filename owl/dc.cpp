#include "owl/dc.h"

#include <utility>

#include "owl/brush.h"
#include "owl/font.h"
#include "owl/last_error.h"
#include "owl/palette.h"
#include "owl/pen.h"
#include "owl/region.h"
#include "owl/turned_area.h"

namespace owl {

TDC::TDC(HDC handle) : m_handle(handle) {
    if (!handle)
        throw TXGdi("TDC: a null device context", ERROR_INVALID_HANDLE);
}

TDC::~TDC() {
    if (m_handle)
        RestoreObjects();
}

HDC TDC::ReleaseHandle() {
    if (m_handle)
        RestoreObjects();
    return std::exchange(m_handle, nullptr);
}

void TDC::Select(HGDIOBJ object, HGDIOBJ& original) {
    const HGDIOBJ before = Require<TXGdi>("SelectObject", [&] { return ::SelectObject(m_handle, object); });
    if (!original)
        original = before;
}

void TDC::Restore(HGDIOBJ& original) {
    if (original)
        ::SelectObject(m_handle, original);
    original = nullptr;
}

void TDC::SelectObject(const TPen& pen) {
    Select(pen.GetHandle(), m_originalPen);
}

void TDC::SelectObject(const TBrush& brush) {
    Select(brush.GetHandle(), m_originalBrush);
}

void TDC::SelectObject(const TFont& font) {
    Select(font.GetHandle(), m_originalFont);
}

void TDC::SelectObject(const TPalette& palette, bool forceBackground) {
    const HPALETTE before =
        Require<TXGdi>("SelectPalette", [&] { return ::SelectPalette(m_handle, palette, forceBackground); });
    if (!m_originalPalette)
        m_originalPalette = before;
}

void TDC::SelectStockObject(int index) {
    const HGDIOBJ object = Require<TXGdi>("GetStockObject", [&] { return ::GetStockObject(index); });
    switch (::GetObjectType(object)) {
        case OBJ_PEN:
            return Select(object, m_originalPen);
        case OBJ_BRUSH:
            return Select(object, m_originalBrush);
        case OBJ_FONT:
            return Select(object, m_originalFont);
        default:
            throw TXGdi("SelectStockObject: no pen, brush or font", ERROR_INVALID_PARAMETER);
    }
}

void TDC::RestorePen() {
    Restore(m_originalPen);
}

void TDC::RestoreBrush() {
    Restore(m_originalBrush);
}

void TDC::RestoreFont() {
    Restore(m_originalFont);
}

void TDC::RestorePalette() {
    if (m_originalPalette)
        ::SelectPalette(m_handle, m_originalPalette, FALSE);
    m_originalPalette = nullptr;
}

void TDC::RestoreObjects() {
    RestorePen();
    RestoreBrush();
    RestoreFont();
    RestorePalette();
}

unsigned int TDC::RealizePalette() {
    return ::RealizePalette(m_handle);
}

int TDC::SaveDC() const {
    return ::SaveDC(m_handle);
}

bool TDC::RestoreDC(int saved) {
    return ::RestoreDC(m_handle, saved) != FALSE;
}

TColor TDC::SetTextColor(TColor color) {
    return ::SetTextColor(m_handle, color);
}

TColor TDC::GetTextColor() const {
    return ::GetTextColor(m_handle);
}

TColor TDC::SetBkColor(TColor color) {
    return ::SetBkColor(m_handle, color);
}

TColor TDC::GetBkColor() const {
    return ::GetBkColor(m_handle);
}

int TDC::SetBkMode(int mode) {
    return ::SetBkMode(m_handle, mode);
}

int TDC::GetBkMode() const {
    return ::GetBkMode(m_handle);
}

int TDC::SetROP2(int mode) {
    return ::SetROP2(m_handle, mode);
}

int TDC::GetROP2() const {
    return ::GetROP2(m_handle);
}

int TDC::SetPolyFillMode(int mode) {
    return ::SetPolyFillMode(m_handle, mode);
}

int TDC::GetPolyFillMode() const {
    return ::GetPolyFillMode(m_handle);
}

int TDC::SetStretchBltMode(int mode) {
    return ::SetStretchBltMode(m_handle, mode);
}

int TDC::GetStretchBltMode() const {
    return ::GetStretchBltMode(m_handle);
}

unsigned int TDC::SetTextAlign(unsigned int align) {
    return ::SetTextAlign(m_handle, align);
}

unsigned int TDC::GetTextAlign() const {
    return ::GetTextAlign(m_handle);
}

bool TDC::SetBrushOrg(const TPoint& origin) {
    return ::SetBrushOrgEx(m_handle, origin.x, origin.y, nullptr) != FALSE;
}

int TDC::SelectClipRgn(const TRegion& region) {
    return ::SelectClipRgn(m_handle, region);
}

int TDC::SelectClipRgn() {
    return ::SelectClipRgn(m_handle, nullptr);
}

int TDC::ExcludeClipRect(const TRect& rect) {
    if (NeedsTurnedAreas(m_handle))
        return ClipTurned(m_handle, rect, RGN_DIFF);
    return ::ExcludeClipRect(m_handle, rect.left, rect.top, rect.right, rect.bottom);
}

int TDC::IntersectClipRect(const TRect& rect) {
    if (NeedsTurnedAreas(m_handle))
        return ClipTurned(m_handle, rect, RGN_AND);
    return ::IntersectClipRect(m_handle, rect.left, rect.top, rect.right, rect.bottom);
}

int TDC::GetClipBox(TRect& box) const {
    return ::GetClipBox(m_handle, &box);
}

bool TDC::RectVisible(const TRect& rect) const {
    if (NeedsTurnedAreas(m_handle))
        return IsTurnedVisible(m_handle, rect);
    return ::RectVisible(m_handle, &rect) == TRUE;
}

int TDC::GetDeviceCaps(int index) const {
    return ::GetDeviceCaps(m_handle, index);
}

}  // namespace owl
