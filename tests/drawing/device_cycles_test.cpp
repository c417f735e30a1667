// All kinds of devices, made, used and ended again and again: the system's objects are as many afterwards as
// before.
#include <gtest/gtest.h>

#include <memory>

#include "drawing/sheet.h"
#include "lvx/drawing/bitmap.h"
#include "lvx/drawing/metafile.h"
#include "lvx/drawing/my_font.h"
#include "lvx/drawing/region.h"
#include "owl/bitmap.h"
#include "owl/metafile_pict.h"

using lvx_test::Sheet;

namespace {

void draw(LVX::Device& device, int cycle) {
    LVX::Port port(device);
    LVXPen pen(1, LineSolid, owl::TColor(cycle % 256, 0, 0));
    LVXBrush brush(FillPattern(cycle % 11), LVX::Red, LVX::Blue);
    port.usePen(&pen);
    port.useBrush(&brush);
    ASSERT_TRUE(port.Open());
    LVXEllipse disc(RectCentre, 8, 8, 12, 9);
    port.fillRegion(&disc, true);
    port.moveTo(0, cycle % 16);
    port.lineTo(16, 15 - cycle % 16);
}

void use_bitmaps(Sheet& sheet, int cycle) {
    LVXBitmap monochrome(16, 16, true);
    LVXBitmap colour(16, 16, false);
    LVXBitmap memory(16, 16, &sheet);
    const LVXBitmap refused(-1, 16, &sheet);
    for (LVXBitmap* const bitmap : {&monochrome, &colour, &memory}) {
        bitmap->eraseWhite();
        draw(*bitmap, cycle);
        const LVXBitmap copy(*bitmap);
    }
    const std::unique_ptr<owl::TBitmap> former(static_cast<owl::TBitmap*>(colour));
    colour = memory;
    colour.AcquireDC();
    colour = monochrome;
    memory.AcquireDC();
    memory.AcquireDC();
    memory.ReleaseDC();
}

void use_metafile(Sheet& sheet, int cycle) {
    LVXMetaFile metafile(100, 100);
    draw(metafile, cycle);
    draw(metafile, cycle);
    static_cast<owl::TMetaFilePict*>(metafile)->PlayOnto(sheet.surface.dc, owl::TSize());
    if (cycle % 2 == 0) {
        metafile.AcquireDC();
    }
}

void use_fonts(Sheet& sheet, int cycle) {
    const myFont description("Arial", 8 + cycle % 20, cycle % 2 == 0, false, false, false);
    LVXFont* const font = description.make_font();
    LVX::Port port(sheet);
    port.useFont(font);
    port.Open();
    port.wrtText("Agx", 1, 1);
    EXPECT_FALSE(myFont(font).Face().empty());
    font->free();
}

void expect_stable(void (*use)(Sheet&, int), int cycles) {
    Sheet sheet(16, 16);
    use(sheet, 1);
    const int before = owl_test::RoomForGdiObjects();
    for (int cycle = 0; cycle < cycles; ++cycle) {
        use(sheet, cycle);
    }
    EXPECT_EQ(before, owl_test::RoomForGdiObjects());
}

}  // namespace

TEST(DeviceCycles, of_bitmaps_leave_no_objects_behind) {
    expect_stable(use_bitmaps, 10000);
}

TEST(DeviceCycles, of_metafiles_leave_no_objects_behind) {
    expect_stable(use_metafile, 10000);
}

TEST(DeviceCycles, of_fonts_out_of_descriptions_leave_no_objects_behind) {
    expect_stable(use_fonts, 2000);
}

TEST(DeviceCycles, of_lists_of_faces_leave_no_objects_behind) {
    expect_stable(
        [](Sheet&, int) {
            std::vector<std::string> faces;
            myFont::faces_available(faces);
        },
        200);
}
