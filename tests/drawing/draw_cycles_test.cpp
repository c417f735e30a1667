// All that a port can do, again and again: the system's objects are as many afterwards as before.
#include <gtest/gtest.h>

#include "drawing/sheet.h"
#include "lvx/drawing/region.h"
#include "owl/bitmap.h"

using lvx_test::OpenPort;
using lvx_test::Sheet;
using owl::TColor;

namespace {

struct Scene {
    Scene() : points(5) {
        for (const owl::TPoint& corner : {owl::TPoint(1, 1), {30, 4}, {20, 25}, {3, 28}, {1, 1}}) {
            points.add(static_cast<int>(corner.x), static_cast<int>(corner.y));
        }
    }

    LVXRectangle rectangle{RectCentre, 15, 15, 21, 11};
    LVXEllipse ellipse{RectSize, 3, 4, 20, 20};
    LVXPointArray points;
    LVXPolygon polygon{&points};
    LVXPen pen;
    LVXBrush brush;
    LVXFont font{"Arial", 12, false, false, false, false};
};

void draw_shapes(LVX::Port& port, Scene& scene, int cycle) {
    LVXRegion* const shapes[] = {&scene.rectangle, &scene.ellipse, &scene.polygon};
    for (LVXRegion* const shape : shapes) {
        port.eraseRegion(shape);
        port.fillRegion(shape, cycle % 2 == 0);
        port.frameRegion(shape);
        port.invertRegion(shape);
    }
}

void draw(Sheet& sheet, owl::TBitmap& bitmap, Scene& scene, int cycle) {
    LVX::Port port(sheet);
    port.usePen(&scene.pen);
    port.useBrush(&scene.brush);
    port.Open();
    scene.pen.colour(TColor(cycle % 256, 0, 0));
    scene.brush.pattern(FillPattern(cycle % 12));
    port.rule(RasterRule(cycle % 17));
    port.enableBkColour(cycle % 3 == 0);
    port.moveTo(0, cycle % 32);
    port.lineTo(32, 31 - cycle % 32);
    draw_shapes(port, scene, cycle);
    port.drawBitMap(&bitmap, 4, 4);
    port.drawBitMap(bitmap, scene.rectangle, scene.rectangle);
    port.wrtText("Agx", 1, 1);
    LVXPen copy(scene.pen);
    port.usePen(&copy);
    port.usePen(nullptr);
    port.useBrush(nullptr);
}

void write(Sheet& sheet, Scene& scene, int cycle) {
    LVX::Port port(sheet);
    LVX::Port other(sheet);
    port.useFont(&scene.font);
    port.Open();
    scene.font.pointSize(8 + cycle % 20);
    scene.font.bold(cycle % 2 == 0);
    port.wrtText("Agx", 1, 1);
    const LVXFont copy(scene.font);
    copy.height();
    port.useFont(nullptr);
}

}  // namespace

TEST(DrawCycles, leave_no_objects_behind) {
    Sheet sheet(32, 32);
    owl_test::Surface picture(8, 8);
    picture.dc.RestoreBitmap();
    Scene scene;
    draw(sheet, picture.bitmap, scene, 1);
    const int before = owl_test::RoomForGdiObjects();
    for (int cycle = 0; cycle < 10000; ++cycle) {
        draw(sheet, picture.bitmap, scene, cycle);
    }
    EXPECT_EQ(before, owl_test::RoomForGdiObjects());
}

TEST(DrawCycles, with_fonts_leave_no_objects_behind) {
    Sheet sheet(32, 32);
    Scene scene;
    write(sheet, scene, 1);
    const int before = owl_test::RoomForGdiObjects();
    for (int cycle = 0; cycle < 2000; ++cycle) {
        write(sheet, scene, cycle);
    }
    EXPECT_EQ(before, owl_test::RoomForGdiObjects());
}
