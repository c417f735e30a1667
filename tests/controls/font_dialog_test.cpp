#include "lvx/controls/font_dialog.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>

#include "controls/settled.h"
#include "lvx/drawing/my_font.h"
#include "tests/owl/driven_dialog.h"

namespace {

using namespace FontOptionsEnum;
using owl::TWindow;

// What the system's own template calls its controls.
constexpr int face_list = 0x470;
constexpr int style_list = 0x471;
constexpr int size_list = 0x472;
constexpr int colour_list = 0x473;
constexpr int colour_label = 0x443;
constexpr int strikeout_box = 0x410;
constexpr int underline_box = 0x411;

/// Sees the dialog that the library shows, which is not this test's: from idle moments of nobody, so by a
/// timer, in the system's loop.
class Visitor {
public:
    explicit Visitor(const std::function<void(HWND)>& visit) : m_visit(visit) {
        current = this;
        m_timer = ::SetTimer(nullptr, 0, 20, &Tick);
    }
    ~Visitor() {
        ::KillTimer(nullptr, m_timer);
        current = nullptr;
    }
    Visitor(const Visitor&) = delete;
    Visitor& operator=(const Visitor&) = delete;

private:
    static void CALLBACK Tick(HWND, UINT, UINT_PTR timer, DWORD) {
        const HWND dialog = user::FindShown(user::dialog_class, "Font");
        if (dialog == nullptr) {
            return;
        }
        ::KillTimer(nullptr, timer);
        current->m_visit(dialog);
    }

    static inline Visitor* current = nullptr;
    std::function<void(HWND)> m_visit;
    UINT_PTR m_timer = 0;
};

void press_ok(HWND dialog) {
    ::PostMessageA(dialog, WM_COMMAND, IDOK, 0);
}

void press_cancel(HWND dialog) {
    ::PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
}

/// Chooses the entry `text` of a list as the user does by the mouse.
void choose(HWND dialog, int list, const char* text) {
    const HWND control = ::GetDlgItem(dialog, list);
    const LRESULT at =
        ::SendMessageA(control, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(text));
    ASSERT_NE(CB_ERR, at) << text;
    ::SendMessageA(control, CB_SETCURSEL, static_cast<WPARAM>(at), 0);
    ::SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(list, CBN_SELCHANGE), reinterpret_cast<LPARAM>(control));
}

std::string text_of(HWND dialog, int control) {
    return user::TextOf(::GetDlgItem(dialog, control));
}

bool is_shown(HWND dialog, int control) {
    return (::GetWindowLongA(::GetDlgItem(dialog, control), GWL_STYLE) & WS_VISIBLE) != 0;
}

UINT check_of(HWND dialog, int box) {
    return ::IsDlgButtonChecked(dialog, box);
}

LONG kind_of(HWND dialog, int box) {
    return ::GetWindowLongA(::GetDlgItem(dialog, box), GWL_STYLE) & BS_TYPEMASK;
}

struct FontDialog : testing::Test {
    FontDialog() { settled::Show(*desk.frame, owl::TRect(100, 100, 900, 800)); }

    bool Show(FontOptions theOptions, const std::function<void(HWND)>& visit) {
        options = theOptions;
        const Visitor visitor(visit);
        return fontDialog::dialog(desk.frame, font, options, false);
    }

    desk::Desk desk;
    desk::Watchdog watchdog;
    myFont font{"Arial", 12, false, true, true, false};
    FontOptions options = None;
};

}  // namespace

TEST_F(FontDialog, begins_with_the_font_that_is_given) {
    std::string face, style, size;
    UINT underline = 9, strikeout = 9;
    EXPECT_TRUE(Show(All, [&](HWND dialog) {
        face = text_of(dialog, face_list);
        style = text_of(dialog, style_list);
        size = text_of(dialog, size_list);
        underline = check_of(dialog, underline_box);
        strikeout = check_of(dialog, strikeout_box);
        press_ok(dialog);
    }));
    EXPECT_EQ("Arial", face);
    EXPECT_EQ("Italic", style);
    EXPECT_EQ("12", size);
    EXPECT_EQ(static_cast<UINT>(BST_CHECKED), underline);
    EXPECT_EQ(static_cast<UINT>(BST_UNCHECKED), strikeout);
    EXPECT_EQ(myFont("Arial", 12, false, true, true, false), font);
    EXPECT_EQ(All, options);
}

TEST_F(FontDialog, gives_what_was_chosen) {
    EXPECT_TRUE(Show(All, [](HWND dialog) {
        choose(dialog, face_list, "Courier New");
        choose(dialog, style_list, "Bold");
        choose(dialog, size_list, "20");
        user::Click(::GetDlgItem(dialog, underline_box));
        user::Click(::GetDlgItem(dialog, strikeout_box));
        EXPECT_TRUE(desk::PumpUntil([&] {
            return check_of(dialog, underline_box) == BST_UNCHECKED &&
                   check_of(dialog, strikeout_box) == BST_CHECKED;
        }));
        press_ok(dialog);
    }));
    EXPECT_EQ(myFont("Courier New", 20, true, false, false, true), font);
}

TEST_F(FontDialog, is_worked_by_keys) {
    EXPECT_TRUE(Show(All, [](HWND dialog) {
        user::WaitUntilInFront(dialog);
        desk::Press({VK_TAB});
        desk::Press({VK_TAB});
        EXPECT_TRUE(desk::PumpUntil([&] {
            return ::GetFocus() != nullptr && ::GetParent(::GetFocus()) == ::GetDlgItem(dialog, size_list);
        }));
        user::Type("30");
        EXPECT_TRUE(desk::PumpUntil([&] { return text_of(dialog, size_list) == "30"; }));
        desk::Press({VK_RETURN});
    }));
    EXPECT_EQ(myFont("Arial", 30, false, true, true, false), font);
}

TEST_F(FontDialog, leaves_the_font_alone_when_it_is_cancelled) {
    EXPECT_FALSE(Show(None, [](HWND dialog) {
        user::Click(::GetDlgItem(dialog, strikeout_box));
        EXPECT_TRUE(desk::PumpUntil([&] { return check_of(dialog, strikeout_box) == BST_UNCHECKED; }));
        press_cancel(dialog);
    }));
    EXPECT_EQ(myFont("Arial", 12, false, true, true, false), font);
    // The options tell what was offered all the same.
    EXPECT_EQ(Underline | Strikeout, options);
}

TEST_F(FontDialog, opens_in_the_middle_of_its_parent) {
    owl::TRect place;
    Show(All, [&](HWND dialog) {
        ::GetWindowRect(dialog, &place);
        press_cancel(dialog);
    });
    EXPECT_EQ(100 + (800 - place.Width()) / 2, place.left);
    EXPECT_EQ(100 + (700 - place.Height()) / 2, place.top);
}

TEST_F(FontDialog, offers_no_colours) {
    Show(All, [](HWND dialog) {
        EXPECT_FALSE(is_shown(dialog, colour_list));
        EXPECT_FALSE(is_shown(dialog, colour_label));
        EXPECT_TRUE(is_shown(dialog, underline_box));
        press_cancel(dialog);
    });
}

TEST_F(FontDialog, has_plain_boxes_for_what_is_an_option) {
    Show(All, [](HWND dialog) {
        EXPECT_EQ(BS_AUTOCHECKBOX, kind_of(dialog, underline_box));
        EXPECT_EQ(BS_AUTOCHECKBOX, kind_of(dialog, strikeout_box));
        press_cancel(dialog);
    });
}

TEST_F(FontDialog, has_undecided_boxes_for_what_is_no_option) {
    Show(Face | Underline, [](HWND dialog) {
        EXPECT_EQ(BS_AUTOCHECKBOX, kind_of(dialog, underline_box));
        EXPECT_EQ(static_cast<UINT>(BST_CHECKED), check_of(dialog, underline_box));
        EXPECT_EQ(BS_AUTO3STATE, kind_of(dialog, strikeout_box));
        EXPECT_EQ(static_cast<UINT>(BST_INDETERMINATE), check_of(dialog, strikeout_box));
        press_cancel(dialog);
    });
    Show(Strikeout, [](HWND dialog) {
        EXPECT_EQ(BS_AUTO3STATE, kind_of(dialog, underline_box));
        EXPECT_EQ(static_cast<UINT>(BST_INDETERMINATE), check_of(dialog, underline_box));
        EXPECT_EQ(BS_AUTOCHECKBOX, kind_of(dialog, strikeout_box));
        press_cancel(dialog);
    });
}

TEST_F(FontDialog, lets_the_user_decide_undecided_boxes) {
    EXPECT_TRUE(Show(None, [](HWND dialog) {
        // From undecided to empty, and on.
        user::Click(::GetDlgItem(dialog, underline_box));
        EXPECT_TRUE(desk::PumpUntil([&] { return check_of(dialog, underline_box) == BST_UNCHECKED; }));
        user::Click(::GetDlgItem(dialog, strikeout_box));
        EXPECT_TRUE(desk::PumpUntil([&] { return check_of(dialog, strikeout_box) == BST_UNCHECKED; }));
        user::Click(::GetDlgItem(dialog, strikeout_box));
        EXPECT_TRUE(desk::PumpUntil([&] { return check_of(dialog, strikeout_box) == BST_CHECKED; }));
        press_ok(dialog);
    }));
    EXPECT_EQ(myFont("Arial", 12, false, true, false, true), font);
}

namespace {

/// What a dialog with some options lets the user choose, and what the options are afterwards.
struct Offer {
    FontOptions options;
    bool face;
    bool style;
    bool size;
    FontOptions after;
};

const Offer offers[] = {
    {None, false, false, false, Underline | Strikeout},
    {Face, true, false, false, Face | Underline | Strikeout},
    {Size, false, false, true, Size | Underline | Strikeout},
    {Bold, false, true, false, Bold | Italic | Underline | Strikeout},
    {Italic, false, true, false, Bold | Italic | Underline | Strikeout},
    {Bold | Italic, false, true, false, Bold | Italic | Underline | Strikeout},
    {Face | Size, true, false, true, Face | Size | Underline | Strikeout},
    {All, true, true, true, All},
};

}  // namespace

// Some systems disable what cannot be chosen, others leave it empty at first: the font tells.
TEST_F(FontDialog, lets_the_user_choose_the_parts_that_are_options) {
    for (const Offer& offer : offers) {
        font = myFont("Arial", 12, false, true, false, false);
        EXPECT_TRUE(Show(offer.options, [](HWND dialog) {
            choose(dialog, face_list, "Courier New");
            choose(dialog, style_list, "Bold");
            choose(dialog, size_list, "20");
            press_ok(dialog);
        }));
        EXPECT_EQ(offer.face ? "Courier New" : "Arial", font.Face()) << offer.options;
        EXPECT_EQ(offer.style, font.Bold()) << offer.options;
        EXPECT_EQ(!offer.style, font.Italic()) << offer.options;
        EXPECT_EQ(offer.size ? 20 : 12, font.Size()) << offer.options;
        EXPECT_EQ(offer.after, options) << offer.options;
    }
}

TEST_F(FontDialog, has_sizes_in_tenths_of_a_point) {
    font.Size(10.46);
    EXPECT_TRUE(Show(Face, &press_ok));
    // What could not be chosen is as it was.
    EXPECT_EQ(10.46, font.Size());
    font.Size(11);
    EXPECT_TRUE(Show(All, &press_ok));
    EXPECT_DOUBLE_EQ(11, font.Size());
}

TEST_F(FontDialog, stands_sizes_that_no_font_has) {
    for (const double size : {std::nan(""), std::numeric_limits<double>::infinity(), -1e300, 1e300, 0.0}) {
        font.Size(size);
        EXPECT_FALSE(Show(All, &press_cancel));
    }
}

TEST_F(FontDialog, needs_no_parent) {
    const Visitor visitor(&press_ok);
    options = All;
    EXPECT_TRUE(fontDialog::dialog(nullptr, font, options, true));
}

TEST(FontOptions, are_bits_by_the_parts_of_a_font) {
    EXPECT_EQ(0x01u, Face + 0u);
    EXPECT_EQ(0x02u, Size + 0u);
    EXPECT_EQ(0x04u, Bold + 0u);
    EXPECT_EQ(0x08u, Italic + 0u);
    EXPECT_EQ(0x10u, Underline + 0u);
    EXPECT_EQ(0x20u, Strikeout + 0u);
    EXPECT_EQ(All, Face | Size | Bold | Italic | Underline | Strikeout);
}
