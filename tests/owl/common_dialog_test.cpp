#include "owl/common_dialog.h"

#include <gtest/gtest.h>

#include <cstring>
#include <stdexcept>

#include "owl/choose_font_dialog.h"
#include "owl/combo_box.h"
#include "owl/memory_dc.h"
#include "owl/window_dc.h"
#include "tests/owl/driven_dialog.h"

namespace {

// What the system's own templates call their controls.
constexpr int face_list = 0x470;
constexpr int underline_box = 0x411;
constexpr int sample_text = 0x444;

// The dialog for fonts stands for all: it needs no files and no printer.
class FontDialog : public desk::Driven<owl::TChooseFontDialog> {
public:
    using Driven::Driven;

    bool CanClose() override {
        ++asked;
        return agrees && Driven::CanClose();
    }
    void CleanupWindow() override {
        ++cleanups;
        Driven::CleanupWindow();
    }
    void Underlined() {
        ++underlined;
        if (passesOn)
            DefaultProcessing();
    }
    LRESULT Throw(WPARAM, LPARAM) { throw std::length_error("handler"); }
    LRESULT Count(WPARAM, LPARAM) { return ++counted; }

    bool agrees = true;
    bool passesOn = true;
    int asked = 0;
    int cleanups = 0;
    int underlined = 0;
    int counted = 0;

    DECLARE_RESPONSE_TABLE(FontDialog);
};

DEFINE_RESPONSE_TABLE1(FontDialog, desk::Driven<owl::TChooseFontDialog>)
    EV_CHILD_NOTIFY(underline_box, BN_CLICKED, Underlined), EV_MESSAGE(WM_APP + 2, Throw),
        EV_MESSAGE(WM_APP + 3, Count),
END_RESPONSE_TABLE;

struct CommonDialogTest : testing::Test {
    CommonDialogTest() {
        desk::Activate(*desk.frame);
        data.Flags = CF_SCREENFONTS | CF_EFFECTS | CF_INITTOLOGFONTSTRUCT;
        std::strcpy(data.LogFont.lfFaceName, "Arial");
        data.LogFont.lfHeight = -16;
    }

    int Run(FontDialog& dialog, const std::function<void()>& action) {
        dialog.action = action;
        return dialog.Execute();
    }

    desk::Desk desk;
    desk::Watchdog watchdog;
    owl::TChooseFontDialog::TData data;
};

TEST_F(CommonDialogTest, is_set_up_once_with_its_controls_before_it_shows) {
    FontDialog dialog(desk.frame, data);
    bool visible = true;
    HWND list = nullptr;
    owl::TWindow* found = nullptr;
    dialog.setup = [&] {
        visible = dialog.IsWindowVisible();
        list = dialog.GetDlgItem(face_list);
        found = owl::GetWindowPtr(dialog.GetHandle());
        dialog.PostMessage(WM_COMMAND, IDCANCEL);
    };
    EXPECT_EQ(IDCANCEL, dialog.Execute());
    EXPECT_EQ(1, dialog.setups);
    EXPECT_FALSE(visible);
    EXPECT_NE(nullptr, list);
    EXPECT_EQ(&dialog, found);
    EXPECT_EQ(1, dialog.cleanups);
    EXPECT_FALSE(dialog.IsWindow());
    EXPECT_FALSE(dialog.IsModal());
}

TEST_F(CommonDialogTest, bears_the_title_that_it_was_given) {
    FontDialog dialog(desk.frame, data, "Pick a letter");
    std::string title;
    Run(dialog, [&] {
        title = dialog.GetWindowText();
        dialog.CmCancel();
    });
    EXPECT_EQ("Pick a letter", title);
}

TEST_F(CommonDialogTest, bears_the_systems_title_without_one) {
    for (const char* none : {static_cast<const char*>(nullptr), ""}) {
        FontDialog dialog(desk.frame, data, none);
        std::string title;
        Run(dialog, [&] {
            title = dialog.GetWindowText();
            dialog.CmCancel();
        });
        EXPECT_EQ("Font", title);
    }
}

TEST_F(CommonDialogTest, is_ended_by_keys) {
    FontDialog dialog(desk.frame, data);
    const auto press = [&](WORD key) {
        return Run(dialog, [&dialog, key] {
            ASSERT_TRUE(desk::Activate(dialog));
            desk::Press({key});
        });
    };
    EXPECT_EQ(IDCANCEL, press(VK_ESCAPE));
    EXPECT_EQ(IDOK, press(VK_RETURN));
    EXPECT_EQ(2, dialog.setups);
}

TEST_F(CommonDialogTest, is_closed_by_its_functions) {
    FontDialog dialog(desk.frame, data);
    EXPECT_EQ(IDOK, Run(dialog, [&] { dialog.CloseWindow(IDOK); }));
    EXPECT_EQ(IDCANCEL, Run(dialog, [&] { dialog.CloseWindow(); }));
    EXPECT_EQ(IDCANCEL, Run(dialog, [&] { dialog.CloseWindow(77); }));
    EXPECT_EQ(IDCANCEL, Run(dialog, [&] { dialog.Destroy(IDOK); }));
    EXPECT_EQ(IDOK, Run(dialog, [&] { dialog.CmOk(); }));
    EXPECT_EQ(IDCANCEL, Run(dialog, [&] { dialog.PostMessage(WM_CLOSE); }));
    EXPECT_EQ(IDCANCEL, Run(dialog, [&] { ::DestroyWindow(dialog.GetHandle()); }));
    EXPECT_EQ(7, dialog.cleanups);
}

TEST_F(CommonDialogTest, without_a_window_is_not_closed) {
    FontDialog dialog(desk.frame, data);
    dialog.CloseWindow(IDOK);
    dialog.Destroy();
    EXPECT_FALSE(dialog.IsWindow());
}

TEST_F(CommonDialogTest, stays_open_when_it_refuses_to_close) {
    FontDialog dialog(desk.frame, data);
    bool open = false;
    dialog.agrees = false;
    Run(dialog, [&] {
        dialog.SendMessage(WM_COMMAND, IDOK);
        dialog.CloseWindow();
        open = dialog.IsWindow();
        dialog.CmCancel();
    });
    EXPECT_TRUE(open);
    EXPECT_EQ(2, dialog.asked);
}

TEST_F(CommonDialogTest, hands_what_its_controls_tell_to_its_table_and_to_the_system) {
    FontDialog dialog(desk.frame, data);
    Run(dialog, [&] {
        ::SendMessageA(dialog.GetDlgItem(underline_box), BM_CLICK, 0, 0);
        EXPECT_EQ(1, dialog.SendMessage(WM_APP + 3));
        dialog.CmOk();
    });
    EXPECT_EQ(1, dialog.underlined);
    EXPECT_EQ(TRUE, data.LogFont.lfUnderline);
}

TEST_F(CommonDialogTest, keeps_from_the_system_what_a_function_does_not_pass_on) {
    FontDialog dialog(desk.frame, data);
    dialog.passesOn = false;
    Run(dialog, [&] {
        ::SendMessageA(dialog.GetDlgItem(underline_box), BM_CLICK, 0, 0);
        dialog.CmOk();
    });
    EXPECT_EQ(1, dialog.underlined);
    EXPECT_EQ(FALSE, data.LogFont.lfUnderline);
}

TEST_F(CommonDialogTest, has_its_controls_taken_over_by_objects) {
    FontDialog dialog(desk.frame, data);
    auto* faces = new owl::TComboBox(&dialog, face_list);
    std::string face;
    Run(dialog, [&] {
        face = faces->GetWindowText();
        dialog.CmCancel();
    });
    EXPECT_EQ("Arial", face);
    EXPECT_FALSE(faces->IsWindow());
}

TEST_F(CommonDialogTest, is_painted_by_the_system) {
    FontDialog dialog(desk.frame, data);
    int dark = 0;
    Run(dialog, [&] {
        dialog.UpdateWindow();
        RECT sample{};
        ::GetWindowRect(dialog.GetDlgItem(sample_text), &sample);
        const owl::TScreenDC screen;
        for (int y = sample.top; y < sample.bottom; ++y) {
            for (int x = sample.left; x < sample.right; ++x)
                dark += screen.GetPixel(x, y) == owl::TColor::Black;
        }
        dialog.CmCancel();
    });
    EXPECT_LT(20, dark);
}

TEST_F(CommonDialogTest, keeps_its_parent_from_input_and_gives_it_back) {
    FontDialog dialog(desk.frame, data);
    bool enabled = true;
    HWND owner = nullptr;
    Run(dialog, [&] {
        enabled = desk.frame->IsWindowEnabled();
        owner = ::GetWindow(dialog.GetHandle(), GW_OWNER);
        dialog.CmCancel();
    });
    EXPECT_FALSE(enabled);
    EXPECT_EQ(desk.frame->GetHandle(), owner);
    EXPECT_TRUE(desk.frame->IsWindowEnabled());
}

TEST_F(CommonDialogTest, needs_no_parent) {
    FontDialog dialog(nullptr, data);
    EXPECT_EQ(IDOK, Run(dialog, [&] { dialog.CmOk(); }));
}

TEST_F(CommonDialogTest, of_a_parent_that_goes_is_cancelled) {
    auto* dialog = new FontDialog(desk.frame, data);
    EXPECT_EQ(IDCANCEL, Run(*dialog, [&] { ::DestroyWindow(desk.frame->GetHandle()); }));
    ASSERT_FALSE(desk.frame->IsWindow());
    desk.application.MessageLoop();
}

TEST_F(CommonDialogTest, throws_what_setup_throws) {
    FontDialog dialog(desk.frame, data);
    const int before = desk::CountWindows();
    dialog.setup = [] { throw std::length_error("setup"); };
    EXPECT_THROW(dialog.Execute(), std::length_error);
    EXPECT_FALSE(dialog.IsWindow());
    EXPECT_FALSE(dialog.IsModal());
    EXPECT_EQ(1, dialog.cleanups);
    EXPECT_TRUE(desk.frame->IsWindowEnabled());
    EXPECT_EQ(before, desk::CountWindows());
}

TEST_F(CommonDialogTest, throws_what_a_handler_throws_and_calls_no_other_after_it) {
    FontDialog dialog(desk.frame, data);
    EXPECT_THROW(Run(dialog,
                     [&] {
                         dialog.PostMessage(WM_APP + 2);
                         dialog.PostMessage(WM_APP + 3);
                     }),
                 std::length_error);
    EXPECT_EQ(0, dialog.counted);
    EXPECT_FALSE(dialog.IsWindow());
    EXPECT_TRUE(desk.frame->IsWindowEnabled());
}

TEST_F(CommonDialogTest, may_be_given_up_while_it_is_set_up) {
    FontDialog dialog(desk.frame, data);
    dialog.setup = [&] { dialog.Destroy(); };
    EXPECT_EQ(IDCANCEL, dialog.Execute());
    EXPECT_FALSE(dialog.IsWindow());
    EXPECT_FALSE(dialog.IsModal());
    EXPECT_TRUE(desk.frame->IsWindowEnabled());
    dialog.setup = nullptr;
    EXPECT_EQ(IDOK, Run(dialog, [&] { dialog.PostMessage(WM_COMMAND, IDOK); }));
}

TEST_F(CommonDialogTest, works_again_after_an_exception) {
    FontDialog dialog(desk.frame, data);
    EXPECT_THROW(Run(dialog, [] { throw std::length_error("handler"); }), std::length_error);
    EXPECT_EQ(IDOK, Run(dialog, [&] { dialog.CmOk(); }));
}

TEST_F(CommonDialogTest, runs_within_another) {
    FontDialog outer(desk.frame, data);
    FontDialog inner(&outer, data);
    int innerResult = 0;
    EXPECT_EQ(IDCANCEL, Run(outer, [&] {
                  innerResult = Run(inner, [&] { inner.CmOk(); });
                  EXPECT_TRUE(outer.IsWindow());
                  outer.CmCancel();
              }));
    EXPECT_EQ(IDOK, innerResult);
    EXPECT_EQ(1, outer.setups);
    EXPECT_EQ(1, inner.setups);
}

TEST_F(CommonDialogTest, is_not_shown_twice_at_once) {
    FontDialog dialog(desk.frame, data);
    EXPECT_THROW(Run(dialog, [&] { dialog.Execute(); }), owl::TXWindow);
    EXPECT_FALSE(dialog.IsWindow());
}

TEST_F(CommonDialogTest, cannot_be_created_without_a_mode) {
    FontDialog dialog(desk.frame, data);
    EXPECT_THROW(dialog.Create(), owl::TXWindow);
    EXPECT_FALSE(dialog.IsWindow());
}

TEST_F(CommonDialogTest, throws_what_an_object_of_a_control_throws) {
    class Thrower : public owl::TComboBox {
    public:
        using TComboBox::TComboBox;
        LRESULT WindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override {
            if (msg == WM_APP + 4)
                throw std::length_error("control");
            return TComboBox::WindowProc(msg, wParam, lParam);
        }
    };
    FontDialog dialog(desk.frame, data);
    auto* thrower = new Thrower(&dialog, face_list);
    EXPECT_THROW(Run(dialog, [&] { thrower->PostMessage(WM_APP + 4); }), std::length_error);
    EXPECT_FALSE(dialog.IsWindow());
}

TEST_F(CommonDialogTest, outlives_the_exception_of_one_that_runs_within_it) {
    FontDialog outer(desk.frame, data);
    FontDialog inner(&outer, data);
    EXPECT_EQ(IDOK, Run(outer, [&] {
                  EXPECT_THROW(Run(inner, [] { throw std::length_error("inner"); }), std::length_error);
                  outer.PostMessage(WM_APP + 3);
                  outer.PostMessage(WM_COMMAND, IDOK);
              }));
    EXPECT_EQ(1, outer.counted);
}

TEST_F(CommonDialogTest, that_is_cancelled_does_not_tell_of_an_older_failure) {
    PRINTDLGA none{};
    none.lStructSize = sizeof none;
    none.Flags = PD_RETURNDEFAULT | PD_NOWARNING;
    ASSERT_FALSE(::PrintDlgA(&none)) << "there is a printer";
    ASSERT_EQ(DWORD{PDERR_NODEFAULTPRN}, ::CommDlgExtendedError());
    FontDialog dialog(desk.frame, data);
    EXPECT_EQ(IDCANCEL, Run(dialog, [&] { dialog.CmCancel(); }));
    EXPECT_EQ(0u, data.Error);
}

TEST_F(CommonDialogTest, twenty_of_them_leave_nothing_behind) {
    const auto once = [&] {
        FontDialog dialog(desk.frame, data);
        Run(dialog, [&] { dialog.CmCancel(); });
    };
    once();
    const int before = desk::CountWindows();
    const DWORD objects = desk::UserObjects();
    for (int i = 0; i < 20; ++i)
        once();
    EXPECT_EQ(before, desk::CountWindows());
    EXPECT_EQ(objects, desk::UserObjects());
}

}  // namespace
