// A bar as a screen reader sees it: asked through the system, from its window.
#include "lvx/controls/bar_accessible.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "controls/toolbar_desk.h"
#include "owl/button.h"
#include "tests/owl/gadget_probe.h"

namespace {

using toolbars::Button;

struct Releasing {
    void operator()(IUnknown* object) const { object->Release(); }
};

using Accessible = std::unique_ptr<IAccessible, Releasing>;

VARIANT child(LONG number) {
    VARIANT variant{};
    variant.vt = VT_I4;
    variant.lVal = number;
    return variant;
}

std::string text_of(HRESULT result, BSTR text) {
    if (result != S_OK) {
        return result == S_FALSE ? "" : "failed";
    }
    const std::wstring wide(text);
    ::SysFreeString(text);
    return std::string(wide.begin(), wide.end());
}

/// The save button, a gap, left and right, the grid, and a control.
struct BarAccessible : testing::Test {
    BarAccessible() {
        ::CoInitialize(nullptr);
        save = desk.Add(CM_SAVE);
        desk.bar->Insert(*new owl::TSeparatorGadget);
        left = desk.Add(CM_LEFT, LVXButtonGadget::Exclusive);
        right = desk.Add(CM_RIGHT, LVXButtonGadget::Exclusive);
        grid = desk.Add(CM_GRID, LVXButtonGadget::NonExclusive);
        control = new owl::TButton(desk.bar, 9, "Control", 200, 2, 40, 20);
        desk.Show();
        IAccessible* found = nullptr;
        ::AccessibleObjectFromWindow(desk.bar->GetHandle(), static_cast<DWORD>(OBJID_CLIENT),
                                     __uuidof(IAccessible), reinterpret_cast<void**>(&found));
        bar.reset(found);
    }
    ~BarAccessible() override {
        bar.reset();
        ::CoUninitialize();
    }
    void SetUp() override { ASSERT_NE(nullptr, bar); }

    std::string Name(LONG number) const {
        BSTR text = nullptr;
        const HRESULT result = bar->get_accName(child(number), &text);
        return text_of(result, text);
    }
    std::string Action(LONG number) const {
        BSTR text = nullptr;
        const HRESULT result = bar->get_accDefaultAction(child(number), &text);
        return text_of(result, text);
    }
    LONG Role(LONG number) const {
        VARIANT role{};
        EXPECT_EQ(S_OK, bar->get_accRole(child(number), &role));
        return role.lVal;
    }
    LONG State(LONG number) const {
        VARIANT state{};
        EXPECT_EQ(S_OK, bar->get_accState(child(number), &state));
        return state.lVal;
    }
    /// -1 for none.
    LONG Navigate(LONG direction, LONG from) const {
        VARIANT end{};
        return bar->accNavigate(direction, child(from), &end) == S_OK ? end.lVal : -1;
    }
    LONG HitAt(const owl::TPoint& client) const {
        owl::TPoint point = client;
        desk.bar->ClientToScreen(point);
        VARIANT hit{};
        return bar->accHitTest(point.x, point.y, &hit) == S_OK ? hit.lVal : -1;
    }

    toolbars::Desk desk;
    Button* save;
    Button* left;
    Button* right;
    Button* grid;
    owl::TButton* control;
    Accessible bar;
};

}  // namespace

TEST_F(BarAccessible, is_a_toolbar_of_the_gadgets_with_commands_and_its_controls) {
    EXPECT_EQ(ROLE_SYSTEM_TOOLBAR, Role(CHILDID_SELF));
    LONG count = 0;
    EXPECT_EQ(S_OK, bar->get_accChildCount(&count));
    EXPECT_EQ(5, count);
}

TEST_F(BarAccessible, has_the_names_of_tips) {
    EXPECT_EQ("Save", Name(1));
    EXPECT_EQ("Left", Name(2));
    EXPECT_EQ("Right", Name(3));
    EXPECT_EQ("Grid", Name(4));
    EXPECT_EQ("", Name(CHILDID_SELF));
    EXPECT_LT(0, desk.frame->tipsAsked);
}

TEST_F(BarAccessible, has_roles_by_the_types_of_buttons) {
    EXPECT_EQ(ROLE_SYSTEM_PUSHBUTTON, Role(1));
    EXPECT_EQ(ROLE_SYSTEM_RADIOBUTTON, Role(2));
    EXPECT_EQ(ROLE_SYSTEM_RADIOBUTTON, Role(3));
    EXPECT_EQ(ROLE_SYSTEM_CHECKBUTTON, Role(4));
}

TEST_F(BarAccessible, tells_the_states_of_buttons) {
    desk.MoveOff();
    desk.Pump();
    EXPECT_EQ(0, State(CHILDID_SELF));
    EXPECT_EQ(0, State(1));
    save->SetEnabled(false);
    EXPECT_EQ(STATE_SYSTEM_UNAVAILABLE, State(1));
    save->SetEnabled(true);
    save->SetButtonState(LVXButtonGadget::Down);
    EXPECT_EQ(STATE_SYSTEM_PRESSED, State(1));
    left->SetButtonState(LVXButtonGadget::Down);
    EXPECT_EQ(STATE_SYSTEM_CHECKED, State(2));
    EXPECT_EQ(0, State(3));
    grid->SetButtonState(LVXButtonGadget::Indeterminate);
    EXPECT_EQ(STATE_SYSTEM_MIXED, State(4));
    desk.bar->ShowWindow(SW_HIDE);
    EXPECT_EQ(STATE_SYSTEM_INVISIBLE, State(3));
    EXPECT_EQ(STATE_SYSTEM_INVISIBLE, State(CHILDID_SELF));
}

TEST_F(BarAccessible, tells_which_gadget_the_mouse_is_over) {
    desk.MoveTo(*right);
    EXPECT_TRUE(desk::PumpUntil([&] { return desk.bar->AtMouse() == right; }));
    EXPECT_EQ(STATE_SYSTEM_HOTTRACKED, State(3));
    EXPECT_EQ(0, State(2));
}

TEST_F(BarAccessible, knows_the_places_of_gadgets) {
    LONG x = 0, y = 0, width = 0, height = 0;
    EXPECT_EQ(S_OK, bar->accLocation(&x, &y, &width, &height, child(2)));
    owl::TPoint corner = left->GetBounds().TopLeft();
    desk.bar->ClientToScreen(corner);
    EXPECT_EQ(corner.x, x);
    EXPECT_EQ(corner.y, y);
    EXPECT_EQ(left->GetBounds().Width(), width);
    EXPECT_EQ(left->GetBounds().Height(), height);
    EXPECT_EQ(S_OK, bar->accLocation(&x, &y, &width, &height, child(CHILDID_SELF)));
    EXPECT_EQ(desk.bar->GetWindowRect(), owl::TRect(x, y, x + width, y + height));
    EXPECT_EQ(3, HitAt(desk.MiddleOf(*right)));
    EXPECT_EQ(CHILDID_SELF, HitAt({180, 5}));
    EXPECT_EQ(-1, HitAt({180, 200}));
}

TEST_F(BarAccessible, goes_from_gadget_to_gadget) {
    EXPECT_EQ(1, Navigate(NAVDIR_FIRSTCHILD, CHILDID_SELF));
    EXPECT_EQ(4, Navigate(NAVDIR_LASTCHILD, CHILDID_SELF));
    EXPECT_EQ(2, Navigate(NAVDIR_NEXT, 1));
    EXPECT_EQ(-1, Navigate(NAVDIR_NEXT, 4));
    EXPECT_EQ(3, Navigate(NAVDIR_PREVIOUS, 4));
    EXPECT_EQ(-1, Navigate(NAVDIR_PREVIOUS, 1));
    EXPECT_EQ(-1, Navigate(NAVDIR_UP, 2));
}

TEST_F(BarAccessible, presses_buttons) {
    EXPECT_EQ("Press", Action(1));
    EXPECT_EQ("", Action(CHILDID_SELF));
    EXPECT_EQ(S_OK, bar->accDoDefaultAction(child(1)));
    EXPECT_EQ(S_OK, bar->accDoDefaultAction(child(3)));
    EXPECT_EQ(S_OK, bar->accDoDefaultAction(child(4)));
    EXPECT_EQ(LVXButtonGadget::Down, right->GetButtonState());
    EXPECT_EQ(LVXButtonGadget::Down, grid->GetButtonState());
    EXPECT_TRUE(desk::PumpUntil([&] { return desk.frame->commands.size() == 3; }));
    EXPECT_EQ((std::vector<int>{CM_SAVE, CM_RIGHT, CM_GRID}), desk.frame->TakeCommands());
    save->SetEnabled(false);
    EXPECT_EQ(S_FALSE, bar->accDoDefaultAction(child(1)));
    EXPECT_EQ(DISP_E_MEMBERNOTFOUND, bar->accDoDefaultAction(child(CHILDID_SELF)));
    desk.Pump();
    EXPECT_TRUE(desk.frame->commands.empty());
}

TEST_F(BarAccessible, presses_gadgets_that_are_no_buttons_of_the_library) {
    desk.Add(new gadgets::Probe(77));
    EXPECT_EQ(ROLE_SYSTEM_PUSHBUTTON, Role(5));
    EXPECT_EQ(0, State(5));
    EXPECT_EQ(S_OK, bar->accDoDefaultAction(child(5)));
    EXPECT_TRUE(desk::PumpUntil([&] { return !desk.frame->commands.empty(); }));
    EXPECT_EQ(std::vector<int>{77}, desk.frame->TakeCommands());
}

TEST_F(BarAccessible, has_objects_for_controls_and_none_for_gadgets) {
    IDispatch* object = nullptr;
    EXPECT_EQ(S_FALSE, bar->get_accChild(child(4), &object));
    EXPECT_EQ(nullptr, object);
    ASSERT_EQ(S_OK, bar->get_accChild(child(5), &object));
    IAccessible* found = nullptr;
    ASSERT_EQ(S_OK, object->QueryInterface(__uuidof(IAccessible), reinterpret_cast<void**>(&found)));
    object->Release();
    const Accessible button(found);
    HWND window = nullptr;
    EXPECT_EQ(S_OK, ::WindowFromAccessibleObject(button.get(), &window));
    EXPECT_EQ(control->GetHandle(), window);
    IDispatch* parent = nullptr;
    ASSERT_EQ(S_OK, bar->get_accParent(&parent));
    parent->Release();
}

TEST_F(BarAccessible, refuses_what_is_no_child) {
    VARIANT answer{};
    BSTR text = nullptr;
    IDispatch* object = nullptr;
    VARIANT odd{};
    odd.vt = VT_EMPTY;
    for (const VARIANT& wrong : {child(-1), child(5), child(1000), odd}) {
        EXPECT_EQ(E_INVALIDARG, bar->get_accRole(wrong, &answer));
        EXPECT_EQ(E_INVALIDARG, bar->get_accName(wrong, &text));
        EXPECT_EQ(E_INVALIDARG, bar->accDoDefaultAction(wrong));
    }
    EXPECT_EQ(E_INVALIDARG, bar->get_accChild(child(6), &object));
    EXPECT_EQ(E_INVALIDARG, bar->get_accChild(odd, &object));
}

TEST_F(BarAccessible, has_nothing_more_to_tell) {
    BSTR text = nullptr;
    VARIANT answer{};
    EXPECT_EQ(S_FALSE, bar->get_accValue(child(1), &text));
    EXPECT_EQ(S_FALSE, bar->get_accDescription(child(1), &text));
    EXPECT_EQ(S_FALSE, bar->get_accHelp(child(1), &text));
    EXPECT_EQ(S_FALSE, bar->get_accKeyboardShortcut(child(1), &text));
    EXPECT_EQ(S_FALSE, bar->get_accFocus(&answer));
    EXPECT_EQ(S_FALSE, bar->get_accSelection(&answer));
    EXPECT_EQ(DISP_E_MEMBERNOTFOUND, bar->accSelect(SELFLAG_TAKEFOCUS, child(1)));
    EXPECT_EQ(DISP_E_MEMBERNOTFOUND, bar->put_accName(child(1), nullptr));
    EXPECT_EQ(DISP_E_MEMBERNOTFOUND, bar->put_accValue(child(1), nullptr));
}

TEST_F(BarAccessible, may_outlive_the_bar) {
    delete desk.bar;
    VARIANT answer{};
    BSTR text = nullptr;
    LONG count = 0;
    EXPECT_EQ(CO_E_OBJNOTCONNECTED, bar->get_accRole(child(1), &answer));
    EXPECT_EQ(CO_E_OBJNOTCONNECTED, bar->get_accName(child(1), &text));
    EXPECT_EQ(CO_E_OBJNOTCONNECTED, bar->get_accChildCount(&count));
    EXPECT_EQ(CO_E_OBJNOTCONNECTED, bar->accDoDefaultAction(child(1)));
}

// The class itself, without the system between.
TEST_F(BarAccessible, is_an_object_of_com) {
    auto* const object = new lvx::controls::BarAccessible(desk.bar->GetHandle());
    void* found = nullptr;
    EXPECT_EQ(S_OK, object->QueryInterface(IID_IDispatch, &found));
    EXPECT_EQ(static_cast<IAccessible*>(object), found);
    EXPECT_EQ(1u, object->Release());
    EXPECT_EQ(E_NOINTERFACE, object->QueryInterface(IID_IStream, &found));
    EXPECT_EQ(nullptr, found);
    EXPECT_EQ(E_POINTER, object->QueryInterface(IID_IUnknown, nullptr));
    EXPECT_EQ(E_POINTER, object->get_accRole(child(1), nullptr));
    EXPECT_EQ(E_POINTER, object->get_accChild(child(1), nullptr));
    EXPECT_EQ(E_POINTER, object->get_accFocus(nullptr));
    UINT count = 9;
    EXPECT_EQ(S_OK, object->GetTypeInfoCount(&count));
    EXPECT_EQ(0u, count);
    EXPECT_EQ(E_NOTIMPL, object->GetTypeInfo(0, 0, nullptr));
    EXPECT_EQ(E_NOTIMPL, object->GetIDsOfNames(IID_NULL, nullptr, 0, 0, nullptr));
    EXPECT_EQ(E_NOTIMPL, object->Invoke(0, IID_NULL, 0, 0, nullptr, nullptr, nullptr, nullptr));
    EXPECT_EQ(0u, object->Release());
}
