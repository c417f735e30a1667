#include "lvx/drawing/stock_tools.h"

#include <gtest/gtest.h>

#include "drawing/sheet.h"
#include "owl/font.h"
#include "support/peer_process.h"

using lvx_test::OpenPort;
using owl::TColor;

namespace {

void expect_pen(const LVXPen& pen, TColor colour) {
    EXPECT_EQ(1, pen.width());
    EXPECT_EQ(LineSolid, pen.pattern());
    EXPECT_EQ(colour, pen.colour());
}

void expect_brush(const LVXBrush& brush, FillPattern pattern, TColor foreground, TColor background) {
    EXPECT_EQ(pattern, brush.pattern());
    EXPECT_EQ(foreground, brush.foreground());
    EXPECT_EQ(background, brush.background());
}

}  // namespace

// In front of the others: it is made here.
TEST(StockTools, that_the_system_refused_are_asked_for_again) {
    ASSERT_EQ(nullptr, brushes_etc::the_cyanpen);
    ASSERT_EQ(nullptr, brushes_etc::the_sysfont);
    {
        const lvx_test::NoMoreObjects none;
        EXPECT_THROW(brushes_etc::GetCyanPen(), owl::TXGdi);
        EXPECT_THROW(brushes_etc::GetSysFont(), owl::TXGdi);
    }
    EXPECT_EQ(nullptr, brushes_etc::the_cyanpen);
    EXPECT_EQ(nullptr, brushes_etc::the_sysfont);
    EXPECT_NE(nullptr, brushes_etc::GetCyanPen());
    EXPECT_NE(nullptr, brushes_etc::GetSysFont());
}

TEST(StockTools, are_made_once) {
    EXPECT_EQ(brushes_etc::GetSysFont(), brushes_etc::GetSysFont());
    EXPECT_EQ(brushes_etc::GetSysFixed(), brushes_etc::GetSysFixed());
    EXPECT_EQ(brushes_etc::GetLightGrayBrush(), brushes_etc::GetLightGrayBrush());
    EXPECT_EQ(brushes_etc::GetVeryLightBrush(), brushes_etc::GetVeryLightBrush());
    EXPECT_EQ(brushes_etc::GetAPen(), brushes_etc::GetAPen());
    EXPECT_EQ(brushes_etc::GetRedPen(), brushes_etc::GetRedPen());
    EXPECT_EQ(brushes_etc::GetCyanPen(), brushes_etc::GetCyanPen());
    EXPECT_EQ(brushes_etc::GetWhitePen(), brushes_etc::GetWhitePen());
}

TEST(StockTools, are_kept_where_they_are_looked_up) {
    EXPECT_EQ(brushes_etc::GetSysFont(), brushes_etc::the_sysfont);
    EXPECT_EQ(brushes_etc::GetSysFixed(), brushes_etc::the_sysfixed);
    EXPECT_EQ(brushes_etc::GetLightGrayBrush(), brushes_etc::the_light_gray_brush);
    EXPECT_EQ(brushes_etc::GetVeryLightBrush(), brushes_etc::the_very_light_brush);
    EXPECT_EQ(brushes_etc::GetAPen(), brushes_etc::the_pen);
    EXPECT_EQ(brushes_etc::GetRedPen(), brushes_etc::the_redpen);
    EXPECT_EQ(brushes_etc::GetCyanPen(), brushes_etc::the_cyanpen);
    EXPECT_EQ(brushes_etc::GetWhitePen(), brushes_etc::the_whitepen);
}

TEST(StockTools, have_four_pens) {
    expect_pen(*brushes_etc::GetAPen(), TColor(0, 0, 0));
    expect_pen(*brushes_etc::GetRedPen(), TColor(255, 0, 0));
    expect_pen(*brushes_etc::GetCyanPen(), TColor(0, 255, 255));
    expect_pen(*brushes_etc::GetWhitePen(), TColor(255, 255, 255));
}

TEST(StockTools, have_two_brushes) {
    expect_brush(*brushes_etc::GetLightGrayBrush(), FillLightGrey, TColor(192, 192, 192), TColor(0, 0, 0));
    expect_brush(*brushes_etc::GetVeryLightBrush(), FillForeground, TColor(208, 208, 208),
                 TColor(255, 255, 255));
}

// Controls are laid out for the font of changing widths.
TEST(StockTools, have_the_systems_font_twice_and_none_of_equal_widths) {
    const LVXFont plain;
    ASSERT_NE(plain.face(), LVXFont(true).face());
    EXPECT_NE(brushes_etc::GetSysFont(), brushes_etc::GetSysFixed());
    for (const LVXFont* const font : {brushes_etc::GetSysFont(), brushes_etc::GetSysFixed()}) {
        EXPECT_EQ(plain.face(), font->face());
        EXPECT_EQ(plain.pointSize(), font->pointSize());
        EXPECT_EQ(plain.height(), font->height());
        EXPECT_EQ(plain.width(), font->width());
        EXPECT_EQ(plain.bold(), font->bold());
    }
}

TEST(StockTools, are_shared_by_ports) {
    OpenPort first(4, 1);
    OpenPort second(4, 1);
    for (OpenPort* const open : {&first, &second}) {
        open->port.usePen(brushes_etc::GetRedPen());
        open->port.moveTo(0, 0);
        open->port.lineTo(3, 0);
        EXPECT_EQ("RRR.\n", open->Picture());
        open->port.usePen(nullptr);
    }
}

TEST(StockTools, go_with_the_library_but_for_the_coloured_pens) {
    lvx_test::PeerProcess peer("lvx_stock_tools_peer.exe", {});
    EXPECT_EQ(0, peer.Result());
}
