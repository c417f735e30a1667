// The example host's menu of figures, on a window that is not shown.
#include <gtest/gtest.h>
#include <windows.h>

#include "owl/frame_window.h"
#include "sketch/frame/shape_menu.h"
#include "sketch/model/box.h"
#include "sketch/model/text.h"
#include "support/sketch_figures.h"

namespace {

// Its menu bar has two drop-downs.
class BarWindow {
public:
    BarWindow() : m_frame(nullptr, "bar") {
        m_frame.Attr.Style &= ~static_cast<DWORD>(WS_VISIBLE);
        m_frame.Create();
        const HMENU bar = ::CreateMenu();
        for (const char* name : {"&File", "&Help"}) {
            const HMENU menu = ::CreatePopupMenu();
            ::AppendMenuA(menu, MF_STRING, 100, "&Item");
            ::AppendMenuA(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(menu), name);
        }
        ::SetMenu(m_frame.GetHandle(), bar);
    }
    owl::TWindow& Frame() { return m_frame; }
    HMENU Bar() { return ::GetMenu(m_frame.GetHandle()); }

private:
    owl::TFrameWindow m_frame;
};

std::string Label(HMENU menu, int position) {
    char text[300] = "";
    ::GetMenuStringA(menu, static_cast<UINT>(position), text, sizeof text, MF_BYPOSITION);
    return text;
}

bool Has(HMENU menu, int position, UINT state) {
    return (::GetMenuState(menu, static_cast<UINT>(position), MF_BYPOSITION) & state) != 0;
}

sketch::FigurePointer RectangleOf(int width) {
    return std::make_shared<sketch::Rectangle>(owl::TRect(0, 0, width, 10), sketch::Look{});
}

class SketchShapeMenu : public ::testing::Test {
protected:
    HMENU Popup() { return ::GetSubMenu(m_window.Bar(), 1); }

    BarWindow m_window;
    int m_chosen = -1;
    sketch::ShapeMenu m_menu{m_window.Frame(), [this](int index) { m_chosen = index; }};
};

}  // namespace

TEST_F(SketchShapeMenu, stands_in_front_of_the_last_menu) {
    EXPECT_EQ(3, ::GetMenuItemCount(m_window.Bar()));
    EXPECT_EQ("&Shapes", Label(m_window.Bar(), 1));
    EXPECT_EQ("&Help", Label(m_window.Bar(), 2));
    EXPECT_TRUE(m_menu.Is(Popup()));
    EXPECT_FALSE(m_menu.Is(m_window.Bar()));
}

TEST_F(SketchShapeMenu, says_that_there_are_none) {
    m_menu.List({}, -1);
    EXPECT_EQ(1, ::GetMenuItemCount(Popup()));
    EXPECT_EQ("No shapes yet", Label(Popup(), 0));
    EXPECT_TRUE(Has(Popup(), 0, MF_GRAYED));
}

TEST_F(SketchShapeMenu, lists_the_topmost_first_and_ticks_the_selected_one) {
    m_menu.List({RectangleOf(1), RectangleOf(2)}, 0);
    EXPECT_EQ(2, ::GetMenuItemCount(Popup()));
    EXPECT_EQ("&1 Rectangle, 2 x 10", Label(Popup(), 0));
    EXPECT_EQ("&2 Rectangle, 1 x 10", Label(Popup(), 1));
    EXPECT_FALSE(Has(Popup(), 0, MF_CHECKED));
    EXPECT_TRUE(Has(Popup(), 1, MF_CHECKED));
}

TEST_F(SketchShapeMenu, forgets_what_it_listed_before) {
    m_menu.List({RectangleOf(1), RectangleOf(2)}, 1);
    m_menu.List({RectangleOf(3)}, -1);
    EXPECT_EQ(1, ::GetMenuItemCount(Popup()));
    EXPECT_EQ("&1 Rectangle, 3 x 10", Label(Popup(), 0));
    EXPECT_FALSE(Has(Popup(), 0, MF_CHECKED));
}

TEST_F(SketchShapeMenu, tells_who_was_chosen) {
    m_menu.List({RectangleOf(1), RectangleOf(2), RectangleOf(3)}, -1);
    EXPECT_TRUE(LVXMenu::MenuItemSelected(::GetMenuItemID(Popup(), 0)));
    EXPECT_EQ(2, m_chosen);
    EXPECT_TRUE(LVXMenu::MenuItemSelected(::GetMenuItemID(Popup(), 2)));
    EXPECT_EQ(0, m_chosen);
}

TEST_F(SketchShapeMenu, lists_the_twenty_topmost_of_many) {
    sketch::Figures figures;
    for (int width = 1; width <= 23; ++width)
        figures.push_back(RectangleOf(width));
    m_menu.List(figures, 0);
    EXPECT_EQ(21, ::GetMenuItemCount(Popup()));
    EXPECT_EQ("&9 Rectangle, 15 x 10", Label(Popup(), 8));
    EXPECT_EQ("Rectangle, 14 x 10", Label(Popup(), 9));
    EXPECT_EQ("and 3 more below", Label(Popup(), 20));
    EXPECT_TRUE(Has(Popup(), 20, MF_GRAYED));
}

TEST_F(SketchShapeMenu, shows_an_ampersand_as_it_is) {
    m_menu.List({std::make_shared<sketch::Text>("salt & pepper", sketch_test::SomeFont(), sketch::Look{},
                                                owl::TPoint())},
                -1);
    EXPECT_EQ("&1 Text \"salt && pepper\", Arial, 10.5 points, bold, underlined", Label(Popup(), 0));
}

TEST_F(SketchShapeMenu, uses_no_more_commands_however_often_it_lists) {
    m_menu.List({RectangleOf(1)}, -1);
    const UINT command = ::GetMenuItemID(Popup(), 0);
    for (int times = 0; times < 2000; ++times)
        m_menu.List({RectangleOf(times)}, -1);
    EXPECT_EQ(command, ::GetMenuItemID(Popup(), 0));
}
