#include "lvx/controls/centred_dialog.h"

#include <gtest/gtest.h>

#include "controls/dialog_ids.h"
#include "owl/button.h"
#include "owl/edit.h"
#include "tests/owl/desk.h"

namespace {

using owl::TPoint;
using owl::TRect;

/// A dialog that shows what the library does to it.
class Dialog : public LVXCentredDialog {
public:
    Dialog(owl::TWindow* parent, int resource) : LVXCentredDialog(parent, resource, nullptr) {}

    owl::TFont* Lightened() const { return Font.get(); }
    DWORD StyleOf(int control) const {
        return static_cast<DWORD>(::GetWindowLongA(GetDlgItem(control), GWL_STYLE));
    }
    DWORD KindOf(int control) const { return StyleOf(control) & SS_TYPEMASK; }
    HFONT FontOf(int control) const {
        return reinterpret_cast<HFONT>(::SendMessageA(GetDlgItem(control), WM_GETFONT, 0, 0));
    }
};

/// Counts how often a control gets a font.
class Field : public owl::TEdit {
public:
    explicit Field(owl::TWindow* parent) : TEdit(parent, IDC_FIELD, 10) {}

    LRESULT EvSetFont(WPARAM, LPARAM redraw) {
        ++fonts;
        redraws += redraw != FALSE;
        return DefaultProcessing();
    }

    int fonts = 0;
    int redraws = 0;

    DECLARE_RESPONSE_TABLE(Field);
};

DEFINE_RESPONSE_TABLE1(Field, owl::TEdit)
    EV_MESSAGE(WM_SETFONT, EvSetFont),
END_RESPONSE_TABLE;

LOGFONTA DescriptionOf(HFONT font) {
    LOGFONTA description{};
    owl::TFont(font).GetObject(description);
    return description;
}

struct CentredDialog : testing::Test {
    /// The place of a dialog of `size` in the middle of the frame at `frame`.
    TPoint PlaceIn(const TRect& frame, const owl::TSize& size) {
        desk.frame->MoveWindow(frame);
        owl::TDialog dialog(desk.frame, IDD_NORMAL);
        dialog.Create();
        dialog.SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOZORDER | SWP_NOMOVE | SWP_NOACTIVATE);
        LVXCentredDialog::Centre(&dialog);
        EXPECT_EQ(size, dialog.GetWindowRect().Size());
        return dialog.GetWindowRect().TopLeft();
    }

    desk::Desk desk;
};

}  // namespace

TEST_F(CentredDialog, opens_in_the_middle_of_its_parent) {
    desk.frame->MoveWindow(TRect(100, 120, 701, 521));
    Dialog dialog(desk.frame, IDD_NORMAL);
    dialog.Create();
    const TRect own = dialog.GetWindowRect();
    EXPECT_EQ(100 + (601 - own.Width()) / 2, own.left);
    EXPECT_EQ(120 + (401 - own.Height()) / 2, own.top);
}

TEST_F(CentredDialog, opens_in_the_middle_of_the_screen_without_a_parent) {
    Dialog dialog(nullptr, IDD_NORMAL);
    dialog.Create();
    const TRect own = dialog.GetWindowRect();
    EXPECT_EQ((::GetSystemMetrics(SM_CXSCREEN) - own.Width()) / 2, own.left);
    EXPECT_EQ((::GetSystemMetrics(SM_CYSCREEN) - own.Height()) / 2, own.top);
}

TEST_F(CentredDialog, opens_in_the_middle_of_the_screen_if_its_parent_has_no_window) {
    owl::TFrameWindow unborn(nullptr, "unborn");
    Dialog dialog(&unborn, IDD_NORMAL);
    dialog.Create();
    const TRect own = dialog.GetWindowRect();
    EXPECT_EQ((::GetSystemMetrics(SM_CXSCREEN) - own.Width()) / 2, own.left);
}

TEST_F(CentredDialog, is_in_the_middle_when_it_opens_again) {
    Dialog dialog(desk.frame, IDD_NORMAL);
    dialog.Create();
    dialog.Destroy();
    desk.frame->MoveWindow(TRect(300, 300, 700, 700));
    dialog.Create();
    EXPECT_EQ(300 + (400 - dialog.GetWindowRect().Width()) / 2, dialog.GetWindowRect().left);
}

TEST_F(CentredDialog, cuts_off_half_a_pixel) {
    EXPECT_EQ(TPoint(150, 250), PlaceIn(TRect(100, 200, 500, 500), {300, 200}));
    EXPECT_EQ(TPoint(150, 250), PlaceIn(TRect(100, 200, 501, 501), {300, 200}));
}

TEST_F(CentredDialog, begins_above_and_left_of_a_smaller_parent) {
    EXPECT_EQ(TPoint(250, 220), PlaceIn(TRect(300, 250, 500, 350), {300, 160}));
    // 101 and 61 too large: halves are cut off towards the parent.
    EXPECT_EQ(TPoint(250, 220), PlaceIn(TRect(300, 250, 500, 350), {301, 161}));
}

TEST_F(CentredDialog, may_lie_outside_of_the_screen) {
    EXPECT_EQ(TPoint(-100, -50), PlaceIn(TRect(0, 0, 200, 150), {400, 250}));
}

TEST_F(CentredDialog, has_a_font_of_normal_weight) {
    Dialog dialog(desk.frame, IDD_BOLD);
    dialog.Create();
    ASSERT_NE(nullptr, dialog.Lightened());
    const HFONT light = *dialog.Lightened();
    const LOGFONTA own = DescriptionOf(dialog.GetWindowFont());
    const LOGFONTA lightened = DescriptionOf(light);
    EXPECT_EQ(700, own.lfWeight);
    EXPECT_EQ(400, lightened.lfWeight);
    EXPECT_STREQ("Arial", lightened.lfFaceName);
    EXPECT_EQ(own.lfHeight, lightened.lfHeight);
    for (const int control : {IDC_LABEL, IDC_FIELD, IDC_BOX, IDOK, IDCANCEL}) {
        EXPECT_EQ(light, dialog.FontOf(control)) << control;
    }
}

TEST_F(CentredDialog, lightens_what_is_bolder_than_normal_by_a_step) {
    Dialog dialog(desk.frame, IDD_MEDIUM);
    dialog.Create();
    ASSERT_EQ(401, DescriptionOf(dialog.GetWindowFont()).lfWeight);
    ASSERT_NE(nullptr, dialog.Lightened());
    EXPECT_EQ(400, DescriptionOf(*dialog.Lightened()).lfWeight);
}

TEST_F(CentredDialog, keeps_a_font_of_normal_weight) {
    Dialog dialog(desk.frame, IDD_NORMAL);
    auto* const field = new Field(&dialog);
    dialog.Create();
    EXPECT_EQ(nullptr, dialog.Lightened());
    EXPECT_EQ(dialog.GetWindowFont(), dialog.FontOf(IDC_LABEL));
    // The statics become etched all the same.
    EXPECT_EQ(static_cast<DWORD>(SS_ETCHEDFRAME), dialog.KindOf(IDC_GREY_FRAME));
    const int before = field->fonts;
    lvx::auto_ptr<owl::TFont> holder;
    LVXCentredDialog::LightenFont(&dialog, holder, true);
    EXPECT_EQ(before, field->fonts);
    EXPECT_EQ(nullptr, holder.get());
}

TEST_F(CentredDialog, keeps_the_systems_font_if_it_has_none) {
    Dialog dialog(desk.frame, IDD_WITHOUT_FONT);
    dialog.Create();
    ASSERT_EQ(nullptr, dialog.GetWindowFont());
    EXPECT_EQ(nullptr, dialog.Lightened());
    EXPECT_EQ(nullptr, dialog.FontOf(IDC_LABEL));
    EXPECT_EQ(static_cast<DWORD>(SS_ETCHEDFRAME), dialog.KindOf(IDC_GREY_FRAME));
}

TEST_F(CentredDialog, has_etched_lines_and_frames) {
    Dialog dialog(desk.frame, IDD_BOLD);
    ASSERT_TRUE(dialog.Windows95());
    dialog.Create();
    EXPECT_EQ(static_cast<DWORD>(SS_LEFT), dialog.KindOf(IDC_LABEL));
    EXPECT_EQ(static_cast<DWORD>(SS_ETCHEDHORZ), dialog.KindOf(IDC_WIDE_BAR));
    EXPECT_EQ(static_cast<DWORD>(SS_ETCHEDVERT), dialog.KindOf(IDC_HIGH_BAR));
    for (const int frame :
         {IDC_GREY_RECT, IDC_WHITE_RECT, IDC_BLACK_FRAME, IDC_GREY_FRAME, IDC_WHITE_FRAME}) {
        EXPECT_EQ(static_cast<DWORD>(SS_ETCHEDFRAME), dialog.KindOf(frame)) << frame;
        EXPECT_EQ(frame == IDC_BLACK_FRAME, (dialog.StyleOf(frame) & SS_SUNKEN) != 0) << frame;
    }
    EXPECT_NE(0u, dialog.StyleOf(IDC_GREY_RECT) & WS_GROUP);
    EXPECT_NE(0u, dialog.StyleOf(IDC_WHITE_RECT) & SS_NOTIFY);
}

// What the user sees: two lines, one dark and one light.
TEST_F(CentredDialog, shows_an_etched_line_where_there_was_a_bar) {
    Dialog dialog(desk.frame, IDD_BOLD);
    dialog.Create();
    desk.frame->ShowWindow(SW_SHOW);
    dialog.SetWindowPos(HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_SHOWWINDOW);
    ASSERT_TRUE(desk::Activate(dialog));
    dialog.UpdateWindow();
    const HDC bar = ::GetWindowDC(dialog.GetDlgItem(IDC_WIDE_BAR));
    EXPECT_EQ(::GetSysColor(COLOR_BTNSHADOW), ::GetPixel(bar, 5, 0));
    EXPECT_EQ(::GetSysColor(COLOR_BTNHIGHLIGHT), ::GetPixel(bar, 5, 1));
    ::ReleaseDC(dialog.GetDlgItem(IDC_WIDE_BAR), bar);
}

TEST_F(CentredDialog, sets_fonts_without_drawing_anew) {
    Dialog dialog(desk.frame, IDD_BOLD);
    auto* const field = new Field(&dialog);
    dialog.Create();
    EXPECT_EQ(1, field->fonts);
    EXPECT_EQ(0, field->redraws);
}

TEST_F(CentredDialog, reaches_the_controls_in_its_controls) {
    Dialog dialog(desk.frame, IDD_BOLD);
    auto* const box = new owl::TGroupBox(&dialog, 500, "Group", 0, 0, 60, 40);
    auto* const inside = new owl::TButton(box, 501, "Inside", 0, 0, 30, 20);
    dialog.Create();
    EXPECT_EQ(static_cast<HFONT>(*dialog.Lightened()), box->GetWindowFont());
    EXPECT_EQ(static_cast<HFONT>(*dialog.Lightened()), inside->GetWindowFont());
}

TEST_F(CentredDialog, keeps_a_font_that_was_lightened) {
    Dialog dialog(desk.frame, IDD_BOLD);
    auto* const field = new Field(&dialog);
    dialog.Create();
    const owl::TFont* const first = dialog.Lightened();
    dialog.Destroy();
    dialog.Create();
    EXPECT_EQ(first, dialog.Lightened());
    EXPECT_EQ(static_cast<HFONT>(*first), dialog.FontOf(IDC_LABEL));
    EXPECT_EQ(2, field->fonts);
}

TEST_F(CentredDialog, lends_its_font_to_other_dialogs) {
    owl::TDialog bold(desk.frame, IDD_BOLD);
    owl::TDialog normal(desk.frame, IDD_NORMAL);
    bold.Create();
    normal.Create();
    lvx::auto_ptr<owl::TFont> holder;
    LVXCentredDialog::LightenFont(&bold, holder, false);
    ASSERT_NE(nullptr, holder.get());
    const owl::TFont* const font = holder.get();
    LVXCentredDialog::LightenFont(&normal, holder, false);
    EXPECT_EQ(font, holder.get());
    EXPECT_EQ(static_cast<HFONT>(*font),
              reinterpret_cast<HFONT>(normal.SendDlgItemMessage(IDC_LABEL, WM_GETFONT)));
}

TEST_F(CentredDialog, leaves_frames_as_they_are_where_etched_lines_are_not_drawn) {
    owl::TDialog dialog(desk.frame, IDD_BOLD);
    dialog.Create();
    lvx::auto_ptr<owl::TFont> holder;
    LVXCentredDialog::LightenFont(&dialog, holder, false);
    EXPECT_NE(nullptr, holder.get());
    EXPECT_EQ(SS_GRAYFRAME, ::GetWindowLongA(dialog.GetDlgItem(IDC_GREY_FRAME), GWL_STYLE) & SS_TYPEMASK);
}

// Null in place of the dialog would have meant all windows of the desk.
TEST_F(CentredDialog, does_nothing_without_a_dialog) {
    Dialog other(desk.frame, IDD_BOLD);
    other.Create();
    const HFONT before = other.FontOf(IDC_LABEL);
    owl::TDialog unborn(desk.frame, IDD_BOLD);
    for (owl::TDialog* dialog : {static_cast<owl::TDialog*>(nullptr), &unborn}) {
        lvx::auto_ptr<owl::TFont> holder(new owl::TFont(DescriptionOf(before)));
        LVXCentredDialog::Centre(dialog);
        LVXCentredDialog::LightenFont(dialog, holder, true);
        holder.reset();
        LVXCentredDialog::LightenFont(dialog, holder, true);
        EXPECT_EQ(nullptr, holder.get());
    }
    EXPECT_EQ(before, other.FontOf(IDC_LABEL));
}
