// lvx/drawing/bitmap.h
//
// A picture in memory as a device to draw on.
//
//     LVXBitmap sheet(200, 100, false);
//     sheet.eraseWhite();
//     {
//         LVX::Port port(sheet);
//         port.Open();
//         port.lineTo(200, 100);
//     }
//     onScreen.drawBitMap(sheet, 0, 0);  // now that no port is open on it
//
// Owns the system's bitmap, and a context on it from the first AcquireDC to the ReleaseDC that balances it;
// as long as that lives the bitmap can be selected nowhere else. A reference device is the caller's and
// outlives the bitmap. For the thread that draws. Windows only. Where the system refuses a bitmap or a
// context, owl::TXGdi comes out of what would have made it.
#pragma once

#include <windows.h>

#include <string>

#include "lvx/drawing/device.h"
#include "lvx/platform/export.h"

namespace owl {
class TBitmap;
}

class LVX_EXPORT LVXBitmap : public LVX::Device {
public:
    /// Nothing to draw on: no bitmap, 0 by 0.
    LVXBitmap();
    /// Black: of one bit a pixel, or with the depth of the screen. A side of 0 is for the system to judge,
    /// which makes one of a pixel of it.
    LVXBitmap(int width, int height, bool monochrome);
    /// The bitmap resource of that name in the library's own module, or, where that has none, in the
    /// application's or the program's.
    explicit LVXBitmap(const std::string& resource);
    /// Black, 32 bits a pixel whatever the devices, in memory that the system's GetObject tells the address
    /// of; the lowest row is first, the topmost if `height` is negative. Contexts on it are made like those
    /// of `device`; null is the screen. Where the system does not make it there is a bitmap without a handle.
    LVXBitmap(int width, int height, LVX::Device* device);
    /// A bitmap of its own with the pixels of `other` and the same reference device. Nobody uses its context.
    LVXBitmap(const LVXBitmap& other);
    /// The same; but nothing happens to itself or while somebody uses this one's context. The former bitmap
    /// is not freed: who was given it keeps it. Who wants it gone deletes what operator owl::TBitmap* gave.
    LVXBitmap& operator=(const LVXBitmap& other);
    /// Ends the context, whoever uses it still, and the bitmap.
    ~LVXBitmap() override;

    /// The context, for one more user. Null if there is no bitmap or it has no handle.
    owl::TDC* AcquireDC() override;
    /// One user less; with the last one the context goes. Nothing happens if there is none.
    void ReleaseDC() override;

    /// Stays this object's; null if there is none.
    operator owl::TBitmap*() { return m_bitmap; }
    operator owl::TBitmap*() const { return m_bitmap; }
    /// The handle; null if there is no bitmap. Pass 0, which means nothing.
    HBITMAP getBitmap(int) const;

    /// Makes all pixels white. Requires, if a port is open on it: no mapping or transform there.
    void eraseWhite();

    /// In pixels; 0 if there is no bitmap.
    int GetWidth() const;
    int GetHeight() const;
    /// Both, to those that are not null.
    void sizeOfImage(int* width, int* height);

private:
    owl::TBitmap* m_bitmap = nullptr;
    LVX::Device* m_device = nullptr;
};
