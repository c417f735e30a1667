#include "owl/last_error.h"

#include <gtest/gtest.h>

namespace {

using owl::FailureText;
using owl::SystemText;

TEST(SystemText, is_the_system_s_own_without_a_line_end) {
    const std::string text = SystemText(ERROR_FILE_NOT_FOUND);
    EXPECT_NE(std::string::npos, text.find("ile not found")) << text;
    EXPECT_GT(text.back(), ' ');
}

TEST(SystemText, of_no_error_does_not_speak_of_success) {
    EXPECT_EQ("the system gave no reason", SystemText(0));
}

TEST(SystemText, of_an_unknown_number_is_the_number) {
    EXPECT_EQ("error 539099137", SystemText(0x2022'0001));
}

TEST(FailureText, begins_with_the_call) {
    EXPECT_EQ("CreatePen: the system gave no reason", FailureText("CreatePen", 0));
}

TEST(Require, returns_what_the_call_returned) {
    EXPECT_EQ(7, owl::Require<owl::TXGdi>("Seven", [] { return 7; }));
}

TEST(Require, throws_the_asked_kind_with_the_systems_reason) {
    try {
        owl::Require<owl::TXWindow>("GetParent", [] { return ::GetParent(HWND(0x7fff0)); });
        FAIL() << "nothing was thrown";
    } catch (const owl::TXWindow& error) {
        EXPECT_EQ(DWORD{ERROR_INVALID_WINDOW_HANDLE}, error.GetCode());
        EXPECT_EQ("GetParent: " + SystemText(ERROR_INVALID_WINDOW_HANDLE), error.what());
    }
}

// A call that failed without a reason was told with the reason of an earlier one.
TEST(Require, forgets_the_reason_of_an_earlier_call) {
    ::SetLastError(ERROR_FILE_NOT_FOUND);
    try {
        owl::Require<owl::TXGdi>("Silent", [] { return false; });
        FAIL() << "nothing was thrown";
    } catch (const owl::TXGdi& error) {
        EXPECT_EQ(0ul, error.GetCode());
        EXPECT_STREQ("Silent: the system gave no reason", error.what());
    }
}

}  // namespace
