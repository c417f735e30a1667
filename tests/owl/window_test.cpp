#include "owl/window.h"

#include <gtest/gtest.h>

#include "owl/error.h"
#include "tests/owl/desk.h"

namespace {

using owl::TWindow;

struct Window : testing::Test {
    desk::Desk desk;
};

class Dying : public TWindow {
public:
    Dying(TWindow* parent, std::vector<int>& theDead, int theNumber)
        : TWindow(parent), dead(theDead), number(theNumber) {
        Attr.Id = theNumber;
    }
    ~Dying() override { dead.push_back(number); }

    bool IdleAction(long) override { return wantsMore; }

    std::vector<int>& dead;
    int number;
    bool wantsMore = false;
};

class Left : public TWindow {
public:
    using TWindow::TWindow;

    std::vector<const TWindow*> gone;

protected:
    void ChildLeft(const TWindow& child) override { gone.push_back(&child); }
};

WNDPROC below = nullptr;

LRESULT CALLBACK Later(HWND window, UINT msg, WPARAM wParam, LPARAM lParam) {
    return ::CallWindowProcA(below, window, msg, wParam, lParam);
}

TEST_F(Window, deletes_its_children_from_the_last_to_the_first) {
    std::vector<int> dead;
    {
        TWindow parent(desk.frame);
        new Dying(&parent, dead, 1);
        new Dying(&parent, dead, 2);
        new Dying(&parent, dead, 3);
    }
    EXPECT_EQ((std::vector<int>{3, 2, 1}), dead);
}

TEST_F(Window, that_ends_takes_itself_out_of_its_parent) {
    std::vector<int> dead;
    TWindow parent(desk.frame);
    auto* first = new Dying(&parent, dead, 1);
    auto* second = new Dying(&parent, dead, 2);
    delete first;
    EXPECT_EQ(std::vector<TWindow*>{second}, parent.GetChildren());
}

TEST_F(Window, learns_that_a_child_ends_or_goes_to_another_parent) {
    Left parent(desk.frame);
    auto* first = new TWindow(&parent);
    auto* second = new TWindow(&parent);
    delete first;
    EXPECT_EQ(std::vector<const TWindow*>{first}, parent.gone);
    second->SetParent(desk.frame);
    EXPECT_EQ((std::vector<const TWindow*>{first, second}), parent.gone);
}

TEST_F(Window, finds_a_child_by_its_number) {
    std::vector<int> dead;
    TWindow parent(desk.frame);
    new Dying(&parent, dead, 1);
    auto* second = new Dying(&parent, dead, 2);
    EXPECT_EQ(second, parent.ChildWithId(2));
    EXPECT_EQ(nullptr, parent.ChildWithId(3));
    EXPECT_EQ(2U, parent.NumChildren());
}

TEST_F(Window, changes_its_parent_with_its_window) {
    TWindow left(desk.frame);
    TWindow right(desk.frame);
    left.Create();
    right.Create();
    auto* child = new TWindow(&left);
    child->Create();
    child->SetParent(&right);
    EXPECT_EQ(&right, child->Parent);
    EXPECT_EQ(0U, left.NumChildren());
    EXPECT_EQ(1U, right.NumChildren());
    EXPECT_EQ(right.GetHandle(), ::GetParent(child->GetHandle()));
}

TEST_F(Window, without_a_module_takes_its_parents_and_at_last_the_applications) {
    owl::TModule module("module");
    TWindow parent(desk.frame, nullptr, &module);
    TWindow child(&parent);
    EXPECT_EQ(&module, child.GetModule());
    EXPECT_EQ(&desk.application, desk.frame->GetModule());
    child.SetParent(nullptr);
}

TEST_F(Window, takes_over_a_window_that_exists_and_gives_it_back) {
    const HWND handle = ::CreateWindowExA(0, "EDIT", "text", WS_CHILD, 0, 0, 50, 20, desk.frame->GetHandle(),
                                          nullptr, nullptr, nullptr);
    const LONG_PTR procedure = ::GetWindowLongPtrA(handle, GWLP_WNDPROC);
    {
        TWindow window(handle);
        EXPECT_EQ(&window, owl::GetWindowPtr(handle));
        EXPECT_EQ(desk.frame, window.Parent);
        EXPECT_EQ("text", window.GetCaption());
        EXPECT_NE(procedure, ::GetWindowLongPtrA(handle, GWLP_WNDPROC));
    }
    EXPECT_TRUE(::IsWindow(handle));
    EXPECT_EQ(nullptr, owl::GetWindowPtr(handle));
    EXPECT_EQ(procedure, ::GetWindowLongPtrA(handle, GWLP_WNDPROC));
}

// Another subclass keeps our procedure's address and calls it when the object is gone.
TEST_F(Window, whose_object_is_gone_still_works_below_a_procedure_that_came_later) {
    const HWND handle = ::CreateWindowExA(0, "EDIT", "text", WS_CHILD, 0, 0, 50, 20, desk.frame->GetHandle(),
                                          nullptr, nullptr, nullptr);
    {
        TWindow window(handle);
        below = reinterpret_cast<WNDPROC>(
            ::SetWindowLongPtrA(handle, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Later)));
    }
    ::SetWindowTextA(handle, "still an edit");
    EXPECT_EQ(13, ::SendMessageA(handle, EM_LINELENGTH, 0, 0));
}

TEST_F(Window, is_not_taken_over_twice) {
    EXPECT_THROW(TWindow(desk.frame->GetHandle()), owl::TXWindow);
}

TEST_F(Window, of_another_process_or_of_none_is_not_taken_over) {
    EXPECT_THROW(TWindow(static_cast<HWND>(nullptr)), owl::TXWindow);
    EXPECT_THROW(TWindow(::GetDesktopWindow()), owl::TXWindow);
}

TEST_F(Window, wants_more_idle_actions_when_a_child_does) {
    std::vector<int> dead;
    TWindow parent(desk.frame);
    auto* child = new Dying(&parent, dead, 1);
    EXPECT_FALSE(parent.IdleAction(0));
    child->wantsMore = true;
    EXPECT_TRUE(parent.IdleAction(0));
}

TEST_F(Window, thousand_of_them_leave_nothing_behind) {
    {
        TWindow warm(desk.frame);
        warm.Create();
    }
    const DWORD before = desk::UserObjects();
    const int windows = desk::CountWindows();
    for (int i = 0; i < 1000; ++i) {
        TWindow window(desk.frame);
        window.Create();
        new TWindow(&window);
        window.CreateChildren();
        ASSERT_EQ(windows + 2, desk::CountWindows());
    }
    EXPECT_EQ(windows, desk::CountWindows());
    EXPECT_EQ(before, desk::UserObjects());
}

}  // namespace
