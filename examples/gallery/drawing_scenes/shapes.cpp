#include <memory>

#include "context_device.h"
#include "drawing.h"
#include "lvx/drawing/port.h"
#include "lvx/drawing/region.h"
#include "owl/region.h"
#include "scenes.h"

namespace gallery {

namespace {

constexpr int width = 84;
constexpr int height = 60;

/// A shape of a host's own: an ellipse with a hole.
class Ring : public LVXRegion {
public:
    Ring(int x, int y) : m_outside(owl::TPoint(x, y), owl::TSize(width, height)) {}

    void MakeRegion() override {
        m_region = std::make_unique<owl::TRegion>(m_outside, owl::TRegion::Ellipse);
        *m_region -= owl::TRegion(m_outside.InflatedBy(-16, -16), owl::TRegion::Ellipse);
    }

private:
    owl::TRect m_outside;
};

/// A star, whose last point repeats the first.
class Star {
public:
    Star(int x, int y) {
        for (const owl::TPoint& corner : {owl::TPoint(42, 0), {66, 60}, {4, 22}, {80, 22}, {18, 60}, {42, 0}})
            m_points.add(x + static_cast<int>(corner.x), y + static_cast<int>(corner.y));
    }

    LVXPolygon& Shape() { return m_shape; }

private:
    LVXPointArray m_points{6};
    LVXPolygon m_shape{&m_points};
};

void Draw(LVX::Port& port, LVXRegion& shape, int operation) {
    switch (operation) {
        case 0:
            return port.fillRegion(&shape, true);
        case 1:
            return port.fillRegion(&shape, false);
        case 2:
            return port.frameRegion(&shape);
        case 3:
            return port.invertRegion(&shape);
        default:
            return port.eraseRegion(&shape);
    }
}

void DrawShapes(owl::TDC& dc) {
    constexpr const char* operations[] = {"filled, framed", "filled", "framed", "inverted", "erased"};
    ContextDevice device(dc);
    LVX::Port port(device);
    LVXPen pen(3, LineSolid, LVX::Blue);
    LVXBrush brush(FillDiagonalCross, LVX::Red, LVX::Yellow);
    port.usePen(&pen);
    port.useBrush(&brush);
    port.enableBkColour(true);
    port.Open();
    for (int operation = 0; operation < 5; ++operation) {
        const int x = 16 + operation * (width + 14);
        LVXRectangle rectangle(RectSize, x, 14, width, height);
        LVXEllipse ellipse(RectSize, x, 88, width, height);
        Star star(x, 162);
        Ring ring(x, 236);
        for (LVXRegion* shape : {static_cast<LVXRegion*>(&rectangle), static_cast<LVXRegion*>(&ellipse),
                                 static_cast<LVXRegion*>(&star.Shape()), static_cast<LVXRegion*>(&ring)})
            Draw(port, *shape, operation);
        Label(dc, x, 302, operations[operation]);
    }
    port.usePen(nullptr);
    port.useBrush(nullptr);
}

}  // namespace

void ShowShapes() {
    ShowDrawing("Shapes", owl::TSize(506, 326), &DrawShapes);
}

}  // namespace gallery
