#include "lvx/runtime/help_file.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <type_traits>

#include "lvx/text/error.h"
#include "runtime/help_control_order.h"
#include "support/expect_throw.h"
#include "support/peer_process.h"
#include "support/places.h"
#include "support/temp_folder.h"
#include "tests/owl/desk.h"

namespace {

using Control = lvx_test::HelpControl;
using lvx_test::ControlOrder;

static_assert(!std::is_copy_constructible_v<LVXHelpFile> && !std::is_copy_assignable_v<LVXHelpFile>);

bool control_is_loaded() {
    return ::GetModuleHandleA("HHCTRL.OCX") != nullptr;
}

// By another road than the library's: into a buffer of ours.
std::string system_text(DWORD code) {
    char text[1000] = {};
    ::FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code,
                     LANG_USER_DEFAULT, text, sizeof text, nullptr);
    return text;
}

std::string stars_file() {
    char path[MAX_PATH] = {};
    ::GetFullPathNameA((lvx_test::own_data() + "/help/stars.chm").c_str(), MAX_PATH, path, nullptr);
    return path;
}

BOOL CALLBACK take_help_window(HWND window, LPARAM result) {
    char name[20] = {};
    ::GetClassNameA(window, name, sizeof name);
    if (std::string(name) == "HH Parent") {
        *reinterpret_cast<HWND*>(result) = window;
    }
    return TRUE;
}

BOOL CALLBACK take_tree(HWND window, LPARAM result) {
    char name[20] = {};
    ::GetClassNameA(window, name, sizeof name);
    if (std::string(name) == "SysTreeView32") {
        *reinterpret_cast<HWND*>(result) = window;
    }
    return TRUE;
}

// The window of the system's control; null if there is none.
HWND help_window() {
    HWND window = nullptr;
    ::EnumThreadWindows(::GetCurrentThreadId(), &take_help_window, reinterpret_cast<LPARAM>(&window));
    return window;
}

std::string first_contents_entry(HWND window) {
    HWND tree = nullptr;
    ::EnumChildWindows(window, &take_tree, reinterpret_cast<LPARAM>(&tree));
    char text[100] = {};
    TVITEMA item{};
    item.mask = TVIF_TEXT;
    item.hItem = reinterpret_cast<HTREEITEM>(::SendMessageA(tree, TVM_GETNEXTITEM, TVGN_ROOT, 0));
    item.pszText = text;
    item.cchTextMax = sizeof text;
    ::SendMessageA(tree, TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&item));
    return text;
}

class HelpFile : public testing::Test {
protected:
    HelpFile() { ControlOrder::Forget(); }
    ~HelpFile() override { EXPECT_FALSE(control_is_loaded()); }

    desk::Desk desk;
};

}  // namespace

TEST_F(HelpFile, is_valid_with_the_systems_control) {
    {
        const LVXHelpFile help(desk.frame, "stars.chm");
        EXPECT_TRUE(help.Valid());
        EXPECT_TRUE(control_is_loaded());
    }
    EXPECT_FALSE(control_is_loaded());
}

TEST_F(HelpFile, shares_the_control_with_another) {
    const LVXHelpFile first(desk.frame, "stars.chm");
    { const LVXHelpFile second(desk.frame, "planets.chm"); }
    EXPECT_TRUE(control_is_loaded());
}

TEST_F(HelpFile, opens_a_compiled_help_file_in_the_systems_window) {
    LVXHelpFile help(desk.frame, stars_file().c_str());
    help.DisplayContents("sirius.htm");
    ASSERT_TRUE(desk::PumpUntil([] { return help_window() != nullptr; }));
    const HWND window = help_window();
    char title[20] = {};
    ::GetWindowTextA(window, title, sizeof title);
    EXPECT_STREQ("Stars", title);
    EXPECT_TRUE(::IsWindowVisible(window));
    EXPECT_EQ("Sirius", first_contents_entry(window));
    ::SendMessageA(window, WM_CLOSE, 0, 0);
    EXPECT_TRUE(desk::PumpUntil([] { return help_window() == nullptr; }));
}

TEST_F(HelpFile, opens_nothing_if_there_is_no_such_file) {
    LVXHelpFile help(desk.frame, "no such file.chm");
    ASSERT_TRUE(help.Valid());
    help.DisplayContents("sirius.htm");
    unsigned long ids[] = {101, 2001, 0, 0};
    help.DisplayTextPopup(desk.frame->GetHandle(), "stars.txt", ids);
    desk::PumpUntil([] { return false; }, 100);
    EXPECT_EQ(nullptr, help_window());
}

TEST_F(HelpFile, shows_a_page_through_the_control) {
    const Control control("help_control");
    LVXHelpFile help(desk.frame, "C:\\help\\stars.chm");
    ASSERT_TRUE(help.Valid());
    EXPECT_EQ(0, control.Call().count);
    const char* const topic = "sirius.htm";
    help.DisplayContents(topic);
    EXPECT_EQ(1, control.Call().count);
    EXPECT_EQ(desk.frame->GetHandle(), control.Call().window);
    EXPECT_STREQ("C:\\help\\stars.chm", control.Call().file);
    EXPECT_EQ(0u, control.Call().command);
    EXPECT_EQ(reinterpret_cast<DWORD_PTR>(topic), control.Call().data);
}

TEST_F(HelpFile, shows_its_first_page_if_none_is_named) {
    const Control control("help_control");
    LVXHelpFile(desk.frame, "stars.chm").DisplayContents(nullptr);
    EXPECT_EQ(1, control.Call().count);
    EXPECT_EQ(0u, control.Call().data);
}

TEST_F(HelpFile, shows_the_text_of_a_control_through_the_help_control) {
    const Control control("help_control");
    LVXHelpFile help(desk.frame, "stars.chm");
    const HWND field = ::CreateWindowExA(0, "EDIT", "", WS_CHILD, 0, 0, 50, 20, desk.frame->GetHandle(),
                                         nullptr, nullptr, nullptr);
    unsigned long ids[] = {101, 2001, 0, 0};
    help.DisplayTextPopup(field, "stars.txt", ids);
    EXPECT_EQ(1, control.Call().count);
    EXPECT_EQ(field, control.Call().window);
    EXPECT_STREQ("stars.chm::/stars.txt", control.Call().file);
    EXPECT_EQ(0x11u, control.Call().command);
    EXPECT_EQ(reinterpret_cast<DWORD_PTR>(ids), control.Call().data);
}

TEST_F(HelpFile, names_the_window_of_the_moment) {
    const Control control("help_control");
    owl::TFrameWindow late(nullptr, "late");
    LVXHelpFile help(&late, "stars.chm");
    help.DisplayContents("sirius.htm");
    EXPECT_EQ(nullptr, control.Call().window);
    late.Create();
    help.DisplayContents("sirius.htm");
    EXPECT_EQ(late.GetHandle(), control.Call().window);
}

TEST_F(HelpFile, takes_null_for_none_and_for_empty) {
    const Control control("help_control");
    LVXHelpFile help(nullptr, nullptr);
    help.DisplayContents(nullptr);
    EXPECT_EQ(nullptr, control.Call().window);
    EXPECT_STREQ("", control.Call().file);
    help.DisplayTextPopup(nullptr, nullptr, nullptr);
    EXPECT_EQ(nullptr, control.Call().window);
    EXPECT_STREQ("::/", control.Call().file);
    EXPECT_EQ(0u, control.Call().data);
}

TEST_F(HelpFile, without_the_controls_function_is_not_valid_and_shows_nothing) {
    const Control control("bare_help_control");
    LVXHelpFile help(desk.frame, "stars.chm");
    EXPECT_FALSE(help.Valid());
    help.DisplayContents("sirius.htm");
    unsigned long ids[] = {101, 2001, 0, 0};
    help.DisplayTextPopup(desk.frame->GetHandle(), "stars.txt", ids);
    EXPECT_TRUE(control_is_loaded());
}

TEST_F(HelpFile, tells_by_the_systems_code_and_text_that_there_is_no_control) {
    const ControlOrder nowhere("");
    EXPECT_THROW_TEXT(
        LVXHelpFile(desk.frame, "stars.chm"), lvx::runtime_error,
        "Failed to load HHCTRL.OCX.\nGetLastError returned 0x7e\n" + system_text(ERROR_MOD_NOT_FOUND));
}

TEST_F(HelpFile, finds_the_control_once_it_is_there_again) {
    {
        const ControlOrder nowhere("");
        EXPECT_THROW(LVXHelpFile(desk.frame, "stars.chm"), lvx::runtime_error);
    }
    EXPECT_TRUE(LVXHelpFile(desk.frame, "stars.chm").Valid());
}

// The system's text has a place for a name, which nobody gives.
TEST_F(HelpFile, tells_that_the_control_is_no_library) {
    const lvx_test::TempFolder folder;
    std::ofstream(folder.File("hhctrl.ocx")) << "no library at all";
    ::SetDllDirectoryA(folder.Path().c_str());
    const ControlOrder ours("native");
    EXPECT_THROW_TEXT(LVXHelpFile(desk.frame, "stars.chm"), lvx::runtime_error,
                      "Failed to load HHCTRL.OCX.\nGetLastError returned 0xc1\n");
    ::SetDllDirectoryA(nullptr);
}
