// The program of docs/owl.md, used as a user does: by keys and mouse, in a process of its own. What comes out
// is read from its controls and from the screen.
#include <gtest/gtest.h>

#include <string>

#include "examples/hello/hello_ids.h"
#include "support/other_program.h"
#include "support/screen_picture.h"
#include "support/user.h"

namespace {

using user::Press;
using user::ScreenPicture;
using user::WaitUntil;

// What the client area looks like with a text at its place, drawn without the framework.
ScreenPicture Expected(HWND window, const std::string& text) {
    RECT rect{};
    ::GetClientRect(window, &rect);
    const HDC screen = ::GetDC(nullptr);
    const HDC memory = ::CreateCompatibleDC(screen);
    const HBITMAP bitmap = ::CreateCompatibleBitmap(screen, rect.right, rect.bottom);
    const HGDIOBJ former = ::SelectObject(memory, bitmap);
    ::FillRect(memory, &rect, ::GetSysColorBrush(COLOR_WINDOW));
    ::TextOutA(memory, 20, 20, text.data(), static_cast<int>(text.size()));
    const ScreenPicture picture(memory, rect);
    ::SelectObject(memory, former);
    ::DeleteObject(bitmap);
    ::DeleteDC(memory);
    ::ReleaseDC(nullptr, screen);
    return picture;
}

class Hello : public ::testing::Test {
protected:
    Hello() : m_program(LVX_TEST_PROGRAM_PREFIX "hello.exe") {
        m_frame = user::WaitForShown(nullptr, "Hello");
    }
    void SetUp() override {
        ASSERT_NE(nullptr, m_frame);
        ASSERT_TRUE(m_program.Owns(m_frame));
        ASSERT_TRUE(user::WaitUntilInFront(m_frame));
    }

    void OpenMenu() {
        Press({VK_MENU, 'H'});
        ASSERT_NE(nullptr, user::WaitForShown(user::drop_down_class, nullptr));
    }
    void CloseMenu() {
        Press({VK_ESCAPE});
        Press({VK_ESCAPE});
        EXPECT_TRUE(WaitUntil([] { return user::FindShown(user::drop_down_class, nullptr) == nullptr; }));
    }
    void OpenDialog() {
        Press({VK_CONTROL, 'G'});
        WaitForDialog();
    }
    void WaitForDialog() {
        m_dialog = user::WaitForShown(user::dialog_class, "Greet");
        ASSERT_NE(nullptr, m_dialog);
        ASSERT_TRUE(user::WaitUntilInFront(m_dialog));
    }
    void GreetTheWorld() {
        OpenDialog();
        Press({VK_RETURN});
        EXPECT_TRUE(DialogIsGone());
        ASSERT_TRUE(user::WaitUntilInFront(m_frame));
        ASSERT_TRUE(Shows("Hello, world."));
    }
    HWND Item(int id) const { return ::GetDlgItem(m_dialog, id); }
    bool IsLoud() const { return ::SendMessageA(Item(IDC_LOUD), BM_GETCHECK, 0, 0) == BST_CHECKED; }
    bool HasFocus(int id) const {
        return WaitUntil([&] { return user::FocusOf(m_dialog) == Item(id); });
    }
    bool DialogIsGone() const {
        return WaitUntil([&] { return !::IsWindow(m_dialog); });
    }
    bool Shows(const std::string& text) const {
        const ScreenPicture expected = Expected(m_frame, text);
        return WaitUntil([&] { return user::PictureOfClient(m_frame) == expected; }, 3000);
    }

    user::OtherProgram m_program;
    HWND m_frame = nullptr;
    HWND m_dialog = nullptr;
};

}  // namespace

TEST_F(Hello, begins_with_an_empty_window_of_its_title) {
    EXPECT_TRUE(Shows(""));
    EXPECT_FALSE(m_program.Ended());
}

// Its colours are found in the caption where nothing else has them.
TEST_F(Hello, has_its_icon_in_the_caption) {
    RECT caption{};
    ::GetWindowRect(m_frame, &caption);
    caption.right = caption.left + 4 + ::GetSystemMetrics(SM_CXSIZE) + 4;
    caption.bottom = caption.top + 4 + ::GetSystemMetrics(SM_CYCAPTION);
    EXPECT_TRUE(WaitUntil([&] {
        const ScreenPicture picture = ScreenPicture::Of(caption);
        return picture.Count(RGB(255, 255, 0)) > 60 && picture.Count(RGB(0, 0, 128)) > 15;
    }));
}

TEST_F(Hello, greets_who_is_typed_into_the_dialog_of_its_menu) {
    OpenMenu();
    Press({'G'});
    WaitForDialog();
    EXPECT_EQ("world", user::TextOf(Item(IDC_NAME)));
    EXPECT_FALSE(IsLoud());
    // The name is selected at first: what is typed takes its place.
    user::Type("Ann");
    EXPECT_TRUE(WaitUntil([&] { return user::TextOf(Item(IDC_NAME)) == "Ann"; }));
    Press({VK_RETURN});
    EXPECT_TRUE(DialogIsGone());
    EXPECT_TRUE(Shows("Hello, Ann."));
}

TEST_F(Hello, goes_through_its_dialog_by_tabs_and_mnemonics) {
    OpenDialog();
    EXPECT_TRUE(HasFocus(IDC_NAME));
    Press({VK_TAB});
    EXPECT_TRUE(HasFocus(IDC_LOUD));
    Press({VK_TAB});
    EXPECT_TRUE(HasFocus(IDOK));
    Press({VK_SHIFT, VK_TAB});
    Press({VK_SPACE});
    EXPECT_TRUE(WaitUntil([&] { return IsLoud(); }));
    Press({VK_MENU, 'L'});
    EXPECT_TRUE(WaitUntil([&] { return !IsLoud(); }));
    Press({VK_MENU, 'N'});
    EXPECT_TRUE(HasFocus(IDC_NAME));
    Press({VK_TAB});
    Press({VK_TAB});
    Press({VK_TAB});
    EXPECT_TRUE(HasFocus(IDCANCEL));
    Press({VK_RETURN});
    EXPECT_TRUE(DialogIsGone());
    EXPECT_TRUE(Shows(""));
}

TEST_F(Hello, is_used_by_the_mouse) {
    OpenDialog();
    user::Click(Item(IDC_LOUD));
    EXPECT_TRUE(WaitUntil([&] { return IsLoud(); }));
    user::Click(Item(IDOK));
    EXPECT_TRUE(DialogIsGone());
    EXPECT_TRUE(Shows("Hello, world!"));
}

TEST_F(Hello, forgets_what_is_cancelled) {
    OpenDialog();
    user::Type("Ben");
    Press({VK_ESCAPE});
    EXPECT_TRUE(DialogIsGone());
    EXPECT_TRUE(Shows(""));
}

TEST_F(Hello, lets_its_window_alone_while_the_dialog_is_open) {
    OpenDialog();
    EXPECT_FALSE(::IsWindowEnabled(m_frame));
    Press({VK_MENU, VK_F4});
    EXPECT_TRUE(DialogIsGone());
    EXPECT_TRUE(WaitUntil([&] { return ::IsWindowEnabled(m_frame) != 0; }));
    EXPECT_FALSE(m_program.Ended());
}

TEST_F(Hello, takes_no_longer_name_than_it_has_room_for) {
    OpenDialog();
    user::Type("abcdefghijklmnopqrstuvwxyzabcdefghijklmnopq");
    const std::string held = "abcdefghijklmnopqrstuvwxyzabcdefghijklm";
    EXPECT_TRUE(WaitUntil([&] { return user::TextOf(Item(IDC_NAME)) == held; }));
    Press({VK_RETURN});
    EXPECT_TRUE(Shows("Hello, " + held + "."));
}

TEST_F(Hello, clears_by_its_menu) {
    GreetTheWorld();
    OpenMenu();
    Press({'C'});
    EXPECT_TRUE(Shows(""));
}

TEST_F(Hello, clears_by_its_key) {
    GreetTheWorld();
    Press({VK_DELETE});
    EXPECT_TRUE(Shows(""));
}

TEST_F(Hello, greys_an_item_that_has_nothing_to_do) {
    // Greyed text stands in two colours, of which one is that of shadows.
    const auto shadowPixels = [&] {
        RECT menu{};
        ::GetWindowRect(user::FindShown(user::drop_down_class, nullptr), &menu);
        ::InflateRect(&menu, -4, -4);
        return ScreenPicture::Of(menu).Count(::GetSysColor(COLOR_GRAYTEXT));
    };
    OpenMenu();
    std::ptrdiff_t greyed = 0;
    EXPECT_TRUE(WaitUntil([&] { return (greyed = shadowPixels()) > 0; }));
    CloseMenu();
    GreetTheWorld();
    OpenMenu();
    EXPECT_TRUE(WaitUntil([&] { return shadowPixels() < greyed; }));
    CloseMenu();
}

TEST_F(Hello, paints_anew_what_was_covered) {
    GreetTheWorld();
    ::ShowWindow(m_frame, SW_MINIMIZE);
    ::ShowWindow(m_frame, SW_RESTORE);
    ASSERT_TRUE(user::WaitUntilInFront(m_frame));
    EXPECT_TRUE(Shows("Hello, world."));
}

TEST_F(Hello, ends_by_its_menu) {
    OpenMenu();
    Press({'X'});
    EXPECT_EQ(0, m_program.WaitForEnd());
}

TEST_F(Hello, ends_by_the_key_of_the_system) {
    Press({VK_MENU, VK_F4});
    EXPECT_EQ(0, m_program.WaitForEnd());
}
