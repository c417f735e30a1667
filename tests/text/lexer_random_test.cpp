// The lexer beside a plain coding of its rule.
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "lvx/text/lexer.h"
#include "support/lexer_oracle.h"
#include "support/pattern_maker.h"

namespace {

class Random {
public:
    explicit Random(unsigned int seed) : m_engine(seed) {}

    unsigned int operator()(unsigned int count) { return static_cast<unsigned int>(m_engine() % count); }

private:
    std::mt19937 m_engine;
};

struct Answer {
    long token = 0;
    unsigned int length = 77;

    friend bool operator==(const Answer&, const Answer&) = default;
    friend void PrintTo(const Answer& answer, std::ostream* out) {
        *out << "token " << answer.token << ", length " << answer.length;
    }
};

template <class AnyLexer>
Answer ask(const AnyLexer& lexer, const std::string& text, unsigned int start) {
    Answer answer;
    answer.token = lexer.getToken(text, start, answer.length);
    return answer;
}

// How many of the answers were a token.
int compare_at_all_places(const Lexer& lexer, const lvx_test::LexerOracle& oracle, const std::string& text,
                          const std::string& patterns) {
    int tokens = 0;
    for (unsigned int start = 0; start <= text.size() + 1; ++start) {
        const Answer expected = ask(oracle, text, start);
        EXPECT_EQ(expected, ask(lexer, text, start))
            << patterns << "on " << testing::PrintToString(text) << " from " << start;
        tokens += expected.token >= 0 ? 1 : 0;
    }
    return tokens;
}

int compare_one_lexer(unsigned int seed) {
    lvx_test::PatternMaker maker{Random(seed)};
    Random random(seed + 1'000'000);
    Lexer lexer;
    lvx_test::LexerOracle oracle;
    std::string patterns;
    for (unsigned int count = 1 + random(6); count > 0; --count) {
        const std::string pattern = maker.Pattern();
        const int priority = maker.Priority();
        const auto token = static_cast<unsigned short>(random(4));
        lexer.addPattern(pattern, token, priority);
        oracle.addPattern(pattern, token, priority);
        patterns += pattern + " = " + std::to_string(token) + " by " + std::to_string(priority) + "; ";
    }
    int tokens = 0;
    for (int text = 0; text < 4; ++text) {
        tokens += compare_at_all_places(lexer, oracle, maker.Text(12), patterns);
    }
    return tokens;
}

}  // namespace

TEST(LexerRandom, gives_what_its_rule_gives) {
    int tokens = 0;
    for (unsigned int seed = 1; seed <= 3000 && !testing::Test::HasFailure(); ++seed) {
        tokens += compare_one_lexer(seed);
    }
    // Neither are all answers empty.
    EXPECT_LT(20000, tokens);
}
