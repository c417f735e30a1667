#include <gtest/gtest.h>

#include <cstdint>
#include <stdexcept>
#include <string>

#include "drawing/sheet.h"
#include "lvx/drawing/region.h"
#include "owl/bitmap.h"
#include "owl/brush.h"
#include "owl/memory_dc.h"
#include "owl/metafile_dc.h"
#include "owl/pen.h"
#include "owl/region.h"

using lvx_test::NoMoreObjects;
using lvx_test::OpenPort;
using lvx_test::rows;
using owl::TColor;

namespace {

/// Colours of which every pair has all four combinations of bits in each byte.
constexpr COLORREF colours[] = {0x000000, 0xFFFFFF, 0x0F3355, 0xAA0FCC, 0x123456};

/// By the definition of the R2_ values: less one they are a table of the results for pen and screen.
COLORREF mixed(int rule, COLORREF pen, COLORREF screen) {
    COLORREF result = 0;
    for (int bit = 0; bit < 24; ++bit) {
        const unsigned int row = (pen >> bit & 1u) << 1 | (screen >> bit & 1u);
        result |= (static_cast<unsigned int>(rule - 1) >> row & 1u) << bit;
    }
    return result;
}

/// What the system's definition makes of a bitmap over a screen: the byte above the low 16 bits of a raster
/// operation is a table of the results for pattern, bitmap and screen.
COLORREF mixed_by_operation(std::uint32_t operation, COLORREF bitmap, COLORREF screen) {
    COLORREF result = 0;
    for (int bit = 0; bit < 24; ++bit) {
        const unsigned int row = (bitmap >> bit & 1u) << 1 | (screen >> bit & 1u);
        result |= (operation >> 16 >> row & 1u) << bit;
    }
    return result;
}

std::uint32_t bitmap_operation(int rule) {
    switch (rule) {
        case R2_MASKNOTPEN:
            return 0x7700E6;
        case R2_NOTCOPYPEN:
            return NOTSRCCOPY;
        case R2_XORPEN:
            return SRCINVERT;
        case R2_MASKPEN:
            return SRCAND;
        case R2_NOTXORPEN:
            return 0x990066;
        case R2_MERGENOTPEN:
            return MERGEPAINT;
        case R2_MERGEPEN:
            return SRCPAINT;
        default:
            return SRCCOPY;
    }
}

void paint(owl::TDC& dc, COLORREF colour) {
    const owl::TBrush brush{TColor(colour)};
    dc.FillRect(owl::TRect(0, 0, 1000, 1000), brush);
}

/// A bitmap of the given letters, which no context has.
class LetterBitmap {
public:
    explicit LetterBitmap(const std::vector<std::string>& letters)
        : m_surface(static_cast<int>(letters[0].size()), static_cast<int>(letters.size())) {
        for (int y = 0; y < static_cast<int>(letters.size()); ++y) {
            for (int x = 0; x < static_cast<int>(letters[0].size()); ++x) {
                m_surface.dc.SetPixel(
                    x, y, Colour(letters[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)]));
            }
        }
        m_surface.dc.RestoreBitmap();
    }

    owl::TBitmap& Get() { return m_surface.bitmap; }

private:
    static TColor Colour(char letter) {
        return letter == 'R' ? TColor::LtRed : letter == 'G' ? TColor::LtGreen : TColor::LtBlue;
    }

    owl_test::Surface m_surface;
};

/// A shape that leaves other tools selected and can fail.
class RudeShape : public LVXRegion {
public:
    void MakeRegion() override {}
    void Fill(owl::TDC& dc, const LVXPen&, const LVXBrush&, bool) override { Frame(dc, LVXPen()); }
    void Frame(owl::TDC& dc, const LVXPen&) override {
        dc.SelectStockObject(WHITE_PEN);
        Invert(dc);
    }
    void Invert(owl::TDC& dc) override {
        dc.SelectStockObject(GRAY_BRUSH);
        ++calls;
        if (failing == 1) {
            throw owl::TXGdi("refused", 1);
        }
        if (failing == 2) {
            throw std::runtime_error("the host's own");
        }
    }

    int calls = 0;
    int failing = 0;
};

void expect_tools_selected(const OpenPort& open) {
    EXPECT_EQ(static_cast<owl::TPen&>(*open.port.currentPen()).GetHandle(), open.sheet.Selected(OBJ_PEN));
    EXPECT_EQ(static_cast<owl::TBrush&>(*open.port.currentBrush()).GetHandle(),
              open.sheet.Selected(OBJ_BRUSH));
}

}  // namespace

TEST(PortDrawing, draws_lines_from_where_the_last_one_ended) {
    OpenPort open(5, 4);
    LVXPen pen(TColor::LtRed);
    open.port.usePen(&pen);
    open.port.moveTo(1, 1);
    open.port.lineTo(4, 1);
    open.port.lineTo(4, 3);
    EXPECT_EQ(".....\n.RRRR\n....R\n.....\n", open.Picture());
    open.port.usePen(nullptr);
}

TEST(PortDrawing, mixes_lines_and_surfaces_by_each_rule) {
    OpenPort open(2, 2);
    LVXPen pen;
    LVXBrush brush;
    open.port.usePen(&pen);
    open.port.useBrush(&brush);
    LVXRectangle rectangle(RectCorners, 0, 0, 2, 2);
    for (int rule = R2_BLACK; rule <= R2_WHITE; ++rule) {
        open.port.rule(RasterRule(rule));
        for (const COLORREF drawn : colours) {
            pen.colour(drawn);
            brush.foreground(drawn);
            for (const COLORREF screen : colours) {
                paint(open.sheet.surface.dc, screen);
                open.port.moveTo(0, 0);
                open.port.lineTo(1, 0);
                EXPECT_EQ(mixed(rule, drawn, screen), open.sheet.surface.At(0, 0)) << rule;
                EXPECT_EQ(screen, open.sheet.surface.At(1, 1));
                paint(open.sheet.surface.dc, screen);
                open.port.fillRegion(&rectangle, true);
                EXPECT_EQ(mixed(rule, drawn, screen), open.sheet.surface.At(1, 1)) << rule;
            }
        }
    }
    open.port.usePen(nullptr);
    open.port.useBrush(nullptr);
}

TEST(PortDrawing, mixes_bitmaps_by_each_rule) {
    OpenPort open(2, 1);
    owl_test::Surface picture(1, 1);
    LVXRectangle all(RectCorners, 0, 0, 2, 1);
    LVXRectangle pixel(RectCorners, 0, 0, 1, 1);
    for (const int rule : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 0, -1, 17, 99}) {
        open.port.rule(RasterRule(rule));
        for (const COLORREF drawn : colours) {
            picture.dc.SelectObject(picture.bitmap);
            paint(picture.dc, drawn);
            picture.dc.RestoreBitmap();
            for (const COLORREF screen : colours) {
                const COLORREF expected = mixed_by_operation(bitmap_operation(rule), drawn, screen);
                paint(open.sheet.surface.dc, screen);
                open.port.drawBitMap(&picture.bitmap, 0, 0);
                EXPECT_EQ(expected, open.sheet.surface.At(0, 0)) << rule;
                EXPECT_EQ(screen, open.sheet.surface.At(1, 0)) << rule;
                paint(open.sheet.surface.dc, screen);
                open.port.drawBitMap(picture.bitmap, all, pixel);
                EXPECT_EQ(expected, open.sheet.surface.At(0, 0)) << rule;
                EXPECT_EQ(expected, open.sheet.surface.At(1, 0)) << rule;
            }
        }
    }
}

TEST(PortDrawing, draws_a_bitmap_at_its_place) {
    OpenPort open(5, 4);
    LetterBitmap bitmap({"RG", "BB"});
    open.port.drawBitMap(&bitmap.Get(), 2, 1);
    EXPECT_EQ(".....\n..RG.\n..BB.\n.....\n", open.Picture());
    open.port.drawBitMap(&bitmap.Get(), 4, 3);
    open.port.drawBitMap(&bitmap.Get(), -1, -1);
    EXPECT_EQ("B....\n..RG.\n..BB.\n....R\n", open.Picture());
}

TEST(PortDrawing, draws_as_much_of_a_bitmap_as_is_noted_with_it) {
    OpenPort open(4, 3);
    LetterBitmap bitmap({"RGB", "BRG"});
    bitmap.Get().SetBitmapDimension(owl::TSize(2, 1));
    open.port.drawBitMap(&bitmap.Get(), 1, 1);
    EXPECT_EQ("....\n.RG.\n....\n", open.Picture());
}

TEST(PortDrawing, leaves_a_bitmap_to_be_selected_elsewhere) {
    OpenPort open(4, 3);
    LetterBitmap bitmap({"RG", "BB"});
    open.port.drawBitMap(&bitmap.Get(), 0, 0);
    owl::TMemoryDC dc;
    EXPECT_NO_THROW(dc.SelectObject(bitmap.Get()));
}

TEST(PortDrawing, stretches_a_part_of_a_bitmap) {
    OpenPort open(6, 4);
    LetterBitmap bitmap({"RRRR", "RGBR", "RBGR"});
    open.port.drawBitMap(bitmap.Get(), LVXRectangle(RectSize, 1, 0, 4, 4),
                         LVXRectangle(RectSize, 1, 1, 2, 2));
    EXPECT_EQ(".GGBB.\n.GGBB.\n.BBGG.\n.BBGG.\n", open.Picture());
    EXPECT_EQ(COLORONCOLOR, open.sheet.surface.dc.GetStretchBltMode());
}

TEST(PortDrawing, shrinks_a_bitmap_by_leaving_out_rows_and_columns) {
    OpenPort open(2, 2);
    LetterBitmap bitmap({"RRGG", "RRGG", "BBRR", "BBRR"});
    open.port.drawBitMap(bitmap.Get(), LVXRectangle(RectSize, 0, 0, 2, 2),
                         LVXRectangle(RectSize, 0, 0, 4, 4));
    EXPECT_EQ("RG\nBR\n", open.Picture());
}

TEST(PortDrawing, draws_no_bitmap_that_is_null_or_selected_elsewhere) {
    OpenPort open(2, 2);
    owl_test::Surface busy(2, 2);
    busy.dc.PatBlt(0, 0, 2, 2, BLACKNESS);
    const LVXRectangle all(RectCorners, 0, 0, 2, 2);
    open.port.drawBitMap(nullptr, 0, 0);
    open.port.drawBitMap(&busy.bitmap, 0, 0);
    open.port.drawBitMap(busy.bitmap, all, all);
    owl::TBitmap none(HBITMAP(nullptr));
    open.port.drawBitMap(&none, 0, 0);
    open.port.drawBitMap(none, all, all);
    EXPECT_EQ("..\n..\n", open.Picture());
}

// A bitmap of one bit has no colours of its own.
TEST(PortDrawing, draws_a_monochrome_bitmap_in_the_colours_of_pen_and_brush) {
    OpenPort open(8, 1);
    LVXPen pen(TColor::LtRed);
    LVXBrush brush(FillForeground, TColor::LtGreen, TColor::LtBlue);
    open.port.usePen(&pen);
    open.port.useBrush(&brush);
    const WORD bits[] = {0x00F0};
    owl::TBitmap bitmap(8, 1, 1, 1, bits);
    open.port.drawBitMap(&bitmap, 0, 0);
    EXPECT_EQ("BBBBRRRR\n", open.Picture());
    open.port.usePen(nullptr);
    open.port.useBrush(nullptr);
}

TEST(PortDrawing, fills_erases_frames_and_inverts_a_shape) {
    OpenPort open(5, 4);
    LVXPen pen(TColor::LtRed);
    LVXBrush brush(FillForeground, TColor::LtGreen, TColor::LtYellow);
    open.port.usePen(&pen);
    open.port.useBrush(&brush);
    LVXRectangle rectangle(RectCorners, 0, 0, 4, 3);
    open.port.fillRegion(&rectangle, true);
    EXPECT_EQ("RRRR.\nRGGR.\nRRRR.\n.....\n", open.Picture());
    open.port.fillRegion(&rectangle, false);
    EXPECT_EQ("GGGG.\nGGGG.\nGGGG.\n.....\n", open.Picture());
    open.port.eraseRegion(&rectangle);
    EXPECT_EQ("YYYY.\nYYYY.\nYYYY.\n.....\n", open.Picture());
    open.port.frameRegion(&rectangle);
    EXPECT_EQ("RRRR.\nRYYR.\nRRRR.\n.....\n", open.Picture());
    open.port.invertRegion(&rectangle);
    EXPECT_EQ("CCCC.\nCBBC.\nCCCC.\n.....\n", open.Picture());
    open.port.usePen(nullptr);
    open.port.useBrush(nullptr);
}

TEST(PortDrawing, erases_with_the_background_whatever_the_pattern) {
    LVXEllipse dot(RectCorners, -5, -5, 10, 10);
    LVXRectangle all(RectCorners, 0, 0, 4, 4);
    for (int pattern = FillBackground; pattern <= FillDiagonalCross; ++pattern) {
        for (LVXRegion* shape : {static_cast<LVXRegion*>(&dot), static_cast<LVXRegion*>(&all)}) {
            OpenPort open(4, 4);
            LVXBrush brush(FillPattern(pattern), TColor::LtRed, TColor::LtBlue);
            open.port.useBrush(&brush);
            open.port.eraseRegion(shape);
            EXPECT_EQ(rows(4, "BBBB"), open.Picture()) << pattern;
            expect_tools_selected(open);
        }
    }
}

TEST(PortDrawing, selects_its_tools_again_behind_each_shape) {
    OpenPort open;
    LVXRectangle rectangle(RectCorners, 0, 0, 4, 3);
    RudeShape rude;
    for (LVXRegion* shape : {static_cast<LVXRegion*>(&rectangle), static_cast<LVXRegion*>(&rude)}) {
        open.port.frameRegion(shape);
        expect_tools_selected(open);
        open.port.fillRegion(shape, true);
        expect_tools_selected(open);
        open.port.eraseRegion(shape);
        expect_tools_selected(open);
        open.port.invertRegion(shape);
        expect_tools_selected(open);
    }
    EXPECT_EQ(4, rude.calls);
}

TEST(PortDrawing, says_nothing_of_what_the_system_refuses) {
    OpenPort open;
    RudeShape rude;
    rude.failing = 1;
    EXPECT_NO_THROW(open.port.frameRegion(&rude));
    EXPECT_NO_THROW(open.port.fillRegion(&rude, true));
    EXPECT_NO_THROW(open.port.eraseRegion(&rude));
    EXPECT_NO_THROW(open.port.invertRegion(&rude));
    EXPECT_EQ(4, rude.calls);
    expect_tools_selected(open);
}

TEST(PortDrawing, lets_the_hosts_own_exceptions_pass_and_has_its_tools_again) {
    OpenPort open;
    RudeShape rude;
    rude.failing = 2;
    EXPECT_THROW(open.port.frameRegion(&rude), std::runtime_error);
    expect_tools_selected(open);
    EXPECT_THROW(open.port.fillRegion(&rude, true), std::runtime_error);
    expect_tools_selected(open);
    EXPECT_THROW(open.port.eraseRegion(&rude), std::runtime_error);
    expect_tools_selected(open);
    EXPECT_THROW(open.port.invertRegion(&rude), std::runtime_error);
    expect_tools_selected(open);
}

TEST(PortDrawing, draws_nothing_that_needs_objects_when_there_are_none) {
    OpenPort open(4, 3);
    LetterBitmap bitmap({"RG", "BB"});
    LVXEllipse ellipse(RectCorners, 0, 0, 4, 3);
    const LVXRectangle all(RectCorners, 0, 0, 2, 2);
    {
        const NoMoreObjects none;
        open.port.drawBitMap(&bitmap.Get(), 0, 0);
        open.port.drawBitMap(bitmap.Get(), all, all);
        open.port.fillRegion(&ellipse, false);
        open.port.eraseRegion(&ellipse);
        open.port.invertRegion(&ellipse);
    }
    EXPECT_EQ(rows(3, "...."), open.Picture());
    expect_tools_selected(open);
    EXPECT_EQ(nullptr, static_cast<HRGN>(ellipse));
}

TEST(PortDrawing, ignores_null_shapes) {
    OpenPort open(2, 1);
    open.port.fillRegion(nullptr, true);
    open.port.frameRegion(nullptr);
    open.port.eraseRegion(nullptr);
    open.port.invertRegion(nullptr);
    EXPECT_EQ("..\n", open.Picture());
}

TEST(PortDrawing, draws_nothing_when_closed) {
    OpenPort open(4, 3);
    LetterBitmap bitmap({"RG", "BB"});
    LVXRectangle rectangle(RectCorners, 0, 0, 4, 3);
    RudeShape rude;
    open.port.Close();
    open.port.moveTo(0, 0);
    open.port.lineTo(4, 0);
    open.port.drawBitMap(&bitmap.Get(), 0, 0);
    open.port.drawBitMap(bitmap.Get(), rectangle, rectangle);
    for (LVXRegion* shape : {static_cast<LVXRegion*>(&rectangle), static_cast<LVXRegion*>(&rude)}) {
        open.port.fillRegion(shape, true);
        open.port.frameRegion(shape);
        open.port.eraseRegion(shape);
        open.port.invertRegion(shape);
    }
    EXPECT_EQ(rows(3, "...."), open.Picture());
    EXPECT_EQ(0, rude.calls);
}

TEST(PortDrawing, records_bitmaps_in_a_metafile) {
    class Recording : public LVX::Device {
    public:
        owl::TDC* AcquireDC() override { return &dc; }
        void ReleaseDC() override {}
        owl::TMetaFileDC dc;
    };
    Recording recording;
    LetterBitmap bitmap({"RG", "BB"});
    {
        LVX::Port port(recording);
        port.Open();
        port.drawBitMap(&bitmap.Get(), 2, 1);
        port.drawBitMap(bitmap.Get(), LVXRectangle(RectSize, 0, 3, 4, 2), LVXRectangle(RectSize, 0, 0, 2, 2));
    }
    const HMETAFILE metafile = recording.dc.Close();
    const owl_test::Surface surface(5, 5);
    ::PlayMetaFile(surface.dc, metafile);
    ::DeleteMetaFile(metafile);
    EXPECT_EQ(".....\n..RG.\n..BB.\nRRGG.\nBBBB.\n", surface.Picture());
}
