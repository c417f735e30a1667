#include "lvx/controls/yn_dialog.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "support/box_reader.h"
#include "tests/owl/desk.h"

namespace {

using lvx_test::BoxContents;
using lvx_test::BoxReader;

/// The buttons of the box that is open, by their numbers, and which of them Enter presses.
struct Buttons {
    std::vector<int> ids;
    int defaultId = 0;

    void Read() {
        const HWND box = user::FindShown(user::dialog_class, nullptr);
        for (const int id : {IDOK, IDCANCEL, IDYES, IDNO}) {
            const HWND button = ::GetDlgItem(box, id);
            if (button == nullptr) {
                continue;
            }
            ids.push_back(id);
            if ((::GetWindowLongA(button, GWL_STYLE) & BS_TYPEMASK) == BS_DEFPUSHBUTTON) {
                defaultId = id;
            }
        }
    }
};

const std::vector<int> yes_no{IDYES, IDNO};
const std::vector<int> all_three{IDCANCEL, IDYES, IDNO};

struct YnDialog : testing::Test {
    YnDialog() {
        desk.frame->ShowWindow(SW_SHOW);
        desk::Activate(*desk.frame);
    }

    /// Asks, and answers by a key.
    yesNoCancel Ask(bool allowCancel, yesNoCancel defaultAnswer, WORD key = VK_RETURN) {
        BoxReader reader(
            GetCurrentProcessId(), [this] { buttons.Read(); }, key);
        const yesNoCancel answer = ynDialog::dialog(desk.frame, allowCancel, defaultAnswer, "Sure?");
        EXPECT_TRUE(reader.Contents().closed);
        return answer;
    }

    desk::Desk desk;
    Buttons buttons;
};

}  // namespace

TEST(YesNoCancel, has_the_values_of_the_systems_buttons) {
    EXPECT_EQ(2, static_cast<int>(yesNoCancel::cancel));
    EXPECT_EQ(6, static_cast<int>(yesNoCancel::yes));
    EXPECT_EQ(7, static_cast<int>(yesNoCancel::no));
}

TEST_F(YnDialog, asks_what_the_format_says) {
    BoxReader reader;
    ynDialog::dialog(desk.frame, false, yesNoCancel::yes, "Delete %d of %s?", 7, "stars");
    const BoxContents& box = reader.Contents();
    EXPECT_EQ("Delete 7 of stars?", box.text);
    EXPECT_EQ("desk", box.caption);
    EXPECT_EQ(::LoadIconA(nullptr, IDI_EXCLAMATION), box.icon);
    EXPECT_EQ(desk.frame->GetHandle(), box.owner);
}

TEST_F(YnDialog, begins_with_the_default_answer) {
    EXPECT_EQ(yesNoCancel::yes, Ask(false, yesNoCancel::yes));
    EXPECT_EQ(IDYES, buttons.defaultId);
    EXPECT_EQ(yes_no, buttons.ids);
}

TEST_F(YnDialog, can_begin_with_no) {
    EXPECT_EQ(yesNoCancel::no, Ask(false, yesNoCancel::no));
    EXPECT_EQ(IDNO, buttons.defaultId);
    EXPECT_EQ(yes_no, buttons.ids);
}

TEST_F(YnDialog, has_a_third_button_if_cancel_is_allowed) {
    EXPECT_EQ(yesNoCancel::no, Ask(true, yesNoCancel::no));
    EXPECT_EQ(all_three, buttons.ids);
}

TEST_F(YnDialog, has_a_third_button_if_that_is_the_default) {
    EXPECT_EQ(yesNoCancel::cancel, Ask(false, yesNoCancel::cancel));
    EXPECT_EQ(IDCANCEL, buttons.defaultId);
    EXPECT_EQ(all_three, buttons.ids);
}

TEST_F(YnDialog, is_answered_by_the_underlined_letters) {
    EXPECT_EQ(yesNoCancel::no, Ask(true, yesNoCancel::yes, 'N'));
    EXPECT_EQ(yesNoCancel::yes, Ask(true, yesNoCancel::no, 'Y'));
}

TEST_F(YnDialog, takes_escape_for_cancel) {
    EXPECT_EQ(yesNoCancel::cancel, Ask(true, yesNoCancel::yes, VK_ESCAPE));
}

TEST_F(YnDialog, takes_no_known_answer_for_yes) {
    EXPECT_EQ(yesNoCancel::yes, Ask(false, static_cast<yesNoCancel>(99)));
    EXPECT_EQ(yes_no, buttons.ids);
}

TEST_F(YnDialog, cuts_long_texts) {
    for (const std::size_t length : {399, 400, 5000}) {
        BoxReader reader;
        ynDialog::dialog(desk.frame, false, yesNoCancel::yes, "%s", std::string(length, 'x').c_str());
        EXPECT_EQ(std::string(399, 'x'), reader.Contents().text);
    }
}

TEST_F(YnDialog, needs_no_parent) {
    BoxReader reader;
    EXPECT_EQ(yesNoCancel::no, ynDialog::dialog(nullptr, false, yesNoCancel::no, "Sure?"));
    EXPECT_EQ("desk", reader.Contents().caption);
    EXPECT_EQ(nullptr, reader.Contents().owner);
}

TEST_F(YnDialog, needs_no_window_of_its_parent) {
    owl::TFrameWindow unborn(nullptr, "unborn");
    BoxReader reader;
    EXPECT_EQ(yesNoCancel::yes, ynDialog::dialog(&unborn, true, yesNoCancel::yes, "Sure?"));
    EXPECT_EQ(nullptr, reader.Contents().owner);
}

TEST(YnDialogAlone, bears_the_name_of_the_program_without_an_application) {
    BoxReader reader;
    EXPECT_EQ(yesNoCancel::yes, ynDialog::dialog(nullptr, false, yesNoCancel::yes, "Sure?"));
    EXPECT_EQ("lvx_dialog_tests", reader.Contents().caption);
}

namespace {

/// Answers its boxes itself.
class Answering : public owl::TFrameWindow {
public:
    Answering() : TFrameWindow(nullptr, "answering") {}

    int MessageBox(const char* text, const char*, UINT type) override {
        asked = text;
        types = type;
        return answer;
    }

    int answer = 0;
    std::string asked;
    UINT types = 0;
};

}  // namespace

TEST(YnDialogAlone, takes_every_other_answer_for_cancel) {
    Answering window;
    for (const int answer : {0, -1, IDOK, IDABORT, IDRETRY, IDIGNORE, IDCLOSE, 1000}) {
        window.answer = answer;
        EXPECT_EQ(yesNoCancel::cancel, ynDialog::dialog(&window, false, yesNoCancel::yes, "%d%%", 5));
    }
    EXPECT_EQ("5%", window.asked);
    EXPECT_EQ(static_cast<UINT>(MB_YESNO | MB_ICONEXCLAMATION), window.types);
    window.answer = IDNO;
    EXPECT_EQ(yesNoCancel::no, ynDialog::dialog(&window, true, yesNoCancel::cancel, "Sure?"));
    EXPECT_EQ(static_cast<UINT>(MB_YESNOCANCEL | MB_DEFBUTTON3 | MB_ICONEXCLAMATION), window.types);
}
