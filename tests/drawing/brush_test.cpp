#include "lvx/drawing/brush.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>

#include "drawing/sheet.h"
#include "lvx/drawing/region.h"
#include "owl/brush.h"

using lvx_test::NoMoreObjects;
using lvx_test::OpenPort;
using lvx_test::rows;
using owl::TColor;

namespace {

HBRUSH handle(LVXBrush& brush) {
    return static_cast<owl::TBrush&>(brush);
}

LOGBRUSH description(const LVXBrush& brush) {
    LOGBRUSH description;
    EXPECT_TRUE(static_cast<owl::TBrush&>(brush).GetObject(description));
    return description;
}

void expect_brush(const LVXBrush& brush, FillPattern pattern, TColor foreground, TColor background) {
    EXPECT_EQ(pattern, brush.pattern());
    EXPECT_EQ(foreground, brush.foreground());
    EXPECT_EQ(background, brush.background());
}

/// The sheet filled by `open`'s brush, without a frame.
std::string filled(OpenPort& open) {
    LVXRectangle all(RectCorners, 0, 0, 1000, 1000);
    open.port.fillRegion(&all, false);
    return open.Picture();
}

}  // namespace

TEST(Brush, is_solid_black_on_white_at_first) {
    expect_brush(LVXBrush(), FillForeground, TColor::Black, TColor::White);
    expect_brush(LVXBrush(TColor::LtRed), FillForeground, TColor::LtRed, TColor::White);
    EXPECT_EQ(UINT{BS_SOLID}, description(LVXBrush()).lbStyle);
    EXPECT_EQ(TColor::LtRed, TColor(description(LVXBrush(TColor::LtRed)).lbColor));
}

TEST(Brush, of_a_solid_pattern_has_its_colour) {
    const struct {
        FillPattern pattern;
        TColor colour;
    } cases[] = {
        {FillBackground, TColor::LtGreen},  {FillForeground, TColor::LtRed},
        {FillDarkGrey, TColor(64, 64, 64)}, {FillLightGrey, TColor(192, 192, 192)},
        {FillGrey, TColor(128, 128, 128)},
    };
    for (const auto& [pattern, colour] : cases) {
        const LVXBrush brush(pattern, TColor::LtRed, TColor::LtGreen);
        EXPECT_EQ(UINT{BS_SOLID}, description(brush).lbStyle) << pattern;
        EXPECT_EQ(colour, TColor(description(brush).lbColor)) << pattern;
    }
}

TEST(Brush, of_a_hatched_pattern_has_its_lines_in_the_foreground_colour) {
    for (int hatch = 0; hatch <= 5; ++hatch) {
        const LVXBrush brush(FillPattern(5 + hatch), TColor::LtRed, TColor::LtGreen);
        EXPECT_EQ(UINT{BS_HATCHED}, description(brush).lbStyle);
        EXPECT_EQ(static_cast<ULONG_PTR>(hatch), description(brush).lbHatch);
        EXPECT_EQ(TColor::LtRed, TColor(description(brush).lbColor));
    }
}

TEST(Brush, of_an_unknown_pattern_becomes_solid) {
    for (const int number : {11, 12, 1000000, -1, -1000000}) {
        LVXBrush brush(FillPattern(number), TColor::LtRed, TColor::LtGreen);
        expect_brush(brush, FillForeground, TColor::LtRed, TColor::LtGreen);
        EXPECT_EQ(TColor::LtRed, TColor(description(brush).lbColor));
        brush.pattern(FillCross);
        brush.pattern(FillPattern(number));
        EXPECT_EQ(FillForeground, brush.pattern());
        EXPECT_EQ(UINT{BS_SOLID}, description(brush).lbStyle);
    }
}

TEST(Brush, setters_make_another_brush_of_the_system) {
    LVXBrush brush;
    HBRUSH before = handle(brush);
    brush.foreground(TColor::LtRed);
    EXPECT_NE(before, handle(brush));
    before = handle(brush);
    brush.background(TColor::LtBlue);
    EXPECT_NE(before, handle(brush));
    before = handle(brush);
    brush.pattern(FillGrey);
    EXPECT_NE(before, handle(brush));
    EXPECT_EQ(handle(brush), brush.getHndl());
    expect_brush(brush, FillGrey, TColor::LtRed, TColor::LtBlue);
}

TEST(Brush, set_to_what_it_is_makes_no_other_brush_of_the_system) {
    LVXBrush brush(FillCross, TColor::LtRed, TColor::LtBlue);
    const HBRUSH before = handle(brush);
    brush.foreground(TColor::LtRed);
    brush.background(TColor::LtBlue);
    brush.pattern(FillCross);
    const LVXBrush& same = brush;
    brush = same;
    EXPECT_EQ(before, handle(brush));
    EXPECT_TRUE(brush.make());
    EXPECT_NE(before, handle(brush));
}

TEST(Brush, fills_solid_patterns_in_their_colours) {
    OpenPort open;
    LVXBrush brush(FillBackground, TColor::LtRed, TColor::LtGreen);
    open.port.useBrush(&brush);
    EXPECT_EQ(rows(8, "GGGGGGGG"), filled(open));
    brush.pattern(FillForeground);
    EXPECT_EQ(rows(8, "RRRRRRRR"), filled(open));
    const struct {
        FillPattern pattern;
        int level;
    } greys[] = {{FillDarkGrey, 64}, {FillLightGrey, 192}, {FillGrey, 128}};
    for (const auto& [pattern, level] : greys) {
        brush.pattern(pattern);
        filled(open);
        for (int i = 0; i < 64; ++i) {
            EXPECT_EQ(RGB(level, level, level), open.sheet.surface.At(i % 8, i / 8)) << pattern;
        }
    }
}

// The system's hatches repeat every eight pixels. Which of the eight rows or columns has the line is its own
// choice; that the lines run straight on is not.
TEST(Brush, fills_hatched_patterns_with_straight_lines) {
    constexpr int size = 32;
    OpenPort open(size, size);
    LVXBrush brush;
    open.port.useBrush(&brush);
    const auto is_line = [&open](int x, int y) { return open.sheet.surface.At(x, y) == TColor::LtRed; };
    const struct {
        FillPattern pattern;
        int lines;
        std::function<bool(int, int)> neighbour;
    } cases[] = {
        {FillHorizontal, 8, [&](int x, int y) { return is_line(x + 1, y); }},
        {FillVertical, 8, [&](int x, int y) { return is_line(x, y + 1); }},
        {FillForwardDiagonal, 8, [&](int x, int y) { return is_line(x + 1, y + 1); }},
        {FillBackwardDiagonal, 8, [&](int x, int y) { return is_line(x - 1, y + 1); }},
    };
    for (const auto& [pattern, lines, neighbour] : cases) {
        brush = LVXBrush(pattern, TColor::LtRed, TColor::LtGreen);
        open.port.enableBkColour(true);
        const std::string picture = filled(open);
        EXPECT_EQ(size * size / 8, std::count(picture.begin(), picture.end(), 'R')) << picture;
        EXPECT_EQ(size * size * 7 / 8, std::count(picture.begin(), picture.end(), 'G')) << picture;
        for (int y = 0; y < size - 1; ++y) {
            for (int x = 1; x < size - 1; ++x) {
                EXPECT_EQ(is_line(x, y), neighbour(x, y)) << picture;
            }
        }
    }
}

TEST(Brush, fills_crosses_with_the_lines_of_both_directions) {
    const auto picture = [](FillPattern pattern) {
        OpenPort open(16, 16);
        LVXBrush brush(pattern, TColor::LtRed, TColor::White);
        open.port.useBrush(&brush);
        return filled(open);
    };
    const struct {
        FillPattern cross, one, other;
    } cases[] = {{FillCross, FillHorizontal, FillVertical},
                 {FillDiagonalCross, FillForwardDiagonal, FillBackwardDiagonal}};
    for (const auto& [cross, one, other] : cases) {
        std::string both = picture(one);
        const std::string second = picture(other);
        for (std::size_t i = 0; i < both.size(); ++i) {
            both[i] = second[i] == 'R' ? 'R' : both[i];
        }
        EXPECT_EQ(both, picture(cross));
    }
}

TEST(Brush, leaves_what_is_there_between_its_lines_unless_the_background_is_enabled) {
    OpenPort open;
    LVXBrush brush(FillHorizontal, TColor::LtRed, TColor::LtGreen);
    open.port.useBrush(&brush);
    std::string picture = filled(open);
    EXPECT_EQ(8, std::count(picture.begin(), picture.end(), 'R')) << picture;
    EXPECT_EQ(56, std::count(picture.begin(), picture.end(), '.')) << picture;
    open.port.enableBkColor(true);
    picture = filled(open);
    EXPECT_EQ(56, std::count(picture.begin(), picture.end(), 'G')) << picture;
    brush.background(TColor::LtBlue);
    picture = filled(open);
    EXPECT_EQ(56, std::count(picture.begin(), picture.end(), 'B')) << picture;
}

TEST(Brush, changed_while_two_ports_use_it_changes_in_both) {
    OpenPort first;
    OpenPort second;
    LVXBrush brush;
    first.port.useBrush(&brush);
    second.port.useBrush(&brush);
    brush.foreground(TColor::LtRed);
    brush.background(TColor::LtBlue);
    for (OpenPort* open : {&first, &second}) {
        EXPECT_EQ(handle(brush), open->sheet.Selected(OBJ_BRUSH));
        EXPECT_EQ(TColor::LtBlue, open->sheet.surface.dc.GetBkColor());
        EXPECT_EQ(rows(8, "RRRRRRRR"), filled(*open));
        open->port.useBrush(nullptr);
    }
}

TEST(Brush, copied_has_a_brush_of_its_own_and_no_ports) {
    OpenPort open;
    LVXBrush brush(FillGrey, TColor::LtRed, TColor::LtGreen);
    open.port.useBrush(&brush);
    LVXBrush copy(brush);
    expect_brush(copy, FillGrey, TColor::LtRed, TColor::LtGreen);
    EXPECT_NE(handle(brush), handle(copy));
    copy.background(TColor::LtBlue);
    EXPECT_EQ(TColor::LtGreen, open.sheet.surface.dc.GetBkColor());
    open.port.useBrush(nullptr);
}

TEST(Brush, assigned_keeps_its_ports_and_takes_the_values) {
    OpenPort open;
    LVXBrush brush;
    const LVXBrush source(FillBackground, TColor::LtRed, TColor::LtGreen);
    open.port.useBrush(&brush);
    brush = source;
    expect_brush(brush, FillBackground, TColor::LtRed, TColor::LtGreen);
    EXPECT_EQ(rows(8, "GGGGGGGG"), filled(open));
    EXPECT_EQ(TColor::LtGreen, open.sheet.surface.dc.GetBkColor());
    open.port.useBrush(nullptr);
}

TEST(Brush, that_goes_leaves_its_ports_with_their_own) {
    OpenPort open;
    const LVXBrush* const own = open.port.currentBrush();
    {
        LVXBrush brush(FillForeground, TColor::LtRed, TColor::LtGreen);
        open.port.useBrush(&brush);
        EXPECT_EQ(rows(8, "RRRRRRRR"), filled(open));
    }
    EXPECT_EQ(own, open.port.currentBrush());
    EXPECT_EQ(TColor::White, open.sheet.surface.dc.GetBkColor());
    EXPECT_EQ(rows(8, "########"), filled(open));
}

TEST(Brush, bound_twice_is_bound_once) {
    OpenPort open;
    LVXBrush brush;
    const LVXBrush* const own = open.port.currentBrush();
    brush.bind(&open.port, true);
    brush.bind(&open.port, true);
    brush.bind(&open.port, false);
    brush.bind(nullptr, true);
    brush.foreground(TColor::LtRed);
    EXPECT_EQ(own, open.port.currentBrush());
}

TEST(Brush, is_freed_also_when_it_is_null) {
    OpenPort open;
    auto* brush = new LVXBrush(TColor::LtRed);
    open.port.useBrush(brush);
    brush->free();
    EXPECT_EQ(rows(8, "########"), filled(open));
    LVXBrush* const volatile none = nullptr;
    brush = none;
    brush->free();
}

TEST(Brush, that_the_system_refuses_leaves_all_as_it_was) {
    OpenPort open;
    LVXBrush brush(FillCross, TColor::LtRed, TColor::LtGreen);
    open.port.useBrush(&brush);
    const HBRUSH before = handle(brush);
    {
        const NoMoreObjects none;
        EXPECT_THROW(brush.foreground(TColor::LtBlue), owl::TXGdi);
        EXPECT_THROW(brush.background(TColor::LtBlue), owl::TXGdi);
        EXPECT_THROW(brush.pattern(FillPattern(11)), owl::TXGdi);
        EXPECT_THROW(brush.make(), owl::TXGdi);
        EXPECT_THROW(LVXBrush{}, owl::TXGdi);
    }
    expect_brush(brush, FillCross, TColor::LtRed, TColor::LtGreen);
    EXPECT_EQ(before, handle(brush));
    EXPECT_EQ(before, open.sheet.Selected(OBJ_BRUSH));
    EXPECT_EQ(TColor::LtGreen, open.sheet.surface.dc.GetBkColor());
    open.port.useBrush(nullptr);
}
