// Which printer, which pages, how many copies: what the user chooses and what there is to choose from.
#include <gtest/gtest.h>

#include "drawing/printed_drawing.h"

using lvx_test::Pages;
using lvx_test::QuietPrinter;
using owl_test::DefaultPrinter;
using owl_test::FilePrinter;

namespace {

class PrinterSetup : public lvx_test::PrinterTest {};

/// What the box said that was closed.
std::string box_text;

void CALLBACK close_box(HWND, UINT, UINT_PTR timer, DWORD) {
    const HWND box = ::FindWindowA("#32770", "Print");
    const HWND text = box != nullptr ? ::GetDlgItem(box, 0xFFFF) : nullptr;
    if (text == nullptr) {
        return;
    }
    ::KillTimer(nullptr, timer);
    char buffer[200] = "";
    ::GetWindowTextA(text, buffer, sizeof buffer);
    box_text = buffer;
    ::PostMessageA(box, WM_COMMAND, IDOK, 0);
}

void close_box_when_it_comes() {
    box_text.clear();
    ::SetTimer(nullptr, 0, 100, &close_box);
}

}  // namespace

TEST_F(PrinterSetup, lets_the_user_choose_among_its_pages) {
    printer.answer = [](owl::TPrintDialog::TData& data) {
        EXPECT_EQ(1, data.MinPage);
        EXPECT_EQ(5, data.MaxPage);
        EXPECT_EQ(1, data.FromPage);
        EXPECT_EQ(5, data.ToPage);
        EXPECT_EQ(1, data.Copies);
        EXPECT_EQ(0u, data.Flags & PD_NOPAGENUMS);
        data.Flags |= PD_PAGENUMS;
        data.FromPage = 2;
        data.ToPage = 4;
    };
    EXPECT_TRUE(Print(5, true));
    EXPECT_EQ("2 3 4 ", pages.calls);
    EXPECT_EQ("gbr", Printed());
}

TEST_F(PrinterSetup, makes_the_copies_that_the_user_wants) {
    printer.answer = [](owl::TPrintDialog::TData& data) { data.Copies = 2; };
    EXPECT_TRUE(Print(2, true));
    EXPECT_EQ("rrgg", Printed());
    printer.answer = [](owl::TPrintDialog::TData& data) {
        EXPECT_EQ(1, data.Copies) << "not as many as the last time";
        data.Copies = 2;
        data.Flags |= PD_COLLATE;
    };
    EXPECT_TRUE(Print(2, true));
    EXPECT_EQ("rgrg", Printed());
    EXPECT_TRUE(Print(2));
    EXPECT_EQ("rg", Printed());
}

TEST_F(PrinterSetup, prepares_the_setup_anew_for_each_job) {
    owl::TPrintDialog::TData& setup = printer.GetSetup();
    setup.Copies = 7;
    setup.MinPage = setup.FromPage = 3;
    setup.MaxPage = setup.ToPage = 4;
    setup.Flags = PD_PAGENUMS;
    EXPECT_TRUE(Print(2));
    EXPECT_EQ("rg", Printed());
    EXPECT_EQ(1, setup.Copies);
    EXPECT_EQ(1, setup.MinPage);
    EXPECT_EQ(2, setup.MaxPage);
    EXPECT_EQ(1, setup.FromPage);
    EXPECT_EQ(2, setup.ToPage);
    EXPECT_EQ(DWORD{PD_PAGENUMS}, setup.Flags);
}

TEST_F(PrinterSetup, is_driven_through_the_systems_dialog) {
    class AskingPrinter : public owl::TPrinter {
    protected:
        bool ExecPrintDialog(owl::TWindow* parent, owl::TPrintDialog::TData& data) override {
            constexpr int some_pages = 0x422;
            desk::Driven<owl::TPrintDialog> dialog(parent, data);
            dialog.action = [&] {
                ASSERT_TRUE(desk::Activate(dialog));
                desk::Press({VK_MENU, 'G'});
                EXPECT_TRUE(
                    desk::PumpUntil([&] { return dialog.IsDlgButtonChecked(some_pages) == BST_CHECKED; }));
                dialog.SetDlgItemText(0x480, "3");
                dialog.SetDlgItemText(0x481, "3");
                desk::Press({VK_RETURN});
            };
            return dialog.Execute() == IDOK;
        }
    };
    AskingPrinter asking;
    LVXPrinter drawing("Drawing", &asking);
    Pages thePages(drawing);
    drawing.setCallback(&thePages);
    ASSERT_TRUE(desk::Activate(*desk.frame));
    EXPECT_TRUE(drawing.print(desk.frame, true, 3));
    EXPECT_EQ("3 ", thePages.calls);
    EXPECT_EQ("b", Printed());
}

TEST_F(PrinterSetup, prints_nothing_when_the_user_cancels) {
    printer.answer = nullptr;
    EXPECT_FALSE(Print(3, true));
    EXPECT_EQ("nothing", Printed());
    EXPECT_EQ("", pages.calls);
    EXPECT_EQ("", printer.reports);
    EXPECT_EQ(1, printer.asked);
}

// Other ways to a printer

TEST_F(PrinterSetup, goes_to_the_default_printer_when_none_is_given) {
    LVXPrinter plain("Drawing", nullptr);
    Pages thePages(plain);
    plain.setCallback(&thePages);
    EXPECT_TRUE(plain.print(nullptr, false, 2));
    EXPECT_EQ("1 2 ", thePages.calls);
    EXPECT_EQ("rg", Printed());
    EXPECT_EQ(nullptr, plain.CreateICA());
}

TEST_F(PrinterSetup, goes_to_the_printer_that_was_chosen) {
    const FilePrinter other;
    printer.SetPrinter("winspool", file.Name(), nullptr);
    EXPECT_TRUE(Print(1));
    EXPECT_FALSE(other.HasPrinted());
    EXPECT_EQ("r", Printed());
}

TEST_F(PrinterSetup, goes_by_its_title) {
    EXPECT_EQ("Drawing", device.GetTitle());
    const LVXPrinter nameless(nullptr, &printer);
    EXPECT_EQ("", nameless.GetTitle());
}

TEST_F(PrinterSetup, makes_a_context_to_ask_what_the_printer_can) {
    EXPECT_FALSE(printer.GetSetup().HasDevice());
    const HDC byDefault = device.CreateICA();
    EXPECT_EQ(300, ::GetDeviceCaps(byDefault, LOGPIXELSX));
    EXPECT_EQ(2500, ::GetDeviceCaps(byDefault, HORZRES));
    EXPECT_EQ(DT_RASPRINTER, ::GetDeviceCaps(byDefault, TECHNOLOGY));
    EXPECT_TRUE(::DeleteDC(byDefault));
    EXPECT_FALSE(printer.GetSetup().HasDevice()) << "asking chooses nothing";
    printer.SetPrinter("winspool", file.Name(), nullptr);
    const HDC chosen = device.CreateICA();
    EXPECT_EQ(300, ::GetDeviceCaps(chosen, LOGPIXELSX));
    EXPECT_TRUE(::DeleteDC(chosen));
}

TEST_F(PrinterSetup, asks_by_the_settings_of_the_printer) {
    ASSERT_TRUE(owl::TPrintDialog(nullptr, printer.GetSetup()).ChooseDefault());
    DEVMODEA* const mode = printer.GetSetup().GetDevMode();
    ASSERT_NE(nullptr, mode);
    mode->dmOrientation = DMORIENT_LANDSCAPE;
    mode->dmFields |= DM_ORIENTATION;
    const HDC landscape = device.CreateICA();
    EXPECT_EQ(1250, ::GetDeviceCaps(landscape, HORZRES));
    EXPECT_EQ(2500, ::GetDeviceCaps(landscape, VERTRES));
    ::DeleteDC(landscape);
}

TEST_F(PrinterSetup, has_no_context_of_a_printer_that_is_gone) {
    printer.SetPrinter("winspool", "no such printer of ours", nullptr);
    EXPECT_EQ(nullptr, device.CreateICA());
}

// Nothing is installed in these.

TEST(NoPrinter, is_told_by_the_printer_that_was_given) {
    ASSERT_EQ("", DefaultPrinter::Name());
    const desk::Desk desk;
    QuietPrinter printer;
    LVXPrinter device("Drawing", &printer);
    EXPECT_FALSE(device.print(desk.frame, false, 1));
    EXPECT_EQ("Drawing: there is no default printer\n", printer.reports);
    EXPECT_EQ(nullptr, device.CreateICA());
    EXPECT_EQ(nullptr, device.AcquireDC());
}

TEST(NoPrinter, is_told_in_a_box_when_none_was_given) {
    ASSERT_EQ("", DefaultPrinter::Name());
    const desk::Desk desk;
    const desk::Watchdog watchdog;
    LVXPrinter device("Drawing", nullptr);
    for (const bool prompt : {false, true}) {
        close_box_when_it_comes();
        EXPECT_FALSE(device.print(desk.frame, prompt, 1));
        EXPECT_EQ("\"Drawing\" could not be printed:\nthere is no default printer", box_text);
    }
}
