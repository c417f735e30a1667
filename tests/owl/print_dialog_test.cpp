#include "owl/print_dialog.h"

#include <gtest/gtest.h>

#include <cstring>

#include "tests/owl/driven_dialog.h"
#include "tests/owl/test_printer.h"

namespace {

using owl_test::DefaultPrinter;
using owl_test::TestPrinter;
using PrintData = owl::TPrintDialog::TData;

// What the system's own templates call their controls.
constexpr int all_pages = 0x420;
constexpr int some_pages = 0x422;
constexpr int from_page = 0x480;
constexpr int to_page = 0x481;
constexpr int copies_box = 0x482;
constexpr int to_file = 0x410;
constexpr int collate_box = 0x411;
constexpr int printers = 0x473;
constexpr int landscape = 0x421;

class PrintDialog : public desk::Driven<owl::TPrintDialog> {
public:
    using Driven::Driven;
};

struct PrintDialogTest : testing::Test {
    PrintDialogTest() {
        EXPECT_EQ("", printer.Problem());
        desk::Activate(*desk.frame);
        data.MinPage = 1;
        data.MaxPage = 9;
        data.FromPage = 1;
        data.ToPage = 9;
    }

    int Run(PrintDialog& dialog, const std::function<void()>& action) {
        dialog.action = action;
        return dialog.Execute();
    }

    TestPrinter printer;
    DefaultPrinter isDefault{TestPrinter::name};
    desk::Desk desk;
    desk::Watchdog watchdog;
    PrintData data;
};

TEST_F(PrintDialogTest, offers_the_default_printer_and_all_pages) {
    PrintDialog dialog(desk.frame, data);
    std::string shown, from, to, copies;
    UINT all = 0;
    EXPECT_EQ(IDOK, Run(dialog, [&] {
                  shown = dialog.GetDlgItemText(printers);
                  from = dialog.GetDlgItemText(from_page);
                  to = dialog.GetDlgItemText(to_page);
                  copies = dialog.GetDlgItemText(copies_box);
                  all = dialog.IsDlgButtonChecked(all_pages);
                  dialog.CmOk();
              }));
    EXPECT_EQ(TestPrinter::name, shown);
    EXPECT_EQ("1", from);
    EXPECT_EQ("9", to);
    EXPECT_EQ("1", copies);
    EXPECT_EQ(static_cast<UINT>(BST_CHECKED), all);
    EXPECT_EQ(0u, data.Flags);
    EXPECT_TRUE(data.HasDevice());
    EXPECT_STREQ(TestPrinter::name, data.GetDeviceName());
    EXPECT_STREQ("FILE:", data.GetOutputName());
    EXPECT_STRNE("", data.GetDriverName());
    ASSERT_NE(nullptr, data.GetDevMode());
    EXPECT_STREQ(TestPrinter::name, reinterpret_cast<const char*>(data.GetDevMode()->dmDeviceName));
}

TEST_F(PrintDialogTest, gives_what_is_typed) {
    PrintDialog dialog(desk.frame, data);
    EXPECT_EQ(IDOK, Run(dialog, [&] {
                  ASSERT_TRUE(desk::Activate(dialog));
                  const auto fill = [&](int id, const char* text) {
                      ::SendMessageA(dialog.GetHandle(), WM_NEXTDLGCTL,
                                     reinterpret_cast<WPARAM>(dialog.GetDlgItem(id)), TRUE);
                      desk::Type(text);
                      EXPECT_TRUE(desk::PumpUntil([&] { return dialog.GetDlgItemText(id) == text; }));
                  };
                  desk::Press({VK_MENU, 'G'});
                  EXPECT_TRUE(
                      desk::PumpUntil([&] { return dialog.IsDlgButtonChecked(some_pages) == BST_CHECKED; }));
                  fill(from_page, "2");
                  fill(to_page, "4");
                  fill(copies_box, "3");
                  desk::Press({VK_MENU, 'O'});
                  EXPECT_TRUE(
                      desk::PumpUntil([&] { return dialog.IsDlgButtonChecked(collate_box) == BST_CHECKED; }));
                  desk::Press({VK_RETURN});
              }));
    EXPECT_EQ(DWORD{PD_PAGENUMS | PD_COLLATE}, data.Flags);
    EXPECT_EQ(2, data.FromPage);
    EXPECT_EQ(4, data.ToPage);
    EXPECT_EQ(3, data.Copies);
    EXPECT_EQ(1, data.MinPage);
    EXPECT_EQ(9, data.MaxPage);
}

TEST_F(PrintDialogTest, names_a_file_as_the_output_when_that_is_chosen) {
    const TestPrinter other("/tmp/never-written", "lvx other printer");
    ASSERT_EQ("", other.Problem());
    const DefaultPrinter otherIsDefault("lvx other printer");
    PrintDialog dialog(desk.frame, data);
    EXPECT_EQ(IDOK, Run(dialog, [&] {
                  dialog.CheckDlgButton(to_file, BST_CHECKED);
                  dialog.CmOk();
              }));
    EXPECT_EQ(DWORD{PD_PRINTTOFILE}, data.Flags);
    EXPECT_STREQ("FILE:", data.GetOutputName());
}

TEST_F(PrintDialogTest, leaves_the_data_alone_when_it_is_cancelled) {
    PrintDialog dialog(desk.frame, data);
    EXPECT_EQ(IDCANCEL, Run(dialog, [&] {
                  ASSERT_TRUE(desk::Activate(dialog));
                  dialog.SetDlgItemText(copies_box, "7");
                  dialog.SetDlgItemText(from_page, "5");
                  desk::Press({VK_ESCAPE});
              }));
    EXPECT_EQ(1, data.Copies);
    EXPECT_EQ(1, data.FromPage);
    EXPECT_FALSE(data.HasDevice());
    EXPECT_EQ(nullptr, data.GetDevMode());
    EXPECT_EQ(0u, data.Error);
}

TEST_F(PrintDialogTest, may_be_given_up_while_it_is_set_up) {
    PrintDialog dialog(desk.frame, data);
    dialog.setup = [&] { dialog.Destroy(); };
    for (const DWORD kind : {DWORD{0}, DWORD{PD_PRINTSETUP}}) {
        data.Flags = kind;
        EXPECT_EQ(IDCANCEL, dialog.Execute());
        EXPECT_FALSE(dialog.IsWindow());
        EXPECT_FALSE(data.HasDevice());
        EXPECT_TRUE(desk.frame->IsWindowEnabled());
    }
}

TEST_F(PrintDialogTest, begins_with_what_was_chosen_before) {
    PrintDialog dialog(desk.frame, data);
    ASSERT_EQ(IDOK, Run(dialog, [&] { dialog.CmOk(); }));
    data.Flags = PD_PAGENUMS | PD_COLLATE;
    data.FromPage = 3;
    data.ToPage = 5;
    data.Copies = 4;
    data.GetDevMode()->dmCopies = 17;
    std::string from, to, copies;
    UINT some = 0;
    EXPECT_EQ(IDOK, Run(dialog, [&] {
                  from = dialog.GetDlgItemText(from_page);
                  to = dialog.GetDlgItemText(to_page);
                  copies = dialog.GetDlgItemText(copies_box);
                  some = dialog.IsDlgButtonChecked(some_pages);
                  dialog.CmOk();
              }));
    EXPECT_EQ("3", from);
    EXPECT_EQ("5", to);
    EXPECT_EQ("4", copies);
    EXPECT_EQ(static_cast<UINT>(BST_CHECKED), some);
    EXPECT_EQ(DWORD{PD_PAGENUMS | PD_COLLATE}, data.Flags);
    EXPECT_EQ(4, data.Copies);
}

// The system would refuse to show the dialog.
TEST_F(PrintDialogTest, takes_pages_that_cannot_be_as_the_nearest_that_can) {
    struct {
        int min, max, from, to, copies;
        const char *fromText, *toText, *copiesText;
    } const table[] = {
        {1, 9, 0, 12, 0, "1", "9", "1"},
        {5, 2, 7, 1, -4, "5", "5", "1"},
        {-3, 100000, -1, 100000, 2, "0", "65534", "2"},
    };
    for (const auto& row : table) {
        data.MinPage = row.min;
        data.MaxPage = row.max;
        data.FromPage = row.from;
        data.ToPage = row.to;
        data.Copies = row.copies;
        PrintDialog dialog(desk.frame, data);
        std::string from, to, copies;
        EXPECT_EQ(IDCANCEL, Run(dialog, [&] {
                      from = dialog.GetDlgItemText(from_page);
                      to = dialog.GetDlgItemText(to_page);
                      copies = dialog.GetDlgItemText(copies_box);
                      dialog.CmCancel();
                  }));
        EXPECT_EQ(row.fromText, from);
        EXPECT_EQ(row.toText, to);
        EXPECT_EQ(row.copiesText, copies);
    }
}

TEST_F(PrintDialogTest, sets_a_printer_up) {
    data.Flags = PD_PRINTSETUP;
    PrintDialog dialog(desk.frame, data, "Set up");
    std::string title;
    EXPECT_EQ(
        IDOK, Run(dialog, [&] {
            title = dialog.GetWindowText();
            ASSERT_TRUE(desk::Activate(dialog));
            desk::Press({VK_MENU, 'A'});
            EXPECT_TRUE(desk::PumpUntil([&] { return dialog.IsDlgButtonChecked(landscape) == BST_CHECKED; }));
            desk::Press({VK_RETURN});
        }));
    EXPECT_EQ("Set up", title);
    EXPECT_EQ(1, dialog.setups);
    ASSERT_NE(nullptr, data.GetDevMode());
    EXPECT_EQ(DMORIENT_LANDSCAPE, data.GetDevMode()->dmOrientation);
}

// One system says so, the other offers the default printer.
TEST_F(PrintDialogTest, of_a_printer_that_is_gone_throws_or_offers_another) {
    data.SetDevNames("winspool", "no such printer of ours", "LPT1:");
    PrintDialog dialog(desk.frame, data);
    std::string offered = TestPrinter::name;
    try {
        Run(dialog, [&] {
            offered = dialog.GetDlgItemText(printers);
            dialog.CmCancel();
        });
    } catch (const owl::TXCommonDialog& error) {
        EXPECT_EQ(DWORD{PDERR_PRINTERNOTFOUND}, error.GetCode());
    }
    EXPECT_EQ(TestPrinter::name, offered);
    EXPECT_STREQ("no such printer of ours", data.GetDeviceName());
}

TEST_F(PrintDialogTest, finds_the_default_printer_without_a_dialog) {
    data.Copies = 5;
    EXPECT_TRUE(PrintDialog(desk.frame, data).ChooseDefault());
    EXPECT_STREQ(TestPrinter::name, data.GetDeviceName());
    EXPECT_NE(nullptr, data.GetDevMode());
    EXPECT_EQ(5, data.Copies);
    EXPECT_EQ(9, data.MaxPage);
}

// Nothing is installed in these.
struct NoPrinterTest : testing::Test {
    NoPrinterTest() { EXPECT_EQ("", DefaultPrinter::Name()); }

    desk::Desk desk;
    desk::Watchdog watchdog;
    PrintData data;
};

TEST_F(NoPrinterTest, is_told_by_an_exception) {
    PrintDialog dialog(desk.frame, data);
    try {
        dialog.Execute();
        FAIL() << "nothing was thrown";
    } catch (const owl::TXCommonDialog& error) {
        EXPECT_STREQ("PrintDlg: there is no default printer", error.what());
    }
    EXPECT_EQ(DWORD{PDERR_NODEFAULTPRN}, data.Error);
    EXPECT_TRUE(desk.frame->IsWindowEnabled());
}

TEST_F(NoPrinterTest, is_told_when_the_default_one_is_asked_for) {
    data.SetDevNames("a", "b", "c");
    EXPECT_FALSE(PrintDialog(desk.frame, data).ChooseDefault());
    EXPECT_EQ(DWORD{PDERR_NODEFAULTPRN}, data.Error);
    EXPECT_STREQ("b", data.GetDeviceName());
}

TEST(PrintDialogData, has_no_printer_at_first) {
    const PrintData data;
    EXPECT_FALSE(data.HasDevice());
    EXPECT_STREQ("", data.GetDriverName());
    EXPECT_STREQ("", data.GetDeviceName());
    EXPECT_STREQ("", data.GetOutputName());
    EXPECT_EQ(nullptr, data.GetDevMode());
    EXPECT_EQ(1, data.Copies);
}

TEST(PrintDialogData, keeps_names_of_its_own) {
    PrintData data;
    {
        std::string device = "Laser";
        data.SetDevNames("winspool", device.c_str(), nullptr);
        device = "?????";
    }
    EXPECT_STREQ("winspool", data.GetDriverName());
    EXPECT_STREQ("Laser", data.GetDeviceName());
    EXPECT_STREQ("", data.GetOutputName());
    data.ClearDevNames();
    EXPECT_FALSE(data.HasDevice());
}

TEST(PrintDialogData, keeps_settings_of_its_own_and_a_copy_others) {
    DEVMODEA mode{};
    mode.dmSize = sizeof mode;
    mode.dmCopies = 3;
    PrintData data;
    data.SetDevMode(&mode);
    PrintData copy(data);
    copy.GetDevMode()->dmCopies = 5;
    mode.dmCopies = 4;
    EXPECT_EQ(3, data.GetDevMode()->dmCopies);
    EXPECT_EQ(5, copy.GetDevMode()->dmCopies);
    data.SetDevMode(nullptr);
    EXPECT_EQ(nullptr, data.GetDevMode());
    copy.ClearDevMode();
    EXPECT_EQ(nullptr, copy.GetDevMode());
}

// Its fields would lie outside.
TEST(PrintDialogData, takes_no_settings_that_are_too_short) {
    PrintData data;
    for (const WORD size : {WORD{0}, WORD{1}, WORD{43}, WORD{54}}) {
        DEVMODEA mode{};
        mode.dmSize = size;
        data.SetDevMode(&mode);
        EXPECT_EQ(nullptr, data.GetDevMode()) << size;
    }
}

}  // namespace
