// Draws a house into a picture in memory and saves it as a bitmap file. Windows only.
//
// usage: house FILE
//
// Exits 0, 1 if the file cannot be written, 2 for a wrong call.
#include <windows.h>

#include <cstdlib>
#include <cstring>
#include <exception>
#include <iostream>
#include <new>
#include <string>

#include "lvx/drawing/device.h"
#include "lvx/drawing/port.h"
#include "lvx/drawing/region.h"
#include "lvx/images/dibitmap.h"
#include "owl/bitmap.h"
#include "owl/memory_dc.h"

namespace {

constexpr owl::TColor sky(190, 220, 255);
constexpr owl::TColor grass(60, 140, 60);
constexpr owl::TColor brick(200, 90, 60);

/// A device of our own: 24 bits a pixel, in the memory that a bitmap file has them in.
class Picture : public LVX::Device {
public:
    Picture(int width, int height)
        : m_header{sizeof m_header, width, height, 1, 24, BI_RGB, 0, 0, 0, 0, 0},
          m_bitmap(::CreateDIBSection(nullptr, reinterpret_cast<const BITMAPINFO*>(&m_header), DIB_RGB_COLORS,
                                      &m_pixels, nullptr, 0),
                   owl::AutoDelete) {}

    // The context lives from the first user to the last one, with the bitmap selected.
    owl::TDC* AcquireDC() override {
        if (m_openCount++ == 0) {
            m_memory.SelectObject(m_bitmap);
            m_dc = &m_memory;
        }
        return m_dc;
    }
    void ReleaseDC() override {
        if (--m_openCount == 0) {
            m_memory.RestoreBitmap();
            m_dc = nullptr;
        }
    }

    void Save(const std::string& file) const {
        BITMAP section;
        m_bitmap.GetObject(section);
        const std::size_t size = static_cast<std::size_t>(section.bmWidthBytes) * section.bmHeight;
        HGLOBAL block = ::GlobalAlloc(GMEM_MOVEABLE, sizeof m_header + size);
        if (block == nullptr) {
            throw std::bad_alloc();
        }
        {
            const LVXUtilities::GlobalLocker<char> bytes(block);
            std::memcpy(bytes.get(), &m_header, sizeof m_header);
            std::memcpy(bytes.get() + sizeof m_header, m_pixels, size);
        }
        LVXUtilities::DIBitmap(block, LVXUtilities::DIBitmap::Adopt).SaveAsDIB(file);
    }

private:
    BITMAPINFOHEADER m_header;
    void* m_pixels = nullptr;
    owl::TBitmap m_bitmap;
    owl::TMemoryDC m_memory;
};

void draw_ground(LVX::Port& port) {
    LVXBrush brush(sky);
    port.useBrush(&brush);
    LVXRectangle air(RectCorners, 0, 0, 320, 180);
    port.fillRegion(&air, false);
    // A tool may be changed while it is in use.
    brush = LVXBrush(FillBackwardDiagonal, LVX::Black, grass);
    port.enableBkColour(true);
    LVXRectangle meadow(RectCorners, 0, 180, 320, 240);
    port.fillRegion(&meadow, false);
    port.enableBkColour(false);
}  // A tool that goes leaves the port with its own default.

void draw_sun(LVX::Port& port) {
    LVXPen pen(3, LineSolid, LVX::Red);
    LVXBrush brush(LVX::Yellow);
    port.usePen(&pen);
    port.useBrush(&brush);
    LVXEllipse sun(RectCentre, 270, 45, 50, 50);
    port.fillRegion(&sun, true);
}

void draw_house(LVX::Port& port) {
    LVXBrush brush(FillForeground, brick, LVX::White);
    port.useBrush(&brush);
    LVXRectangle wall(RectCorners, 60, 110, 200, 200);
    port.fillRegion(&wall, true);
    // The background of the brush.
    LVXRectangle window(RectCentre, 165, 150, 40, 34);
    port.eraseRegion(&window);
    port.frameRegion(&window);

    LVXPointArray corners(4);
    corners.add(45, 110);
    corners.add(130, 50);
    corners.add(215, 110);
    corners.add(45, 110);
    LVXPolygon roof(&corners);
    brush.pattern(FillDarkGrey);
    port.fillRegion(&roof, true);
    LVXRectangle door(RectSize, 80, 145, 30, 54);
    port.invertRegion(&door);
}

void write_name(LVX::Port& port) {
    LVXFont font("Times New Roman", 16, true, true, false, false);
    LVXPen pen(LVX::White);
    port.useFont(&font);
    port.usePen(&pen);
    const std::string name = "Our house";
    int width = 0;
    port.textSize(name.c_str(), &width, nullptr);
    // Text has the colour of the pen.
    port.wrtText(name.c_str(), 160 - width / 2, 208);
}

void draw(LVX::Device& device) {
    LVX::Port port(device);
    port.Open();
    draw_ground(port);
    draw_sun(port);
    draw_house(port);
    write_name(port);
}  // The port closes.

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: house FILE\n";
        return 2;
    }
    try {
        Picture picture(320, 240);
        draw(picture);
        picture.Save(argv[1]);
        return EXIT_SUCCESS;
    } catch (const char* error) {
        std::cerr << argv[1] << ": " << error << '\n';
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
    }
    return EXIT_FAILURE;
}
