// Dialogs and bars by the thousand, or as often as there is time for.
#include "tests/owl/leaks.h"

#include "controls/dialog_ids.h"
#include "controls/toolbar_ids.h"
#include "lvx/controls/button_gadget.h"
#include "lvx/controls/centred_dialog.h"
#include "lvx/controls/control_bar.h"
#include "lvx/controls/file_dialogs.h"
#include "lvx/controls/font_dialog.h"
#include "lvx/controls/yn_dialog.h"
#include "lvx/drawing/my_font.h"

namespace {

using owl::TFrameWindow;

/// Ends at once what the system shows, by one of its buttons.
class Presser {
public:
    explicit Presser(int button) : m_button(button) {
        current = this;
        m_timer = ::SetTimer(nullptr, 0, 5, &Tick);
    }
    ~Presser() {
        ::KillTimer(nullptr, m_timer);
        current = nullptr;
    }
    Presser(const Presser&) = delete;
    Presser& operator=(const Presser&) = delete;

private:
    static void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD) {
        if (const HWND dialog = user::FindShown(user::dialog_class, nullptr)) {
            ::PostMessageA(dialog, WM_COMMAND, static_cast<WPARAM>(current->m_button), 0);
        }
    }

    static inline Presser* current = nullptr;
    int m_button;
    UINT_PTR m_timer = 0;
};

class Dialog : public LVXCentredDialog {
public:
    Dialog(owl::TWindow* parent, int resource) : LVXCentredDialog(parent, resource, nullptr) {}

    void SetupWindow() override {
        LVXCentredDialog::SetupWindow();
        PostMessage(WM_COMMAND, IDOK);
    }
};

struct CentredDialogs {
    static constexpr const char* name = "centred_dialogs_with_lighter_fonts";
    static constexpr int rounds = 1000;

    explicit CentredDialogs(TFrameWindow& frame) : desk(frame) {}

    void Round() { EXPECT_EQ(IDOK, Dialog(&desk, IDD_BOLD).Execute()); }

    TFrameWindow& desk;
};

struct FontDialogs {
    static constexpr const char* name = "dialogs_for_fonts";
    static constexpr int rounds = 20;

    explicit FontDialogs(TFrameWindow& frame) : desk(frame) {}

    void Round() {
        myFont font("Arial", 12, false, false, false, false);
        auto options = FontOptionsEnum::None;
        const Presser ok(IDOK);
        EXPECT_TRUE(fontDialog::dialog(&desk, font, options, false));
    }

    TFrameWindow& desk;
};

struct Questions {
    static constexpr const char* name = "questions";
    static constexpr int rounds = 100;

    explicit Questions(TFrameWindow& frame) : desk(frame) {}

    void Round() {
        const Presser no(IDNO);
        EXPECT_EQ(yesNoCancel::no, ynDialog::dialog(&desk, true, yesNoCancel::yes, "Sure?"));
    }

    TFrameWindow& desk;
};

struct Bars {
    static constexpr const char* name = "bars_of_buttons";
    static constexpr int rounds = 300;

    explicit Bars(TFrameWindow& frame) : desk(frame) {}

    void Round() {
        LVXControlBar bar(&desk);
        for (const int id : {CM_SAVE, CM_GRID, CM_LEFT}) {
            bar.Insert(*new LVXButtonGadget(id, id));
        }
        bar.Insert(*new LVXButtonGadget("Square", CM_RIGHT));
        bar.Create();
        bar.UpdateWindow();
        bar.EvSysColorChange();
        bar.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(8, 8));
    }

    TFrameWindow& desk;
};

using Kinds = testing::Types<CentredDialogs, FontDialogs, Questions, Bars>;

}  // namespace

namespace owl_test {

INSTANTIATE_TYPED_TEST_SUITE_P(Controls, Leaks, Kinds, KindName);

}  // namespace owl_test

namespace {

using owl_test::Added;
using owl_test::CountObjects;
using owl_test::ObjectCounts;

void show_the_systems_own(const owl::TWindow& parent) {
    for (auto* const show : {&::GetOpenFileNameA, &::GetSaveFileNameA}) {
        char name[MAX_PATH] = "";
        OPENFILENAMEA settings{};
        settings.lStructSize = sizeof settings;
        settings.hwndOwner = parent.GetHandle();
        settings.lpstrFile = name;
        settings.nMaxFile = sizeof name;
        settings.lpstrInitialDir = "C:\\windows";
        settings.Flags = OFN_EXPLORER | OFN_ENABLESIZING | OFN_NOCHANGEDIR;
        EXPECT_FALSE(show(&settings));
    }
}

void show_ours(owl::TWindow& parent) {
    owl::TOpenSaveDialog::TData data(OFN_NOCHANGEDIR);
    data.InitialDir = "C:\\windows";
    EXPECT_EQ(IDCANCEL, LVXFileOpenDialog(&parent, data, owl::TResId(), nullptr, nullptr).Execute());
    EXPECT_EQ(IDCANCEL, LVXFileSaveDialog(&parent, data, owl::TResId(), nullptr, nullptr).Execute());
}

template <class Show>
ObjectCounts left_behind_by(const Show& show, owl::TFrameWindow& frame) {
    const Presser cancel(IDCANCEL);
    const ObjectCounts before = CountObjects();
    for (int i = 0; i < 10; ++i) {
        show(frame);
    }
    return Added(before, CountObjects());
}

}  // namespace

// Some systems leave a table of keys behind with each of their dialogs.
TEST(FileDialogs, leave_no_more_behind_than_the_systems_own) {
    const desk::Desk desk;
    left_behind_by(&show_ours, *desk.frame);
    const ObjectCounts systems = left_behind_by(&show_the_systems_own, *desk.frame);
    EXPECT_EQ(systems, left_behind_by(&show_ours, *desk.frame));
}
