// lvx/drawing/device.h
//
// Anything that can be drawn on: a picture in memory, a metafile, a printer, a host's own. A device hands out
// its context and counts its users, so that several may draw at once: the context lives from the first
// AcquireDC to the ReleaseDC that balances it.
//
//     class Sheet : public LVX::Device {
//     public:
//         owl::TDC* AcquireDC() override { … }
//         void ReleaseDC() override { … }
//     };
//     Sheet sheet;
//     LVX::Port port(sheet);  // draws on it
//
// A device outlives the ports on it. For the thread that draws. Windows only.
#pragma once

#include "lvx/platform/export.h"

namespace owl {
class TDC;
}

namespace LVX {

class LVX_EXPORT Device {
public:
    Device(const Device&) = delete;
    Device& operator=(const Device&) = delete;
    virtual ~Device();

    /// The context to draw on, which stays the device's; null if there is nothing to draw on, and nothing is
    /// to be given back then. An exception means the same.
    virtual owl::TDC* AcquireDC() = 0;

    /// Gives back what AcquireDC has returned.
    virtual void ReleaseDC() = 0;

protected:
    /// Without a context, and without users.
    Device() = default;

    /// The context while there is one. Owned, or not, as the derived class has it.
    owl::TDC* m_dc = nullptr;
    int m_openCount = 0;
};

}  // namespace LVX
