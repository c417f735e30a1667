// A strip as a screen reader asks for it: through the system.
#include "lvx/propdlg/accessible_tabs.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <stdexcept>

#include "property_desk.h"

namespace {

using owl::TRect;
using propdlg_test::Dialog;
using propdlg_test::PropertyDesk;

struct Releasing {
    void operator()(IUnknown* object) const { object->Release(); }
};

VARIANT element(LONG number) {
    VARIANT child;
    child.vt = VT_I4;
    child.lVal = number;
    return child;
}

/// The text that a call gives; nothing if it gives none.
template <class Call>
std::optional<std::string> text_of(Call&& call) {
    BSTR text = nullptr;
    if (call(&text) != S_OK)
        return std::nullopt;
    std::string narrow;
    for (UINT i = 0; i < ::SysStringLen(text); ++i)
        narrow += static_cast<char>(text[i]);
    ::SysFreeString(text);
    return narrow;
}

struct AccessibleTabsTest : PropertyDesk {
    AccessibleTabsTest() { ::CoInitialize(nullptr); }
    ~AccessibleTabsTest() override {
        tabs.reset();
        ::CoUninitialize();
    }
    void OpenAndAsk(Dialog& dialog) {
        Open(dialog);
        Ask(dialog);
    }
    void Ask(Dialog& dialog) {
        void* object = nullptr;
        const HRESULT result = ::AccessibleObjectFromWindow(
            dialog.Strip().GetHandle(), static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible), &object);
        if (result != S_OK)
            throw std::runtime_error("no accessible object: " + std::to_string(result));
        tabs.reset(static_cast<IAccessible*>(object));
    }
    std::optional<std::string> Name(LONG number) {
        return text_of([&](BSTR* text) { return tabs->get_accName(element(number), text); });
    }
    LONG Role(LONG number) {
        VARIANT role{};
        EXPECT_EQ(S_OK, tabs->get_accRole(element(number), &role));
        return role.lVal;
    }
    LONG State(LONG number) {
        VARIANT state{};
        EXPECT_EQ(S_OK, tabs->get_accState(element(number), &state));
        return state.lVal;
    }
    LONG Selection() {
        VARIANT selected{};
        EXPECT_EQ(S_OK, tabs->get_accSelection(&selected));
        return selected.vt == VT_I4 ? selected.lVal : -1;
    }
    LONG Navigated(LONG direction, LONG from) {
        VARIANT to{};
        return tabs->accNavigate(direction, element(from), &to) == S_OK ? to.lVal : -1;
    }

    std::unique_ptr<IAccessible, Releasing> tabs;
};

TEST_F(AccessibleTabsTest, a_strip_is_a_list_of_page_tabs) {
    Dialog dialog(calls, desk.frame);
    OpenAndAsk(dialog);
    LONG count = 0;
    EXPECT_EQ(S_OK, tabs->get_accChildCount(&count));
    EXPECT_EQ(3, count);
    EXPECT_EQ(ROLE_SYSTEM_PAGETABLIST, Role(CHILDID_SELF));
    EXPECT_EQ(ROLE_SYSTEM_PAGETAB, Role(1));
    EXPECT_EQ(ROLE_SYSTEM_PAGETAB, Role(3));
}

TEST_F(AccessibleTabsTest, names_are_what_the_tabs_show) {
    Dialog dialog(calls, desk.frame);
    OpenAndAsk(dialog);
    EXPECT_EQ("A", Name(1));
    dialog.Strip().SetTabText(1, "R && &D\rlabs");
    EXPECT_EQ("R & D labs", Name(2));
    EXPECT_EQ(std::nullopt, Name(CHILDID_SELF));
}

TEST_F(AccessibleTabsTest, hot_keys_are_told_with_alt) {
    Dialog dialog(calls, desk.frame);
    OpenAndAsk(dialog);
    const auto shortcut = [&](LONG number) {
        return text_of([&](BSTR* text) { return tabs->get_accKeyboardShortcut(element(number), text); });
    };
    EXPECT_EQ("Alt+B", shortcut(2));
    dialog.Strip().SetTabText(1, "none");
    EXPECT_EQ(std::nullopt, shortcut(2));
    EXPECT_EQ(std::nullopt, shortcut(CHILDID_SELF));
}

TEST_F(AccessibleTabsTest, states_tell_what_is_selected_focused_disabled_or_out_of_sight) {
    Dialog dialog(calls, desk.frame);
    OpenAndAsk(dialog);
    ASSERT_TRUE(desk::Activate(dialog));
    ::SetFocus(dialog.GetDlgItem(IDOK));
    constexpr LONG usable = STATE_SYSTEM_SELECTABLE | STATE_SYSTEM_FOCUSABLE;
    EXPECT_EQ(usable | STATE_SYSTEM_SELECTED, State(1));
    EXPECT_EQ(usable, State(2));
    EXPECT_EQ(STATE_SYSTEM_FOCUSABLE, State(CHILDID_SELF));
    ::SetFocus(dialog.Strip().GetHandle());
    EXPECT_EQ(usable | STATE_SYSTEM_SELECTED | STATE_SYSTEM_FOCUSED, State(1));
    EXPECT_EQ(STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_FOCUSED, State(CHILDID_SELF));
    dialog.Strip().EnableTab(1, false);
    EXPECT_EQ(STATE_SYSTEM_UNAVAILABLE, State(2));
    dialog.SetFixedTabWidth(1000);
    EXPECT_EQ(usable | STATE_SYSTEM_OFFSCREEN, State(3));
}

TEST_F(AccessibleTabsTest, a_tab_that_collapsed_is_invisible) {
    Dialog dialog(calls, desk.frame, Tab::Collapsing);
    OpenAndAsk(dialog);
    dialog.Strip().EnableTab(1, false);
    EXPECT_EQ(STATE_SYSTEM_UNAVAILABLE | STATE_SYSTEM_INVISIBLE, State(2));
}

TEST_F(AccessibleTabsTest, selection_and_focus_are_numbers_of_tabs) {
    Dialog dialog(calls, desk.frame);
    OpenAndAsk(dialog);
    ASSERT_TRUE(desk::Activate(dialog));
    dialog.SelectTab(1);
    Pump();
    EXPECT_EQ(2, Selection());
    VARIANT focus{};
    ::SetFocus(dialog.Strip().GetHandle());
    EXPECT_EQ(S_OK, tabs->get_accFocus(&focus));
    EXPECT_EQ(2, focus.lVal);
    ::SetFocus(dialog.GetDlgItem(IDOK));
    EXPECT_EQ(S_OK, tabs->get_accFocus(&focus));
    EXPECT_EQ(VT_EMPTY, focus.vt);
}

TEST_F(AccessibleTabsTest, the_default_action_selects_the_tab_unless_it_is_disabled) {
    Dialog dialog(calls, desk.frame);
    OpenAndAsk(dialog);
    EXPECT_EQ("Switch", text_of([&](BSTR* text) { return tabs->get_accDefaultAction(element(2), text); }));
    EXPECT_EQ(S_OK, tabs->accDoDefaultAction(element(2)));
    Pump();
    EXPECT_EQ(1, dialog.Strip().GetSelectedTab());
    EXPECT_EQ(S_OK, tabs->accSelect(SELFLAG_TAKESELECTION, element(3)));
    Pump();
    EXPECT_EQ(2, dialog.Strip().GetSelectedTab());
    dialog.Strip().EnableTab(0, false);
    EXPECT_EQ(S_OK, tabs->accDoDefaultAction(element(1)));
    Pump();
    EXPECT_EQ(2, dialog.Strip().GetSelectedTab());
    EXPECT_EQ(DISP_E_MEMBERNOTFOUND, tabs->accDoDefaultAction(element(CHILDID_SELF)));
    EXPECT_EQ(E_INVALIDARG, tabs->accSelect(SELFLAG_ADDSELECTION, element(2)));
}

TEST_F(AccessibleTabsTest, tabs_are_found_where_they_are) {
    Dialog dialog(calls, desk.frame);
    OpenAndAsk(dialog);
    TRect rect;
    ASSERT_TRUE(dialog.Strip().GetTabRect(rect, 1, -1));
    owl::TPoint corner = rect.TopLeft();
    dialog.Strip().ClientToScreen(corner);
    LONG left = 0, top = 0, width = 0, height = 0;
    EXPECT_EQ(S_OK, tabs->accLocation(&left, &top, &width, &height, element(2)));
    EXPECT_EQ(TRect(corner, rect.Size()), TRect(left, top, left + width, top + height));
    VARIANT hit{};
    EXPECT_EQ(S_OK, tabs->accHitTest(left + 3, top + 3, &hit));
    EXPECT_EQ(2, hit.lVal);
    EXPECT_EQ(S_OK, tabs->accHitTest(left + 3, top + 60, &hit));
    EXPECT_EQ(CHILDID_SELF, hit.lVal);
    EXPECT_EQ(S_FALSE, tabs->accHitTest(0, 0, &hit));
    dialog.SetFixedTabWidth(1000);
    dialog.Strip().AssessScroll();
    dialog.Strip().NextOrigin(1);
    EXPECT_EQ(S_FALSE, tabs->accLocation(&left, &top, &width, &height, element(1)));
}

TEST_F(AccessibleTabsTest, one_gets_from_tab_to_tab) {
    Dialog dialog(calls, desk.frame);
    OpenAndAsk(dialog);
    EXPECT_EQ(1, Navigated(NAVDIR_FIRSTCHILD, CHILDID_SELF));
    EXPECT_EQ(3, Navigated(NAVDIR_LASTCHILD, CHILDID_SELF));
    EXPECT_EQ(2, Navigated(NAVDIR_NEXT, 1));
    EXPECT_EQ(1, Navigated(NAVDIR_LEFT, 2));
    EXPECT_EQ(-1, Navigated(NAVDIR_NEXT, 3));
    EXPECT_EQ(-1, Navigated(NAVDIR_PREVIOUS, 1));
    EXPECT_EQ(-1, Navigated(NAVDIR_UP, 1));
}

TEST_F(AccessibleTabsTest, tabs_have_no_objects_of_their_own_and_the_strip_has_a_parent) {
    Dialog dialog(calls, desk.frame);
    OpenAndAsk(dialog);
    IDispatch* object = nullptr;
    EXPECT_EQ(S_FALSE, tabs->get_accChild(element(1), &object));
    EXPECT_TRUE(object == nullptr);
    EXPECT_EQ(S_OK, tabs->get_accParent(&object));
    const std::unique_ptr<IDispatch, Releasing> parent(object);
    EXPECT_TRUE(parent != nullptr);
}

TEST_F(AccessibleTabsTest, numbers_without_a_tab_are_refused) {
    Dialog dialog(calls, desk.frame);
    OpenAndAsk(dialog);
    BSTR text = nullptr;
    for (const LONG number : {-1L, 4L, 1000000L})
        EXPECT_EQ(E_INVALIDARG, tabs->get_accName(element(number), &text)) << number;
    VARIANT odd{};
    odd.vt = VT_EMPTY;
    EXPECT_EQ(E_INVALIDARG, tabs->get_accName(odd, &text));
    EXPECT_EQ(E_POINTER, tabs->get_accName(element(1), nullptr));
}

TEST_F(AccessibleTabsTest, behind_the_end_of_the_strip_nothing_is_connected) {
    {
        Dialog dialog(calls, desk.frame);
        OpenAndAsk(dialog);
        dialog.CmCancel();
        LONG count = 7;
        EXPECT_EQ(CO_E_OBJNOTCONNECTED, tabs->get_accChildCount(&count));
        EXPECT_EQ(0, count);
    }
    BSTR text = nullptr;
    EXPECT_EQ(CO_E_OBJNOTCONNECTED, tabs->get_accName(element(1), &text));
    EXPECT_EQ(CO_E_OBJNOTCONNECTED, tabs->accDoDefaultAction(element(1)));
}

TEST_F(AccessibleTabsTest, a_wizard_has_no_tabs_to_tell_of) {
    Dialog dialog(calls, desk.frame, Tab::WizardFrame);
    OpenAndAsk(dialog);
    EXPECT_EQ(ROLE_SYSTEM_CLIENT, Role(CHILDID_SELF));
}

TEST_F(AccessibleTabsTest, what_has_no_words_says_so) {
    Dialog dialog(calls, desk.frame);
    OpenAndAsk(dialog);
    EXPECT_EQ(std::nullopt, text_of([&](BSTR* text) { return tabs->get_accValue(element(1), text); }));
    EXPECT_EQ(std::nullopt, text_of([&](BSTR* text) { return tabs->get_accDescription(element(1), text); }));
    EXPECT_EQ(std::nullopt, text_of([&](BSTR* text) { return tabs->get_accHelp(element(1), text); }));
    EXPECT_EQ(DISP_E_MEMBERNOTFOUND, tabs->put_accName(element(1), nullptr));
}

}  // namespace
