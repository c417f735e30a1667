#include "lvx/drawing/port.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>
#include <type_traits>

#include "drawing/sheet.h"
#include "owl/brush.h"
#include "owl/font.h"
#include "owl/metafile_dc.h"
#include "owl/pen.h"

using lvx_test::NoMoreObjects;
using lvx_test::OpenPort;
using lvx_test::Sheet;
using owl::TColor;

namespace {

HGDIOBJ handle(LVXPen* pen) {
    return static_cast<owl::TPen&>(*pen).GetHandle();
}

HGDIOBJ handle(LVXBrush* brush) {
    return static_cast<owl::TBrush&>(*brush).GetHandle();
}

HGDIOBJ handle(LVXFont* font) {
    return static_cast<owl::TFont&>(*font).GetHandle();
}

void expect_tools_selected(const LVX::Port& port, const Sheet& sheet) {
    EXPECT_EQ(handle(port.currentPen()), sheet.Selected(OBJ_PEN));
    EXPECT_EQ(handle(port.currentBrush()), sheet.Selected(OBJ_BRUSH));
    EXPECT_EQ(handle(port.currentFont()), sheet.Selected(OBJ_FONT));
    EXPECT_EQ(port.currentPen()->colour(), sheet.surface.dc.GetTextColor());
    EXPECT_EQ(port.currentBrush()->background(), sheet.surface.dc.GetBkColor());
}

void expect_original_tools(const Sheet& sheet) {
    EXPECT_EQ(::GetStockObject(BLACK_PEN), sheet.Selected(OBJ_PEN));
    EXPECT_EQ(::GetStockObject(WHITE_BRUSH), sheet.Selected(OBJ_BRUSH));
    EXPECT_EQ(::GetStockObject(SYSTEM_FONT), sheet.Selected(OBJ_FONT));
}

class FailingDevice : public LVX::Device {
public:
    owl::TDC* AcquireDC() override { throw std::runtime_error("no paper"); }
    void ReleaseDC() override { ++m_openCount; }
    int Released() const { return m_openCount; }
};

}  // namespace

TEST(Port, is_closed_at_first_and_has_tools_of_its_own) {
    Sheet sheet;
    LVX::Port port(sheet);
    EXPECT_FALSE(port.IsOpen());
    EXPECT_EQ(nullptr, port.GetDC());
    EXPECT_EQ(nullptr, port.GetHDC());
    EXPECT_EQ(0, sheet.Users());
    ASSERT_NE(nullptr, port.currentPen());
    ASSERT_NE(nullptr, port.currentBrush());
    ASSERT_NE(nullptr, port.currentFont());
    EXPECT_EQ(TColor::Black, port.currentPen()->colour());
    EXPECT_EQ(FillForeground, port.currentBrush()->pattern());
    EXPECT_EQ(13, int{port.rule()});
    EXPECT_EQ(R2_COPYPEN, int{RuleCopyPen});
}

TEST(Port, opens_its_device_and_selects_its_tools) {
    Sheet sheet;
    LVX::Port port(sheet);
    EXPECT_TRUE(port.Open());
    EXPECT_TRUE(port.IsOpen());
    EXPECT_EQ(&sheet.surface.dc, port.GetDC());
    EXPECT_EQ(sheet.surface.dc.GetHDC(), port.GetHDC());
    EXPECT_EQ(1, sheet.Users());
    expect_tools_selected(port, sheet);
    EXPECT_EQ(R2_COPYPEN, sheet.surface.dc.GetROP2());
    EXPECT_EQ(TRANSPARENT, sheet.surface.dc.GetBkMode());
}

TEST(Port, opened_twice_is_open_once) {
    OpenPort open;
    EXPECT_TRUE(open.port.Open());
    EXPECT_EQ(1, open.sheet.Users());
    open.port.Close();
    EXPECT_EQ(0, open.sheet.Users());
    open.port.Close();
    EXPECT_EQ(0, open.sheet.Users());
}

TEST(Port, closed_gives_the_context_back_with_its_first_tools) {
    OpenPort open;
    LVXPen pen(TColor::LtRed);
    open.port.usePen(&pen);
    open.port.Close();
    EXPECT_FALSE(open.port.IsOpen());
    EXPECT_EQ(nullptr, open.port.GetDC());
    expect_original_tools(open.sheet);
    EXPECT_EQ(&pen, open.port.currentPen());
    open.port.usePen(nullptr);
}

TEST(Port, that_goes_closes) {
    Sheet sheet;
    {
        LVX::Port port(sheet);
        port.Open();
        EXPECT_EQ(1, sheet.Users());
    }
    EXPECT_EQ(0, sheet.Users());
    expect_original_tools(sheet);
}

TEST(Port, stays_closed_on_a_device_without_a_context) {
    Sheet sheet;
    sheet.isEmpty = true;
    LVX::Port port(sheet);
    EXPECT_FALSE(port.Open());
    EXPECT_FALSE(port.IsOpen());
    port.Close();
    EXPECT_EQ(0, sheet.Users());
    sheet.isEmpty = false;
    EXPECT_TRUE(port.Open());
    expect_tools_selected(port, sheet);
}

TEST(Port, stays_closed_when_its_device_throws) {
    FailingDevice device;
    LVX::Port port(device);
    EXPECT_THROW(port.Open(), std::runtime_error);
    EXPECT_FALSE(port.IsOpen());
    EXPECT_EQ(0, device.Released());
}

TEST(Port, stays_closed_when_a_tool_is_refused) {
    Sheet sheet;
    LVX::Port port(sheet);
    LVXFont font("Arial", 12, false, false, false, false);
    port.useFont(&font);
    {
        const NoMoreObjects none;
        EXPECT_THROW(port.Open(), owl::TXGdi);
    }
    EXPECT_FALSE(port.IsOpen());
    EXPECT_EQ(0, sheet.Users());
    expect_original_tools(sheet);
    EXPECT_TRUE(port.Open());
    expect_tools_selected(port, sheet);
    port.useFont(nullptr);
}

TEST(Port, selects_when_it_opens_what_was_set_before) {
    Sheet sheet;
    LVX::Port port(sheet);
    LVXPen pen(TColor::LtRed);
    LVXBrush brush(FillForeground, TColor::LtGreen, TColor::LtBlue);
    LVXFont font("Arial", 20, false, false, false, false);
    EXPECT_TRUE(port.usePen(&pen));
    EXPECT_TRUE(port.useBrush(&brush));
    EXPECT_TRUE(port.useFont(&font));
    port.rule(RuleXorPen);
    port.enableBkColour(true);
    expect_original_tools(sheet);
    EXPECT_EQ(&pen, port.currentPen());
    port.Open();
    expect_tools_selected(port, sheet);
    EXPECT_EQ(TColor::LtRed, sheet.surface.dc.GetTextColor());
    EXPECT_EQ(TColor::LtBlue, sheet.surface.dc.GetBkColor());
    EXPECT_EQ(R2_XORPEN, sheet.surface.dc.GetROP2());
    EXPECT_EQ(OPAQUE, sheet.surface.dc.GetBkMode());
    port.usePen(nullptr);
    port.useBrush(nullptr);
    port.useFont(nullptr);
}

TEST(Port, returns_to_its_own_tools_for_null) {
    OpenPort open;
    LVXPen* const pen = open.port.currentPen();
    LVXBrush* const brush = open.port.currentBrush();
    LVXFont* const font = open.port.currentFont();
    LVXPen other(TColor::LtRed);
    LVXBrush otherBrush(FillForeground, TColor::LtRed, TColor::LtRed);
    LVXFont otherFont(true);
    open.port.usePen(&other);
    open.port.useBrush(&otherBrush);
    open.port.useFont(&otherFont);
    expect_tools_selected(open.port, open.sheet);
    EXPECT_TRUE(open.port.usePen(nullptr));
    EXPECT_TRUE(open.port.useBrush(nullptr));
    EXPECT_TRUE(open.port.useFont(nullptr));
    EXPECT_EQ(pen, open.port.currentPen());
    EXPECT_EQ(brush, open.port.currentBrush());
    EXPECT_EQ(font, open.port.currentFont());
    expect_tools_selected(open.port, open.sheet);
    EXPECT_EQ(TColor::White, open.sheet.surface.dc.GetBkColor());
}

TEST(Port, takes_its_tools_out_and_still_knows_them) {
    OpenPort open;
    LVXPen pen(TColor::LtRed);
    open.port.usePen(&pen);
    open.port.resetPen();
    open.port.resetBrush();
    open.port.resetFont();
    expect_original_tools(open.sheet);
    EXPECT_EQ(&pen, open.port.currentPen());
    open.port.usePen(open.port.currentPen());
    open.port.useBrush(open.port.currentBrush());
    open.port.useFont(open.port.currentFont());
    expect_tools_selected(open.port, open.sheet);
    open.port.usePen(nullptr);
    open.port.Close();
    open.port.resetPen();
    open.port.resetBrush();
    open.port.resetFont();
    expect_original_tools(open.sheet);
}

TEST(Port, has_the_colour_of_text_from_the_pen_and_that_behind_it_from_the_brush) {
    OpenPort open;
    LVXPen pen(TColor::LtRed);
    LVXBrush brush(FillForeground, TColor::LtGreen, TColor::LtBlue);
    open.port.useBrush(&brush);
    open.port.usePen(&pen);
    const owl::TDC& dc = open.sheet.surface.dc;
    EXPECT_EQ(TColor::LtRed, dc.GetTextColor());
    EXPECT_EQ(TColor::LtBlue, dc.GetBkColor());
    pen.colour(TColor::LtCyan);
    brush.background(TColor::LtMagenta);
    brush.foreground(TColor::LtYellow);
    EXPECT_EQ(TColor::LtCyan, dc.GetTextColor());
    EXPECT_EQ(TColor::LtMagenta, dc.GetBkColor());
    open.port.usePen(nullptr);
    open.port.useBrush(nullptr);
}

TEST(Port, tells_the_units_of_an_inch_while_it_is_open) {
    OpenPort open;
    int x = 1;
    int y = 2;
    EXPECT_TRUE(open.port.GetPixelsPerInch(&x, &y));
    EXPECT_EQ(::GetDeviceCaps(open.port.GetHDC(), LOGPIXELSX), x);
    EXPECT_EQ(::GetDeviceCaps(open.port.GetHDC(), LOGPIXELSY), y);
    EXPECT_GT(x, 2);
    EXPECT_TRUE(open.port.GetPixelsPerInch(nullptr, nullptr));
    y = 0;
    EXPECT_TRUE(open.port.GetPixelsPerInch(nullptr, &y));
    EXPECT_GT(y, 2);
    open.port.Close();
    x = 1;
    EXPECT_FALSE(open.port.GetPixelsPerInch(&x, nullptr));
    EXPECT_EQ(1, x);
}

TEST(Port, hands_its_rule_to_the_context) {
    OpenPort open;
    for (int rule = R2_BLACK; rule <= R2_WHITE; ++rule) {
        open.port.rule(RasterRule(rule));
        EXPECT_EQ(rule, int{open.port.rule()});
        EXPECT_EQ(rule, open.sheet.surface.dc.GetROP2());
    }
}

TEST(Port, keeps_a_rule_that_the_system_does_not_know) {
    OpenPort open;
    open.port.rule(RuleXorPen);
    open.port.rule(RasterRule(99));
    EXPECT_EQ(99, int{open.port.rule()});
    EXPECT_EQ(R2_XORPEN, open.sheet.surface.dc.GetROP2());
    open.port.Close();
    EXPECT_TRUE(open.port.Open());
    EXPECT_EQ(99, int{open.port.rule()});
}

TEST(Port, shows_the_background_when_it_is_enabled) {
    OpenPort open;
    const owl::TDC& dc = open.sheet.surface.dc;
    open.port.enableBkColour(true);
    EXPECT_EQ(OPAQUE, dc.GetBkMode());
    open.port.enableBkColour(false);
    EXPECT_EQ(TRANSPARENT, dc.GetBkMode());
    open.port.enableBkColor(true);
    EXPECT_EQ(OPAQUE, dc.GetBkMode());
    open.port.Close();
    open.port.enableBkColor(false);
    EXPECT_EQ(OPAQUE, dc.GetBkMode());
    open.port.Open();
    EXPECT_EQ(TRANSPARENT, dc.GetBkMode());
}

TEST(Port, that_goes_keeps_the_tools_of_the_host_alive) {
    LVXPen pen(TColor::LtRed);
    {
        OpenPort open;
        open.port.usePen(&pen);
        open.port.usePen(nullptr);
    }
    pen.colour(TColor::LtBlue);
    EXPECT_EQ(TColor::LtBlue, pen.colour());
}

TEST(Port, that_outlives_its_tools_goes_in_peace) {
    Sheet sheet;
    auto* port = new LVX::Port(sheet);
    {
        LVXPen pen(TColor::LtRed);
        LVXBrush brush(TColor::LtRed);
        LVXFont font("Arial", 12, false, false, false, false);
        port->usePen(&pen);
        port->useBrush(&brush);
        port->useFont(&font);
        port->Open();
    }
    expect_tools_selected(*port, sheet);
    delete port;
    EXPECT_EQ(0, sheet.Users());
}

TEST(Port, uses_the_own_pen_of_another_port) {
    Sheet sheet;
    LVX::Port port(sheet);
    port.Open();
    const LVXPen* const own = port.currentPen();
    {
        OpenPort other;
        other.port.currentPen()->colour(TColor::LtRed);
        port.usePen(other.port.currentPen());
        expect_tools_selected(port, sheet);
    }
    EXPECT_EQ(own, port.currentPen());
    expect_tools_selected(port, sheet);
}

TEST(Port, shares_a_device_with_another) {
    Sheet sheet;
    LVX::Port first(sheet);
    LVX::Port second(sheet);
    first.Open();
    second.Open();
    EXPECT_EQ(2, sheet.Users());
    EXPECT_EQ(first.GetDC(), second.GetDC());
    first.Close();
    EXPECT_EQ(1, sheet.Users());
    second.moveTo(0, 0);
    second.lineTo(8, 0);
    EXPECT_EQ("########", sheet.Picture().substr(0, 8));
}

TEST(Port, is_not_copied_and_ends_by_its_base) {
    EXPECT_FALSE(std::is_copy_constructible_v<LVX::Port>);
    EXPECT_FALSE(std::is_copy_assignable_v<LVX::Port>);
    EXPECT_TRUE(std::has_virtual_destructor_v<LVX::Port>);
}
