#include "owl/memory_dc.h"

#include "owl/bitmap.h"
#include "owl/last_error.h"

namespace owl {
namespace {

HDC MakeMemoryContext(HDC like) {
    const bool hasDevice = ::GetObjectType(like) != OBJ_METADC;
    return Require<TXGdi>("CreateCompatibleDC",
                          [&] { return ::CreateCompatibleDC(hasDevice ? like : nullptr); });
}

}  // namespace

TMemoryDC::TMemoryDC() {
    SetHandle(MakeMemoryContext(nullptr));
}

TMemoryDC::TMemoryDC(const TDC& dc) {
    SetHandle(MakeMemoryContext(dc));
}

TMemoryDC::~TMemoryDC() {
    RestoreBitmap();
    if (const HDC handle = ReleaseHandle())
        ::DeleteDC(handle);
}

void TMemoryDC::SelectObject(const TBitmap& bitmap) {
    Select(bitmap.GetHandle(), m_originalBitmap);
}

void TMemoryDC::RestoreBitmap() {
    Restore(m_originalBitmap);
}

}  // namespace owl
