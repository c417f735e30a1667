#include "lvx/drawing/metafile.h"

#include "owl/clipboard.h"
#include "owl/metafile_dc.h"
#include "owl/metafile_pict.h"
#include "owl/window.h"

namespace {

std::unique_ptr<owl::TMetaFilePict> picture_of(owl::TMetaFileDC& dc, const owl::TSize& size) {
    auto picture = std::make_unique<owl::TMetaFilePict>(dc.Close(), owl::AutoDelete);
    picture->SetMappingMode(MM_LOMETRIC);
    picture->SetSize(size);
    return picture;
}

}  // namespace

LVXMetaFile::LVXMetaFile(int width, int height) : m_width(width), m_height(height) {}

LVXMetaFile::~LVXMetaFile() {
    delete m_dc;
}

owl::TDC* LVXMetaFile::AcquireDC() {
    if (m_dc == nullptr) {
        m_dc = new owl::TMetaFileDC(nullptr);
    }
    ++m_openCount;
    return m_dc;
}

void LVXMetaFile::ReleaseDC() {
    if (m_dc == nullptr || --m_openCount > 0) {
        return;
    }
    m_openCount = 0;
    const std::unique_ptr<owl::TMetaFileDC> dc(static_cast<owl::TMetaFileDC*>(m_dc));
    m_dc = nullptr;
    m_picture.reset();
    try {
        m_picture = picture_of(*dc, owl::TSize(m_width, m_height));
    } catch (const owl::TXGdi&) {
        // Ports close in their destructors. That there is no picture says it.
    }
}

void LVXMetaFile::ToClipboard(owl::TWindow& window) {
    if (m_picture == nullptr) {
        return;
    }
    owl::TClipboard clipboard(window.GetHandle());
    m_picture->ToClipboard(clipboard, MM_LOMETRIC, owl::TSize(m_width, m_height));
}
