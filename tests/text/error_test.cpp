#include "lvx/text/error.h"

#include <gtest/gtest.h>

#include <type_traits>

TEST(RuntimeError, gives_its_text_through_what) {
    const lvx::runtime_error error(std::string("The pen is dry."));
    EXPECT_STREQ("The pen is dry.", error.what());
}

TEST(RuntimeError, is_caught_as_the_standard_runtime_error) {
    try {
        throw lvx::runtime_error(std::string("x"));
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ("x", error.what());
        return;
    }
    FAIL() << "not caught";
}

TEST(RuntimeError, is_not_made_from_a_string_by_accident) {
    EXPECT_FALSE((std::is_convertible_v<std::string, lvx::runtime_error>));
}
