#include "owl/error.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

TEST(FrameworkError, carries_its_text_and_the_systems_number) {
    const owl::TXGdi error("CreatePen: Access denied.", 5);
    EXPECT_STREQ("CreatePen: Access denied.", error.what());
    EXPECT_EQ(5ul, error.GetCode());
    EXPECT_EQ(0ul, owl::TXOwl("no reason").GetCode());
}

// The families are told apart across the border of the shared library.
TEST(FrameworkError, is_caught_as_its_kind_as_the_framework_s_and_as_a_standard_one) {
    EXPECT_THROW(throw owl::TXGdi("x"), owl::TXGdi);
    EXPECT_THROW(throw owl::TXGdi("x"), owl::TXOwl);
    EXPECT_THROW(throw owl::TXWindow("x"), owl::TXOwl);
    EXPECT_THROW(throw owl::TXWindow("x"), std::runtime_error);
}

TEST(FrameworkError, of_one_kind_is_not_caught_as_the_other) {
    bool window = false;
    try {
        try {
            throw owl::TXGdi("x");
        } catch (const owl::TXWindow&) {
            window = true;
        }
    } catch (const owl::TXGdi&) {
        EXPECT_FALSE(window);
        return;
    }
    FAIL() << "a failure of drawing was caught as one of windows";
}

}  // namespace
