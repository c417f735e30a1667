#include "lvx/propdlg/masked_blit.h"

#include "owl/bitmap.h"
#include "owl/dc.h"
#include "owl/error.h"
#include "owl/memory_dc.h"

namespace lvx::propdlg {

namespace {

// The picture is put together beside the screen, so that it does not flicker.
void blit(owl::TDC& dc, const owl::TPoint& at, const owl::TBitmap& bitmap, int column,
          const owl::TSize& size) {
    const owl::TBitmap both(dc, size.Width(), size.Height());
    owl::TMemoryDC source(dc);
    owl::TMemoryDC target(dc);
    source.SelectObject(bitmap);
    target.SelectObject(both);
    const owl::TRect all(owl::TPoint(), size);
    target.BitBlt(all, dc, at, SRCCOPY);
    target.BitBlt(all, source, owl::TPoint(column, size.Height()), SRCAND);
    target.BitBlt(all, source, owl::TPoint(column, 0), SRCPAINT);
    dc.BitBlt(owl::TRect(at, size), target, owl::TPoint(), SRCCOPY);
}

}  // namespace

bool masked_blit(owl::TDC& dc, const owl::TPoint& at, const owl::TBitmap* bitmap, int column, int width) {
    if (bitmap == nullptr)
        return false;
    const owl::TSize size(width == 0 ? bitmap->Width() - column : width, bitmap->Height() / 2);
    if (size.Width() <= 0 || size.Height() <= 0)
        return false;
    try {
        blit(dc, at, *bitmap, column, size);
    } catch (const owl::TXGdi&) {
        return false;
    }
    return true;
}

}  // namespace lvx::propdlg
