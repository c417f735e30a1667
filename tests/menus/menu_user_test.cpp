// Menus that change, in the bar of a real MDI frame and used by keys and mouse as a user does.
#include <gtest/gtest.h>
#include <windows.h>

#include <functional>
#include <string>
#include <utility>

#include "lvx/menus/menu.h"
#include "menus/mdi_desk.h"
#include "menus/shown_menu.h"
#include "owl/command_enabler.h"
#include "support/screen_picture.h"

namespace {

using lvx_test::Lines;
using lvx_test::Note;
using lvx_test::Shown;
using std::string;

// A host as docs/menus.md has it: what is no item's goes the way of all commands.
class Host : public owl::TMDIFrame {
public:
    Host(const char* title, owl::TResId menu) : TMDIFrame(title, menu) {}

    LRESULT EvCommand(UINT id, HWND control, UINT code) override {
        if (control == nullptr && LVXMenu::MenuItemSelected(id)) {
            return 0;
        }
        return TMDIFrame::EvCommand(id, control, code);
    }
    void EvCommandEnable(owl::TCommandEnabler& enabler) override {
        if (!LVXMenu::MenuItemEnable(enabler)) {
            TMDIFrame::EvCommandEnable(enabler);
        }
    }
    void CmNew() { own.push_back("new"); }

    Lines own;

    DECLARE_RESPONSE_TABLE(Host);
};

DEFINE_RESPONSE_TABLE1(Host, owl::TMDIFrame)
    EV_COMMAND(101, CmNew),
END_RESPONSE_TABLE;

// Does what it is told.
class Do : public CallBack<LVXMenuItem*> {
public:
    explicit Do(std::function<void(LVXMenuItem&)> action) : m_action(std::move(action)) {}
    bool operator()(LVXMenuItem* item) override {
        // The item, and this object with it, may end meanwhile.
        const auto action = m_action;
        action(*item);
        return true;
    }

private:
    std::function<void(LVXMenuItem&)> m_action;
};

// What is done while a menu is open: its loop is the system's.
std::function<void()> while_open;

void CALLBACK Look(HWND, UINT, UINT_PTR timer, DWORD) {
    if (user::FindShown(user::drop_down_class, nullptr) == nullptr) {
        return;
    }
    ::KillTimer(nullptr, timer);
    std::exchange(while_open, nullptr)();
    desk::Press({VK_ESCAPE});
    desk::Press({VK_ESCAPE});
    desk::Press({VK_ESCAPE});
}

class UsedMenu : public ::testing::Test {
protected:
    // The desk ends last, and the window's bar with it.
    UsedMenu() : m_bar(m_desk.frame), m_bells(new LVXPopupMenu("&Bells")) { m_bar.addItem(m_bells); }

    LVXMenuItem* Add(const char* label) {
        auto* const item = new LVXMenuItem(label, new Note(m_notes));
        m_bells->addItem(item);
        return item;
    }
    /// Alt and the first, then each of the others.
    static void Press(WORD first, std::initializer_list<WORD> others) {
        desk::Press({VK_MENU, first});
        for (const WORD key : others) {
            desk::Press({key});
        }
    }
    bool Noted(std::size_t count = 1) {
        return desk::PumpUntil([&] { return m_notes.size() >= count; });
    }
    /// Opens the menu of that mnemonic, calls `look` while it is open, and closes it.
    static bool LookInto(WORD mnemonic, std::function<void()> look) {
        while_open = std::move(look);
        ::SetTimer(nullptr, 0, 50, &Look);
        desk::Press({VK_MENU, mnemonic});
        const bool looked = desk::PumpUntil([] { return while_open == nullptr; });
        desk::PumpUntil([] { return user::FindShown(user::drop_down_class, nullptr) == nullptr; });
        return looked;
    }
    /// The middle of an entry of a menu that is shown.
    POINT MiddleOf(HMENU menu, UINT position) const {
        RECT place{};
        const HWND owner = menu == m_desk.Bar() ? m_desk.frame->GetHandle() : nullptr;
        ::GetMenuItemRect(owner, menu, position, &place);
        return {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
    }

    lvx_test::MdiDesk<Host> m_desk;
    Lines m_notes;
    LVXMenu m_bar;
    LVXPopupMenu* m_bells;
};

}  // namespace

TEST_F(UsedMenu, calls_what_is_chosen_by_keys) {
    Add("&Low");
    Add("&High");
    Press('B', {'H'});
    EXPECT_TRUE(Noted());
    EXPECT_EQ(Lines{"&High"}, m_notes);
}

TEST_F(UsedMenu, calls_what_is_chosen_by_the_mouse) {
    Add("&Low");
    Add("&High");
    while_open = [&] {
        const POINT high = MiddleOf(*m_bells, 1);
        user::Click(high.x, high.y);
    };
    ::SetTimer(nullptr, 0, 50, &Look);
    const POINT bells = MiddleOf(m_desk.Bar(), 2);
    user::Click(bells.x, bells.y);
    EXPECT_TRUE(Noted());
    EXPECT_EQ(Lines{"&High"}, m_notes);
}

TEST_F(UsedMenu, leaves_other_commands_to_the_window) {
    Add("&Low");
    Press('F', {'N'});
    EXPECT_TRUE(desk::PumpUntil([&] { return !m_desk.frame->own.empty(); }));
    EXPECT_EQ(Lines{"new"}, m_desk.frame->own);
    EXPECT_EQ(Lines{}, m_notes);
}

TEST_F(UsedMenu, shows_each_command_as_enabled_as_its_item_is) {
    Add("&Low");
    Add("&High")->enable(false);
    m_bells->addItem(new LVXMenuItem("&Nobody's"));
    Lines shown;
    // The frame asks for each entry when the menu opens.
    EXPECT_TRUE(LookInto('B', [&] { shown = Shown(*m_bells); }));
    EXPECT_EQ((Lines{"&Low", "&High -", "&Nobody's -"}), shown);
    EXPECT_TRUE(LookInto('F', [&] { shown = Shown(::GetSubMenu(m_desk.Bar(), 0)); }));
    EXPECT_EQ((Lines{"&New", "E&xit -"}), shown) << "the window's own should be asked for as ever";
}

TEST_F(UsedMenu, does_not_call_a_disabled_command) {
    Add("&Low")->enable(false);
    Add("&High");
    Press('B', {'L', VK_ESCAPE, VK_ESCAPE});
    Press('B', {'H'});
    EXPECT_TRUE(Noted());
    EXPECT_EQ(Lines{"&High"}, m_notes);
}

TEST_F(UsedMenu, shows_a_disabled_command_in_grey_and_a_checked_one_with_a_tick) {
    Add("&First");  // is highlighted
    LVXMenuItem* const low = Add("&Low");
    std::ptrdiff_t grey = 0;
    std::ptrdiff_t ticked = 0;
    const auto look = [&] {
        ::RedrawWindow(user::FindShown(user::drop_down_class, nullptr), nullptr, nullptr,
                       RDW_INVALIDATE | RDW_UPDATENOW);
        RECT place{};
        ::GetMenuItemRect(nullptr, *m_bells, 1, &place);
        grey = user::ScreenPicture::Of(place).Count(::GetSysColor(COLOR_GRAYTEXT));
        place.right = place.left + ::GetSystemMetrics(SM_CXMENUCHECK);
        ticked = user::ScreenPicture::Of(place).Count(::GetSysColor(COLOR_MENUTEXT));
    };
    EXPECT_TRUE(LookInto('B', look));
    EXPECT_EQ(0, grey);
    EXPECT_EQ(0, ticked);
    low->enable(false);
    EXPECT_TRUE(LookInto('B', look));
    EXPECT_LT(10, grey);
    low->enable(true);
    low->check(true);
    EXPECT_TRUE(LookInto('B', look));
    EXPECT_EQ(0, grey);
    EXPECT_LT(10, ticked);
}

TEST_F(UsedMenu, ticks_what_its_callback_checks) {
    auto* const item = new LVXMenuItem("&Loud", new Do([&](LVXMenuItem& chosen) {
                                           chosen.check(!chosen.checked());
                                           m_notes.push_back("toggled");
                                       }));
    m_bells->addItem(item);
    Press('B', {'L'});
    EXPECT_TRUE(Noted(1));
    EXPECT_EQ(Lines{"&Loud *"}, Shown(*m_bells));
    Lines shown;
    EXPECT_TRUE(LookInto('B', [&] { shown = Shown(*m_bells); }));
    EXPECT_EQ(Lines{"&Loud *"}, shown) << "opening the menu should leave the tick alone";
    Press('B', {'L'});
    EXPECT_TRUE(Noted(2));
    EXPECT_EQ(Lines{"&Loud"}, Shown(*m_bells));
}

TEST_F(UsedMenu, grows_by_what_was_chosen) {
    m_bells->addItem(new LVXMenuItem("&Cast", new Do([&](LVXMenuItem&) {
                                         Add("&Ring it");
                                         m_notes.push_back("cast");
                                     })));
    Press('B', {'C'});
    EXPECT_TRUE(Noted(1));
    Press('B', {'R'});
    EXPECT_TRUE(Noted(2));
    EXPECT_EQ((Lines{"cast", "&Ring it"}), m_notes);
}

TEST_F(UsedMenu, loses_what_removes_itself) {
    m_bells->addItem(new LVXMenuItem("&Once", new Do([&](LVXMenuItem& chosen) {
                                         delete &chosen;
                                         m_notes.push_back("done");
                                     })));
    Add("&Low");
    Press('B', {'O'});
    EXPECT_TRUE(Noted(1));
    EXPECT_EQ(Lines{"&Low"}, Shown(*m_bells));
}

TEST_F(UsedMenu, calls_a_command_that_changed_its_name) {
    LVXMenuItem* const item = Add("&Low");
    item->setLabel("&Deep");
    Press('B', {'D'});
    EXPECT_TRUE(Noted());
    EXPECT_EQ(Lines{"&Deep"}, m_notes);
}

TEST_F(UsedMenu, works_behind_the_icon_of_a_maximised_child) {
    Add("&Low");
    m_desk.OpenMaximised("one");
    Press('B', {'L'});
    EXPECT_TRUE(Noted(1));
    auto* const late = new LVXPopupMenu("&Late");
    m_bar.addItem(late);
    late->addItem(new LVXMenuItem("&One", new Note(m_notes)));
    Press('L', {'O'});
    EXPECT_TRUE(Noted(2));
    auto* const middle = new LVXPopupMenu("&Middle");
    m_bar.addItem(middle, 1);
    middle->addItem(new LVXMenuItem("&Two", new Note(m_notes)));
    // One to the right of File.
    Press('F', {VK_RIGHT, 'T'});
    EXPECT_TRUE(Noted(3));
    EXPECT_EQ((Lines{"&Low", "&One", "&Two"}), m_notes);
}

TEST_F(UsedMenu, leaves_a_maximised_child_its_restore_button) {
    owl::TMDIChild* const child = m_desk.OpenMaximised("one");
    m_bar.addItem(new LVXPopupMenu("&Late"));
    const int count = ::GetMenuItemCount(m_desk.Bar());
    for (int position = 0; position < count; ++position) {
        if (::GetMenuItemID(m_desk.Bar(), position) == 0xF120) {
            const POINT button = MiddleOf(m_desk.Bar(), static_cast<UINT>(position));
            user::Click(button.x, button.y);
        }
    }
    EXPECT_TRUE(desk::PumpUntil([&] { return !child->IsZoomed(); }));
    EXPECT_EQ((Lines{"&File >", "&Edit >", "&Bells >", "&Late >"}), Shown(m_desk.Bar()));
}

TEST_F(UsedMenu, opens_as_a_menu_of_its_own) {
    LVXPopupMenu context("context");
    context.addItem(new LVXMenuItem("&Here", new Note(m_notes)));
    while_open = [] { desk::Press({'H'}); };
    ::SetTimer(nullptr, 0, 50, &Look);
    owl::TPopupMenu(context.GetHandle()).TrackPopupMenu(0, 80, 120, *m_desk.frame);
    EXPECT_TRUE(Noted());
    EXPECT_EQ(Lines{"&Here"}, m_notes);
}

TEST_F(UsedMenu, has_columns_beside_an_upright_separator) {
    Add("&Low");
    m_bells->addVSeparator();
    Add("&High");
    RECT first{};
    RECT last{};
    EXPECT_TRUE(LookInto('B', [&] {
        ::GetMenuItemRect(nullptr, *m_bells, 0, &first);
        ::GetMenuItemRect(nullptr, *m_bells, 2, &last);
    }));
    EXPECT_LE(first.right, last.left);
    Press('B', {'H'});
    EXPECT_TRUE(Noted());
}

TEST_F(UsedMenu, ends_with_its_window) {
    Add("&Low");
    m_desk.OpenMaximised("one");
    m_desk.application.SetMainWindow(nullptr);
    EXPECT_EQ(1, m_bells->mitems().count()) << "the objects are the host's";
}
