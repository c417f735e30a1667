// A device over a picture in memory, which counts its users, and what the tests of tools and ports look at.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

#include "lvx/drawing/device.h"
#include "lvx/drawing/port.h"
#include "owl/dc.h"
#include "owl/surface.h"

namespace lvx_test {

using owl::TColor;

class Sheet : public LVX::Device {
public:
    explicit Sheet(int width = 8, int height = 8) : surface(width, height) {}

    owl::TDC* AcquireDC() override {
        if (isEmpty) {
            return nullptr;
        }
        ++m_openCount;
        return &surface.dc;
    }
    void ReleaseDC() override { --m_openCount; }

    int Users() const { return m_openCount; }
    HGDIOBJ Selected(UINT kind) const { return ::GetCurrentObject(surface.dc, kind); }
    std::string Picture() const { return surface.Picture(); }

    owl_test::Surface surface;
    /// Whether there is nothing to draw on.
    bool isEmpty = false;
};

/// A port that is open on a sheet of its own.
struct OpenPort {
    explicit OpenPort(int width = 8, int height = 8) : sheet(width, height), port(sheet) { port.Open(); }

    std::string Picture() const { return sheet.Picture(); }

    Sheet sheet;
    LVX::Port port;
};

/// While it lives, the system makes no more pens, brushes and fonts for this process.
class NoMoreObjects {
public:
    NoMoreObjects() {
        while (const HGDIOBJ pen = ::CreatePen(PS_SOLID, 1, 0)) {
            m_pens.push_back(pen);
        }
    }
    NoMoreObjects(const NoMoreObjects&) = delete;
    NoMoreObjects& operator=(const NoMoreObjects&) = delete;
    ~NoMoreObjects() {
        for (const HGDIOBJ pen : m_pens) {
            ::DeleteObject(pen);
        }
    }

private:
    std::vector<HGDIOBJ> m_pens;
};

inline std::string rows(int count, const std::string& row) {
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += row + "\n";
    }
    return text;
}

}  // namespace lvx_test
