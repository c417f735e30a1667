// owl/metafile_pict.h
//
// A recorded picture with its size and the units that this is told in. Windows only.
#pragma once

#include "owl/gdi_object.h"
#include "owl/geometry.h"

namespace owl {

class TClipboard;
class TDC;

class OWL_EXPORT TMetaFilePict {
public:
    /// On a metafile in memory, with MM_ANISOTROPIC and no size. A null `handle` is an empty picture.
    explicit TMetaFilePict(HMETAFILE handle, TAutoDelete autoDelete = NoAutoDelete);
    /// A copy of what lies on an open clipboard as CF_METAFILEPICT. Throws TXWindow if nothing does.
    explicit TMetaFilePict(const TClipboard& clipboard);
    /// A picture of its own. Throws TXGdi if the metafile cannot be copied.
    TMetaFilePict(const TMetaFilePict& other);
    ~TMetaFilePict();
    TMetaFilePict& operator=(const TMetaFilePict&) = delete;

    HMETAFILE GetHandle() const { return m_handle; }
    operator HMETAFILE() const { return m_handle; }

    /// MM_ANISOTROPIC, for a picture that fits any size, MM_ISOTROPIC, or the mode whose units the size is
    /// in.
    void SetMappingMode(int mode) { m_mode = mode; }
    int GetMappingMode() const { return m_mode; }
    /// Of a picture that fits any size what is proposed, in hundredths of a millimetre, or 0 by 0.
    void SetSize(const TSize& size) { m_size = size; }
    TSize Size() const { return m_size; }

    /// Draws the picture. One that fits any size comes to fill `size` units of `dc`, from its origin on;
    /// another is drawn in its own units from the origin of the device. The mode of `dc` is the same
    /// afterwards. False if that failed or the picture is empty.
    bool PlayOnto(TDC& dc, const TSize& size) const;
    /// Puts a copy on an open clipboard, with these units and size. Throws TXWindow if the clipboard refuses
    /// it, TXGdi if the picture cannot be copied.
    void ToClipboard(TClipboard& clipboard, int mode, const TSize& size) const;

private:
    HMETAFILE m_handle;
    bool m_owner;
    int m_mode = MM_ANISOTROPIC;
    TSize m_size;
};

}  // namespace owl
