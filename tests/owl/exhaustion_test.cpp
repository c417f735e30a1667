// What everything that draws does when the system has no more objects to give: with none left, with one, with
// two and so on, until there are enough. Each time it fails in words of the framework or tells so, and leaves
// as many as there were.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include "hoard.h"
#include "letter_picture.h"
#include "message_window.h"
#include "owl/bitmap.h"
#include "owl/brush.h"
#include "owl/clipboard.h"
#include "owl/dib.h"
#include "owl/font.h"
#include "owl/hatch_brush.h"
#include "owl/metafile_dc.h"
#include "owl/metafile_pict.h"
#include "owl/palette.h"
#include "owl/pen.h"
#include "owl/print_dc.h"
#include "owl/region.h"
#include "owl/window_dc.h"
#include "surface.h"

namespace {

using owl::TBitmap;
using owl::TBrush;
using owl::TColor;
using owl::TRect;
using owl::TRegion;
using owl::TSize;
using owl_test::Hoard;
using owl_test::Surface;

/// Does what it does; false if the framework said that it could not.
bool Succeeds(const std::function<bool()>& action) {
    try {
        return action();
    } catch (const owl::TXOwl& error) {
        EXPECT_STRNE("", error.what());
        return false;
    }
}

/// Whether the action fails when nothing is left, and at last succeeds; and leaves as many as there were
/// whatever happens.
void ExpectThrift(const std::string& name, const std::function<bool()>& action) {
    // What the system makes once and keeps.
    EXPECT_TRUE(Succeeds(action)) << name;
    bool done = false;
    for (std::size_t left = 0; !done && left < 20; ++left) {
        Hoard hoard(left);
        done = Succeeds(action);
        EXPECT_EQ(left, hoard.TakeAll()) << name << (done ? " succeeded" : " failed");
        EXPECT_FALSE(done && left == 0) << name;
    }
    EXPECT_TRUE(done) << name;
}

/// An action that makes one thing.
template <class Make>
std::function<bool()> Making(const Make& make) {
    return [make] {
        make();
        return true;
    };
}

HINSTANCE Module() {
    return ::GetModuleHandleA(nullptr);
}

TEST(Exhaustion, of_tools_throws) {
    const PALETTEENTRY grey = {128, 128, 128, 0};
    LOGFONT font{};
    const TBitmap pattern(8, 8, 1, 1, nullptr);
    const owl::TPen pen(TColor::LtRed);
    const owl::TFont someFont(font);
    const owl::TPalette palette(&grey, 1);
    ExpectThrift("pen", Making([] { owl::TPen(TColor::LtRed); }));
    ExpectThrift("copy of a pen", Making([&] { owl::TPen copy(pen); }));
    ExpectThrift("brush", Making([] { TBrush(TColor::LtRed, true); }));
    ExpectThrift("pattern", Making([&] { TBrush brush(pattern); }));
    ExpectThrift("hatch", Making([] {
                     owl::THatch8x8Brush(owl::THatch8x8Brush::Hatch11F1, TColor::LtRed, TColor::White);
                 }));
    ExpectThrift("font", Making([&] { owl::TFont copy(someFont); }));
    ExpectThrift("palette", Making([&] { owl::TPalette copy(palette); }));
}

TEST(Exhaustion, leaves_a_hatched_brush_what_it_was) {
    owl::THatch8x8Brush brush(owl::THatch8x8Brush::Hatch11F1, TColor::LtRed, TColor::White);
    const HGDIOBJ handle = brush.GetHandle();
    {
        Hoard hoard(0);
        EXPECT_THROW(brush.Reconstruct(owl::THatch8x8Brush::Hatch22F1, TColor::LtRed, TColor::White),
                     owl::TXGdi);
    }
    EXPECT_EQ(handle, brush.GetHandle());
    EXPECT_EQ(DWORD{OBJ_BRUSH}, ::GetObjectType(handle));
}

TEST(Exhaustion, of_regions_throws) {
    const owl::TPoint triangle[] = {{0, 0}, {20, 0}, {0, 20}};
    const TRegion region(TRect(0, 0, 5, 5));
    ExpectThrift("nothing", Making([] { TRegion(); }));
    ExpectThrift("ellipse", Making([] { TRegion(TRect(0, 0, 5, 5), TRegion::Ellipse); }));
    ExpectThrift("polygon", Making([&] { TRegion(triangle, 3, ALTERNATE); }));
    ExpectThrift("copy of a region", Making([&] { TRegion copy(region); }));
}

TEST(Exhaustion, of_bitmaps_throws) {
    const owl::TScreenDC screen;
    const owl::TDib dib(3, 2, 24);
    const TBitmap compatible(screen, 3, 2);
    ExpectThrift("bitmap", Making([&] { TBitmap(screen, 3, 2); }));
    ExpectThrift("bits", Making([] { TBitmap(3, 2, 1, 1, nullptr); }));
    ExpectThrift("resource", Making([] { TBitmap(Module(), 7); }));
    ExpectThrift("picture", Making([&] { TBitmap bitmap(dib); }));
    ExpectThrift("copy", Making([&] { TBitmap copy(compatible); }));
    for (const int depth : {1, 8, 24}) {
        const TBitmap section(owl_test::MakeSection(3, 2, depth), owl::AutoDelete);
        ExpectThrift("copy of a section", Making([&] { TBitmap copy(section); }));
    }
}

TEST(Exhaustion, of_contexts_throws) {
    ExpectThrift("memory", Making([] { owl::TMemoryDC(); }));
    ExpectThrift("metafile", Making([] { owl::TMetaFileDC(); }));
    ExpectThrift("printer", Making([] { owl::TPrintDC("DISPLAY", nullptr, nullptr, nullptr); }));
    ExpectThrift("information", Making([] { owl::TIC("DISPLAY", nullptr, nullptr, nullptr); }));
}

TEST(Exhaustion, of_metafiles_throws) {
    owl::TMetaFileDC dc;
    dc.PatBlt(0, 0, 1, 1);
    const owl::TMetaFilePict picture(dc.Close(), owl::AutoDelete);
    ExpectThrift("copy of a metafile", Making([&] { owl::TMetaFilePict copy(picture); }));
    ExpectThrift("recording", Making([] {
                     owl::TMetaFileDC recording;
                     owl::TMetaFilePict recorded(recording.Close(), owl::AutoDelete);
                 }));
}

TEST(Exhaustion, leaves_the_clipboard_usable) {
    const owl_test::MessageWindow window;
    const TBitmap bitmap(3, 2, 1, 1, nullptr);
    const auto put = [&] {
        owl::TClipboard clipboard(window);
        clipboard.EmptyClipboard();
        bool taken = false;
        try {
            bitmap.ToClipboard(clipboard);
            taken = TBitmap(clipboard).Size() == TSize(3, 2);
        } catch (const owl::TXGdi&) {
        }
        clipboard.EmptyClipboard();
        return taken;
    };
    ExpectThrift("clipboard", put);
}

/// A surface under a turn.
class Turned {
public:
    Turned() : surface(40, 40) {
        surface.dc.SetGraphicsMode(GM_ADVANCED);
        surface.dc.SetWorldTransform({0.8f, 0.6f, -0.6f, 0.8f, 20, 20});
    }
    /// Whether the transform is still the same.
    bool IsAsItWas() const {
        XFORM world{};
        return surface.dc.GetWorldTransform(world) && world.eM12 == 0.6f && world.eDx == 20;
    }
    Surface surface;
};

void ExpectThriftOfTurned(const std::string& name, const std::function<bool(owl::TMemoryDC&)>& draw) {
    Turned turned;
    ExpectThrift(name, [&] { return draw(turned.surface.dc); });
    EXPECT_TRUE(turned.IsAsItWas()) << name;
}

constexpr TRect box(-10, -10, 10, 10);

TEST(Exhaustion, of_turned_pictures_is_told) {
    const owl_test::LetterPicture picture({"RG", "BY"}, 24);
    const Surface source(2, 2);
    const TRect all(0, 0, 2, 2);
    ExpectThriftOfTurned("StretchDIBits", [&](owl::TMemoryDC& dc) {
        return dc.StretchDIBits(box, all, picture.Bits(), picture.Info());
    });
    ExpectThriftOfTurned("StretchBlt",
                         [&](owl::TMemoryDC& dc) { return dc.StretchBlt(box, source.dc, all); });
    ExpectThriftOfTurned("BitBlt",
                         [&](owl::TMemoryDC& dc) { return dc.BitBlt(all, source.dc, owl::TPoint()); });
}

TEST(Exhaustion, of_turned_areas_is_told) {
    const TBrush red(TColor::LtRed);
    const TRegion region(box);
    ExpectThriftOfTurned("FillRect", [&](owl::TMemoryDC& dc) { return dc.FillRect(box, red); });
    ExpectThriftOfTurned("FrameRect", [&](owl::TMemoryDC& dc) { return dc.FrameRect(box, red); });
    ExpectThriftOfTurned("InvertRect", [&](owl::TMemoryDC& dc) { return dc.InvertRect(box); });
    ExpectThriftOfTurned("FillRgn", [&](owl::TMemoryDC& dc) { return dc.FillRgn(region, red); });
    ExpectThriftOfTurned("FrameRgn",
                         [&](owl::TMemoryDC& dc) { return dc.FrameRgn(region, red, TSize(2, 2)); });
    ExpectThriftOfTurned("clip", [&](owl::TMemoryDC& dc) {
        const bool clipped = dc.IntersectClipRect(box) != ERROR;
        dc.SelectClipRgn();
        return clipped;
    });
}

}  // namespace
