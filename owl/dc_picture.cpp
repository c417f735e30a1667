#include "owl/dc.h"
#include "owl/turned_area.h"
#include "owl/turned_blit.h"

namespace owl {

bool TDC::PatBlt(const TRect& rect, unsigned long rop) {
    if (NeedsTurnedAreas(m_handle))
        return FillTurned(m_handle, rect, rop);
    return ::PatBlt(m_handle, rect.left, rect.top, rect.Width(), rect.Height(), rop) != FALSE;
}

bool TDC::PatBlt(int x, int y, int width, int height, unsigned long rop) {
    return PatBlt(TRect(TPoint(x, y), TSize(width, height)), rop);
}

bool TDC::BitBlt(const TRect& dest, const TDC& source, const TPoint& from, unsigned long rop) {
    if (NeedsTurnedPictures(m_handle))
        return StretchTurned(m_handle, dest, source, TRect(from, dest.Size()), rop);
    return ::BitBlt(m_handle, dest.left, dest.top, dest.Width(), dest.Height(), source, from.x, from.y,
                    rop) != FALSE;
}

bool TDC::BitBlt(int x, int y, int width, int height, const TDC& source, int fromX, int fromY,
                 unsigned long rop) {
    return BitBlt(TRect(TPoint(x, y), TSize(width, height)), source, TPoint(fromX, fromY), rop);
}

bool TDC::StretchBlt(const TRect& dest, const TDC& source, const TRect& from, unsigned long rop) {
    if (NeedsTurnedPictures(m_handle))
        return StretchTurned(m_handle, dest, source, from, rop);
    return ::StretchBlt(m_handle, dest.left, dest.top, dest.Width(), dest.Height(), source, from.left,
                        from.top, from.Width(), from.Height(), rop) != FALSE;
}

bool TDC::StretchDIBits(const TRect& dest, const TRect& src, const void* bits, const BITMAPINFO* info,
                        unsigned int usage, unsigned long rop) {
    if (!bits || !info)
        return false;
    if (NeedsTurnedPictures(m_handle))
        return StretchTurnedDIBits(m_handle, dest, src, bits, info, usage, rop);
    const int lines = ::StretchDIBits(m_handle, dest.left, dest.top, dest.Width(), dest.Height(), src.left,
                                      src.top, src.Width(), src.Height(), bits, info, usage, rop);
    return lines != 0;
}

}  // namespace owl
