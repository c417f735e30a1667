// Menus that are made and ended a thousand times.
#include "lvx/menus/menu.h"
#include "menus/mdi_desk.h"
#include "menus/shown_menu.h"
#include "tests/owl/leaks.h"

namespace {

// How many callbacks there are.
int callbacks = 0;

class Counted : public lvx_test::Nothing {
public:
    Counted() { ++callbacks; }
    ~Counted() override { --callbacks; }
};

void Fill(LVXMenu& menu) {
    auto* const below = new LVXPopupMenu("Below");
    menu.addItem(below);
    for (const char* const label : {"One", "Two", "Three"}) {
        below->addItem(new LVXMenuItem(label, new Counted));
    }
    below->addSeparator();
    below->addItem(new LVXPopupMenu("Deeper"), 1);
}

struct Menus {
    static constexpr const char* name = "menus";
    static constexpr int rounds = 1000;
    explicit Menus(owl::TFrameWindow&) {}

    void Round() {
        LVXMenu menu;
        Fill(menu);
        LVXMenuItem* const one = menu.menuAt(0)->mitems()[0];
        menu.menuAt(0)->removeItem(one);
        delete one;
    }
};

struct MenusOfWindows {
    static constexpr const char* name = "menus_of_windows";
    static constexpr int rounds = 200;
    explicit MenusOfWindows(owl::TFrameWindow& frame) : m_frame(frame) {}

    void Round() {
        m_frame.SetMenu(lvx_test::FileAndEdit());
        {
            LVXMenu bar(&m_frame);
            Fill(bar);
        }
        const HMENU former = m_frame.GetMenu();
        m_frame.SetMenu(nullptr);
        ::DestroyMenu(former);
    }

    owl::TFrameWindow& m_frame;
};

}  // namespace

namespace owl_test {

using Kinds = testing::Types<Menus, MenusOfWindows>;
INSTANTIATE_TYPED_TEST_SUITE_P(Menu, Leaks, Kinds, KindName);

}  // namespace owl_test

TEST(MenuLeaks, no_callback_and_no_id_is_left) {
    const unsigned int next = LVXMenu::AllocateMenuId();
    LVXMenu::FreeMenuId(next);
    for (int i = 0; i < 1000; ++i) {
        LVXMenu menu;
        Fill(menu);
    }
    EXPECT_EQ(0, callbacks);
    EXPECT_EQ(next, LVXMenu::AllocateMenuId());
    LVXMenu::FreeMenuId(next);
}
