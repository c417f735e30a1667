#include "lvx/controls/file_dialogs.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <type_traits>

#include "controls/dialog_ids.h"
#include "controls/settled.h"
#include "support/temp_folder.h"
#include "tests/owl/driven_dialog.h"

namespace {

using FileData = owl::TOpenSaveDialog::TData;

// What the system's own template calls its controls.
constexpr int kinds = 0x470;
constexpr int file_name = 0x47C;

template <class Base>
class Seen : public desk::Driven<Base> {
public:
    using desk::Driven<Base>::Driven;

    const OPENFILENAMEA& Settings() const { return this->ofn; }
    owl::TFont* Lightened() const { return this->Font.get(); }
};

template <class Dialog>
struct FileDialogs : testing::Test {
    FileDialogs() {
        settled::Show(*desk.frame, owl::TRect(50, 40, 1001, 901));
        std::ofstream(folder.File("a.txt")) << "contents";
        data.Filter = "Text|*.txt|Logs|*.log|All|*.*";
        data.InitialDir = folder.Path();
    }

    /// Of the file to be opened, and of the one to be saved to, the first exists.
    static bool IsOpen() { return std::is_same_v<Dialog, LVXFileOpenDialog>; }

    int Show(Seen<Dialog>& dialog, const std::function<void()>& action) {
        dialog.action = action;
        return dialog.Execute();
    }

    desk::Desk desk;
    desk::Watchdog watchdog;
    lvx_test::TempFolder folder;
    FileData data{OFN_NOCHANGEDIR};
};

using Dialogs = testing::Types<LVXFileOpenDialog, LVXFileSaveDialog>;

struct DialogName {
    template <class Dialog>
    static std::string GetName(int) {
        return std::is_same_v<Dialog, LVXFileOpenDialog> ? "Open" : "Save";
    }
};

TYPED_TEST_SUITE(FileDialogs, Dialogs, DialogName);

owl::TRect middle_of(const owl::TRect& frame, const owl::TSize& size) {
    const owl::TPoint corner(frame.left + (frame.Width() - size.cx) / 2,
                             frame.top + (frame.Height() - size.cy) / 2);
    return owl::TRect(corner, size);
}

}  // namespace

TYPED_TEST(FileDialogs, give_the_file_whose_name_is_typed) {
    Seen<TypeParam> dialog(this->desk.frame, this->data, owl::TResId(), "Choose one", nullptr);
    std::string caption;
    EXPECT_EQ(IDOK, this->Show(dialog, [&] {
        ASSERT_TRUE(desk::Activate(dialog));
        caption = dialog.GetWindowText();
        desk::Type(this->IsOpen() ? "a.txt" : "b.txt");
        desk::Press({VK_RETURN});
    }));
    EXPECT_EQ("Choose one", caption);
    EXPECT_STRCASEEQ(this->folder.File(this->IsOpen() ? "a.txt" : "b.txt").c_str(),
                     this->data.FileName.c_str());
}

// The system may give it another size afterwards, which the dialog to save does not follow.
TYPED_TEST(FileDialogs, open_in_the_middle_of_their_parent) {
    Seen<TypeParam> dialog(this->desk.frame, this->data, owl::TResId(), nullptr, nullptr);
    owl::TRect place;
    dialog.setup = [&] { place = dialog.GetWindowRect(); };
    this->Show(dialog, [&] {
        if (this->IsOpen()) {
            place = dialog.GetWindowRect();
        }
        dialog.CmCancel();
    });
    EXPECT_EQ(middle_of(owl::TRect(50, 40, 1001, 901), place.Size()), place);
    EXPECT_LT(200, place.Width());
}

TYPED_TEST(FileDialogs, are_of_the_newer_kind_and_can_be_resized) {
    this->data.Flags |= OFN_HIDEREADONLY;
    Seen<TypeParam> dialog(this->desk.frame, this->data, owl::TResId(), nullptr, nullptr);
    DWORD shown = 0;
    EXPECT_EQ(IDCANCEL, this->Show(dialog, [&] {
        shown = dialog.Settings().Flags;
        dialog.CmCancel();
    }));
    EXPECT_NE(0u, shown & OFN_EXPLORER);
    EXPECT_NE(0u, shown & OFN_ENABLESIZING);
    EXPECT_NE(0u, shown & OFN_HIDEREADONLY);
    EXPECT_EQ(static_cast<DWORD>(OFN_NOCHANGEDIR | OFN_HIDEREADONLY | OFN_EXPLORER | OFN_ENABLESIZING),
              this->data.Flags);
}

TYPED_TEST(FileDialogs, tell_which_kind_of_files_was_shown_last) {
    this->data.FilterIndex = 2;
    Seen<TypeParam> dialog(this->desk.frame, this->data, owl::TResId(), nullptr, nullptr);
    LRESULT first = -1;
    EXPECT_EQ(IDOK, this->Show(dialog, [&] {
        ASSERT_TRUE(desk::Activate(dialog));
        first = dialog.SendDlgItemMessage(kinds, CB_GETCURSEL);
        ::SetFocus(dialog.GetDlgItem(kinds));
        desk::Press({VK_DOWN});
        EXPECT_TRUE(desk::PumpUntil([&] { return dialog.SendDlgItemMessage(kinds, CB_GETCURSEL) == 2; }));
        ::SetFocus(dialog.GetDlgItem(file_name));
        desk::Type(this->IsOpen() ? "a.txt" : "b.txt");
        desk::Press({VK_RETURN});
    }));
    EXPECT_EQ(1, first);
    EXPECT_EQ(3, this->data.FilterIndex);
}

TYPED_TEST(FileDialogs, tell_the_kind_of_files_when_they_are_cancelled_too) {
    this->data.FilterIndex = 0;
    Seen<TypeParam> dialog(this->desk.frame, this->data, owl::TResId(), nullptr, nullptr);
    EXPECT_EQ(IDCANCEL, this->Show(dialog, [&] { dialog.CmCancel(); }));
    // There is no kind 0 without a filter of the user's.
    EXPECT_EQ(1, this->data.FilterIndex);
    EXPECT_EQ("", this->data.FileName);
}

TYPED_TEST(FileDialogs, have_a_font_of_normal_weight) {
    Seen<TypeParam> dialog(this->desk.frame, this->data, owl::TResId(), nullptr, nullptr);
    LOGFONTA font{};
    this->Show(dialog, [&] {
        const HWND list = dialog.GetDlgItem(kinds);
        const auto used = reinterpret_cast<HFONT>(::SendMessageA(list, WM_GETFONT, 0, 0));
        ::GetObjectA(used, sizeof font, &font);
        dialog.CmCancel();
    });
    EXPECT_GE(400, font.lfWeight);
}

// The system's font for its dialogs is not bold: a dialog is given a bold one in front of its set-up.
TYPED_TEST(FileDialogs, lighten_a_bold_font) {
    class Bold : public TypeParam {
    public:
        using TypeParam::TypeParam;
        LRESULT WindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override {
            return msg == WM_GETFONT ? reinterpret_cast<LRESULT>(font)
                                     : TypeParam::WindowProc(msg, wParam, lParam);
        }
        void SetupWindow() override {
            TypeParam::SetupWindow();
            light = this->Font.get() != nullptr ? static_cast<HFONT>(*this->Font) : nullptr;
            given = reinterpret_cast<HFONT>(this->SendDlgItemMessage(kinds, WM_GETFONT));
            this->PostMessage(WM_COMMAND, IDCANCEL);
        }
        HFONT font = nullptr;
        HFONT light = nullptr;
        HFONT given = nullptr;
    };
    LOGFONTA description{};
    description.lfHeight = -11;
    description.lfWeight = FW_BOLD;
    const owl::TFont font(description);
    Bold dialog(this->desk.frame, this->data, owl::TResId(), nullptr, nullptr);
    dialog.font = font;
    EXPECT_EQ(IDCANCEL, dialog.Execute());
    ASSERT_NE(nullptr, dialog.light);
    EXPECT_EQ(dialog.light, dialog.given);
}

TYPED_TEST(FileDialogs, can_have_controls_of_a_template) {
    Seen<TypeParam> dialog(this->desk.frame, this->data, IDD_PANE, nullptr, nullptr);
    bool has = false;
    this->Show(dialog, [&] {
        has = dialog.GetDlgItem(IDC_PANE_BOX) != nullptr;
        dialog.CmCancel();
    });
    EXPECT_TRUE(has);
}

TYPED_TEST(FileDialogs, throw_what_their_handlers_throw) {
    Seen<TypeParam> dialog(this->desk.frame, this->data, owl::TResId(), nullptr, nullptr);
    dialog.setup = [] { throw std::domain_error("in SetupWindow"); };
    EXPECT_THROW(dialog.Execute(), std::domain_error);
}

namespace {

using Open = Seen<LVXFileOpenDialog>;

}  // namespace

struct FileOpenDialog : FileDialogs<LVXFileOpenDialog> {};

TEST_F(FileOpenDialog, has_the_style_of_dialogs_that_are_centred) {
    Open dialog(desk.frame, data, owl::TResId(), nullptr, nullptr);
    DWORD atSetup = 0;
    DWORD shown = 0;
    dialog.setup = [&] { atSetup = dialog.GetStyle(); };
    Show(dialog, [&] {
        dialog.SetStyle(dialog.GetStyle() & ~static_cast<DWORD>(DS_CENTER));
        dialog.ShowWindow(SW_HIDE);
        dialog.ShowWindow(SW_SHOW);
        shown = dialog.GetStyle();
        dialog.CmCancel();
    });
    EXPECT_NE(0u, atSetup & 0x800);
    EXPECT_NE(0u, shown & 0x800);
}

TEST_F(FileOpenDialog, comes_back_to_the_middle_when_it_is_shown_again) {
    Open dialog(desk.frame, data, owl::TResId(), nullptr, nullptr);
    owl::TRect moved;
    owl::TRect place;
    Show(dialog, [&] {
        dialog.ShowWindow(SW_HIDE);
        dialog.SetWindowPos(nullptr, 3, 4, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        moved = dialog.GetWindowRect();
        dialog.ShowWindow(SW_SHOW);
        place = dialog.GetWindowRect();
        dialog.CmCancel();
    });
    EXPECT_EQ(owl::TPoint(3, 4), moved.TopLeft());
    EXPECT_EQ(middle_of(owl::TRect(50, 40, 1001, 901), place.Size()), place);
}
