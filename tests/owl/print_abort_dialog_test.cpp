// The dialog that stands on the screen while a job is printed, and what may happen meanwhile.
#include "owl/print_abort_dialog.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "owl/print_abort_dialog_ids.h"
#include "owl/printer.h"
#include "tests/owl/driven_dialog.h"
#include "tests/owl/printed.h"

namespace {

using owl_test::ColouredPages;
using owl_test::FilePrinter;

class Printer : public owl::TPrinter {
public:
    void ReportError(owl::TWindow*, owl::TPrintout&) override { ++reports; }
    int reports = 0;
};

struct PrintAbortDialogTest : testing::Test {
    PrintAbortDialogTest() {
        EXPECT_EQ("", device.Problem());
        desk::Activate(*desk.frame);
    }

    static owl::TDialog* Dialog() {
        return dynamic_cast<owl::TDialog*>(owl::GetWindowPtr(::FindWindowA("#32770", "Printing")));
    }
    /// Prints, doing `action` while page 2 is drawn.
    bool PrintActing(const std::function<void()>& action) {
        printout.print = [action](int page) {
            if (page == 2)
                action();
        };
        return printer.Print(desk.frame, printout, false);
    }
    void ExpectCancelled() const {
        EXPECT_EQ(SP_USERABORT, printer.GetError());
        EXPECT_TRUE(printer.GetUserAbort());
        EXPECT_EQ("", printer.GetErrorText());
        EXPECT_EQ(0, printer.reports);
        EXPECT_EQ("info dc ( [ 1 2 ] ) no-dc ", printout.calls);
        EXPECT_FALSE(device.HasPrinted());
        EXPECT_EQ(nullptr, Dialog());
    }

    FilePrinter device;
    desk::Desk desk;
    desk::Watchdog watchdog;
    Printer printer;
    ColouredPages printout{std::vector<owl::TColor>(3, owl::TColor::Black)};
};

TEST_F(PrintAbortDialogTest, shows_what_is_printed_where) {
    std::string title, name, page;
    bool visible = false;
    bool enabled = true;
    HWND owner = nullptr;
    EXPECT_TRUE(PrintActing([&] {
        owl::TDialog* const dialog = Dialog();
        ASSERT_NE(nullptr, dialog);
        title = dialog->GetDlgItemText(IDC_OWL_PRINT_TITLE);
        name = dialog->GetDlgItemText(IDC_OWL_PRINT_DEVICE);
        page = dialog->GetDlgItemText(IDC_OWL_PRINT_PAGE);
        visible = dialog->IsWindowVisible();
        owner = ::GetWindow(dialog->GetHandle(), GW_OWNER);
        enabled = desk.frame->IsWindowEnabled();
    }));
    EXPECT_EQ("Coloured pages", title);
    EXPECT_EQ(device.Name(), name);
    EXPECT_EQ("Page 2", page);
    EXPECT_TRUE(visible);
    EXPECT_EQ(desk.frame->GetHandle(), owner);
    EXPECT_FALSE(enabled);
    EXPECT_EQ(nullptr, Dialog());
    EXPECT_TRUE(desk.frame->IsWindowEnabled());
    EXPECT_TRUE(desk::PumpUntil([&] { return ::GetActiveWindow() == desk.frame->GetHandle(); }));
}

TEST_F(PrintAbortDialogTest, cancels_by_the_escape_key) {
    EXPECT_FALSE(PrintActing([] {
        ASSERT_TRUE(desk::Activate(*Dialog()));
        desk::Press({VK_ESCAPE});
    }));
    ExpectCancelled();
    EXPECT_TRUE(desk.frame->IsWindowEnabled());
}

TEST_F(PrintAbortDialogTest, cancels_by_its_button_which_works_once) {
    EXPECT_FALSE(PrintActing([] {
        const HWND button = Dialog()->GetDlgItem(IDCANCEL);
        ::SendMessageA(button, BM_CLICK, 0, 0);
        EXPECT_FALSE(::IsWindowEnabled(button));
        EXPECT_TRUE(Dialog()->IsWindow());
    }));
    ExpectCancelled();
}

TEST_F(PrintAbortDialogTest, cancels_by_its_close_box) {
    EXPECT_FALSE(PrintActing([] { Dialog()->PostMessage(WM_CLOSE); }));
    ExpectCancelled();
}

TEST_F(PrintAbortDialogTest, is_not_needed_for_a_program_to_cancel) {
    EXPECT_FALSE(PrintActing([this] { printer.SetUserAbort(); }));
    ExpectCancelled();
}

TEST_F(PrintAbortDialogTest, cancels_one_job_and_not_the_next) {
    EXPECT_FALSE(PrintActing([this] { printer.SetUserAbort(); }));
    EXPECT_TRUE(PrintActing([] {}));
    EXPECT_EQ(0, printer.GetError());
}

TEST_F(PrintAbortDialogTest, that_goes_with_its_parent_cancels) {
    EXPECT_FALSE(PrintActing([this] { ::DestroyWindow(desk.frame->GetHandle()); }));
    ExpectCancelled();
    ASSERT_FALSE(desk.frame->IsWindow());
    desk.application.MessageLoop();
}

TEST_F(PrintAbortDialogTest, cancels_when_the_program_is_to_end) {
    EXPECT_FALSE(PrintActing([] { ::PostQuitMessage(42); }));
    ExpectCancelled();
    ASSERT_FALSE(HasFailure());
    EXPECT_EQ(42, desk.application.MessageLoop());
}

TEST_F(PrintAbortDialogTest, keeps_no_window_when_the_printout_throws) {
    EXPECT_THROW(PrintActing([] { throw std::length_error("page"); }), std::length_error);
    EXPECT_EQ(nullptr, Dialog());
    EXPECT_EQ(nullptr, printout.GetPrintDC());
    EXPECT_TRUE(desk.frame->IsWindowEnabled());
    EXPECT_EQ(0, printer.reports);
    EXPECT_TRUE(PrintActing([] {}));
}

// Messages of other windows are handled between pages.
TEST_F(PrintAbortDialogTest, lets_out_what_a_handler_of_another_window_throws) {
    class Thrower : public owl::TWindow {
    public:
        using TWindow::TWindow;
        LRESULT WindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override {
            if (msg == WM_APP)
                throw std::length_error("another");
            return TWindow::WindowProc(msg, wParam, lParam);
        }
    };
    auto* thrower = new Thrower(desk.frame);
    thrower->Create();
    EXPECT_THROW(PrintActing([&] { thrower->PostMessage(WM_APP); }), std::length_error);
    EXPECT_EQ(nullptr, Dialog());
    EXPECT_TRUE(desk.frame->IsWindowEnabled());
    EXPECT_FALSE(device.HasPrinted());
}

TEST_F(PrintAbortDialogTest, is_there_once_for_each_printer) {
    EXPECT_THROW(PrintActing([this] { printer.Print(desk.frame, printout, false); }), owl::TXOwl);
    EXPECT_TRUE(PrintActing([] {}));
}

TEST_F(PrintAbortDialogTest, lets_another_printer_print_meanwhile) {
    Printer other;
    ColouredPages inner({owl::TColor::Black});
    bool printed = false;
    EXPECT_TRUE(PrintActing([&] { printed = other.Print(desk.frame, inner, false); }));
    EXPECT_TRUE(printed);
    EXPECT_EQ("info dc ( [ 1 ] ) no-dc ", inner.calls);
    EXPECT_EQ("info dc ( [ 1 2 3 ] ) no-dc ", printout.calls);
}

TEST_F(PrintAbortDialogTest, twenty_jobs_leave_nothing_behind) {
    EXPECT_TRUE(PrintActing([] {}));
    const int windows = desk::CountWindows();
    for (int i = 0; i < 20; ++i)
        EXPECT_TRUE(PrintActing([] {}));
    EXPECT_EQ(windows, desk::CountWindows());
}

}  // namespace
