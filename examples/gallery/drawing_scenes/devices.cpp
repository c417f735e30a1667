#include "context_device.h"
#include "drawing.h"
#include "lvx/drawing/bitmap.h"
#include "lvx/drawing/metafile.h"
#include "lvx/drawing/port.h"
#include "lvx/drawing/region.h"
#include "owl/metafile_pict.h"
#include "scenes.h"

namespace gallery {

namespace {

constexpr owl::TColor sky(190, 220, 255);

/// A sailing boat on a sheet of 120 by 90 units, which are `scale` of the device's and count down or up.
class Boat {
public:
    Boat(int scale, int direction) : m_scale(scale), m_direction(direction) {}

    void Draw(LVX::Port& port) const {
        LVXPen pen(2 * m_scale, LineSolid, LVX::Black);
        LVXBrush brush(sky);
        port.usePen(&pen);
        port.useBrush(&brush);
        DrawBox(port, 0, 0, 120, 62);
        brush.foreground(LVX::Blue);
        DrawBox(port, 0, 62, 120, 90);
        brush.foreground(LVX::Red);
        DrawPolygon(port, {{30, 60}, {95, 60}, {84, 74}, {40, 74}});
        brush.foreground(LVX::White);
        DrawPolygon(port, {{60, 10}, {90, 54}, {60, 54}});
        brush.foreground(LVX::Yellow);
        DrawPolygon(port, {{56, 16}, {56, 54}, {36, 54}});
        port.moveTo(58 * m_scale, m_direction * 8 * m_scale);
        port.lineTo(58 * m_scale, m_direction * 60 * m_scale);
    }

private:
    void DrawBox(LVX::Port& port, int left, int top, int right, int bottom) const {
        LVXRectangle box(RectCorners, left * m_scale, m_direction * top * m_scale, right * m_scale,
                         m_direction * bottom * m_scale);
        port.fillRegion(&box, false);
    }
    void DrawPolygon(LVX::Port& port, std::initializer_list<owl::TPoint> corners) const {
        LVXPointArray points(static_cast<int>(corners.size()));
        for (const owl::TPoint& corner : corners)
            points.add(static_cast<int>(corner.x) * m_scale,
                       m_direction * static_cast<int>(corner.y) * m_scale);
        LVXPolygon polygon(&points);
        port.fillRegion(&polygon, true);
    }

    int m_scale;
    int m_direction;
};

void DrawOn(LVX::Device& device, const Boat& boat) {
    LVX::Port port(device);
    port.Open();
    boat.Draw(port);
}

/// A picture with its name below.
void Show(LVX::Port& port, owl::TDC& dc, LVXBitmap& bitmap, const LVXRectangle& place, const char* name) {
    const LVXRectangle whole(RectSize, 0, 0, bitmap.GetWidth(), bitmap.GetHeight());
    port.drawBitMap(*static_cast<owl::TBitmap*>(bitmap), place, whole);
    int left = 0;
    int bottom = 0;
    place.get(RectCorners, &left, nullptr, nullptr, &bottom);
    Label(dc, left, bottom + 3, name);
}

void PlayMetafile(owl::TDC& dc) {
    LVXMetaFile metafile(480, 360);
    DrawOn(metafile, Boat(4, -1));
    const int saved = dc.SaveDC();
    dc.SetViewportOrg(owl::TPoint(310, 150));
    static_cast<owl::TMetaFilePict*>(metafile)->PlayOnto(dc, owl::TSize());
    dc.RestoreDC(saved);
    Label(dc, 310, 290, "a metafile of 48 by 36 mm");
}

void DrawDevices(owl::TDC& dc) {
    LVXBitmap colour(120, 90, false);
    LVXBitmap monochrome(120, 90, true);
    for (LVXBitmap* bitmap : {&colour, &monochrome})
        DrawOn(*bitmap, Boat(1, 1));
    ContextDevice device(dc);
    LVX::Port port(device);
    port.Open();
    Show(port, dc, colour, LVXRectangle(RectSize, 16, 16, 120, 90), "a bitmap");
    Show(port, dc, monochrome, LVXRectangle(RectSize, 160, 16, 120, 90), "of one bit");
    Show(port, dc, colour, LVXRectangle(RectSize, 310, 16, 60, 90), "narrower");
    port.rule(RuleNotCopyPen);
    Show(port, dc, colour, LVXRectangle(RectSize, 394, 16, 96, 90), "inverted");
    port.rule(RuleCopyPen);
    Show(port, dc, colour, LVXRectangle(RectSize, 16, 150, 264, 137), "larger");
    PlayMetafile(dc);
}

}  // namespace

void ShowDevices() {
    ShowDrawing("Devices", owl::TSize(506, 312), &DrawDevices);
}

}  // namespace gallery
