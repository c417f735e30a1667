// All short patterns that can be put together of some parts, on all short texts: the table beside the regular
// expression.
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "lvx/text/lexer_plan.h"

namespace {

using namespace std::string_literals;
using lvx::text::LexerPlan;

const std::vector<std::string> parts = {
    "a",  "b",        "-",       "\0"s,   "\xE9", ".",       "\\w", "[^a]", "[-a]", "[",
    "]",  "(",        "(?:",     ")",     "|",    "*",       "+",   "?",    "{2}",  "{1,2}",
    "{2", "{0,1001}", "[a\\-z]", "[--b]", "[[:x", "[a-b-c]", "\\a", "\\\\", "^",    "[[:^digit:]-]"};

// Of all bytes that some part tells from others, up to three.
std::vector<std::string> make_texts() {
    const std::string bytes = "ab-\0\xE9[{"s;
    std::vector<std::string> texts = {""};
    for (std::size_t i = 0; i < texts.size() && texts[i].size() < 3; ++i) {
        for (const char byte : bytes) {
            texts.push_back(texts[i] + byte);
        }
    }
    texts.push_back("aaaaab");
    texts.push_back("bab\\\a]2,");
    return texts;
}

class Comparison {
public:
    // All that begin with `start` and have up to so many parts more.
    void CompareAll(const std::vector<std::string>& all, const std::string& start, int depth) {
        Compare(start);
        for (std::size_t i = 0; depth > 0 && i < all.size(); ++i) {
            CompareAll(all, start + all[i], depth - 1);
        }
    }

    int Tables() const { return m_tables; }
    int Matches() const { return m_matches; }

private:
    // The patterns that go into a table; nothing of those which the regular expression runs anyway.
    void Compare(const std::string& pattern) {
        lvx::autovector<Lexer::LexPair> pairs;
        pairs.push_back(new Lexer::LexPair("^" + pattern, 7, 0));
        const LexerPlan plan(pairs);
        if (!pairs.front()->expression.ok()) {
            EXPECT_EQ(0u, plan.Tables() + plan.Singles()) << testing::PrintToString(pattern);
            return;
        }
        if (plan.Tables() == 0) {
            return;
        }
        ++m_tables;
        for (const std::string& text : m_texts) {
            unsigned int expected = 0;
            const bool is_found = pairs.front()->expression.find(text, &expected, 0) == 0;
            const LexerPlan::Win win = plan.Find(text, 0);
            m_matches += is_found ? 1 : 0;
            if (win.token != (is_found ? 7 : -1) || win.length != expected) {
                ADD_FAILURE() << testing::PrintToString(pattern) << " takes " << win.length << " bytes of "
                              << testing::PrintToString(text) << ", not " << expected;
                return;
            }
        }
    }

    const std::vector<std::string> m_texts = make_texts();
    int m_tables = 0;
    int m_matches = 0;
};

}  // namespace

TEST(LexerExhaustive, each_pattern_of_up_to_three_parts_takes_what_its_regular_expression_takes) {
    Comparison comparison;
    comparison.CompareAll(parts, "", 3);
    EXPECT_LT(5000, comparison.Tables());
    EXPECT_LT(100'000, comparison.Matches());
}

TEST(LexerExhaustive, so_does_each_of_up_to_five_operators_and_letters) {
    Comparison comparison;
    comparison.CompareAll({"a", "b", "(", ")", "|", "*", "?", "{0,2}"}, "", 5);
    EXPECT_LT(2000, comparison.Tables());
    EXPECT_LT(100'000, comparison.Matches());
}
