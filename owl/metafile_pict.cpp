#include "owl/metafile_pict.h"

#include "owl/clipboard.h"
#include "owl/dc.h"
#include "owl/global_block.h"
#include "owl/last_error.h"

namespace owl {
namespace {

HMETAFILE Copy(HMETAFILE source) {
    return Require<TXGdi>("CopyMetaFile", [&] { return source ? ::CopyMetaFile(source, nullptr) : nullptr; });
}

HMETAFILE CopyIfAny(HMETAFILE source) {
    return source ? Copy(source) : nullptr;
}

using LockedPicture = LockedBlock<METAFILEPICT, TXWindow>;

bool FitsAnySize(int mode) {
    return mode == MM_ANISOTROPIC || mode == MM_ISOTROPIC;
}

/// Brings back what was noted of a context when it ends.
class SavedState {
public:
    explicit SavedState(TDC& dc) : m_dc(dc), m_saved(dc.SaveDC()) {}
    ~SavedState() {
        if (m_saved)
            m_dc.RestoreDC(m_saved);
    }
    SavedState(const SavedState&) = delete;
    SavedState& operator=(const SavedState&) = delete;

private:
    TDC& m_dc;
    int m_saved;
};

}  // namespace

TMetaFilePict::TMetaFilePict(HMETAFILE handle, TAutoDelete autoDelete)
    : m_handle(handle), m_owner(autoDelete == AutoDelete) {}

TMetaFilePict::TMetaFilePict(const TClipboard& clipboard) : m_handle(nullptr), m_owner(true) {
    const LockedPicture picture(clipboard.RequireClipboardData(CF_METAFILEPICT));
    m_mode = picture->mm;
    m_size = TSize(picture->xExt, picture->yExt);
    m_handle = Copy(picture->hMF);
}

TMetaFilePict::TMetaFilePict(const TMetaFilePict& other)
    : m_handle(CopyIfAny(other.m_handle)), m_owner(true), m_mode(other.m_mode), m_size(other.m_size) {}

TMetaFilePict::~TMetaFilePict() {
    if (m_owner && m_handle)
        ::DeleteMetaFile(m_handle);
}

bool TMetaFilePict::PlayOnto(TDC& dc, const TSize& size) const {
    if (!m_handle)
        return false;
    const SavedState saved(dc);
    if (FitsAnySize(m_mode)) {
        TPoint corners[2] = {TPoint(), TPoint() + size};
        dc.LPtoDP(corners, 2);
        dc.SetMapMode(m_mode);
        dc.SetViewportOrg(corners[0]);
        dc.SetViewportExt(corners[1] - corners[0]);
    } else {
        dc.SetMapMode(m_mode);
    }
    return ::PlayMetaFile(dc, m_handle) != FALSE;
}

void TMetaFilePict::ToClipboard(TClipboard& clipboard, int mode, const TSize& size) const {
    TMetaFilePict copy(Copy(m_handle), AutoDelete);
    GlobalBlock block(sizeof(METAFILEPICT));
    {
        const LockedPicture picture(block.Get());
        picture->mm = mode;
        picture->xExt = size.cx;
        picture->yExt = size.cy;
        picture->hMF = copy;
    }
    clipboard.SetClipboardData(CF_METAFILEPICT, block.Get());
    block.Release();
    copy.m_owner = false;
}

}  // namespace owl
