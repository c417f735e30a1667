#include "owl/printer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "owl/error.h"
#include "tests/owl/driven_dialog.h"
#include "tests/owl/printed.h"

namespace {

using owl::TColor;
using owl_test::ColouredPages;
using owl_test::DefaultPrinter;
using owl_test::FilePrinter;
using owl_test::RenderedPages;
using testing::StartsWith;

// What the system's own template calls its controls.
constexpr int all_pages = 0x420;
constexpr int selected_pages = 0x421;
constexpr int some_pages = 0x422;
constexpr int from_page = 0x480;
constexpr int to_page = 0x481;
constexpr int copies_box = 0x482;
constexpr int collate_box = 0x411;

const TColor red(255, 0, 0);
const TColor green(0, 255, 0);
const TColor blue(0, 0, 255);

// Does `action` with the print dialog, and keeps what it reports.
class Printer : public owl::TPrinter {
public:
    using TPrinter::TPrinter;

    void ReportError(owl::TWindow* parent, owl::TPrintout& printout) override {
        reports += printout.GetTitle() + ": " + GetErrorText() + "\n";
        parentTookInput = parent == nullptr || parent->IsWindowEnabled();
        hadContext = printout.GetPrintDC() != nullptr;
    }

    std::function<void(owl::TPrintDialog&)> action;
    std::string reports;
    bool parentTookInput = false;
    bool hadContext = true;
    int asked = 0;

protected:
    bool ExecPrintDialog(owl::TWindow* parent, owl::TPrintDialog::TData& data) override {
        ++asked;
        desk::Driven<owl::TPrintDialog> dialog(parent, data);
        dialog.action = [&] { action(dialog); };
        return dialog.Execute() == IDOK;
    }
};

std::string text_of_box;

// Reads the box with the application's name and answers it.
void CALLBACK ReadBox(HWND, UINT, UINT_PTR timer, DWORD) {
    const HWND box = ::FindWindowA("#32770", "desk");
    if (box == nullptr)
        return;
    ::KillTimer(nullptr, timer);
    char text[200] = "";
    ::GetDlgItemTextA(box, 0xFFFF, text, sizeof text);
    text_of_box = text;
    ::PostMessageA(box, WM_COMMAND, IDOK, 0);
}

struct PrinterTest : testing::Test {
    PrinterTest() {
        EXPECT_EQ("", device.Problem());
        desk::Activate(*desk.frame);
    }

    bool Print(bool prompt = false) { return printer.Print(desk.frame, printout, prompt); }
    bool PrintAsking(const std::function<void(owl::TPrintDialog&)>& action) {
        printer.action = action;
        return Print(true);
    }
    /// The colours of the middles of the pages that came out, as one text; "-" if nothing did.
    std::string Printed() const { return device.HasPrinted() ? ColoursOf(device.Pages()) : "-"; }
    static std::string ColoursOf(const RenderedPages& pages) {
        EXPECT_EQ("", pages.Problem());
        std::string colours;
        for (std::size_t i = 0; i < pages.size(); ++i) {
            const TColor colour = pages[i].At(300, 150);
            colours += colour == red ? 'r' : colour == green ? 'g' : colour == blue ? 'b' : '?';
        }
        return colours;
    }

    FilePrinter device;
    desk::Desk desk;
    desk::Watchdog watchdog;
    Printer printer;
    ColouredPages printout{{red, green, blue}};
};

TEST_F(PrinterTest, prints_a_whole_document_on_the_default_printer) {
    EXPECT_TRUE(Print());
    EXPECT_EQ("info dc ( [ 1 2 3 ] ) no-dc ", printout.calls);
    EXPECT_EQ("rgb", Printed());
    EXPECT_EQ(0, printer.GetError());
    EXPECT_EQ("", printer.GetErrorText());
    EXPECT_FALSE(printer.GetUserAbort());
    EXPECT_EQ(0, printer.asked);
}

TEST_F(PrinterTest, needs_neither_an_application_nor_a_parent) {
    owl::TPrinter plain(nullptr);
    EXPECT_TRUE(plain.Print(nullptr, printout, false));
    EXPECT_EQ("rgb", Printed());
}

TEST_F(PrinterTest, prints_the_pages_that_there_are_of_those_that_there_can_be) {
    struct {
        DWORD flags;
        int min, max, from, to;
        const char* printed;
    } const table[] = {
        {0, 0, 0, 0, 0, "rgb"},
        {0, 1, 3, 2, 2, "rgb"},
        {0, 2, 99, 0, 0, "gb"},
        {PD_PAGENUMS, 1, 3, 2, 2, "g"},
        {PD_PAGENUMS, 1, 3, 3, 2, "gb"},
        {PD_PAGENUMS, 1, 3, 0, 2, "rg"},
        {PD_PAGENUMS, 0, 0, 2, 1000000, "gb"},
        {PD_PAGENUMS, 1, 3, 4, 7, "-"},
        {PD_SELECTION, 1, 3, 2, 2, "rgb"},
    };
    for (const auto& row : table) {
        std::filesystem::remove(device.File());
        printer.GetSetup().Flags = row.flags;
        printer.GetSetup().MinPage = row.min;
        printer.GetSetup().MaxPage = row.max;
        printer.GetSetup().FromPage = row.from;
        printer.GetSetup().ToPage = row.to;
        EXPECT_TRUE(Print());
        EXPECT_EQ(row.printed, Printed()) << row.from << " to " << row.to;
    }
}

TEST_F(PrinterTest, prints_copies_page_by_page_or_one_after_the_other) {
    printer.GetSetup().Copies = 2;
    EXPECT_TRUE(Print());
    EXPECT_EQ("rrggbb", Printed());
    printer.GetSetup().Flags = PD_COLLATE;
    EXPECT_TRUE(Print());
    EXPECT_EQ("rgbrgb", Printed());
}

TEST_F(PrinterTest, makes_the_copies_itself_whatever_the_settings_of_the_printer_say) {
    ASSERT_TRUE(owl::TPrintDialog(nullptr, printer.GetSetup()).ChooseDefault());
    EXPECT_TRUE(Print());
    const auto contents = [&] {
        std::ifstream file(device.File(), std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(file), {});
    };
    const std::string once = contents();
    printer.GetSetup().GetDevMode()->dmCopies = 5;
    EXPECT_TRUE(Print());
    EXPECT_EQ(once, contents());
    EXPECT_EQ(5, printer.GetSetup().GetDevMode()->dmCopies);
}

TEST_F(PrinterTest, lets_the_printout_say_which_pages_there_can_be) {
    printout.info = [](int& min, int& max, int&, int&) {
        min = 2;
        max = 2;
    };
    EXPECT_TRUE(Print());
    EXPECT_EQ("g", Printed());
    EXPECT_EQ(0, printer.GetSetup().MinPage);
    EXPECT_EQ(0, printer.GetSetup().MaxPage);
}

TEST_F(PrinterTest, asks_the_user_for_the_pages_and_copies) {
    printer.GetSetup().MinPage = printer.GetSetup().FromPage = 1;
    printer.GetSetup().MaxPage = printer.GetSetup().ToPage = 3;
    EXPECT_TRUE(PrintAsking([](owl::TPrintDialog& dialog) {
        ASSERT_TRUE(desk::Activate(dialog));
        EXPECT_FALSE(::IsWindowEnabled(dialog.GetDlgItem(selected_pages)));
        desk::Press({VK_MENU, 'G'});
        EXPECT_TRUE(desk::PumpUntil([&] { return dialog.IsDlgButtonChecked(some_pages) == BST_CHECKED; }));
        dialog.SetDlgItemText(from_page, "2");
        dialog.SetDlgItemText(to_page, "3");
        dialog.SetDlgItemText(copies_box, "2");
        desk::Press({VK_RETURN});
    }));
    EXPECT_EQ("ggbb", Printed());
    EXPECT_EQ(DWORD{PD_PAGENUMS}, printer.GetSetup().Flags);
    EXPECT_EQ(2, printer.GetSetup().FromPage);
    EXPECT_EQ(3, printer.GetSetup().ToPage);
    EXPECT_EQ(2, printer.GetSetup().Copies);
    EXPECT_EQ(1, printer.GetSetup().MinPage);
    EXPECT_EQ(3, printer.GetSetup().MaxPage);
    EXPECT_STREQ(device.Name(), printer.GetSetup().GetDeviceName());
}

TEST_F(PrinterTest, asks_for_collated_copies) {
    EXPECT_TRUE(PrintAsking([](owl::TPrintDialog& dialog) {
        dialog.SetDlgItemText(copies_box, "2");
        dialog.CheckDlgButton(collate_box, BST_CHECKED);
        dialog.CmOk();
    }));
    EXPECT_EQ("rgbrgb", Printed());
}

TEST_F(PrinterTest, asks_for_no_pages_when_nobody_knows_how_many_there_are) {
    bool pages = true;
    EXPECT_TRUE(PrintAsking([&](owl::TPrintDialog& dialog) {
        pages = ::IsWindowEnabled(dialog.GetDlgItem(some_pages));
        EXPECT_EQ(static_cast<UINT>(BST_CHECKED), dialog.IsDlgButtonChecked(all_pages));
        dialog.CmOk();
    }));
    EXPECT_FALSE(pages);
    EXPECT_EQ("rgb", Printed());
}

TEST_F(PrinterTest, prints_what_is_selected) {
    printout.info = [](int&, int&, int& from, int& to) {
        from = 3;
        to = 3;
    };
    EXPECT_TRUE(PrintAsking([](owl::TPrintDialog& dialog) {
        ASSERT_TRUE(desk::Activate(dialog));
        desk::Press({VK_MENU, 'S'});
        EXPECT_TRUE(
            desk::PumpUntil([&] { return dialog.IsDlgButtonChecked(selected_pages) == BST_CHECKED; }));
        desk::Press({VK_RETURN});
    }));
    EXPECT_EQ("b", Printed());
}

TEST_F(PrinterTest, prints_nothing_when_the_dialog_is_cancelled) {
    EXPECT_FALSE(PrintAsking([](owl::TPrintDialog& dialog) {
        ASSERT_TRUE(desk::Activate(dialog));
        desk::Press({VK_ESCAPE});
    }));
    EXPECT_EQ("info ", printout.calls);
    EXPECT_EQ("-", Printed());
    EXPECT_EQ(SP_USERABORT, printer.GetError());
    EXPECT_EQ("", printer.reports);
    EXPECT_FALSE(printer.GetSetup().HasDevice());
    EXPECT_TRUE(Print());
    EXPECT_EQ(0, printer.GetError());
}

TEST_F(PrinterTest, sets_the_printer_up_for_the_next_job) {
    printer.GetSetup().Flags = PD_COLLATE;
    printer.action = [](owl::TPrintDialog& dialog) {
        ASSERT_TRUE(desk::Activate(dialog));
        desk::Press({VK_MENU, 'A'});
        EXPECT_TRUE(desk::PumpUntil([&] { return dialog.IsDlgButtonChecked(0x421) == BST_CHECKED; }));
        desk::Press({VK_RETURN});
    };
    EXPECT_TRUE(printer.Setup(desk.frame));
    EXPECT_EQ(DWORD{PD_COLLATE}, printer.GetSetup().Flags);
    ASSERT_NE(nullptr, printer.GetSetup().GetDevMode());
    EXPECT_EQ(DMORIENT_LANDSCAPE, printer.GetSetup().GetDevMode()->dmOrientation);
    EXPECT_TRUE(Print());
    // 300 by 600 points.
    EXPECT_EQ(owl::TSize(1250, 2500), printout.GetPageSize());
}

TEST_F(PrinterTest, stays_as_it_was_when_setting_up_is_cancelled) {
    printer.action = [](owl::TPrintDialog& dialog) { dialog.CmCancel(); };
    EXPECT_FALSE(printer.Setup(desk.frame));
    EXPECT_FALSE(printer.GetSetup().HasDevice());
    EXPECT_EQ(0u, printer.GetSetup().Flags);
}

TEST_F(PrinterTest, tells_after_a_job_which_printer_there_was) {
    EXPECT_TRUE(Print());
    EXPECT_FALSE(printer.GetSetup().HasDevice());
    printer.action = [](owl::TPrintDialog& dialog) { dialog.CmOk(); };
    EXPECT_TRUE(Print(true));
    const owl::TPrintDialog::TData& setup = printer.GetSetup();
    const owl::TIC information(setup.GetDriverName(), setup.GetDeviceName(), setup.GetOutputName(),
                               setup.GetDevMode());
    EXPECT_EQ(300, information.GetDeviceCaps(LOGPIXELSX));
}

TEST_F(PrinterTest, prints_on_another_printer_by_its_name) {
    const FilePrinter other;
    printer.SetPrinter("winspool", device.Name(), nullptr);
    EXPECT_TRUE(Print());
    EXPECT_FALSE(other.HasPrinted());
    EXPECT_EQ("rgb", Printed());
    printer.ClearDevice();
    EXPECT_TRUE(Print());
    EXPECT_TRUE(other.HasPrinted());
}

TEST_F(PrinterTest, prints_to_a_file) {
    const lvx_test::TempFolder folder;
    const std::string file = folder.File("other.ps");
    printer.SetPrinter("winspool", device.Name(), file.c_str());
    printer.GetSetup().Flags = PD_PRINTTOFILE;
    EXPECT_TRUE(Print());
    EXPECT_EQ("-", Printed());
    EXPECT_EQ("rgb", ColoursOf(RenderedPages(file)));
}

// Failures

TEST_F(PrinterTest, tells_that_the_printer_is_gone) {
    printer.SetPrinter("winspool", "no such printer of ours", nullptr);
    EXPECT_FALSE(Print());
    EXPECT_EQ(SP_ERROR, printer.GetError());
    EXPECT_THAT(printer.reports, StartsWith("Coloured pages: CreateDC: "));
    EXPECT_TRUE(printer.parentTookInput);
    EXPECT_FALSE(printer.hadContext);
    EXPECT_EQ("info ", printout.calls);
}

TEST_F(PrinterTest, tells_that_a_document_was_refused) {
    printer.SetPrinter("DISPLAY", "is no printer", nullptr);
    EXPECT_FALSE(Print());
    EXPECT_EQ(SP_ERROR, printer.GetError());
    EXPECT_THAT(printer.reports, StartsWith("Coloured pages: StartDoc: "));
    EXPECT_TRUE(printer.parentTookInput);
    EXPECT_FALSE(printer.hadContext);
}

TEST_F(PrinterTest, tells_that_a_document_failed_in_the_middle_and_works_again) {
    printout.print = [&](int page) {
        if (page == 2)
            printout.GetPrintDC()->EndDoc();
    };
    EXPECT_FALSE(Print());
    EXPECT_EQ(SP_ERROR, printer.GetError());
    EXPECT_THAT(printer.reports, StartsWith("Coloured pages: "));
    EXPECT_EQ("info dc ( [ 1 2 ] ) no-dc ", printout.calls);
    EXPECT_TRUE(printer.parentTookInput);
    printout.print = nullptr;
    EXPECT_TRUE(Print());
    EXPECT_EQ(0, printer.GetError());
    EXPECT_EQ("", printer.GetErrorText());
}

TEST_F(PrinterTest, tells_in_a_box_what_failed) {
    owl::TPrinter plain(&desk.application);
    plain.SetPrinter("winspool", "no such printer of ours", nullptr);
    ::SetTimer(nullptr, 0, 100, &ReadBox);
    EXPECT_FALSE(plain.Print(desk.frame, printout, false));
    EXPECT_EQ("\"Coloured pages\" could not be printed:\n" + plain.GetErrorText(), text_of_box);
}

// Nothing is installed in these.
struct NoPrinterAtAllTest : testing::Test {
    NoPrinterAtAllTest() { EXPECT_EQ("", DefaultPrinter::Name()); }

    desk::Desk desk;
    desk::Watchdog watchdog;
    Printer printer;
    ColouredPages printout{{red}};
};

TEST_F(NoPrinterAtAllTest, is_told_with_and_without_a_prompt) {
    for (const bool prompt : {false, true}) {
        printer.reports.clear();
        EXPECT_FALSE(printer.Print(desk.frame, printout, prompt));
        EXPECT_EQ(PDERR_NODEFAULTPRN, printer.GetError());
        EXPECT_EQ("Coloured pages: there is no default printer\n", printer.reports);
        EXPECT_TRUE(desk.frame->IsWindowEnabled());
    }
    EXPECT_EQ("", printout.calls);
    EXPECT_EQ(0, printer.asked);
}

TEST_F(NoPrinterAtAllTest, throws_when_it_is_to_be_set_up) {
    EXPECT_THROW(printer.Setup(desk.frame), owl::TXCommonDialog);
    EXPECT_TRUE(desk.frame->IsWindowEnabled());
}

}  // namespace
