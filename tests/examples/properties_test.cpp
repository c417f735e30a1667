// The program of docs/property-dialogs.md, used as a user does: by keys and mouse, in a process of its own.
// What comes out is read from its dialog and from the screen.
#include <gtest/gtest.h>

#include "examples/properties/properties_ids.h"
#include "support/other_program.h"
#include "support/user.h"

namespace {

using user::Press;
using user::WaitUntil;

constexpr COLORREF black = RGB(0, 0, 0);
constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF green = RGB(0, 255, 0);
constexpr COLORREF blue = RGB(0, 0, 255);
constexpr COLORREF white = RGB(255, 255, 255);

class Properties : public ::testing::Test {
protected:
    Properties() : m_program(LVX_TEST_PROGRAM_PREFIX "properties.exe") {
        m_frame = user::WaitForShown(nullptr, "Box");
    }
    void SetUp() override {
        ASSERT_NE(nullptr, m_frame);
        ASSERT_TRUE(m_program.Owns(m_frame));
        ::MoveWindow(m_frame, 500, 300, 300, 220, TRUE);
        ASSERT_TRUE(user::WaitUntilInFront(m_frame));
    }

    /// The strip has the keyboard then.
    void OpenDialog() {
        Press({VK_CONTROL, 'P'});
        m_dialog = user::WaitForShown(user::dialog_class, "Properties");
        ASSERT_NE(nullptr, m_dialog);
        ASSERT_TRUE(user::WaitUntilInFront(m_dialog));
        ASSERT_TRUE(WaitUntil([&] { return ClassOf(user::FocusOf(m_dialog)) == "tbProperty"; }));
        ::MoveWindow(m_dialog, 20, 20, WidthOf(m_dialog), HeightOf(m_dialog), TRUE);
    }
    /// A control of the page that shows; null if it is on no such page.
    HWND Control(int id) const {
        const HWND strip = ::FindWindowExA(m_dialog, nullptr, "tbProperty", nullptr);
        HWND page = nullptr;
        while ((page = ::FindWindowExA(strip, page, user::dialog_class, nullptr)) != nullptr) {
            const HWND control = ::GetDlgItem(page, id);
            if (control != nullptr && ::IsWindowVisible(control))
                return control;
        }
        return nullptr;
    }
    bool Shows(int id) const {
        return WaitUntil([&] { return Control(id) != nullptr; });
    }
    bool HasKeyboard(int id) const {
        return WaitUntil([&] { return Control(id) != nullptr && user::FocusOf(m_dialog) == Control(id); });
    }
    bool DialogIsGone() const {
        return WaitUntil([&] { return !::IsWindow(m_dialog); }) && user::WaitUntilInFront(m_frame);
    }
    /// Whether the middle of the box has a colour, and its line reaches so far from its edge to the left.
    bool BoxIs(COLORREF fill, int reach) const {
        return WaitUntil([&] {
            return At(130, 80) == fill && At(60 - reach, 80) == black && At(60 - reach - 1, 80) == white;
        });
    }

    static std::string ClassOf(HWND window) {
        char name[32] = "";
        ::GetClassNameA(window, name, sizeof name);
        return name;
    }
    static int WidthOf(HWND window) {
        RECT rect{};
        ::GetWindowRect(window, &rect);
        return rect.right - rect.left;
    }
    static int HeightOf(HWND window) {
        RECT rect{};
        ::GetWindowRect(window, &rect);
        return rect.bottom - rect.top;
    }
    COLORREF At(int x, int y) const {
        POINT point{x, y};
        ::ClientToScreen(m_frame, &point);
        const HDC screen = ::GetDC(nullptr);
        const COLORREF colour = ::GetPixel(screen, point.x, point.y);
        ::ReleaseDC(nullptr, screen);
        return colour;
    }

    user::OtherProgram m_program;
    HWND m_frame = nullptr;
    HWND m_dialog = nullptr;
};

TEST_F(Properties, begin_with_a_red_box) {
    EXPECT_TRUE(BoxIs(red, 1));
}

TEST_F(Properties, take_line_and_fill_by_keys_alone) {
    OpenDialog();
    Press({VK_TAB});
    ASSERT_TRUE(HasKeyboard(IDC_WIDTH));
    user::Type("11");
    Press({VK_MENU, 'F'});
    ASSERT_TRUE(Shows(IDC_BLUE));
    Press({VK_TAB});
    ASSERT_TRUE(HasKeyboard(IDC_RED));
    Press({VK_MENU, 'B'});
    ASSERT_TRUE(HasKeyboard(IDC_BLUE));
    Press({VK_RETURN});
    EXPECT_TRUE(DialogIsGone());
    EXPECT_TRUE(BoxIs(blue, 5));
}

TEST_F(Properties, take_the_fill_by_the_mouse) {
    OpenDialog();
    Press({VK_CONTROL, VK_NEXT});
    ASSERT_TRUE(Shows(IDC_GREEN));
    user::Click(Control(IDC_GREEN));
    ASSERT_TRUE(HasKeyboard(IDC_GREEN));
    user::Click(::GetDlgItem(m_dialog, IDOK));
    EXPECT_TRUE(DialogIsGone());
    EXPECT_TRUE(BoxIs(green, 1));
}

TEST_F(Properties, are_left_as_they_are_by_escape) {
    OpenDialog();
    Press({VK_TAB});
    ASSERT_TRUE(HasKeyboard(IDC_WIDTH));
    user::Type("11");
    Press({VK_ESCAPE});
    EXPECT_TRUE(DialogIsGone());
    EXPECT_TRUE(BoxIs(red, 1));
}

TEST_F(Properties, refuse_ok_while_the_width_is_wrong_and_show_where) {
    OpenDialog();
    Press({VK_TAB});
    ASSERT_TRUE(HasKeyboard(IDC_WIDTH));
    user::Type("99");
    // The first change of tab is not asked about; OK is.
    Press({VK_CONTROL, VK_NEXT});
    ASSERT_TRUE(Shows(IDC_RED));
    Press({VK_RETURN});
    const HWND box = user::WaitForShown(user::dialog_class, "Line");
    ASSERT_NE(nullptr, box);
    ASSERT_TRUE(user::WaitUntilInFront(box));
    Press({VK_RETURN});
    EXPECT_TRUE(WaitUntil([&] { return !::IsWindow(box); }));
    EXPECT_TRUE(Shows(IDC_WIDTH));
    EXPECT_TRUE(::IsWindow(m_dialog));
    Press({VK_ESCAPE});
    EXPECT_TRUE(DialogIsGone());
}

TEST_F(Properties, come_up_as_they_were_agreed_to) {
    OpenDialog();
    Press({VK_TAB});
    ASSERT_TRUE(HasKeyboard(IDC_WIDTH));
    user::Type("7");
    Press({VK_RETURN});
    ASSERT_TRUE(DialogIsGone());
    OpenDialog();
    EXPECT_EQ("7", user::TextOf(Control(IDC_WIDTH)));
    Press({VK_ESCAPE});
    EXPECT_TRUE(DialogIsGone());
    EXPECT_TRUE(BoxIs(red, 3));
}

}  // namespace
