#include "lvx/text/character_class.h"

#include <gtest/gtest.h>

#include <cctype>

namespace {

using namespace lvx::text;

constexpr unsigned int every_class = is_control | is_space | is_digit | is_word | is_punctuation;

}  // namespace

TEST(CharacterClass, is_that_of_the_c_library) {
    for (int code = 0; code < 128; ++code) {
        const char character = static_cast<char>(code);
        EXPECT_EQ(std::iscntrl(code) != 0, is_of(character, is_control)) << code;
        EXPECT_EQ(std::isspace(code) != 0, is_of(character, is_space)) << code;
        EXPECT_EQ(std::isdigit(code) != 0, is_of(character, is_digit)) << code;
        EXPECT_EQ(std::isalnum(code) != 0 || code == '_', is_of(character, is_word)) << code;
        EXPECT_EQ(std::ispunct(code) != 0, is_of(character, is_punctuation)) << code;
    }
}

TEST(CharacterClass, there_is_none_above_127) {
    for (int code = 128; code < 256; ++code) {
        EXPECT_FALSE(is_of(static_cast<char>(code), every_class)) << code;
    }
}

TEST(CharacterClass, several_can_be_asked_for_at_once) {
    EXPECT_TRUE(is_of('\t', is_space | is_digit));
    EXPECT_TRUE(is_of('1', is_space | is_digit));
    EXPECT_FALSE(is_of('a', is_space | is_digit));
}
