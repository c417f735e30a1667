#include <gtest/gtest.h>

#include <new>
#include <optional>
#include <string>
#include <utility>

#include "lvx/text/lexer.h"
#include "support/allocation.h"

namespace {

void add_patterns(Lexer& lexer) {
    lexer.addPattern("[a-z]+|([0-9]{1,3},)*x", 1, 0);
    lexer.addPattern("ab", 2, 1);
}

}  // namespace

// The table is made in the first call; whatever allocation of it fails, the next call makes it.
TEST(LexerFaults, a_call_without_memory_throws_and_the_next_one_finds_the_token) {
    const std::string text = "abc";
    unsigned int length = 0;
    std::optional<Lexer> lexer;
    std::size_t before = 0;
    const auto renew = [&] {
        add_patterns(lexer.emplace());
        before = lvx_test::live_bytes();
    };
    renew();
    const auto call = [&] {
        try {
            EXPECT_EQ(2, lexer->getToken(text, 0, length));
        } catch (const std::bad_alloc&) {
            EXPECT_EQ(before, lvx_test::live_bytes());
            throw;
        }
    };
    const auto call_again = [&] {
        EXPECT_EQ(2, lexer->getToken(text, 0, length));
        EXPECT_EQ(2u, length);
        renew();
    };
    const long failed = lvx_test::for_each_failing_allocation(call, call_again);
    EXPECT_EQ(2u, length);
    EXPECT_LT(20, failed);
}

// Compiling a pattern is the regular expression's; what stands around it is the lexer's.
TEST(LexerFaults, a_pattern_without_memory_leaves_the_others) {
    Lexer lexer;
    add_patterns(lexer);
    unsigned int length = 0;
    EXPECT_EQ(2, lexer.getToken("ab", 0, length));
    // The anchor's place in the text, and the pair.
    for (const long index : {0L, 1L}) {
        std::string pattern = "a pattern without room in front";
        pattern.shrink_to_fit();
        const lvx_test::FailingAllocation failing(index);
        EXPECT_THROW(lexer.addPattern(std::move(pattern), 3, 2), std::bad_alloc) << index;
    }
    EXPECT_EQ(2, lexer.getToken("ab", 0, length));
    lexer.addPattern("a", 3, 2);
    EXPECT_EQ(3, lexer.getToken("ab", 0, length));
}
