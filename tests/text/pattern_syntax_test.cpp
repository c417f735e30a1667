#include "lvx/text/pattern_syntax.h"

#include <gtest/gtest.h>

#include <string>

#include "owl/regexp.h"

namespace {

using lvx::text::parse_pattern;
using lvx::text::PatternNode;
using lvx::text::PatternTree;

// The tree as text: sets by their size, or the one byte that they have.
std::string told(const PatternTree& tree, std::size_t place) {
    const PatternNode& node = tree.nodes[place];
    if (node.kind == PatternNode::Bytes) {
        std::size_t first = 0;
        while (first < 255 && !node.bytes[first]) {
            ++first;
        }
        return node.bytes.count() == 1 ? std::string(1, static_cast<char>(first))
                                       : "<" + std::to_string(node.bytes.count()) + ">";
    }
    std::string text = node.kind == PatternNode::Choice     ? "|("
                       : node.kind == PatternNode::Sequence ? "("
                                                            : "";
    if (node.kind == PatternNode::Repeat) {
        text = std::to_string(node.least) + ".." +
               (node.most == PatternNode::unlimited ? "" : std::to_string(node.most)) + "(";
    }
    for (const std::size_t part : node.parts) {
        text += told(tree, part);
    }
    return text + ")";
}

std::string tree_of(std::string_view pattern) {
    const std::optional<PatternTree> tree = parse_pattern(pattern);
    return tree ? told(*tree, tree->root) : "none";
}

}  // namespace

TEST(PatternSyntaxTree, puts_bytes_into_sequences) {
    EXPECT_EQ("a", tree_of("a"));
    EXPECT_EQ("(abc)", tree_of("abc"));
    EXPECT_EQ("()", tree_of(""));
    EXPECT_EQ("(a<255><10><3>)", tree_of("a.\\d[x-z]"));
    EXPECT_EQ("(]}-,)", tree_of("]}-,"));
}

TEST(PatternSyntaxTree, leaves_out_the_anchors_in_front) {
    EXPECT_EQ("(ab)", tree_of("^ab"));
    EXPECT_EQ("(ab)", tree_of("^^^ab"));
    EXPECT_EQ("()", tree_of("^"));
    EXPECT_EQ("|(ab)", tree_of("^a|b"));
}

TEST(PatternSyntaxTree, binds_repetitions_closest_and_alternatives_last) {
    EXPECT_EQ("(a0..(b)c)", tree_of("ab*c"));
    EXPECT_EQ("|((ab)1..(c)())", tree_of("ab|c+|"));
    EXPECT_EQ("0..((ab))", tree_of("(ab)*"));
    EXPECT_EQ("(x|(a(bc))y)", tree_of("x(?:a|bc)y"));
    EXPECT_EQ("0..1(0..(a))", tree_of("(a*)?"));
    EXPECT_EQ("()", tree_of("()"));
}

TEST(PatternSyntaxTree, reads_counted_repetitions) {
    EXPECT_EQ("3..3(a)", tree_of("a{3}"));
    EXPECT_EQ("0..0(a)", tree_of("a{0}"));
    EXPECT_EQ("2..(a)", tree_of("a{2,}"));
    EXPECT_EQ("2..1000(a)", tree_of("a{2,1000}"));
}

TEST(PatternSyntaxTree, takes_reluctant_repetitions_for_the_usual_ones) {
    EXPECT_EQ("0..(a)", tree_of("a*?"));
    EXPECT_EQ("1..(a)", tree_of("a+?"));
    EXPECT_EQ("0..1(a)", tree_of("a??"));
    EXPECT_EQ("(1..2(a)b)", tree_of("a{1,2}?b"));
}

TEST(PatternSyntaxTree, takes_braces_that_count_nothing_for_themselves) {
    EXPECT_EQ("(a{)", tree_of("a{"));
    EXPECT_EQ("(a{x})", tree_of("a{x}"));
    EXPECT_EQ("(a{,2})", tree_of("a{,2}"));
    EXPECT_EQ("({a)", tree_of("{a"));
    EXPECT_EQ("(0..(a){)", tree_of("a*{"));
}

TEST(PatternSyntaxTree, leaves_to_the_regular_expression_what_it_does_not_know) {
    for (const char* const pattern : {"a^",        "(^a)",
                                      "a|^b",      "a$",
                                      "$",         "\\bif",
                                      "if\\B",     "\\Aa",
                                      "a\\z",      "(?i)a",
                                      "(?i:a)",    "(?P<n>a)",
                                      "\\pL",      "\\Qa\\E",
                                      "\\C",       "\\1",
                                      "\\07",      "\\x{41}",
                                      "a{01}",     "a{1001}",
                                      "a{2,1001}", "a{10000000000000000000000}",
                                      "a{2",       "a{2,",
                                      "a{2,x}"}) {
        EXPECT_EQ("none", tree_of(pattern)) << pattern;
    }
}

TEST(PatternSyntaxTree, leaves_bad_patterns_alone) {
    for (const char* const pattern :
         {"(",   "(a",   ")",   "a)",  "(?:",  "(?",      "[",     "[a",    "*",      "+a", "?",    "{2}",
          "a|*", "(*a)", "a**", "a*+", "a*??", "a{2}{3}", "a+{2}", "a{2}*", "a{3,2}", "\\", "[b-a]"}) {
        EXPECT_FALSE(TRegexp(pattern).ok() && tree_of(pattern) != "none") << pattern;
        EXPECT_EQ("none", tree_of(pattern)) << pattern;
    }
}

TEST(PatternSyntaxTree, goes_down_a_hundred_levels_and_no_further) {
    const auto nest = [](std::size_t levels) {
        return std::string(levels, '(') + "a" + std::string(levels, ')');
    };
    EXPECT_EQ("a", tree_of(nest(100)));
    EXPECT_EQ("none", tree_of(nest(101)));
    EXPECT_EQ("none", tree_of(std::string(60000, '(')));
}
