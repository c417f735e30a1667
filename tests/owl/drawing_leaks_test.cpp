// What is drawn with, in use, by the thousand.
#include <cstdint>
#include <stdexcept>

#include "leaks.h"
#include "owl/bitmap.h"
#include "owl/brush.h"
#include "owl/clipboard.h"
#include "owl/dib.h"
#include "owl/font.h"
#include "owl/hatch_brush.h"
#include "owl/memory_dc.h"
#include "owl/metafile_dc.h"
#include "owl/metafile_pict.h"
#include "owl/palette.h"
#include "owl/pen.h"
#include "owl/print_dc.h"
#include "owl/region.h"
#include "owl/window_dc.h"

namespace {

using owl::TColor;
using owl::TRect;

constexpr TRect area(0, 0, 40, 30);

LOGFONTA Face(int angle) {
    LOGFONTA face{};
    face.lfHeight = -12;
    face.lfEscapement = face.lfOrientation = angle;
    ::lstrcpynA(face.lfFaceName, "Arial", LF_FACESIZE);
    return face;
}

// Leaves all of them selected: the context's end has to let go of them.
class Tools {
public:
    Tools() : palette(entries, 2), pattern_brush(pattern) {}

    void SelectInto(owl::TDC& dc) const {
        dc.SelectObject(palette);
        dc.SelectObject(pen);
        dc.SelectObject(copied_pen);
        dc.SelectObject(brush);
        dc.SelectObject(hatched_brush);
        dc.SelectObject(pattern_brush);
        dc.SelectObject(small_hatch_brush);
        dc.SelectObject(font);
        dc.SelectObject(turned_font);
        dc.SelectClipRgn(region);
    }

private:
    static constexpr PALETTEENTRY entries[2] = {{1, 2, 3, 0}, {4, 5, 6, 0}};

    owl::TPalette palette;
    owl::TPen pen{TColor::LtRed, 3};
    owl::TPen copied_pen{pen};
    owl::TBitmap pattern{8, 8, 1, 1, nullptr};
    owl::TBrush brush{TColor(1, 2, 3), true};
    owl::TBrush hatched_brush{TColor::LtBlue, HS_CROSS};
    owl::TBrush pattern_brush;
    owl::THatch8x8Brush small_hatch_brush{owl::THatch8x8Brush::Hatch11F1, TColor::LtRed, TColor::White};
    owl::TFont font{Face(0)};
    owl::TFont turned_font{Face(450)};
    owl::TRegion region{area};
};

void DrawWithAll(owl::TDC& dc) {
    dc.Rectangle(area);
    dc.Ellipse(area);
    dc.TextOut(2, 2, "text");
    const owl::TRegion ellipse(area, owl::TRegion::Ellipse);
    const owl::TBrush frame(TColor::Black);
    dc.FrameRgn(ellipse, frame, owl::TSize(2, 2));
}

/// A child of the desk that paints itself by `Paint`.
class Canvas : public owl::TWindow {
public:
    explicit Canvas(owl::TFrameWindow& frame) : TWindow(&frame, "canvas") {
        Attr.W = 100;
        Attr.H = 100;
        frame.ShowWindow(SW_SHOW);
        Create();
    }

    void PaintNow() {
        Invalidate();
        UpdateWindow();
    }
};

struct Painting : Canvas {
    static constexpr const char* name = "tools_that_a_window_paints_with";
    static constexpr int rounds = 1000;
    using Canvas::Canvas;

    void Paint(owl::TDC& dc, bool, TRect&) override {
        const Tools tools;
        tools.SelectInto(dc);
        DrawWithAll(dc);
        dc.RestoreObjects();
        dc.SelectClipRgn();
        ++painted;
    }
    void Round() {
        const int before = painted;
        PaintNow();
        EXPECT_EQ(before + 1, painted);
    }

    int painted = 0;
};

struct FailedPainting : Canvas {
    static constexpr const char* name = "tools_of_a_window_that_cannot_paint";
    static constexpr int rounds = 1000;
    using Canvas::Canvas;

    void Paint(owl::TDC& dc, bool, TRect&) override {
        const owl::TPen pen(TColor::LtRed, 3);
        const owl::TBrush brush(TColor::LtBlue);
        dc.SelectObject(pen);
        dc.SelectObject(brush);
        throw std::domain_error("in Paint");
    }
    void Round() {
        PaintNow();
        EXPECT_THROW(GetApplication()->PumpWaitingMessages(), std::domain_error);
    }
};

struct Contexts : Canvas {
    static constexpr const char* name = "contexts_of_windows_and_devices";
    static constexpr int rounds = 1000;
    using Canvas::Canvas;

    void Round() {
        const Tools tools;
        owl::TClientDC client(*this);
        owl::TWindowDC window(*this);
        owl::TScreenDC screen;
        owl::TMemoryDC memory(client);
        owl::TIC information("DISPLAY", nullptr, nullptr, nullptr);
        for (owl::TDC* const dc : {static_cast<owl::TDC*>(&client), static_cast<owl::TDC*>(&window),
                                   static_cast<owl::TDC*>(&memory)}) {
            tools.SelectInto(*dc);
            DrawWithAll(*dc);
        }
    }
};

struct Pictures : Canvas {
    static constexpr const char* name = "bitmaps_and_pictures";
    static constexpr int rounds = 1000;
    using Canvas::Canvas;

    void Round() {
        owl::TDib dib(8, 8, 24);
        dib.SetPixel(1, 1, TColor::LtRed);
        const owl::TBitmap from_dib(dib);
        const owl::TClientDC client(*this);
        const owl::TBitmap bitmap(client, 40, 30);
        const owl::TBitmap copy(bitmap);
        owl::TMemoryDC source(client);
        source.SelectObject(from_dib);
        owl::TMemoryDC dc(client);
        dc.SelectObject(copy);
        dc.SelectObject(bitmap);
        dc.StretchBlt(area, source, TRect(0, 0, 8, 8));
        dc.StretchDIBits(area, TRect(0, 0, 8, 8), dib.GetBits(), dib.GetInfo());
        Turn(dc);
        dc.StretchDIBits(area, TRect(0, 0, 8, 8), dib.GetBits(), dib.GetInfo());
        dc.BitBlt(TRect(0, 0, 8, 8), source, owl::TPoint());
    }

    static void Turn(owl::TDC& dc) {
        const XFORM turn{0.8F, 0.6F, -0.6F, 0.8F, 20, 0};
        ::SetGraphicsMode(dc, GM_ADVANCED);
        ::SetWorldTransform(dc, &turn);
    }
};

struct Regions : Canvas {
    static constexpr const char* name = "regions";
    static constexpr int rounds = 1000;
    using Canvas::Canvas;

    void Round() {
        const owl::TPoint corners[] = {{0, 0}, {30, 0}, {0, 30}};
        const owl::TRegion empty;
        const owl::TRegion ellipse(area, owl::TRegion::Ellipse);
        const owl::TRegion triangle(corners, 3, ALTERNATE);
        const owl::TRegion copy(triangle);
        owl::TClientDC dc(*this);
        dc.SelectClipRgn(copy);
        dc.PaintRgn(ellipse);
        dc.InvertRgn(triangle);
        InvalidateRgn(ellipse);
        GetUpdateRgn(empty, false);
    }
};

struct Metafiles : Canvas {
    static constexpr const char* name = "metafiles";
    static constexpr int rounds = 1000;
    using Canvas::Canvas;

    void Round() {
        const Tools tools;
        owl::TMetaFileDC thrown_away;
        DrawWithAll(thrown_away);
        owl::TMetaFileDC recording;
        recording.Rectangle(area);
        const owl::TMetaFilePict picture(recording.Close(), owl::AutoDelete);
        const owl::TMetaFilePict copy(picture);
        owl::TClientDC dc(*this);
        tools.SelectInto(dc);
        EXPECT_TRUE(copy.PlayOnto(dc, owl::TSize(40, 30)));
    }
};

struct OnClipboard : Canvas {
    static constexpr const char* name = "pictures_on_the_clipboard";
    static constexpr int rounds = 250;
    using Canvas::Canvas;

    void Round() {
        Put();
        // Other formats of the same picture are there once the clipboard was closed.
        owl::TClipboard clipboard(GetHandle());
        const owl::TDib dib(clipboard);
        const owl::TBitmap bitmap(clipboard);
        const owl::TMetaFilePict picture(clipboard);
        clipboard.EmptyClipboard();
    }

    void Put() const {
        owl::TMetaFileDC recording;
        recording.Rectangle(area);
        const owl::TMetaFilePict picture(recording.Close(), owl::AutoDelete);
        owl::TClipboard clipboard(GetHandle());
        clipboard.EmptyClipboard();
        owl::TDib(8, 8, 24).ToClipboard(clipboard);
        picture.ToClipboard(clipboard, MM_ANISOTROPIC, owl::TSize(100, 100));
    }
};

using Kinds = testing::Types<Painting, FailedPainting, Contexts, Pictures, Regions, Metafiles, OnClipboard>;

}  // namespace

namespace owl_test {

INSTANTIATE_TYPED_TEST_SUITE_P(Drawing, Leaks, Kinds, KindName);

}  // namespace owl_test
