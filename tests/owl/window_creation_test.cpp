#include <gtest/gtest.h>

#include <stdexcept>

#include "owl/error.h"
#include "tests/owl/desk.h"

namespace {

using owl::TWindow;

struct WindowCreation : testing::Test {
    desk::Desk desk;
};

class Steps : public TWindow {
public:
    explicit Steps(TWindow* parent) : TWindow(parent) {}

    void SetupWindow() override {
        TWindow::SetupWindow();
        steps.push_back(IsWindow() ? "setup" : "setup without a window");
        if (throws)
            throw std::runtime_error("no");
    }
    void CleanupWindow() override { steps.push_back(IsWindow() ? "cleanup" : "cleanup without a window"); }
    bool CanClose() override { return agrees; }
    int EvCreate(CREATESTRUCTA& create) {
        given = create.lpCreateParams;
        if (throwsEarly)
            throw std::runtime_error("early");
        return refuses ? -1 : 0;
    }

    std::vector<std::string> steps;
    void* given = nullptr;
    bool throws = false;
    bool throwsEarly = false;
    bool refuses = false;
    bool agrees = true;

    DECLARE_RESPONSE_TABLE(Steps);
};

DEFINE_RESPONSE_TABLE1(Steps, TWindow)
    EV_WM_CREATE,
END_RESPONSE_TABLE;

class OwnClass : public TWindow {
public:
    using TWindow::TWindow;

protected:
    const char* GetClassName() override { return "owl_window_creation_test"; }
    void GetWindowClass(WNDCLASSA& windowClass) override {
        TWindow::GetWindowClass(windowClass);
        windowClass.style = CS_HREDRAW | CS_VREDRAW | CS_PARENTDC;
        windowClass.hbrBackground = nullptr;
    }
};

class EditWindow : public TWindow {
public:
    using TWindow::TWindow;

protected:
    const char* GetClassName() override { return "EDIT"; }
};

class Unknown : public TWindow {
public:
    using TWindow::TWindow;

protected:
    void PerformCreate() override {
        Attr.Style = WS_CHILD;
        TWindow::PerformCreate();
    }
};

TEST_F(WindowCreation, makes_a_window_of_the_attributes) {
    TWindow window(desk.frame, "caption");
    window.Attr.Style = WS_CHILD | WS_BORDER;
    window.Attr.ExStyle = WS_EX_CLIENTEDGE;
    window.Attr.X = 10;
    window.Attr.Y = 20;
    window.Attr.W = 130;
    window.Attr.H = 40;
    window.Attr.Id = 77;
    EXPECT_TRUE(window.Create());
    EXPECT_TRUE(window.IsWindow());
    EXPECT_EQ("caption", window.GetWindowText());
    EXPECT_EQ(77, ::GetDlgCtrlID(window.GetHandle()));
    EXPECT_EQ(desk.frame->GetHandle(), ::GetParent(window.GetHandle()));
    EXPECT_EQ(owl::TSize(130, 40), window.GetWindowRect().Size());
    EXPECT_NE(0U, window.GetStyle() & WS_BORDER);
    EXPECT_NE(0U, window.GetExStyle() & WS_EX_CLIENTEDGE);
}

TEST_F(WindowCreation, leaves_a_window_that_exists_as_it_is) {
    TWindow window(desk.frame);
    window.Create();
    const HWND handle = window.GetHandle();
    EXPECT_TRUE(window.Create());
    EXPECT_EQ(handle, window.GetHandle());
}

TEST_F(WindowCreation, calls_setup_with_the_window_and_cleanup_before_it_goes) {
    Steps window(desk.frame);
    window.Create();
    EXPECT_EQ(std::vector<std::string>{"setup"}, window.steps);
    ::DestroyWindow(window.GetHandle());
    EXPECT_EQ((std::vector<std::string>{"setup", "cleanup"}), window.steps);
    EXPECT_FALSE(window.IsWindow());
}

TEST_F(WindowCreation, works_again_after_the_window_is_gone) {
    Steps window(desk.frame);
    window.Create();
    window.Destroy();
    window.Create();
    EXPECT_TRUE(window.IsWindow());
    EXPECT_EQ((std::vector<std::string>{"setup", "cleanup", "setup"}), window.steps);
}

TEST_F(WindowCreation, hands_the_parameter_to_the_windows_first_messages) {
    Steps window(desk.frame);
    int mark = 0;
    window.Attr.Param = &mark;
    window.Create();
    EXPECT_EQ(&mark, window.given);
}

TEST_F(WindowCreation, throws_what_setup_throws_and_leaves_no_window) {
    Steps window(desk.frame);
    window.throws = true;
    const int before = desk::CountWindows();
    EXPECT_THROW(window.Create(), std::runtime_error);
    EXPECT_FALSE(window.IsWindow());
    EXPECT_EQ(before, desk::CountWindows());
}

TEST_F(WindowCreation, throws_what_a_handler_threw_meanwhile) {
    Steps window(desk.frame);
    window.throwsEarly = true;
    EXPECT_THROW(window.Create(), std::runtime_error);
    EXPECT_FALSE(window.IsWindow());
    EXPECT_NO_THROW(desk.application.PumpWaitingMessages());
}

TEST_F(WindowCreation, throws_when_the_window_refuses_to_come) {
    Steps window(desk.frame);
    window.refuses = true;
    EXPECT_THROW(window.Create(), owl::TXWindow);
    EXPECT_FALSE(window.IsWindow());
}

TEST_F(WindowCreation, throws_the_systems_reason_for_a_child_without_a_parent) {
    TWindow window(static_cast<TWindow*>(nullptr));
    try {
        window.Create();
        FAIL();
    } catch (const owl::TXWindow& error) {
        EXPECT_EQ(0U, std::string(error.what()).find("CreateWindow: ")) << error.what();
        EXPECT_EQ(static_cast<DWORD>(ERROR_TLW_WITH_WSCHILD), error.GetCode());
    }
}

TEST_F(WindowCreation, registers_a_class_by_its_name) {
    OwnClass first(desk.frame);
    OwnClass second(desk.frame);
    first.Create();
    second.Create();
    WNDCLASSA registered{};
    ASSERT_TRUE(::GetClassInfoA(desk.application.GetInstance(), "owl_window_creation_test", &registered));
    EXPECT_EQ(static_cast<UINT>(CS_HREDRAW | CS_VREDRAW | CS_PARENTDC), registered.style);
    EXPECT_EQ(nullptr, registered.hbrBackground);
    char name[64] = "";
    ::GetClassNameA(second.GetHandle(), name, sizeof(name));
    EXPECT_STREQ("owl_window_creation_test", name);
}

TEST_F(WindowCreation, uses_a_class_of_the_system_and_keeps_what_it_does) {
    EditWindow window(desk.frame, "ten");
    window.Create();
    EXPECT_EQ(3, window.SendMessage(EM_LINELENGTH));
    EXPECT_EQ(&window, owl::GetWindowPtr(window.GetHandle()));
}

TEST_F(WindowCreation, creates_the_children_that_ask_for_it) {
    TWindow parent(desk.frame);
    auto* wanted = new TWindow(&parent);
    auto* later = new TWindow(&parent);
    later->EnableAutoCreate(false);
    parent.Create();
    EXPECT_TRUE(wanted->IsWindow());
    EXPECT_FALSE(later->IsWindow());
}

TEST_F(WindowCreation, of_a_control_that_the_dialog_lacks_throws) {
    TWindow control(desk.frame);
    control.Attr.Id = 4711;
    control.SetFlag(owl::wfFromResource);
    EXPECT_THROW(control.Create(), owl::TXWindow);
}

TEST_F(WindowCreation, takes_a_control_over_by_its_number) {
    const HWND handle =
        ::CreateWindowExA(0, "EDIT", "there", WS_CHILD, 0, 0, 50, 20, desk.frame->GetHandle(),
                          reinterpret_cast<HMENU>(static_cast<UINT_PTR>(4712)), nullptr, nullptr);
    TWindow control(desk.frame);
    control.Attr.Id = 4712;
    control.SetFlag(owl::wfFromResource);
    control.Create();
    EXPECT_EQ(handle, control.GetHandle());
    EXPECT_EQ("there", control.GetCaption());
}

TEST_F(WindowCreation, children_are_asked_before_a_window_closes) {
    TWindow parent(desk.frame);
    auto* child = new Steps(&parent);
    parent.Create();
    child->agrees = false;
    parent.CloseWindow();
    EXPECT_TRUE(parent.IsWindow());
    child->agrees = true;
    parent.CloseWindow();
    EXPECT_FALSE(parent.IsWindow());
}

TEST_F(WindowCreation, children_go_with_their_parents_window) {
    TWindow parent(desk.frame);
    auto* child = new Steps(&parent);
    parent.Create();
    parent.Destroy();
    EXPECT_FALSE(child->IsWindow());
    EXPECT_EQ((std::vector<std::string>{"setup", "cleanup"}), child->steps);
}

TEST_F(WindowCreation, may_be_undone_by_the_setup) {
    class Shy : public Steps {
    public:
        using Steps::Steps;
        void SetupWindow() override {
            Steps::SetupWindow();
            Destroy();
        }
    };
    Shy window(desk.frame);
    EXPECT_TRUE(window.Create());
    EXPECT_FALSE(window.IsWindow());
    EXPECT_EQ((std::vector<std::string>{"setup", "cleanup"}), window.steps);
}

TEST_F(WindowCreation, throws_when_the_window_refuses_its_very_first_message) {
    class Refusing : public TWindow {
    public:
        using TWindow::TWindow;
        LRESULT WindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override {
            return msg == WM_NCCREATE ? 0 : TWindow::WindowProc(msg, wParam, lParam);
        }
    };
    Refusing window(desk.frame);
    const int before = desk::CountWindows();
    EXPECT_THROW(window.Create(), owl::TXWindow);
    EXPECT_FALSE(window.IsWindow());
    EXPECT_EQ(before, desk::CountWindows());
}

}  // namespace
