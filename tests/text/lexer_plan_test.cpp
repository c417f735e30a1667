#include "lvx/text/lexer_plan.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "support/lexer_oracle.h"

namespace {

using lvx::text::LexerPlan;

// A plan with the pairs that it was made of, and the plain coding of the same rule.
class Planned {
public:
    void Add(const std::string& pattern, int priority = 0) {
        const auto token = static_cast<unsigned short>(m_pairs.size());
        m_pairs.push_back(new Lexer::LexPair("^" + pattern, token, priority));
        m_oracle.addPattern(pattern, token, priority);
    }

    const LexerPlan& Make() {
        m_plan = std::make_unique<LexerPlan>(m_pairs);
        return *m_plan;
    }

    // Whether plan and plain coding agree at all places of the text.
    void Compare(const std::string& text) const {
        for (unsigned int start = 0; start <= text.size() + 1; ++start) {
            unsigned int length = 0;
            const long token = m_oracle.getToken(text, start, length);
            const LexerPlan::Win win = m_plan->Find(text, start);
            EXPECT_EQ(token, win.token) << text.substr(0, 100) << " from " << start;
            EXPECT_EQ(length, win.length) << text.substr(0, 100) << " from " << start;
        }
    }

private:
    lvx::autovector<Lexer::LexPair> m_pairs;
    lvx_test::LexerOracle m_oracle;
    std::unique_ptr<LexerPlan> m_plan;
};

// Remembers which of the last bytes were `letter`, and so has two to the power of `bytes` states.
std::string remembering(const std::string& letter, int bytes) {
    return "[a-d]*" + letter + "[a-d]{" + std::to_string(bytes - 1) + "}";
}

// As many sets as a pattern has room for, each another one.
std::string distinct_sets(int first) {
    std::string pattern(1, static_cast<char>('a' + first % 26));
    for (int i = first; pattern.size() + 4 < TRegexp::longest_pattern; ++i) {
        const char set[] = {'[', static_cast<char>(0x80 + i % 127), static_cast<char>(0x80 + i / 127 % 127),
                            ']'};
        pattern.append(set, 4);
    }
    return pattern;
}

}  // namespace

TEST(LexerPlan, puts_simple_patterns_into_one_table) {
    Planned planned;
    planned.Add("[a-z]+");
    planned.Add("^if|else");
    planned.Add("[0-9]{1,3}", 3);
    EXPECT_EQ(1u, planned.Make().Tables());
    EXPECT_EQ(0u, planned.Make().Singles());
    planned.Compare("if else 1234 iffy");
}

TEST(LexerPlan, runs_by_themselves_those_that_only_the_regular_expression_knows) {
    Planned planned;
    planned.Add("[a-z]+");
    planned.Add("if\\b");
    planned.Add("(?i)end");
    EXPECT_EQ(1u, planned.Make().Tables());
    EXPECT_EQ(2u, planned.Make().Singles());
    planned.Compare("if End iffy end");
}

TEST(LexerPlan, leaves_out_what_cannot_win) {
    Planned planned;
    planned.Add("(");
    planned.Add("a**", 9);
    planned.Add("b\\b", -2);
    planned.Add("b", -2);
    EXPECT_EQ(0u, planned.Make().Tables());
    EXPECT_EQ(0u, planned.Make().Singles());
    planned.Compare("ab(");
}

TEST(LexerPlan, divides_what_is_too_large_for_one_table) {
    // 256 states each alone, 6561 in pairs.
    Planned planned;
    planned.Add(remembering("a", 8));
    planned.Add(remembering("b", 8));
    planned.Add(remembering("c", 8));
    planned.Add("[a-c]+", -1);
    planned.Add("[a-z]+");
    EXPECT_EQ(3u, planned.Make().Tables());
    EXPECT_EQ(0u, planned.Make().Singles());
    planned.Compare("abababababaabbccddbcbcdbcbcbcccccacdacacaaaacccacazz");
}

TEST(LexerPlan, gives_each_pattern_that_is_too_large_alone_to_the_regular_expression) {
    Planned planned;
    planned.Add(remembering("a", 200));
    planned.Add("[a-c]+");
    planned.Add("x{1000}y{1000}");
    EXPECT_EQ(1u, planned.Make().Singles());
    EXPECT_LE(1u, planned.Make().Tables());
    planned.Compare(std::string(150, 'b') + std::string(60, 'a') + "ccc" + std::string(210, 'b'));
}

TEST(LexerPlan, spends_no_more_on_many_large_patterns_than_is_its_due) {
    Planned planned;
    for (int i = 0; i < 60; ++i) {
        planned.Add(remembering("a", 100 + i), i % 3);
    }
    EXPECT_EQ(60u, planned.Make().Singles());
    planned.Compare("abba");
}

// Took twelve seconds when sets were looked for one by one and nothing was charged for them.
TEST(LexerPlan, spends_no_more_on_many_sets_than_is_its_due) {
    Planned planned;
    for (int i = 0; i < 64; ++i) {
        planned.Add(distinct_sets(i));
    }
    planned.Add("[a-z]+");
    EXPECT_EQ(64u + 1u, planned.Make().Singles());
    planned.Compare("a\x80~");
}

TEST(LexerPlan, takes_hundreds_of_keywords_in_one_table) {
    Planned planned;
    for (int i = 0; i < 400; ++i) {
        planned.Add("word" + std::to_string(i * 37 % 1000), i % 2);
    }
    planned.Add("[a-z0-9]+");
    EXPECT_EQ(1u, planned.Make().Tables());
    EXPECT_EQ(0u, planned.Make().Singles());
    planned.Compare("word37 word370 word3 word9999 wor");
}

TEST(LexerPlan, merges_by_priority_then_length_then_order) {
    const char* const simple = "ab";
    const char* const foreign = "(?:ab)(?i)";
    for (const int priority : {-1, 0, 1}) {
        for (const bool simple_first : {false, true}) {
            Planned planned;
            planned.Add(simple_first ? simple : foreign, 0);
            planned.Add(simple_first ? foreign : simple, priority);
            planned.Add("a\\B", 0);
            planned.Make();
            planned.Compare("ababa");
        }
    }
}

TEST(LexerPlan, finds_nothing_behind_the_end) {
    Planned planned;
    planned.Add("a*");
    planned.Add("$");
    planned.Make();
    planned.Compare("");
    planned.Compare("aa");
    EXPECT_EQ(-1, planned.Make().Find("aa", 0xFFFFFFFF).token);
}
