#include "lvx/text/function_parser.h"

#include <gtest/gtest.h>

#include <climits>
#include <exception>
#include <string>
#include <type_traits>

#include "text/all_texts.h"
#include "text/function_oracle.h"

namespace {

using lvx_test::oracle_parsed;
using lvx_test::parsed;

constexpr const char* missing_function = "!MissingFunction";
constexpr const char* missing_open_bracket = "!MissingOpenBracket";

}  // namespace

TEST(FunctionParser, a_name_alone_is_a_call_without_arguments) {
    EXPECT_EQ("save", parsed("save"));
    EXPECT_EQ("save", parsed("  save  "));
    EXPECT_EQ("save", parsed("\t\n\v\f\rsave\n"));
    EXPECT_EQ(0, FunctionParser("save").ArgCount());
}

TEST(FunctionParser, empty_brackets_hold_one_empty_argument) {
    for (const std::string text : {"save()", "save( )", "save(", "save( ", "save ( )", "save(\t\n)"}) {
        const FunctionParser call(text);
        EXPECT_EQ("save", call.FunctionName()) << text;
        EXPECT_EQ(1, call.ArgCount()) << text;
        EXPECT_EQ("", call.Argument(0)) << text;
    }
}

TEST(FunctionParser, commas_and_blanks_separate_arguments) {
    EXPECT_EQ("move|1|2", parsed("move(1, 2)"));
    EXPECT_EQ("move|1|2", parsed("move(1 2)"));
    EXPECT_EQ("move|1|2", parsed("move(1,2)"));
    EXPECT_EQ("move|1|2", parsed("move(1\t,\n2)"));
    EXPECT_EQ("move|1|2|3", parsed(" move ( 1 2 , 3 ) "));
}

TEST(FunctionParser, nothing_between_commas_is_an_empty_argument) {
    EXPECT_EQ("move|1||2", parsed("move(1,,2)"));
    EXPECT_EQ("move|1||2", parsed("move(1, ,2)"));
    EXPECT_EQ("move||1", parsed("move(,1)"));
    EXPECT_EQ("move||", parsed("move(,)"));
    EXPECT_EQ("move|1|", parsed("move(1,)"));
}

TEST(FunctionParser, a_comma_at_the_end_of_the_text_separates_nothing) {
    EXPECT_EQ("move|1", parsed("move(1,"));
    EXPECT_EQ("move|1|", parsed("move(1, "));
    EXPECT_EQ("move|", parsed("move(,"));
    EXPECT_EQ("move|1|2", parsed("move(1,2"));
    EXPECT_EQ("move|1|2", parsed("move(1,2 "));
}

TEST(FunctionParser, quoted_arguments_keep_blanks_commas_and_brackets) {
    EXPECT_EQ("f|a b|c,d", parsed("f(\"a b\", 'c,d')"));
    EXPECT_EQ("f|a)b|(", parsed("f(`a)b` \"(\")"));
    EXPECT_EQ("f| a |", parsed("f(' a ', \"\")"));
}

TEST(FunctionParser, a_quote_of_another_kind_inside_has_to_be_closed_too) {
    EXPECT_EQ("f|say 'a\"b'|c", parsed("f(\"say 'a\"b'\", c)"));
    EXPECT_EQ("f|it's\", c)", parsed("f(\"it's\", c)"));
    EXPECT_EQ("f|it\\'s|c", parsed("f(\"it\\'s\", c)"));
}

TEST(FunctionParser, a_protected_quote_does_not_end_an_argument_and_keeps_its_backslash) {
    EXPECT_EQ("f|a\\\"b|c", parsed("f(\"a\\\"b\", c)"));
    EXPECT_EQ("f|a\\\\|c", parsed("f(\"a\\\\\", c)"));
}

TEST(FunctionParser, an_unclosed_quote_takes_the_rest_of_the_text) {
    EXPECT_EQ("f|a, b) c ", parsed("f(\"a, b) c "));
    EXPECT_EQ("f|1|", parsed("f(1,'"));
    EXPECT_EQ("f|a\\'", parsed("f('a\\'"));
}

TEST(FunctionParser, what_follows_a_closing_quote_is_the_next_argument) {
    EXPECT_EQ("f|a|b", parsed("f(\"a\"b)"));
    EXPECT_EQ("f|a|b", parsed("f('a''b')"));
    EXPECT_EQ("f|a", parsed("f(\"a\""));
}

TEST(FunctionParser, a_quote_inside_an_argument_is_a_character) {
    EXPECT_EQ("f|a\"b|c\"", parsed("f(a\"b c\")"));
}

TEST(FunctionParser, brackets_do_not_nest_in_an_argument) {
    EXPECT_EQ("f|g(x", parsed("f(g(x))"));
    EXPECT_EQ("f|(", parsed("f((),1)"));
}

TEST(FunctionParser, what_stands_behind_the_bracket_is_ignored) {
    EXPECT_EQ("f|a", parsed("f(a) trailing"));
    EXPECT_EQ("f|", parsed("f()("));
}

TEST(FunctionParser, the_name_is_whatever_stands_in_front) {
    EXPECT_EQ("a,b)\"c|1", parsed("a,b)\"c(1)"));
    EXPECT_EQ("\xe4|\xff", parsed("\xe4(\xff)"));
}

TEST(FunctionParser, without_a_name_there_is_no_function) {
    for (const std::string text : {"", "   ", "(a)", " (a)", "\n", "("}) {
        EXPECT_EQ(missing_function, parsed(text)) << text;
    }
}

TEST(FunctionParser, a_name_is_followed_by_a_bracket_or_nothing) {
    EXPECT_EQ(missing_open_bracket, parsed("f g"));
    EXPECT_EQ(missing_open_bracket, parsed("f )"));
    EXPECT_EQ(missing_open_bracket, parsed("f g(a)"));
}

TEST(FunctionParser, its_exceptions_are_empty_classes_on_no_base_of_the_library) {
    EXPECT_TRUE(std::is_empty_v<FunctionParser::Error>);
    EXPECT_TRUE(std::is_empty_v<FunctionParser::MissingFunction>);
    EXPECT_TRUE(std::is_empty_v<FunctionParser::MissingOpenBracket>);
    EXPECT_FALSE((std::is_base_of_v<std::exception, FunctionParser::Error>));
    EXPECT_THROW(FunctionParser(""), FunctionParser::Error);
    EXPECT_THROW(FunctionParser("f g"), FunctionParser::Error);
    EXPECT_FALSE((std::is_base_of_v<FunctionParser::MissingFunction, FunctionParser::MissingOpenBracket>));
}

TEST(FunctionParser, an_argument_that_is_not_there_is_empty) {
    const FunctionParser call("move(1, 2)");
    EXPECT_EQ("2", call.Argument(1));
    EXPECT_EQ("", call.Argument(2));
    EXPECT_EQ("", call.Argument(5));
    EXPECT_EQ("", call.Argument(UINT_MAX));
    EXPECT_EQ("", FunctionParser("save").Argument(0));
}

TEST(FunctionParser, a_copy_is_independent) {
    FunctionParser first("move(1, 2)");
    const FunctionParser copy(first);
    first = FunctionParser("save");
    EXPECT_EQ("save", first.FunctionName());
    EXPECT_EQ(0, first.ArgCount());
    EXPECT_EQ("move", copy.FunctionName());
    EXPECT_EQ(2, copy.ArgCount());
    EXPECT_EQ("1", copy.Argument(0));
}

TEST(FunctionParser, can_be_assigned_to_itself) {
    FunctionParser call("move(1, 2)");
    FunctionParser& same = call;
    call = same;
    EXPECT_EQ("move", call.FunctionName());
    EXPECT_EQ("2", call.Argument(1));
}

TEST(FunctionParser, a_nul_is_a_character_but_ends_an_open_quote) {
    EXPECT_EQ(std::string("f\0g|a\0b", 7), parsed(std::string("f\0g(a\0b)", 8)));
    EXPECT_EQ("f|a|b", parsed(std::string("f('a\0b)", 7)));
}

TEST(FunctionParser, takes_very_long_texts) {
    const std::string argument(1000000, 'x');
    const FunctionParser quoted("f('" + argument + "', " + argument);
    EXPECT_EQ(argument, quoted.Argument(0));
    EXPECT_EQ(argument, quoted.Argument(1));
    EXPECT_EQ(1000001, FunctionParser("f(" + std::string(1000000, ',') + ")").ArgCount());
}

TEST(FunctionParser, agrees_with_a_second_coding_of_its_rule) {
    const auto check = [](const std::string& text) { ASSERT_EQ(oracle_parsed(text), parsed(text)) << text; };
    for_each_text("f(), \"'\\", 5, check);
    for_each_text("f(), \"'\\", 4, [&check](const std::string& text) { check("f(" + text); });
    for_random_texts(std::string("fg(), \t\"'`\\\0\xe4", 13), 40, 20000, check);
}
