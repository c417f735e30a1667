// Sizes that only a fast search for a byte gets through in a second; that of other systems need not be fast.
#include <gtest/gtest.h>

#include <string>

#include "lvx/text/lexer.h"

// Took a minute and a half when each byte behind an "a" was looked up again.
TEST(LexerLongRuns, goes_back_over_them_at_many_places) {
    Lexer lexer;
    lexer.addPattern("a", 1, 0);
    lexer.addPattern("a[^b]*b", 2, 0);
    const std::string text(300'000, 'a');
    for (unsigned int start = 0; start < text.size(); ++start) {
        unsigned int length = 0;
        ASSERT_EQ(1, lexer.getToken(text, start, length)) << start;
        ASSERT_EQ(1u, length) << start;
    }
}
