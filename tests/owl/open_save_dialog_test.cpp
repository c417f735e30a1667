#include "owl/open_save_dialog.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "owl/button.h"
#include "owl/edit.h"
#include "support/temp_folder.h"
#include "tests/owl/driven_dialog.h"
#include "tests/owl/resource_ids.h"

namespace {

using lvx_test::TempFolder;
using FileData = owl::TOpenSaveDialog::TData;

// What the system's own templates call their controls.
constexpr int newer_name = 0x47C;
constexpr int older_name = 0x480;
constexpr int kinds = 0x470;
constexpr int read_only_box = 0x410;

// Says what it sees.
template <class Base>
class Seeing : public desk::Driven<Base> {
public:
    using desk::Driven<Base>::Driven;

    bool Find(owl::TEventInfo& info) override {
        if (info.Msg == WM_NOTIFY)
            codes.push_back(info.NotifyCode);
        return desk::Driven<Base>::Find(info);
    }
    bool Told(int code) const {
        return std::find(codes.begin(), codes.end(), static_cast<UINT>(code)) != codes.end();
    }
    const OPENFILENAMEA& Settings() const { return this->ofn; }

    std::vector<UINT> codes;
};

using Open = Seeing<owl::TFileOpenDialog>;
using Save = Seeing<owl::TFileSaveDialog>;

void CALLBACK PressEnter(HWND, UINT, UINT_PTR timer, DWORD) {
    ::KillTimer(nullptr, timer);
    desk::Press({VK_RETURN});
}

BOOL CALLBACK CountButton(HWND window, LPARAM counter) {
    char name[20] = "";
    ::GetClassNameA(window, name, sizeof name);
    *reinterpret_cast<int*>(counter) += std::string(name) == "Button";
    return TRUE;
}

// Both kinds of dialog: the parameter is what makes the newer one.
struct OpenSaveDialogTest : testing::TestWithParam<DWORD> {
    OpenSaveDialogTest() {
        desk::Activate(*desk.frame);
        for (const char* name : {"a.txt", "b.txt", "c.log"})
            std::ofstream(folder.File(name)) << "contents";
        data.Flags = GetParam() | OFN_NOCHANGEDIR;
        data.Filter = "Text|*.txt|Logs|*.log";
        data.InitialDir = folder.Path();
    }

    static bool IsNewer() { return GetParam() != 0; }
    static int NameId() { return IsNewer() ? newer_name : older_name; }

    template <class Dialog>
    static int Run(Dialog& dialog, const std::function<void()>& action) {
        dialog.action = action;
        return dialog.Execute();
    }
    /// Runs a dialog in which `keys` are typed.
    template <class Dialog>
    int RunTyping(Dialog& dialog, const std::string& text, WORD end = VK_RETURN) {
        return Run(dialog, [&dialog, text, end] {
            ASSERT_TRUE(desk::Activate(dialog));
            desk::Type(text);
            desk::Press({end});
        });
    }

    desk::Desk desk;
    desk::Watchdog watchdog;
    TempFolder folder;
    FileData data;
};

INSTANTIATE_TEST_SUITE_P(, OpenSaveDialogTest, testing::Values(DWORD{0}, DWORD{OFN_EXPLORER}),
                         [](const auto& kind) { return kind.param == 0 ? "Older" : "Newer"; });

TEST_P(OpenSaveDialogTest, opens_the_file_whose_name_is_typed) {
    Open dialog(desk.frame, data);
    EXPECT_EQ(IDOK, RunTyping(dialog, "b.txt"));
    EXPECT_STRCASEEQ(folder.File("b.txt").c_str(), data.FileName.c_str());
    EXPECT_EQ(1, data.FilterIndex);
    EXPECT_EQ(0u, data.Error);
    ASSERT_EQ(std::size_t{1}, data.GetFileNames().size());
    EXPECT_EQ(data.FileName, data.GetFileNames()[0]);
}

TEST_P(OpenSaveDialogTest, leaves_the_data_alone_when_it_is_cancelled) {
    data.FileName = "before.txt";
    data.FilterIndex = 2;
    const DWORD flags = data.Flags;
    Open dialog(desk.frame, data);
    EXPECT_EQ(IDCANCEL, RunTyping(dialog, "b.txt", VK_ESCAPE));
    EXPECT_EQ("before.txt", data.FileName);
    EXPECT_EQ(2, data.FilterIndex);
    EXPECT_EQ(flags, data.Flags);
    EXPECT_EQ(0u, data.Error);
}

TEST_P(OpenSaveDialogTest, begins_with_the_name_and_the_kind_that_are_given) {
    data.FileName = "c.log";
    data.FilterIndex = 2;
    Open dialog(desk.frame, data);
    std::string name;
    std::string kind;
    EXPECT_EQ(IDOK, Run(dialog, [&] {
                  name = dialog.GetDlgItemText(NameId());
                  kind = dialog.GetDlgItemText(kinds);
                  dialog.CmOk();
              }));
    EXPECT_EQ("c.log", name);
    EXPECT_EQ("Logs", kind);
    EXPECT_STRCASEEQ(folder.File("c.log").c_str(), data.FileName.c_str());
    EXPECT_EQ(2, data.FilterIndex);
}

TEST_P(OpenSaveDialogTest, tells_which_kind_was_chosen) {
    Open dialog(desk.frame, data);
    EXPECT_EQ(IDOK, Run(dialog, [&] {
                  ASSERT_TRUE(desk::Activate(dialog));
                  ::SetFocus(dialog.GetDlgItem(kinds));
                  desk::Press({VK_DOWN});
                  EXPECT_TRUE(desk::PumpUntil([&] { return dialog.GetDlgItemText(kinds) == "Logs"; }));
                  dialog.SetDlgItemText(NameId(), "c.log");
                  desk::Press({VK_RETURN});
                  desk::Press({VK_RETURN});
              }));
    EXPECT_EQ(2, data.FilterIndex);
    EXPECT_STRCASEEQ(folder.File("c.log").c_str(), data.FileName.c_str());
}

TEST_P(OpenSaveDialogTest, stays_open_for_a_file_that_must_exist_and_does_not) {
    data.Flags |= OFN_FILEMUSTEXIST;
    Open dialog(desk.frame, data);
    bool open = false;
    EXPECT_EQ(IDCANCEL, Run(dialog, [&] {
                  ::SetTimer(nullptr, 0, 300, &PressEnter);
                  ASSERT_TRUE(desk::Activate(dialog));
                  dialog.SetDlgItemText(NameId(), "missing.txt");
                  // Returns when the box that complains is gone.
                  dialog.CmOk();
                  open = dialog.IsWindow();
                  dialog.CmCancel();
              }));
    EXPECT_TRUE(open);
    EXPECT_EQ("", data.FileName);
}

TEST_P(OpenSaveDialogTest, stands_for_the_window_with_the_buttons) {
    Open dialog(desk.frame, data, owl::TResId(), "Mine");
    std::string title;
    HWND ok = nullptr;
    HWND owner = nullptr;
    owl::TRect place;
    DWORD style = 0;
    dialog.setup = [&] {
        title = dialog.GetWindowText();
        ok = dialog.GetDlgItem(IDOK);
        owner = ::GetWindow(dialog.GetHandle(), GW_OWNER);
        place = dialog.GetWindowRect();
        style = dialog.GetStyle();
        dialog.PostMessage(WM_COMMAND, IDCANCEL);
    };
    EXPECT_EQ(IDCANCEL, dialog.Execute());
    EXPECT_EQ(1, dialog.setups);
    EXPECT_EQ("Mine", title);
    EXPECT_NE(nullptr, ok);
    EXPECT_EQ(desk.frame->GetHandle(), owner);
    EXPECT_LT(300, place.Width());
    EXPECT_LT(200, place.Height());
    EXPECT_EQ(0u, style & WS_CHILD);
    EXPECT_FALSE(dialog.IsWindow());
}

// As classes that centre themselves over their parent do.
TEST_P(OpenSaveDialogTest, can_be_moved_while_it_is_set_up) {
    Open dialog(desk.frame, data);
    owl::TRect place;
    dialog.setup = [&] { dialog.SetWindowPos(nullptr, 123, 87, 0, 0, SWP_NOSIZE | SWP_NOZORDER); };
    Run(dialog, [&] {
        place = dialog.GetWindowRect();
        dialog.CmCancel();
    });
    EXPECT_EQ(owl::TPoint(123, 87), place.TopLeft());
}

TEST_P(OpenSaveDialogTest, has_all_controls_among_its_children) {
    Open dialog(desk.frame, data);
    int buttons = 0;
    dialog.setup = [&] {
        ::EnumChildWindows(dialog.GetHandle(), &CountButton, reinterpret_cast<LPARAM>(&buttons));
        dialog.PostMessage(WM_COMMAND, IDCANCEL);
    };
    dialog.Execute();
    // OK, Cancel, Help, read-only.
    EXPECT_EQ(4, buttons);
}

TEST_P(OpenSaveDialogTest, throws_what_setup_throws) {
    Open dialog(desk.frame, data);
    dialog.setup = [] { throw std::length_error("setup"); };
    EXPECT_THROW(dialog.Execute(), std::length_error);
    EXPECT_FALSE(dialog.IsWindow());
    EXPECT_TRUE(desk.frame->IsWindowEnabled());
    dialog.setup = nullptr;
    EXPECT_EQ(IDCANCEL, RunTyping(dialog, "", VK_ESCAPE));
}

TEST_P(OpenSaveDialogTest, may_be_given_up_while_it_is_set_up) {
    Open dialog(desk.frame, data);
    data.FileName = "given.txt";
    dialog.setup = [&] { dialog.Destroy(); };
    EXPECT_EQ(IDCANCEL, dialog.Execute());
    EXPECT_FALSE(dialog.IsWindow());
    EXPECT_FALSE(dialog.IsModal());
    EXPECT_TRUE(desk.frame->IsWindowEnabled());
    EXPECT_EQ("given.txt", data.FileName);
    dialog.setup = nullptr;
    EXPECT_EQ(IDCANCEL, RunTyping(dialog, "", VK_ESCAPE));
}

TEST_P(OpenSaveDialogTest, works_again_with_the_same_objects) {
    Open dialog(desk.frame, data);
    auto* ok = new owl::TButton(&dialog, IDOK);
    for (const char* name : {"a.txt", "b.txt"}) {
        EXPECT_EQ(IDOK, RunTyping(dialog, name));
        EXPECT_STRCASEEQ(folder.File(name).c_str(), data.FileName.c_str());
        data.FileName.clear();
        EXPECT_FALSE(ok->IsWindow());
    }
}

// What the older kind has as well, but not on every system.
struct NewerOpenSaveDialogTest : OpenSaveDialogTest {};

INSTANTIATE_TEST_SUITE_P(, NewerOpenSaveDialogTest, testing::Values(DWORD{OFN_EXPLORER}),
                         [](const auto&) { return "Newer"; });

TEST_P(NewerOpenSaveDialogTest, saves_to_a_name_with_the_default_extension) {
    data.DefExt = "txt";
    Save dialog(desk.frame, data);
    EXPECT_EQ(IDOK, RunTyping(dialog, "new"));
    EXPECT_STRCASEEQ(folder.File("new.txt").c_str(), data.FileName.c_str());
}

TEST_P(NewerOpenSaveDialogTest, tells_of_the_read_only_box_in_its_flags) {
    data.FileName = "a.txt";
    Open dialog(desk.frame, data);
    EXPECT_EQ(IDOK, Run(dialog, [&] {
                  dialog.CheckDlgButton(read_only_box, BST_CHECKED);
                  dialog.CmOk();
              }));
    EXPECT_EQ(DWORD{OFN_READONLY}, data.Flags & OFN_READONLY);
    EXPECT_EQ(0u, data.Flags & (OFN_ENABLEHOOK | OFN_ENABLETEMPLATE));
}

TEST_P(NewerOpenSaveDialogTest, chooses_several_files) {
    data.Flags |= OFN_ALLOWMULTISELECT;
    Open dialog(desk.frame, data);
    EXPECT_EQ(IDOK, Run(dialog, [&] {
                  dialog.SetDlgItemText(newer_name, "\"a.txt\" \"b.txt\"");
                  dialog.CmOk();
              }));
    std::vector<std::string> names = data.GetFileNames();
    ASSERT_EQ(std::size_t{2}, names.size());
    for (std::string& name : names)
        name = name.substr(name.rfind('\\') + 1);
    EXPECT_STRCASEEQ("a.txt", names[0].c_str());
    EXPECT_STRCASEEQ("b.txt", names[1].c_str());
}

TEST_P(NewerOpenSaveDialogTest, refuses_a_name_that_does_not_fit) {
    data.MaxPath = 10;
    data.FileName = "a.txt";
    Open dialog(desk.frame, data);
    try {
        Run(dialog, [&] { dialog.CmOk(); });
        FAIL() << "nothing was thrown";
    } catch (const owl::TXCommonDialog& error) {
        EXPECT_STREQ("GetOpenFileName: the name of the file does not fit", error.what());
    }
    EXPECT_EQ(DWORD{FNERR_BUFFERTOOSMALL}, data.Error);
    EXPECT_EQ("a.txt", data.FileName);
}

TEST_P(NewerOpenSaveDialogTest, offers_the_custom_kind_beside_the_others) {
    data.CustomFilter = "Other|*.log";
    data.FilterIndex = 0;
    Open dialog(desk.frame, data);
    std::string kind;
    LRESULT count = 0;
    EXPECT_EQ(IDOK, Run(dialog, [&] {
                  kind = dialog.GetDlgItemText(kinds);
                  count = dialog.SendDlgItemMessage(kinds, CB_GETCOUNT);
                  dialog.SetDlgItemText(newer_name, "c.log");
                  dialog.CmOk();
              }));
    EXPECT_EQ("Other", kind);
    EXPECT_EQ(3, count);
    EXPECT_EQ(0, data.FilterIndex);
    EXPECT_EQ(0u, data.CustomFilter.find("Other|")) << data.CustomFilter;
}

// The newer kind with a template of one's own.
class Templated : public Open {
public:
    Templated(owl::TWindow* parent, FileData& data) : Open(parent, data, IDD_TEST_PANE) {
        check = new owl::TCheckBox(this, IDC_TEST_PANE_CHECK);
        edit = new owl::TEdit(this, IDC_TEST_PANE_EDIT, 20);
    }

    void Checked() { ++checked; }
    void Changed() { ++changed; }
    LRESULT FileOk(owl::TNotify&) {
        ++agreedTo;
        if (throws)
            throw std::length_error("pane");
        return refuses;
    }

    owl::TCheckBox* check;
    owl::TEdit* edit;
    int checked = 0;
    int changed = 0;
    int agreedTo = 0;
    bool refuses = false;
    bool throws = false;

    DECLARE_RESPONSE_TABLE(Templated);
};

DEFINE_RESPONSE_TABLE1(Templated, Open)
    EV_CHILD_NOTIFY(IDC_TEST_PANE_CHECK, BN_CLICKED, Checked),
        EV_CHILD_NOTIFY(IDC_TEST_PANE_EDIT, EN_CHANGE, Changed), EV_NOTIFY(0, CDN_FILEOK, FileOk),
END_RESPONSE_TABLE;

TEST_P(NewerOpenSaveDialogTest, finds_the_controls_of_the_template_like_the_others) {
    Templated dialog(desk.frame, data);
    std::string text;
    HWND missing = nullptr;
    bool inside = false;
    Run(dialog, [&] {
        text = dialog.GetDlgItemText(IDC_TEST_PANE_CHECK);
        missing = dialog.GetDlgItem(9999);
        const owl::TRect check = dialog.check->GetWindowRect();
        inside = dialog.GetWindowRect().Contains(check.TopLeft()) && dialog.check->IsWindowVisible();
        dialog.CmCancel();
    });
    EXPECT_EQ("&Preview", text);
    EXPECT_EQ(nullptr, missing);
    EXPECT_TRUE(inside);
    EXPECT_FALSE(dialog.check->IsWindow());
}

TEST_P(NewerOpenSaveDialogTest, hears_what_the_controls_of_the_template_tell) {
    Templated dialog(desk.frame, data);
    dialog.setup = [&] { dialog.edit->SetText("from setup"); };
    Run(dialog, [&] {
        EXPECT_EQ(1, dialog.changed);
        EXPECT_EQ("from setup", dialog.GetDlgItemText(IDC_TEST_PANE_EDIT));
        ASSERT_TRUE(desk::Activate(dialog));
        dialog.check->SetFocus();
        desk::Press({VK_SPACE});
        EXPECT_TRUE(desk::PumpUntil([&] { return dialog.check->GetCheck() == BST_CHECKED; }));
        dialog.CmCancel();
    });
    EXPECT_EQ(1, dialog.checked);
}

TEST_P(NewerOpenSaveDialogTest, moves_the_data_of_the_template) {
    struct {
        std::uint16_t preview = BST_CHECKED;
        char name[20] = "in";
    } buffer;
    data.FileName = "a.txt";
    Templated dialog(desk.frame, data);
    dialog.SetTransferBuffer(&buffer, sizeof buffer);
    UINT checked = 0;
    EXPECT_EQ(IDOK, Run(dialog, [&] {
                  checked = dialog.check->GetCheck();
                  dialog.check->Uncheck();
                  dialog.edit->SetText("out");
                  dialog.CmOk();
              }));
    EXPECT_EQ(static_cast<UINT>(BST_CHECKED), checked);
    EXPECT_EQ(BST_UNCHECKED, buffer.preview);
    EXPECT_STREQ("out", buffer.name);
}

TEST_P(NewerOpenSaveDialogTest, is_asked_by_the_system_whether_a_file_will_do) {
    data.FileName = "a.txt";
    Templated dialog(desk.frame, data);
    bool open = false;
    EXPECT_EQ(IDOK, Run(dialog, [&] {
                  dialog.refuses = true;
                  dialog.CmOk();
                  open = dialog.IsWindow();
                  dialog.refuses = false;
                  dialog.CmOk();
              }));
    EXPECT_TRUE(open);
    EXPECT_EQ(2, dialog.agreedTo);
}

TEST_P(NewerOpenSaveDialogTest, throws_what_a_handler_of_the_template_throws) {
    data.FileName = "a.txt";
    Templated dialog(desk.frame, data);
    dialog.throws = true;
    EXPECT_THROW(Run(dialog, [&] { dialog.CmOk(); }), std::length_error);
    EXPECT_EQ(1, dialog.agreedTo);
    EXPECT_FALSE(dialog.IsWindow());
}

TEST_P(NewerOpenSaveDialogTest, without_its_template_throws) {
    Open dialog(desk.frame, data, 9999);
    try {
        dialog.Execute();
        FAIL() << "nothing was thrown";
    } catch (const owl::TXCommonDialog& error) {
        EXPECT_STREQ("GetOpenFileName: the template was not found", error.what());
        EXPECT_EQ(DWORD{CDERR_FINDRESFAILURE}, error.GetCode());
    }
    EXPECT_EQ(DWORD{CDERR_FINDRESFAILURE}, data.Error);
    EXPECT_TRUE(desk.frame->IsWindowEnabled());
}

TEST_P(NewerOpenSaveDialogTest, hears_what_the_system_tells_its_hook) {
    Open dialog(desk.frame, data);
    Run(dialog, [&] {
        std::filesystem::create_directory(folder.File("sub"));
        dialog.codes.clear();
        dialog.SetDlgItemText(newer_name, "sub");
        dialog.CmOk();
        EXPECT_TRUE(desk::PumpUntil([&] { return dialog.Told(CDN_FOLDERCHANGE); }));
        dialog.CmCancel();
    });
}

// As a class that makes it the newer kind and sees to its place each time that it shows.
class Derived : public Open {
public:
    using Open::Open;

    int DoExecute() override {
        Data.Flags |= OFN_EXPLORER | OFN_ENABLESIZING;
        const int result = Open::DoExecute();
        chosenFilter = static_cast<int>(ofn.nFilterIndex);
        return result;
    }
    void EvShowWindow(bool show, unsigned why) {
        shown += show;
        Open::EvShowWindow(show, why);
    }

    int chosenFilter = 0;
    int shown = 0;

    DECLARE_RESPONSE_TABLE(Derived);
};

DEFINE_RESPONSE_TABLE1(Derived, Open)
    EV_WM_SHOWWINDOW,
END_RESPONSE_TABLE;

TEST_P(OpenSaveDialogTest, can_be_changed_by_a_class_before_it_shows) {
    data.FileName = "c.log";
    data.FilterIndex = 2;
    Derived dialog(desk.frame, data);
    HWND newer = nullptr;
    EXPECT_EQ(IDOK, Run(dialog, [&] {
                  newer = dialog.GetDlgItem(newer_name);
                  dialog.CmOk();
              }));
    EXPECT_NE(nullptr, newer);
    EXPECT_EQ(2, dialog.chosenFilter);
    EXPECT_LT(0, dialog.shown);
}

TEST(OpenSaveDialogData, is_made_of_null_texts_as_of_empty_ones) {
    const FileData data(OFN_HIDEREADONLY, nullptr, nullptr, nullptr, nullptr, 500, 3);
    EXPECT_EQ(DWORD{OFN_HIDEREADONLY}, data.Flags);
    EXPECT_EQ("", data.Filter + data.CustomFilter + data.InitialDir + data.DefExt + data.FileName);
    EXPECT_EQ(500, data.MaxPath);
    EXPECT_EQ(3, data.FilterIndex);
    EXPECT_TRUE(data.GetFileNames().empty());
}

TEST(OpenSaveDialogData, tells_names_with_blanks_apart_by_the_kind_of_dialog) {
    FileData data(OFN_EXPLORER | OFN_ALLOWMULTISELECT);
    data.FileName = std::string("C:\\my files\0one file\0two", 24);
    EXPECT_EQ((std::vector<std::string>{"C:\\my files\\one file", "C:\\my files\\two"}), data.GetFileNames());
    data.FileName = "C:\\a file";
    EXPECT_EQ(std::vector<std::string>{"C:\\a file"}, data.GetFileNames());
    data.Flags = 0;
    EXPECT_EQ(std::vector<std::string>{"C:\\a file"}, data.GetFileNames());
}

}  // namespace
