#include "lvx/drawing/bitmap.h"

#include <memory>

#include "lvx/drawing/resource_module.h"
#include "owl/bitmap.h"
#include "owl/memory_dc.h"
#include "owl/window_dc.h"

namespace {

/// Uses the context of a device, if there is one, for as long as it lives.
class DeviceUse {
public:
    explicit DeviceUse(LVX::Device* device)
        : m_device(device), m_dc(device != nullptr ? device->AcquireDC() : nullptr) {}
    DeviceUse(const DeviceUse&) = delete;
    DeviceUse& operator=(const DeviceUse&) = delete;
    ~DeviceUse() {
        if (m_dc != nullptr) {
            m_device->ReleaseDC();
        }
    }

    const owl::TDC* Context() const { return m_dc; }

private:
    LVX::Device* m_device;
    owl::TDC* m_dc;
};

std::unique_ptr<owl::TMemoryDC> context_like(LVX::Device* device) {
    const DeviceUse use(device);
    if (use.Context() != nullptr) {
        return std::make_unique<owl::TMemoryDC>(*use.Context());
    }
    return std::make_unique<owl::TMemoryDC>(owl::TScreenDC());
}

HBITMAP make_section(int width, int height, LVX::Device* device) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    const DeviceUse use(device);
    const HDC dc = use.Context() != nullptr ? use.Context()->GetHDC() : nullptr;
    void* bits = nullptr;
    return ::CreateDIBSection(dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
}

owl::TBitmap* copy_of(const owl::TBitmap* bitmap) {
    return bitmap != nullptr ? new owl::TBitmap(*bitmap) : nullptr;
}

BITMAP description(const owl::TBitmap* bitmap) {
    BITMAP description{};
    if (bitmap != nullptr) {
        bitmap->GetObject(description);
    }
    return description;
}

}  // namespace

LVXBitmap::LVXBitmap() = default;

LVXBitmap::LVXBitmap(int width, int height, bool monochrome)
    : m_bitmap(monochrome ? new owl::TBitmap(width, height, 1, 1, nullptr)
                          : new owl::TBitmap(owl::TScreenDC(), width, height)) {}

LVXBitmap::LVXBitmap(const std::string& resource)
    : m_bitmap(new owl::TBitmap(lvx::drawing::module_with_bitmap(resource), resource.c_str())) {}

LVXBitmap::LVXBitmap(int width, int height, LVX::Device* device)
    : m_bitmap(new owl::TBitmap(make_section(width, height, device), owl::AutoDelete)), m_device(device) {}

LVXBitmap::LVXBitmap(const LVXBitmap& other)
    : Device(), m_bitmap(copy_of(other.m_bitmap)), m_device(other.m_device) {}

LVXBitmap& LVXBitmap::operator=(const LVXBitmap& other) {
    if (this != &other && m_dc == nullptr) {
        // Hosts hold on to the former bitmap.
        m_bitmap = copy_of(other.m_bitmap);
        m_device = other.m_device;
    }
    return *this;
}

LVXBitmap::~LVXBitmap() {
    delete m_dc;
    delete m_bitmap;
}

owl::TDC* LVXBitmap::AcquireDC() {
    if (getBitmap(0) == nullptr) {
        return nullptr;
    }
    if (m_dc == nullptr) {
        // Assignments can make a bitmap its own reference, by way of others too.
        if (m_openCount > 0) {
            return nullptr;
        }
        m_openCount = 1;
        try {
            std::unique_ptr<owl::TMemoryDC> dc = context_like(m_device);
            dc->SelectObject(*m_bitmap);
            m_dc = dc.release();
        } catch (...) {
            m_openCount = 0;
            throw;
        }
        return m_dc;
    }
    ++m_openCount;
    return m_dc;
}

void LVXBitmap::ReleaseDC() {
    if (m_dc == nullptr || --m_openCount > 0) {
        return;
    }
    m_openCount = 0;
    delete m_dc;
    m_dc = nullptr;
}

HBITMAP LVXBitmap::getBitmap(int) const {
    return m_bitmap != nullptr ? static_cast<HBITMAP>(*m_bitmap) : nullptr;
}

void LVXBitmap::eraseWhite() {
    owl::TDC* const dc = AcquireDC();
    if (dc == nullptr) {
        return;
    }
    int width = 0;
    int height = 0;
    sizeOfImage(&width, &height);
    dc->PatBlt(0, 0, width, height, WHITENESS);
    ReleaseDC();
}

int LVXBitmap::GetWidth() const {
    return static_cast<int>(description(m_bitmap).bmWidth);
}

int LVXBitmap::GetHeight() const {
    return static_cast<int>(description(m_bitmap).bmHeight);
}

void LVXBitmap::sizeOfImage(int* width, int* height) {
    const BITMAP size = description(m_bitmap);
    if (width != nullptr) {
        *width = static_cast<int>(size.bmWidth);
    }
    if (height != nullptr) {
        *height = static_cast<int>(size.bmHeight);
    }
}
