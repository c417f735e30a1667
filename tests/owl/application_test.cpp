#include "owl/application.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "owl/error.h"
#include "tests/owl/desk.h"

namespace {

using owl::TApplication;

class ClosingFrame : public owl::TFrameWindow {
public:
    ClosingFrame() : TFrameWindow(nullptr, "closing") {}

    bool CanClose() override {
        ++asked;
        return agrees;
    }
    bool IdleAction(long idleCount) override {
        idle.push_back(idleCount);
        return TFrameWindow::IdleAction(idleCount);
    }
    LRESULT Throw(WPARAM, LPARAM) { throw std::domain_error("in a handler"); }

    int asked = 0;
    bool agrees = true;
    std::vector<long> idle;

    DECLARE_RESPONSE_TABLE(ClosingFrame);
};

DEFINE_RESPONSE_TABLE1(ClosingFrame, owl::TFrameWindow)
    EV_MESSAGE(WM_USER + 1, Throw),
END_RESPONSE_TABLE;

class Program : public TApplication {
public:
    Program() : TApplication("program", nullptr, SW_SHOWNORMAL) {}

    void InitMainWindow() override {
        main = new ClosingFrame;
        SetMainWindow(main);
    }
    int TermInstance(int exitCode) override { return exitCode + 100; }

    ClosingFrame* main = nullptr;
};

TEST(Application, is_found_by_everybody_while_it_lives) {
    {
        TApplication application("one");
        EXPECT_EQ(&application, owl::GetApplicationObject());
        EXPECT_STREQ("one", application.GetName());
    }
    EXPECT_EQ(nullptr, owl::GetApplicationObject());
}

TEST(Application, throws_when_there_is_another) {
    TApplication application("one");
    EXPECT_THROW(TApplication("two"), owl::TXOwl);
    EXPECT_EQ(&application, owl::GetApplicationObject());
}

TEST(Application, runs_until_its_main_window_is_closed) {
    Program program;
    program.InitInstance();
    program.main->PostMessage(WM_CLOSE);
    EXPECT_EQ(100, program.Run());
    EXPECT_EQ(1, program.main->asked);
    EXPECT_FALSE(program.main->IsWindow());
}

TEST(Application, creates_and_shows_the_main_window) {
    Program program;
    program.InitInstance();
    ASSERT_NE(nullptr, program.GetMainWindow());
    EXPECT_TRUE(program.GetMainWindow()->IsWindowVisible());
    EXPECT_TRUE(program.IsMainWindow(*program.main));
}

TEST(Application, goes_on_when_the_main_window_refuses_to_close) {
    Program program;
    program.InitInstance();
    program.main->agrees = false;
    program.main->PostMessage(WM_CLOSE);
    EXPECT_TRUE(program.PumpWaitingMessages());
    EXPECT_EQ(1, program.main->asked);
    EXPECT_TRUE(program.main->IsWindow());
}

TEST(Application, lets_an_exception_out_of_Run_and_goes_on_when_run_again) {
    Program program;
    program.InitInstance();
    program.main->PostMessage(WM_USER + 1);
    EXPECT_THROW(program.Run(), std::domain_error);
    EXPECT_TRUE(program.main->IsWindow());
    program.main->PostMessage(WM_CLOSE);
    EXPECT_EQ(100, program.Run());
}

TEST(Application, passes_idle_actions_to_its_windows) {
    Program program;
    program.InitInstance();
    EXPECT_FALSE(program.IdleAction(0));
    EXPECT_FALSE(program.IdleAction(1));
    EXPECT_EQ((std::vector<long>{0, 1}), program.main->idle);
}

TEST(Application, passes_idle_actions_to_windows_without_a_parent) {
    Program program;
    program.InitInstance();
    ClosingFrame other;
    other.Create();
    program.IdleAction(0);
    EXPECT_EQ((std::vector<long>{0}), other.idle);
    EXPECT_EQ((std::vector<long>{0}), program.main->idle);
}

TEST(Application, has_a_frame_of_its_name_if_nobody_makes_another) {
    TApplication application("plain", nullptr, SW_HIDE);
    application.InitInstance();
    ASSERT_NE(nullptr, application.GetMainWindow());
    EXPECT_EQ("plain", application.GetMainWindow()->GetWindowText());
}

TEST(Application, ends_its_main_window_with_itself) {
    HWND handle = nullptr;
    {
        Program program;
        program.InitInstance();
        handle = program.main->GetHandle();
        ASSERT_TRUE(::IsWindow(handle));
    }
    EXPECT_FALSE(::IsWindow(handle));
    EXPECT_TRUE(owl::TMsgThread().PumpWaitingMessages());
}

TEST(Application, keeps_a_main_window_that_it_is_given_again) {
    Program program;
    program.InitInstance();
    program.SetMainWindow(program.main);
    EXPECT_EQ(program.main, program.GetMainWindow());
    EXPECT_TRUE(program.main->IsWindow());
}

TEST(Application, forgets_a_main_window_that_somebody_deletes) {
    Program program;
    program.InitInstance();
    delete program.main;
    EXPECT_EQ(nullptr, program.GetMainWindow());
    EXPECT_FALSE(program.PumpWaitingMessages());
    EXPECT_EQ(0, program.MessageLoop());
}

TEST(Application, ends_with_its_main_window_though_the_cleaning_up_throws) {
    class Unclean : public owl::TFrameWindow {
    public:
        Unclean() : TFrameWindow(nullptr, "unclean") {}
        void CleanupWindow() override { throw std::domain_error("cleanup"); }
    };
    TApplication program("program");
    program.SetMainWindow(new Unclean);
    program.InitInstance();
    program.GetMainWindow()->PostMessage(WM_CLOSE);
    EXPECT_THROW(program.MessageLoop(), std::domain_error);
    EXPECT_FALSE(program.PumpWaitingMessages());
    EXPECT_EQ(0, program.MessageLoop());
}

TEST(Application, ends_at_once_if_the_main_window_is_gone_when_it_is_set_up) {
    class Shy : public owl::TFrameWindow {
    public:
        Shy() : TFrameWindow(nullptr, "shy") {}
        void SetupWindow() override {
            TFrameWindow::SetupWindow();
            Destroy();
        }
    };
    TApplication program("program");
    program.SetMainWindow(new Shy);
    EXPECT_EQ(0, program.Run());
}

}  // namespace
