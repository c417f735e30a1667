#include "tools/lvxdoc/command_line.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tools/lvxdoc/errors.h"

using namespace lvxdoc;
using testing::ElementsAre;

namespace {

const Command command{"paint",
                      "FILE [STREAM]",
                      1,
                      2,
                      "Paint a picture",
                      "With colours.\n",
                      {{"quick", 'q', nullptr, "do not dry"},
                       {"brush", 'b', "WIDTH", "use this brush"},
                       {"long-only", 0, "X", "x"}},
                      nullptr};

std::string refusal(const std::vector<std::string>& words) {
    try {
        parse_arguments(command, words);
    } catch (const Usage& usage) {
        return usage.what();
    }
    return "accepted";
}

}  // namespace

TEST(ParseArguments, takes_options_anywhere_and_in_every_form) {
    const auto arguments =
        parse_arguments(command, {"-q", "file", "--brush", "3", "stream", "--long-only=a=b"});
    EXPECT_THAT(arguments.words, ElementsAre("file", "stream"));
    EXPECT_TRUE(arguments.Has("quick"));
    EXPECT_EQ("3", arguments.Get("brush"));
    EXPECT_EQ("a=b", arguments.Get("long-only"));
    EXPECT_EQ("4", parse_arguments(command, {"f", "-b4"}).Get("brush"));
    EXPECT_EQ("5", parse_arguments(command, {"f", "-b", "5"}).Get("brush"));
    EXPECT_EQ("", parse_arguments(command, {"f", "--brush="}).Get("brush"));
    EXPECT_FALSE(parse_arguments(command, {"f"}).Has("brush"));
}

TEST(ParseArguments, takes_everything_behind_two_dashes_as_words) {
    EXPECT_THAT(parse_arguments(command, {"--", "-q", "--help"}).words, ElementsAre("-q", "--help"));
}

TEST(ParseArguments, takes_a_single_dash_as_a_word) {
    EXPECT_THAT(parse_arguments(command, {"-"}).words, ElementsAre("-"));
}

TEST(ParseArguments, lets_help_win_over_every_error) {
    EXPECT_TRUE(parse_arguments(command, {"--nonsense", "-h"}).Has("help"));
    EXPECT_TRUE(parse_arguments(command, {"--help"}).Has("help"));
}

TEST(ParseArguments, tells_what_is_wrong) {
    EXPECT_EQ("'paint' has no option --slow", refusal({"f", "--slow"}));
    EXPECT_EQ("'paint' has no option -x", refusal({"f", "-x"}));
    EXPECT_EQ("the option --quick takes no argument", refusal({"f", "--quick=1"}));
    EXPECT_EQ("the option -q takes no argument", refusal({"f", "-qb"}));
    EXPECT_EQ("the option --brush needs its WIDTH", refusal({"f", "--brush"}));
    EXPECT_EQ("'paint' needs FILE [STREAM]", refusal({}));
    EXPECT_EQ("'c' is one too many for 'paint', which takes FILE [STREAM]", refusal({"a", "b", "c"}));
}

TEST(HelpText, shows_usage_summary_details_and_every_option) {
    EXPECT_EQ(
        "Usage: lvxdoc paint [OPTION...] FILE [STREAM]\n\nPaint a picture.\n\nWith colours.\n\nOptions:\n"
        "  -q, --quick         do not dry\n"
        "  -b, --brush WIDTH   use this brush\n"
        "      --long-only X   x\n"
        "  -h, --help          print this and do nothing else\n",
        help_text(command));
}
