#include "lvx/drawing/pen.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "drawing/sheet.h"
#include "owl/pen.h"

using lvx_test::NoMoreObjects;
using lvx_test::OpenPort;
using lvx_test::rows;
using lvx_test::Sheet;
using owl::TColor;

namespace {

HPEN handle(LVXPen& pen) {
    return static_cast<owl::TPen&>(pen);
}

LOGPEN description(const LVXPen& pen) {
    LOGPEN description;
    EXPECT_TRUE(static_cast<owl::TPen&>(pen).GetObject(description));
    return description;
}

void expect_pen(const LVXPen& pen, int width, LineType pattern, TColor colour) {
    EXPECT_EQ(width, pen.width());
    EXPECT_EQ(pattern, pen.pattern());
    EXPECT_EQ(colour, pen.colour());
    EXPECT_EQ(static_cast<UINT>(pattern), description(pen).lopnStyle);
    // One that draws nothing has no more to tell.
    if (pattern != LineNull) {
        EXPECT_EQ(width, description(pen).lopnWidth.x);
        EXPECT_EQ(colour, TColor(description(pen).lopnColor));
    }
}

/// A row of eight pixels as `port` draws it.
std::string line(OpenPort& open) {
    open.port.moveTo(0, 0);
    open.port.lineTo(8, 0);
    return open.Picture().substr(0, 8);
}

}  // namespace

TEST(Pen, is_black_and_solid_and_one_wide_at_first) {
    expect_pen(LVXPen(), 1, LineSolid, TColor::Black);
    expect_pen(LVXPen(TColor::LtRed), 1, LineSolid, TColor::LtRed);
}

TEST(Pen, hands_its_values_to_the_systems_pen) {
    expect_pen(LVXPen(3, LineInsideFrame, TColor(1, 2, 3)), 3, LineInsideFrame, TColor(1, 2, 3));
    for (int style = LineSolid; style <= LineInsideFrame; ++style) {
        expect_pen(LVXPen(1, LineType(style), TColor::LtBlue), 1, LineType(style), TColor::LtBlue);
    }
}

TEST(Pen, has_the_styles_of_the_system) {
    EXPECT_EQ(PS_SOLID, int{LineSolid});
    EXPECT_EQ(PS_DASH, int{LineDash});
    EXPECT_EQ(PS_DOT, int{LineDot});
    EXPECT_EQ(PS_DASHDOT, int{LineDashDot});
    EXPECT_EQ(PS_DASHDOTDOT, int{LineDashDotDot});
    EXPECT_EQ(PS_NULL, int{LineNull});
    EXPECT_EQ(PS_INSIDEFRAME, int{LineInsideFrame});
}

TEST(Pen, keeps_a_style_that_it_does_not_know) {
    EXPECT_EQ(99, int{LVXPen(1, LineType(99), TColor::Black).pattern()});
}

TEST(Pen, setters_make_another_pen_of_the_system) {
    LVXPen pen;
    HPEN before = handle(pen);
    pen.width(4);
    EXPECT_NE(before, handle(pen));
    before = handle(pen);
    pen.colour(TColor::LtGreen);
    EXPECT_NE(before, handle(pen));
    before = handle(pen);
    pen.pattern(LineNull);
    EXPECT_NE(before, handle(pen));
    expect_pen(pen, 4, LineNull, TColor::LtGreen);
}

TEST(Pen, set_to_what_it_is_makes_no_other_pen_of_the_system) {
    LVXPen pen(2, LineDash, TColor::LtRed);
    const HPEN before = handle(pen);
    pen.width(2);
    pen.colour(TColor::LtRed);
    pen.color(TColor::LtRed);
    pen.pattern(LineDash);
    EXPECT_EQ(before, handle(pen));
}

TEST(Pen, made_by_hand_is_another_pen_of_the_system) {
    LVXPen pen;
    const HPEN before = handle(pen);
    EXPECT_TRUE(pen.make());
    EXPECT_NE(before, handle(pen));
    expect_pen(pen, 1, LineSolid, TColor::Black);
}

TEST(Pen, knows_its_colour_in_both_spellings) {
    LVXPen pen;
    pen.color(TColor::LtCyan);
    EXPECT_EQ(TColor::LtCyan, pen.colour());
    pen.colour(TColor::LtMagenta);
    EXPECT_EQ(TColor::LtMagenta, pen.color());
}

TEST(Pen, copied_has_a_pen_of_its_own_and_no_ports) {
    OpenPort open;
    auto pen = std::make_unique<LVXPen>(3, LineSolid, TColor::LtRed);
    open.port.usePen(pen.get());
    LVXPen copy(*pen);
    EXPECT_NE(handle(*pen), handle(copy));
    copy.colour(TColor::LtBlue);
    EXPECT_EQ(pen.get(), open.port.currentPen());
    EXPECT_EQ(TColor::LtRed, open.sheet.surface.dc.GetTextColor());
    pen.reset();
    expect_pen(copy, 3, LineSolid, TColor::LtBlue);
}

TEST(Pen, assigned_keeps_its_ports_and_takes_the_values) {
    OpenPort open;
    OpenPort other;
    LVXPen pen;
    LVXPen source(1, LineSolid, TColor::LtRed);
    open.port.usePen(&pen);
    other.port.usePen(&source);
    pen = source;
    expect_pen(pen, 1, LineSolid, TColor::LtRed);
    EXPECT_EQ("RRRRRRRR", line(open));
    EXPECT_EQ(&source, other.port.currentPen());
    pen.colour(TColor::LtGreen);
    EXPECT_EQ("GGGGGGGG", line(open));
    EXPECT_EQ("RRRRRRRR", line(other));
    open.port.usePen(nullptr);
    other.port.usePen(nullptr);
}

TEST(Pen, assigned_to_itself_stays_what_it_is) {
    OpenPort open;
    LVXPen pen(TColor::LtRed);
    open.port.usePen(&pen);
    const LVXPen& same = pen;
    pen = same;
    expect_pen(pen, 1, LineSolid, TColor::LtRed);
    EXPECT_EQ("RRRRRRRR", line(open));
    open.port.usePen(nullptr);
}

TEST(Pen, changed_while_two_ports_use_it_changes_in_both) {
    OpenPort first;
    OpenPort second;
    LVXPen pen;
    first.port.usePen(&pen);
    second.port.usePen(&pen);
    pen.colour(TColor::LtRed);
    for (OpenPort* open : {&first, &second}) {
        EXPECT_EQ(handle(pen), open->sheet.Selected(OBJ_PEN));
        EXPECT_EQ(TColor::LtRed, open->sheet.surface.dc.GetTextColor());
        EXPECT_EQ("RRRRRRRR", line(*open));
    }
    pen.pattern(LineNull);
    for (OpenPort* open : {&first, &second}) {
        EXPECT_EQ("RRRRRRRR", line(*open));
        open->sheet.surface.dc.PatBlt(0, 0, 8, 8, WHITENESS);
        EXPECT_EQ("........", line(*open));
        open->port.usePen(nullptr);
    }
}

TEST(Pen, changed_while_a_port_is_closed_is_drawn_with_when_that_opens) {
    OpenPort open;
    LVXPen pen;
    open.port.usePen(&pen);
    open.port.Close();
    pen.colour(TColor::LtRed);
    open.port.Open();
    EXPECT_EQ("RRRRRRRR", line(open));
    open.port.usePen(nullptr);
}

TEST(Pen, that_no_port_uses_any_more_changes_in_none) {
    OpenPort open;
    LVXPen pen(TColor::LtRed);
    open.port.usePen(&pen);
    open.port.usePen(nullptr);
    pen.colour(TColor::LtBlue);
    EXPECT_EQ("########", line(open));
    EXPECT_NE(&pen, open.port.currentPen());
}

TEST(Pen, that_goes_leaves_its_ports_with_their_own) {
    OpenPort first;
    OpenPort second;
    second.port.Close();
    const LVXPen* const own[] = {first.port.currentPen(), second.port.currentPen()};
    {
        LVXPen pen(TColor::LtRed);
        first.port.usePen(&pen);
        second.port.usePen(&pen);
        EXPECT_EQ("RRRRRRRR", line(first));
    }
    EXPECT_EQ(own[0], first.port.currentPen());
    EXPECT_EQ(own[1], second.port.currentPen());
    EXPECT_EQ("########", line(first));
    second.port.Open();
    EXPECT_EQ("########", line(second));
}

TEST(Pen, bound_twice_is_bound_once) {
    OpenPort open;
    LVXPen pen;
    const LVXPen* const own = open.port.currentPen();
    pen.bind(&open.port, true);
    pen.bind(&open.port, true);
    pen.bind(&open.port, false);
    pen.colour(TColor::LtRed);
    EXPECT_EQ(own, open.port.currentPen());
}

TEST(Pen, bound_by_hand_reaches_the_port_at_its_next_change) {
    OpenPort open;
    LVXPen pen;
    pen.bind(&open.port, true);
    pen.colour(TColor::LtRed);
    EXPECT_EQ(&pen, open.port.currentPen());
    EXPECT_EQ("RRRRRRRR", line(open));
}

TEST(Pen, unbound_without_being_bound_stays_as_it_is) {
    OpenPort open;
    OpenPort other;
    LVXPen pen;
    open.port.usePen(&pen);
    pen.bind(&other.port, false);
    pen.bind(nullptr, false);
    pen.bind(nullptr, true);
    pen.colour(TColor::LtRed);
    EXPECT_EQ("RRRRRRRR", line(open));
    EXPECT_EQ("########", line(other));
}

TEST(Pen, draws_each_style_of_line) {
    const int width = 200;
    for (int style = LineSolid; style <= LineInsideFrame; ++style) {
        OpenPort open(width, 1);
        LVXPen pen(1, LineType(style), TColor::LtRed);
        open.port.usePen(&pen);
        open.port.moveTo(0, 0);
        open.port.lineTo(width, 0);
        const std::string picture = open.Picture();
        const auto red = std::count(picture.begin(), picture.end(), 'R');
        const auto white = std::count(picture.begin(), picture.end(), '.');
        EXPECT_EQ(width, red + white) << picture;
        const bool has_gaps = style >= LineDash && style <= LineNull;
        EXPECT_EQ(has_gaps, white > 0) << style;
        EXPECT_EQ(style != LineNull, red > 0) << style;
    }
}

TEST(Pen, fills_the_gaps_of_its_lines_with_the_background_of_the_brush) {
    OpenPort open(200, 1);
    LVXPen pen(1, LineDash, TColor::LtRed);
    LVXBrush brush(FillForeground, TColor::Black, TColor::LtGreen);
    open.port.usePen(&pen);
    open.port.useBrush(&brush);
    open.port.enableBkColour(true);
    open.port.moveTo(0, 0);
    open.port.lineTo(200, 0);
    const std::string picture = open.Picture();
    const auto green = std::count(picture.begin(), picture.end(), 'G');
    EXPECT_GT(green, 0);
    EXPECT_EQ(200, green + std::count(picture.begin(), picture.end(), 'R'));
}

TEST(Pen, wider_than_a_pixel_draws_wider_lines) {
    OpenPort open(8, 7);
    LVXPen pen(3, LineSolid, TColor::LtRed);
    open.port.usePen(&pen);
    open.port.moveTo(-10, 3);
    open.port.lineTo(20, 3);
    EXPECT_EQ(rows(2, "........") + rows(3, "RRRRRRRR") + rows(2, "........"), open.Picture());
}

TEST(Pen, is_deleted_by_the_library_that_made_it) {
    OpenPort open;
    auto* pen = new LVXPen(TColor::LtRed);
    open.port.usePen(pen);
    pen->free();
    EXPECT_EQ("########", line(open));
}

TEST(Pen, that_is_null_is_freed_without_harm) {
    LVXPen* const volatile none = nullptr;
    LVXPen* const pen = none;
    pen->free();
}

TEST(Pen, that_the_system_refuses_leaves_all_as_it_was) {
    OpenPort open;
    LVXPen pen(2, LineSolid, TColor::LtRed);
    open.port.usePen(&pen);
    const HPEN before = handle(pen);
    {
        const NoMoreObjects none;
        EXPECT_THROW(pen.colour(TColor::LtBlue), owl::TXGdi);
        EXPECT_THROW(pen.width(7), owl::TXGdi);
        EXPECT_THROW(pen.pattern(LineDot), owl::TXGdi);
        EXPECT_THROW(pen.make(), owl::TXGdi);
        EXPECT_THROW(pen = *open.port.currentPen(), owl::TXGdi);
        EXPECT_THROW(LVXPen{}, owl::TXGdi);
        EXPECT_THROW(LVXPen{pen}, owl::TXGdi);
    }
    expect_pen(pen, 2, LineSolid, TColor::LtRed);
    EXPECT_EQ(before, handle(pen));
    EXPECT_EQ(before, open.sheet.Selected(OBJ_PEN));
    EXPECT_EQ(TColor::LtRed, open.sheet.surface.dc.GetTextColor());
    open.port.usePen(nullptr);
}
