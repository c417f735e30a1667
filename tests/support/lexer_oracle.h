// A lexer as its description tells it: all patterns in turn, those of lower priority skipped. Slow, and short
// enough to be seen to be right.
#pragma once

#include <string>
#include <vector>

#include "lvx/text/ownership.h"
#include "owl/regexp.h"

namespace lvx_test {

class LexerOracle {
public:
    void addPattern(const std::string& pattern, unsigned short token, int priority) {
        m_pairs.push_back(new Pair("^" + pattern, token, priority));
    }

    long getToken(const std::string& text, unsigned int start, unsigned int& length) const {
        unsigned int best_length = 0;
        long best_token = -1;
        int best_priority = -1;
        for (const Pair* const pair : m_pairs) {
            if (pair->priority < best_priority) {
                continue;
            }
            unsigned int found_length = 0;
            if (pair->expression.find(text, &found_length, start) == TRegexp::not_found) {
                continue;
            }
            if (pair->priority > best_priority ||
                (pair->priority == best_priority && found_length > best_length)) {
                best_length = found_length;
                best_token = pair->token;
                best_priority = pair->priority;
            }
        }
        length = best_length;
        return best_token;
    }

private:
    struct Pair {
        Pair(const std::string& its_pattern, long its_token, int its_priority)
            : expression(std::string_view(its_pattern)), token(its_token), priority(its_priority) {}

        TRegexp expression;
        long token;
        int priority;
    };

    lvx::autovector<Pair> m_pairs;
};

}  // namespace lvx_test
