#include "owl/window.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <utility>

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

// Who had set the parent by hand was deleted twice, for ever.
TEST_F(Window, ends_though_a_child_says_that_it_has_another_parent) {
    std::vector<int> dead;
    {
        TWindow parent(desk.frame);
        auto* child = new Dying(&parent, dead, 1);
        child->Parent = nullptr;
    }
    EXPECT_EQ(std::vector<int>{1}, dead);
}

TEST_F(Window, that_is_taken_over_is_known_by_its_number_and_not_created_again) {
    const HWND handle =
        ::CreateWindowExA(0, "EDIT", "text", WS_CHILD, 0, 0, 50, 20, desk.frame->GetHandle(),
                          reinterpret_cast<HMENU>(static_cast<UINT_PTR>(4713)), nullptr, nullptr);
    TWindow window(handle);
    EXPECT_EQ(&window, desk.frame->ChildWithId(4713));
    ::DestroyWindow(handle);
    desk.frame->CreateChildren();
    EXPECT_FALSE(window.IsWindow());
}

TEST_F(Window, is_no_child_of_itself_or_of_its_children) {
    TWindow parent(desk.frame);
    auto* child = new TWindow(&parent);
    EXPECT_THROW(parent.SetParent(child), owl::TXWindow);
    EXPECT_THROW(parent.SetParent(&parent), owl::TXWindow);
    EXPECT_EQ(desk.frame, parent.Parent);
    EXPECT_EQ(1U, parent.NumChildren());
}

// Does something when it is asked: deletes another window object, say.
class Acting : public TWindow {
public:
    Acting(TWindow* parent, std::vector<int>& theAsked, int theNumber)
        : TWindow(parent), asked(theAsked), number(theNumber) {}

    bool IdleAction(long) override { return Act(); }
    bool CanClose() override { return !Act(); }
    void EvSysColorChange() { Act(); }

    std::function<void()> action;

private:
    bool Act() {
        asked.push_back(number);
        if (action)
            std::exchange(action, nullptr)();
        return false;
    }

    std::vector<int>& asked;
    int number;

    DECLARE_RESPONSE_TABLE(Acting);
};

DEFINE_RESPONSE_TABLE1(Acting, TWindow)
    EV_WM_SYSCOLORCHANGE,
END_RESPONSE_TABLE;

struct WindowWalks : Window {
    WindowWalks() : parent(new TWindow(desk.frame)) {
        for (int number = 1; number <= 3; ++number)
            children.push_back(new Acting(parent, asked, number));
        parent->Create();
    }

    // Each walk over the children, with what the first child does in it.
    void Walk(const std::function<void()>& walk, const std::function<void()>& action) {
        asked.clear();
        children[0]->action = action;
        walk();
    }

    TWindow* parent;
    std::vector<int> asked;
    std::vector<Acting*> children;
};

TEST_F(WindowWalks, pass_over_a_child_that_went_meanwhile) {
    const std::vector<std::function<void()>> walks{
        [&] { parent->IdleAction(0); },
        [&] { parent->CanClose(); },
        [&] { parent->SendMessage(WM_SYSCOLORCHANGE); },
    };
    for (const auto& walk : walks) {
        // Another window object may come to lie in its place.
        std::unique_ptr<Acting> stranger;
        Walk(walk, [&] {
            delete std::exchange(children[1], nullptr);
            stranger = std::make_unique<Acting>(desk.frame, asked, 9);
            stranger->Create();
        });
        EXPECT_EQ((std::vector<int>{1, 3}), asked);
        delete std::exchange(children[2], nullptr);
        for (const int number : {2, 3}) {
            children[static_cast<std::size_t>(number) - 1] = new Acting(parent, asked, number);
            parent->CreateChildren();
        }
    }
}

TEST_F(WindowWalks, end_with_the_parent) {
    Walk([&] { parent->IdleAction(0); }, [&] { delete parent; });
    EXPECT_EQ(std::vector<int>{1}, asked);
}

TEST_F(WindowWalks, that_ask_whether_to_close_may_end_the_parent) {
    Walk([&] { parent->CloseWindow(); }, [&] { delete parent; });
    EXPECT_EQ(std::vector<int>{1}, asked);
    EXPECT_EQ(0U, desk.frame->NumChildren());
}

}  // namespace
