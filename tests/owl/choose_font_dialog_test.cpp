#include "owl/choose_font_dialog.h"

#include <gtest/gtest.h>

#include <cstring>

#include "owl/font.h"
#include "tests/owl/driven_dialog.h"

namespace {

// What the system's own template calls its controls.
constexpr int face_list = 0x470;
constexpr int style_list = 0x471;
constexpr int size_list = 0x472;
constexpr int colour_list = 0x473;
constexpr int strikeout_box = 0x410;
constexpr int underline_box = 0x411;

class FontDialog : public desk::Driven<owl::TChooseFontDialog> {
public:
    using Driven::Driven;
    const CHOOSEFONTA& Settings() const { return cf; }
};

struct ChooseFontDialogTest : testing::Test {
    ChooseFontDialogTest() {
        desk::Activate(*desk.frame);
        data.Flags = CF_SCREENFONTS | CF_EFFECTS | CF_INITTOLOGFONTSTRUCT;
        std::strcpy(data.LogFont.lfFaceName, "Arial");
        data.LogFont.lfHeight = -16;
        data.LogFont.lfWeight = FW_NORMAL;
    }

    int Run(FontDialog& dialog, const std::function<void()>& action) {
        dialog.action = action;
        return dialog.Execute();
    }

    desk::Desk desk;
    desk::Watchdog watchdog;
    owl::TChooseFontDialog::TData data;
};

TEST_F(ChooseFontDialogTest, begins_with_the_font_that_is_given) {
    data.LogFont.lfItalic = TRUE;
    data.LogFont.lfUnderline = TRUE;
    FontDialog dialog(desk.frame, data);
    std::string face, style, size;
    UINT underline = 0, strikeout = 99;
    EXPECT_EQ(IDOK, Run(dialog, [&] {
                  face = dialog.GetDlgItemText(face_list);
                  style = dialog.GetDlgItemText(style_list);
                  size = dialog.GetDlgItemText(size_list);
                  underline = dialog.IsDlgButtonChecked(underline_box);
                  strikeout = dialog.IsDlgButtonChecked(strikeout_box);
                  dialog.CmOk();
              }));
    EXPECT_EQ("Arial", face);
    EXPECT_EQ("Italic", style);
    // 16 pixels of 96 to the inch, in points of 72 to the inch.
    EXPECT_EQ("12", size);
    EXPECT_EQ(static_cast<UINT>(BST_CHECKED), underline);
    EXPECT_EQ(static_cast<UINT>(BST_UNCHECKED), strikeout);
    EXPECT_STREQ("Arial", data.LogFont.lfFaceName);
    EXPECT_EQ(120, data.PointSize);
}

TEST_F(ChooseFontDialogTest, gives_the_font_that_is_chosen_by_keys) {
    FontDialog dialog(desk.frame, data);
    EXPECT_EQ(
        IDOK, Run(dialog, [&] {
            ASSERT_TRUE(desk::Activate(dialog));
            desk::Press({VK_TAB});
            EXPECT_TRUE(
                desk::PumpUntil([&] { return ::GetParent(::GetFocus()) == dialog.GetDlgItem(style_list); }));
            desk::Press({VK_END});
            desk::Press({VK_DOWN});
            desk::Press({VK_DOWN});
            desk::Press({VK_DOWN});
            EXPECT_TRUE(desk::PumpUntil([&] { return dialog.GetDlgItemText(style_list) == "Bold Italic"; }));
            desk::Press({VK_TAB});
            EXPECT_TRUE(
                desk::PumpUntil([&] { return ::GetParent(::GetFocus()) == dialog.GetDlgItem(size_list); }));
            desk::Type("30");
            EXPECT_TRUE(desk::PumpUntil([&] { return dialog.GetDlgItemText(size_list) == "30"; }));
            desk::Press({VK_MENU, 'K'});
            EXPECT_TRUE(
                desk::PumpUntil([&] { return dialog.IsDlgButtonChecked(strikeout_box) == BST_CHECKED; }));
            desk::Press({VK_RETURN});
        }));
    EXPECT_STREQ("Arial", data.LogFont.lfFaceName);
    EXPECT_EQ(FW_BOLD, data.LogFont.lfWeight);
    EXPECT_EQ(TRUE, data.LogFont.lfItalic);
    EXPECT_EQ(TRUE, data.LogFont.lfStrikeOut);
    EXPECT_EQ(FALSE, data.LogFont.lfUnderline);
    EXPECT_EQ(300, data.PointSize);
    // 30 points of 72 to the inch, in pixels of 96 to the inch.
    EXPECT_EQ(-40, data.LogFont.lfHeight);
    EXPECT_EQ(static_cast<unsigned>(BOLD_FONTTYPE | ITALIC_FONTTYPE),
              data.FontType & (BOLD_FONTTYPE | ITALIC_FONTTYPE));
}

TEST_F(ChooseFontDialogTest, leaves_the_data_alone_when_it_is_cancelled) {
    const LOGFONTA before = data.LogFont;
    const DWORD flags = data.Flags;
    FontDialog dialog(desk.frame, data);
    EXPECT_EQ(IDCANCEL, Run(dialog, [&] {
                  ASSERT_TRUE(desk::Activate(dialog));
                  ::SetFocus(dialog.GetDlgItem(face_list));
                  desk::Press({VK_DOWN});
                  EXPECT_TRUE(desk::PumpUntil([&] { return dialog.GetDlgItemText(face_list) != "Arial"; }));
                  dialog.CheckDlgButton(underline_box, BST_CHECKED);
                  desk::Press({VK_ESCAPE});
                  desk::Press({VK_ESCAPE});
              }));
    EXPECT_EQ(0, std::memcmp(&before, &data.LogFont, sizeof before));
    EXPECT_EQ(flags, data.Flags);
    EXPECT_EQ(0, data.PointSize);
}

TEST_F(ChooseFontDialogTest, takes_and_gives_the_colour) {
    data.Color = owl::TColor(255, 0, 0);
    FontDialog dialog(desk.frame, data);
    LRESULT entry = -1;
    EXPECT_EQ(IDOK, Run(dialog, [&] {
                  const LRESULT at = dialog.SendDlgItemMessage(colour_list, CB_GETCURSEL);
                  entry = dialog.SendDlgItemMessage(colour_list, CB_GETITEMDATA, static_cast<WPARAM>(at));
                  ::SetFocus(dialog.GetDlgItem(colour_list));
                  dialog.SendDlgItemMessage(colour_list, CB_SETCURSEL, 2);
                  dialog.SendMessage(WM_COMMAND, MAKEWPARAM(colour_list, CBN_SELCHANGE),
                                     reinterpret_cast<LPARAM>(dialog.GetDlgItem(colour_list)));
                  dialog.CmOk();
              }));
    EXPECT_EQ(LRESULT{0x0000FF}, entry);
    // Black, maroon, green, as the list has them.
    EXPECT_EQ(owl::TColor(0, 128, 0), data.Color);
}

TEST_F(ChooseFontDialogTest, takes_and_gives_the_name_of_the_style) {
    data.Flags |= CF_USESTYLE;
    data.Style = "Bold";
    FontDialog dialog(desk.frame, data);
    std::string style;
    EXPECT_EQ(IDOK, Run(dialog, [&] {
                  style = dialog.GetDlgItemText(style_list);
                  dialog.CmOk();
              }));
    EXPECT_EQ("Bold", style);
    EXPECT_EQ("Bold", data.Style);
    EXPECT_EQ(FW_BOLD, data.LogFont.lfWeight);
}

TEST_F(ChooseFontDialogTest, takes_no_more_of_a_style_than_fits) {
    data.Flags |= CF_USESTYLE;
    data.Style = std::string(5000, 'x');
    FontDialog dialog(desk.frame, data);
    EXPECT_EQ(IDCANCEL, Run(dialog, [&] { dialog.CmCancel(); }));
    EXPECT_EQ(std::size_t{5000}, data.Style.size());
}

TEST_F(ChooseFontDialogTest, keeps_its_hook_out_of_the_flags) {
    FontDialog dialog(desk.frame, data);
    DWORD seen = 0;
    EXPECT_EQ(IDOK, Run(dialog, [&] {
                  seen = dialog.Settings().Flags;
                  dialog.CmOk();
              }));
    EXPECT_NE(0u, seen & CF_ENABLEHOOK);
    EXPECT_EQ(0u, data.Flags & (CF_ENABLEHOOK | CF_ENABLETEMPLATE | CF_ENABLETEMPLATEHANDLE));
    EXPECT_NE(0u, data.Flags & CF_EFFECTS);
}

TEST_F(ChooseFontDialogTest, chooses_a_font_that_can_be_made) {
    FontDialog dialog(desk.frame, data);
    EXPECT_EQ(IDOK, Run(dialog, [&] { dialog.CmOk(); }));
    LOGFONT made{};
    EXPECT_TRUE(owl::TFont(data.LogFont).GetObject(made));
    EXPECT_STREQ("Arial", made.lfFaceName);
}

}  // namespace
