#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>

#include "lvx/text/report.h"
#include "support/box_reader.h"
#include "tests/owl/desk.h"
#include "tests/owl/message_window.h"

namespace {

using lvx_test::BoxContents;
using lvx_test::BoxReader;

// Notes how often it came to the front.
class Frame : public owl::TFrameWindow {
public:
    explicit Frame(const char* title) : TFrameWindow(nullptr, title) { desk::Place(*this); }

    void EvActivate(UINT active, bool minimised, HWND other) {
        if (active != WA_INACTIVE) {
            ++activations;
        }
        TFrameWindow::EvActivate(active, minimised, other);
    }
    LRESULT Throw(WPARAM, LPARAM) { throw std::domain_error("in a handler"); }

    int activations = 0;

    DECLARE_RESPONSE_TABLE(Frame);
};

DEFINE_RESPONSE_TABLE1(Frame, owl::TFrameWindow)
    EV_WM_ACTIVATE, EV_MESSAGE(WM_USER + 1, Throw),
END_RESPONSE_TABLE;

// The main window, another frame of the application, and a third that has the front.
class ReportErrorTest : public testing::Test {
protected:
    ReportErrorTest() : application("Sketch 1.0"), main(new Frame("main")), frame("frame"), front("front") {
        MSG quit{};
        ::PeekMessageA(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
        application.SetMainWindow(main);
        for (owl::TFrameWindow* window : {main, &frame, &front}) {
            window->Create();
            window->ShowWindow(SW_SHOW);
        }
        EXPECT_TRUE(desk::Activate(front));
        main->activations = 0;
    }

    // Whether `window` comes to the front and stays there.
    static bool HasFront(HWND window) {
        const auto has_front = [&] { return ::GetForegroundWindow() == window; };
        return desk::PumpUntil(has_front) && !desk::PumpUntil([&] { return !has_front(); }, 120);
    }

    owl::TApplication application;
    Frame* main;
    Frame frame;
    Frame front;
};

HICON exclamation() {
    return ::LoadIconA(nullptr, IDI_EXCLAMATION);
}

}  // namespace

TEST_F(ReportErrorTest, shows_the_text_in_a_box_of_the_window) {
    BoxReader reader;
    report_error(&frame, "bad %d of %s", 7, "stars");
    const BoxContents& box = reader.Contents();
    EXPECT_TRUE(box.found);
    EXPECT_EQ("Sketch 1.0", box.caption);
    EXPECT_EQ("bad 7 of stars", box.text);
    EXPECT_EQ(exclamation(), box.icon);
    EXPECT_EQ(frame.GetHandle(), box.owner);
    EXPECT_TRUE(box.closed);
}

TEST_F(ReportErrorTest, brings_the_main_window_to_the_front_and_then_back_what_was_there) {
    int activations = 0;
    BoxReader reader(::GetCurrentProcessId(), [&] { activations = main->activations; });
    report_error(&frame, "bad");
    EXPECT_TRUE(reader.Contents().closed);
    EXPECT_EQ(1, activations);
    EXPECT_TRUE(HasFront(front));
}

TEST_F(ReportErrorTest, above_the_main_window_gives_the_front_back_too) {
    BoxReader reader;
    report_error(main, "bad");
    EXPECT_EQ(main->GetHandle(), reader.Contents().owner);
    EXPECT_TRUE(HasFront(front));
}

TEST_F(ReportErrorTest, bears_that_the_window_in_front_goes_meanwhile) {
    auto passing = std::make_unique<owl_test::MessageWindow>(WS_POPUP | WS_CAPTION, 100, 50);
    const HWND handle = *passing;
    ::ShowWindow(handle, SW_SHOW);
    ::SetForegroundWindow(handle);
    ASSERT_TRUE(HasFront(handle));
    BoxReader reader(::GetCurrentProcessId(), [&] { ::SendMessageA(handle, WM_CLOSE, 0, 0); });
    report_error(&frame, "bad");
    EXPECT_TRUE(reader.Contents().closed);
    EXPECT_FALSE(::IsWindow(handle));
}

TEST_F(ReportErrorTest, without_a_window_has_no_owner_and_a_caption_of_its_own) {
    int activations = 0;
    BoxReader reader(::GetCurrentProcessId(), [&] { activations = main->activations; });
    report_error(nullptr, "%s", "no window");
    const BoxContents& box = reader.Contents();
    EXPECT_EQ("Error", box.caption);
    EXPECT_EQ("no window", box.text);
    EXPECT_EQ(exclamation(), box.icon);
    EXPECT_EQ(nullptr, box.owner);
    EXPECT_EQ(0, activations);
    EXPECT_TRUE(box.closed);
}

TEST_F(ReportErrorTest, shows_a_text_of_more_than_a_screen_as_far_as_there_is_room) {
    const std::string text = std::string(4095, 'x') + "not shown";
    BoxReader reader;
    report_error(nullptr, "%s", text.c_str());
    EXPECT_EQ(std::string(4095, 'x'), reader.Contents().text);
    BoxReader second;
    report_error(&frame, "%s", text.c_str());
    EXPECT_EQ(std::string(4095, 'x'), second.Contents().text);
}

TEST_F(ReportErrorTest, above_a_window_that_was_not_created_has_no_owner) {
    Frame hidden("hidden");
    BoxReader reader;
    report_error(&hidden, "bad");
    EXPECT_EQ("Sketch 1.0", reader.Contents().caption);
    EXPECT_EQ(nullptr, reader.Contents().owner);
    EXPECT_TRUE(HasFront(front));
}

TEST_F(ReportErrorTest, needs_no_main_window) {
    application.SetMainWindow(nullptr);
    BoxReader reader;
    report_error(&frame, "bad");
    EXPECT_EQ("Sketch 1.0", reader.Contents().caption);
    EXPECT_EQ(frame.GetHandle(), reader.Contents().owner);
    EXPECT_TRUE(HasFront(front));
}

TEST_F(ReportErrorTest, needs_no_main_window_that_was_created) {
    application.SetMainWindow(new Frame("not created"));
    BoxReader reader;
    report_error(&frame, "bad");
    EXPECT_EQ(frame.GetHandle(), reader.Contents().owner);
    EXPECT_TRUE(HasFront(front));
}

TEST_F(ReportErrorTest, leaves_an_exception_of_a_handler_for_the_loop_of_the_program) {
    BoxReader reader(::GetCurrentProcessId(), [&] { ::SendMessageA(frame.GetHandle(), WM_USER + 1, 0, 0); });
    report_error(&frame, "bad");
    EXPECT_TRUE(reader.Contents().closed);
    EXPECT_THROW(application.PumpWaitingMessages(), std::domain_error);
}

TEST_F(ReportErrorTest, outlives_its_window) {
    auto passing = std::make_unique<Frame>("passing");
    passing->Create();
    BoxReader reader(::GetCurrentProcessId(), [&] {
        ::SendMessageA(*passing, WM_CLOSE, 0, 0);
        // The loop of a box looks whether that is still there behind a message only.
        ::PostMessageA(*main, WM_NULL, 0, 0);
    });
    report_error(passing.get(), "bad");
    EXPECT_TRUE(reader.Contents().found);
    EXPECT_FALSE(passing->IsWindow());
}

TEST(ReportError, needs_no_application) {
    Frame frame("alone");
    frame.Create();
    frame.ShowWindow(SW_SHOW);
    ASSERT_TRUE(desk::Activate(frame));
    BoxReader reader;
    report_error(&frame, "bad %c", 'x');
    EXPECT_EQ("Error", reader.Contents().caption);
    EXPECT_EQ("bad x", reader.Contents().text);
    EXPECT_EQ(frame.GetHandle(), reader.Contents().owner);
    EXPECT_EQ(exclamation(), reader.Contents().icon);
}
