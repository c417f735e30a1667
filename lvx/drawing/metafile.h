// lvx/drawing/metafile.h
//
// A metafile as a device: what is drawn is recorded, and can be played onto other devices and handed to other
// programs by the clipboard.
//
//     LVXMetaFile sign(600, 400);      // 6 by 4 centimetres
//     {
//         LVX::Port port(sign);
//         port.Open();
//         port.lineTo(600, -400);      // from corner to corner: y counts upwards
//     }
//     sign.ToClipboard(window);
//
// Recording runs from the first AcquireDC to the last ReleaseDC; the picture is final then, and another
// recording replaces it. The picture is in tenths of a millimetre, MM_LOMETRIC: who plays it sets that up, so
// what is to be seen lies to the right of its origin and below, where y is negative.
// Owns the picture. For the thread that draws. Windows only. Does not: keep what is drawn within its size.
#pragma once

#include <memory>

#include "lvx/drawing/device.h"
#include "lvx/platform/export.h"

namespace owl {
class TMetaFilePict;
class TWindow;
}  // namespace owl

class LVX_EXPORT LVXMetaFile : public LVX::Device {
public:
    /// Without a picture. The size, in tenths of a millimetre, is for those who are handed the picture.
    LVXMetaFile(int width, int height);
    /// Throws away what is being recorded.
    ~LVXMetaFile() override;

    /// The picture, which stays this object's and lives until the next recording ends; null until one ended,
    /// and after one that the system could not keep.
    operator owl::TMetaFilePict*() { return m_picture.get(); }
    operator owl::TMetaFilePict*() const { return m_picture.get(); }

    /// The context, for one more user; with the first recording begins. owl::TXGdi if it cannot.
    owl::TDC* AcquireDC() override;
    /// One user less; with the last one recording ends. Nothing happens if there is none.
    void ReleaseDC() override;

    /// Puts a copy of the picture on the clipboard as CF_METAFILEPICT, beside what lies there: who wants to
    /// replace that empties the clipboard before. Nothing happens without a picture. Throws owl::TXWindow if
    /// the clipboard is busy or refuses the picture, owl::TXGdi if it cannot be copied.
    void ToClipboard(owl::TWindow& window);

private:
    std::unique_ptr<owl::TMetaFilePict> m_picture;
    int m_width;
    int m_height;
};
