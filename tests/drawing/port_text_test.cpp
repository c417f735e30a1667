#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "drawing/sheet.h"

using lvx_test::OpenPort;
using lvx_test::rows;
using owl::TColor;

namespace {

constexpr int width = 120;
constexpr int height = 40;

class PortText : public ::testing::Test {
protected:
    PortText() {
        open.port.usePen(&m_pen);
        open.port.useBrush(&m_brush);
        open.port.useFont(&m_font);
    }
    ~PortText() override {
        open.port.usePen(nullptr);
        open.port.useBrush(nullptr);
        open.port.useFont(nullptr);
    }

    HDC Dc() const { return open.port.GetHDC(); }

    SIZE Extent(const std::string& text) const {
        SIZE size{};
        ::GetTextExtentPoint32A(Dc(), text.data(), static_cast<int>(text.size()), &size);
        return size;
    }

    /// What the system alone writes with the same tools.
    std::string Expected(int x, int y, const std::string& text, int background = TRANSPARENT) const {
        const owl_test::Surface surface(width, height);
        const HGDIOBJ before = ::SelectObject(surface.dc, ::GetCurrentObject(Dc(), OBJ_FONT));
        ::SetTextColor(surface.dc, RGB(255, 0, 0));
        ::SetBkColor(surface.dc, RGB(0, 0, 255));
        ::SetBkMode(surface.dc, background);
        ::TextOutA(surface.dc, x, y, text.data(), static_cast<int>(text.size()));
        ::SelectObject(surface.dc, before);
        return surface.Picture();
    }

    static std::string Empty() { return rows(height, std::string(width, '.')); }

private:
    LVXPen m_pen{TColor::LtRed};
    LVXBrush m_brush{FillForeground, TColor::LtGreen, TColor::LtBlue};
    LVXFont m_font{"Courier New", 12, false, false, false, false};

protected:
    OpenPort open{width, height};
};

}  // namespace

TEST_F(PortText, is_written_in_the_colour_of_the_pen) {
    EXPECT_EQ(Extent("Agx").cx, open.port.wrtText("Agx", 7, 5));
    EXPECT_EQ(Expected(7, 5, "Agx"), open.Picture());
    EXPECT_NE(Empty(), open.Picture());
}

TEST_F(PortText, lies_on_the_background_of_the_brush_when_that_is_enabled) {
    open.port.enableBkColour(true);
    open.port.wrtText("Agx", 7, 5);
    EXPECT_EQ(Expected(7, 5, "Agx", OPAQUE), open.Picture());
    EXPECT_EQ(TColor::LtBlue, TColor(open.sheet.surface.At(7, 5)));
}

TEST_F(PortText, that_is_wide_is_written_alike) {
    EXPECT_EQ(Extent("Agx").cx, open.port.wrtText(L"Agx", 7, 5));
    EXPECT_EQ(Expected(7, 5, "Agx"), open.Picture());
}

TEST_F(PortText, is_cut_off_at_its_count) {
    EXPECT_EQ(Extent("Ag").cx, open.port.wrtText("Agx", 2, 7, 5));
    EXPECT_EQ(Expected(7, 5, "Ag"), open.Picture());
    open.sheet.surface.dc.PatBlt(0, 0, width, height, WHITENESS);
    EXPECT_EQ(Extent("Ag").cx, open.port.wrtText(L"Agx", 2, 7, 5));
    EXPECT_EQ(Expected(7, 5, "Ag"), open.Picture());
}

TEST_F(PortText, of_a_count_holds_whatever_bytes_there_are) {
    const std::string bytes("A\0B", 3);
    EXPECT_EQ(Extent(bytes).cx, open.port.wrtText(bytes.data(), 3, 7, 5));
    EXPECT_EQ(Expected(7, 5, bytes), open.Picture());
    EXPECT_EQ(Extent("A").cx, open.port.wrtText(bytes.data(), 7, 5));
}

TEST_F(PortText, that_is_null_or_empty_is_not_written) {
    EXPECT_EQ(0, open.port.wrtText("", 1, 1));
    EXPECT_EQ(0, open.port.wrtText(L"", 1, 1));
    EXPECT_EQ(0, open.port.wrtText("abc", 0, 1, 1));
    EXPECT_EQ(0, open.port.wrtText(L"abc", 0, 1, 1));
    EXPECT_EQ(0, open.port.wrtText("abc", -1, 1, 1));
    EXPECT_EQ(0, open.port.wrtText(L"abc", -1, 1, 1));
    EXPECT_EQ(0, open.port.wrtText(static_cast<const char*>(nullptr), 1, 1));
    EXPECT_EQ(0, open.port.wrtText(static_cast<const wchar_t*>(nullptr), 1, 1));
    EXPECT_EQ(0, open.port.wrtText(static_cast<const char*>(nullptr), 3, 1, 1));
    EXPECT_EQ(0, open.port.wrtText(static_cast<const wchar_t*>(nullptr), 3, 1, 1));
    EXPECT_EQ(Empty(), open.Picture());
}

TEST_F(PortText, is_measured_as_it_is_written) {
    const std::string text = "A line of text";
    const SIZE expected = Extent(text);
    int wide = 0;
    int high = 0;
    open.port.textSize(text.c_str(), &wide, &high);
    EXPECT_EQ(expected.cx, wide);
    EXPECT_EQ(expected.cy, high);
    EXPECT_GT(wide, 50);
    wide = high = 0;
    open.port.textSize(L"A line of text", &wide, &high);
    EXPECT_EQ(expected.cx, wide);
    EXPECT_EQ(expected.cy, high);
    open.port.textSize(text.c_str(), 6, &wide, &high);
    EXPECT_EQ(Extent("A line").cx, wide);
    EXPECT_EQ(expected.cy, high);
    wide = 0;
    open.port.textSize(L"A line of text", 6, &wide, &high);
    EXPECT_EQ(Extent("A line").cx, wide);
    EXPECT_EQ(Empty(), open.Picture());
}

TEST_F(PortText, is_measured_in_one_direction_alone) {
    int wide = 0;
    int high = 0;
    open.port.textSize("Ag", &wide, nullptr);
    EXPECT_EQ(Extent("Ag").cx, wide);
    open.port.textSize("Ag", nullptr, &high);
    EXPECT_EQ(Extent("Ag").cy, high);
    open.port.textSize("Ag", nullptr, nullptr);
}

TEST_F(PortText, that_is_null_or_empty_measures_nothing) {
    const auto expect_nothing = [](const auto& measure) {
        int wide = 7;
        int high = 7;
        measure(&wide, &high);
        EXPECT_EQ(0, wide);
        EXPECT_EQ(0, high);
        measure(nullptr, nullptr);
    };
    LVX::Port& port = open.port;
    expect_nothing([&](int* w, int* h) { port.textSize("", w, h); });
    expect_nothing([&](int* w, int* h) { port.textSize(L"", w, h); });
    expect_nothing([&](int* w, int* h) { port.textSize("abc", 0, w, h); });
    expect_nothing([&](int* w, int* h) { port.textSize(L"abc", -1, w, h); });
    expect_nothing([&](int* w, int* h) { port.textSize(static_cast<const char*>(nullptr), w, h); });
    expect_nothing([&](int* w, int* h) { port.textSize(static_cast<const wchar_t*>(nullptr), 2, w, h); });
    port.Close();
    expect_nothing([&](int* w, int* h) { port.textSize("abc", w, h); });
    expect_nothing([&](int* w, int* h) { port.textSize(L"abc", w, h); });
    expect_nothing([&](int* w, int* h) { port.textSize("abc", 2, w, h); });
    expect_nothing([&](int* w, int* h) { port.textSize(L"abc", 2, w, h); });
}

TEST_F(PortText, has_the_space_of_its_font_from_line_to_line) {
    TEXTMETRICA metrics;
    ::GetTextMetricsA(Dc(), &metrics);
    EXPECT_EQ(metrics.tmHeight + metrics.tmExternalLeading, open.port.textLineSpace());
    EXPECT_GE(open.port.textLineSpace(), 16);
}

TEST_F(PortText, is_not_written_on_a_closed_port) {
    open.port.Close();
    EXPECT_EQ(0, open.port.wrtText("abc", 1, 1));
    EXPECT_EQ(0, open.port.wrtText(L"abc", 1, 1));
    EXPECT_EQ(0, open.port.wrtText("abc", 2, 1, 1));
    EXPECT_EQ(0, open.port.wrtText(L"abc", 2, 1, 1));
    EXPECT_EQ(0, open.port.textLineSpace());
    EXPECT_EQ(Empty(), open.Picture());
}

TEST_F(PortText, is_turned_with_the_font) {
    open.port.currentFont()->orientation(900);
    open.port.wrtText("A", 20, 30);
    EXPECT_NE(Empty(), open.Picture());
    // To the left about: it runs upward from its point, and its top lies to the left.
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const bool inside = x >= 20 && x < 40 && y < 31;
            EXPECT_TRUE(inside || open.sheet.surface.At(x, y) == TColor::White) << x << ", " << y;
        }
    }
}

TEST_F(PortText, follows_the_world_transform) {
    ::SetGraphicsMode(Dc(), GM_ADVANCED);
    const XFORM doubled{2, 0, 0, 2, 0, 0};
    ::SetWorldTransform(Dc(), &doubled);
    EXPECT_EQ(Extent("Ag").cx, open.port.wrtText("Ag", 7, 5));
    const XFORM identity{1, 0, 0, 1, 0, 0};
    ::SetWorldTransform(Dc(), &identity);
    ::SetGraphicsMode(Dc(), GM_COMPATIBLE);
    // Twice as far from the corner, and reaching farther than the text would by itself.
    for (int y = 0; y < 10; ++y) {
        for (int x = 0; x < width; ++x) {
            EXPECT_EQ(TColor::White, TColor(open.sheet.surface.At(x, y)));
        }
    }
    EXPECT_NE(Empty(), open.Picture());
}
