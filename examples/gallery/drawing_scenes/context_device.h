// The context of a window that is painted, as a device for a port.
#pragma once

#include "lvx/drawing/device.h"
#include "owl/dc.h"

namespace gallery {

class ContextDevice : public LVX::Device {
public:
    explicit ContextDevice(owl::TDC& dc) { m_dc = &dc; }

    owl::TDC* AcquireDC() override { return m_dc; }
    void ReleaseDC() override {}
};

}  // namespace gallery
