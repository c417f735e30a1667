#include <cstdint>
#include <vector>

#include "owl/dc.h"
#include "owl/error.h"
#include "owl/packed_dib.h"
#include "owl/turned_area.h"
#include "owl/turned_blit.h"

namespace owl {
namespace {

bool Stretch(HDC dc, const TRect& dest, const TRect& src, const void* bits, const BITMAPINFO* info,
             unsigned int usage, unsigned long rop) {
    return ::StretchDIBits(dc, dest.left, dest.top, dest.Width(), dest.Height(), src.left, src.top,
                           src.Width(), src.Height(), bits, info, usage, rop) != 0;
}

bool IsMetaFile(HDC dc) {
    const DWORD type = ::GetObjectType(dc);
    return type == OBJ_METADC || type == OBJ_ENHMETADC;
}

/// Into a metafile. Some platforms keep only as many colours and bytes there as the header counts: where it
/// counts none, as it may, they are lost, and looked for in vain when it is played.
bool Record(HDC dc, const TRect& dest, const TRect& src, const void* bits, const BITMAPINFO* info,
            unsigned long rop) try {
    const std::vector<std::uint8_t> complete = CompleteDibInfo(reinterpret_cast<const std::uint8_t*>(info));
    return Stretch(dc, dest, src, bits, reinterpret_cast<const BITMAPINFO*>(complete.data()), DIB_RGB_COLORS,
                   rop);
} catch (const TXGdi&) {
    return false;
}

}  // namespace

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
    if (usage == DIB_RGB_COLORS && IsMetaFile(m_handle))
        return Record(m_handle, dest, src, bits, info, rop);
    return Stretch(m_handle, dest, src, bits, info, usage, rop);
}

}  // namespace owl
