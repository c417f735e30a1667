#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <vector>

#include "lvx/text/strings.h"
#include "text/all_texts.h"

namespace {

using namespace std::string_literals;

constexpr char opener_at_start = '\0';

bool is_quote(char c) {
    return "\"'`"s.find(c) != std::string::npos;
}

// A second coding of the rule, from what each position is rather than from a walk with flags.
class Oracle {
public:
    Oracle(const std::string& text, char open, std::size_t start) {
        if (start >= text.size()) {
            m_answer = start;
            return;
        }
        m_begin = open == '\0' ? start + 1 : start;
        m_open = open == '\0' ? text[start] : open;
        m_text = text.substr(0, std::min(text.find('\0', m_begin), text.size()));
        m_quoted.assign(m_text.size(), false);
        mark_quotes();
        m_answer = first_closing();
    }
    std::size_t answer() const { return m_answer; }

private:
    bool escaped(std::size_t at) const {
        std::size_t run = 0;
        while (at - run > m_begin && m_text[at - run - 1] == '\\') {
            ++run;
        }
        return run % 2 == 1;
    }
    bool bare_quote(std::size_t at) const { return is_quote(m_text[at]) && !escaped(at); }
    void mark_quotes() {
        for (std::size_t at = m_begin; at < m_text.size(); ++at) {
            if (!bare_quote(at)) {
                continue;
            }
            std::size_t end = at + 1;
            while (end < m_text.size() && !(m_text[end] == m_text[at] && !escaped(end))) {
                ++end;
            }
            std::fill(m_quoted.begin() + static_cast<std::ptrdiff_t>(at) + 1,
                      m_quoted.begin() + static_cast<std::ptrdiff_t>(std::min(end + 1, m_text.size())), true);
            at = end;
        }
    }
    bool counts(std::size_t at) const { return !m_quoted[at] && !escaped(at); }
    long depth(std::size_t end) const {
        long result = 0;
        for (std::size_t at = m_begin; at < end; ++at) {
            result += counts(at) && m_text[at] == m_open ? 1 : 0;
            result -= counts(at) && m_text[at] == partner() ? 1 : 0;
        }
        return result;
    }
    char partner() const {
        const std::size_t bracket = "([{"s.find(m_open);
        return bracket == std::string::npos ? m_open : ")]}"[bracket];
    }
    std::size_t first_closing() const {
        for (std::size_t at = m_begin; at < m_text.size(); ++at) {
            if (m_text[at] == partner() && counts(at) && depth(at) == 0) {
                return at;
            }
        }
        return std::max(m_text.size(), m_begin);
    }

    std::size_t m_begin = 0;
    char m_open = '\0';
    std::string m_text;
    std::vector<bool> m_quoted;
    std::size_t m_answer = 0;
};

}  // namespace

TEST(FindMatching, steps_over_nested_pairs) {
    EXPECT_EQ(6u, lvx::find_matching("(a(b)c)", opener_at_start, 0));
    EXPECT_EQ(4u, lvx::find_matching("(a(b)c)", opener_at_start, 2));
    EXPECT_EQ(5u, lvx::find_matching("[[][]]", opener_at_start, 0));
    EXPECT_EQ(3u, lvx::find_matching("{{}}", opener_at_start, 0));
}

TEST(FindMatching, other_brackets_do_not_count) {
    EXPECT_EQ(5u, lvx::find_matching("([{]})", opener_at_start, 0));
    EXPECT_EQ(2u, lvx::find_matching("<a<b>>", opener_at_start, 0));
}

TEST(FindMatching, gives_the_length_if_nothing_closes) {
    EXPECT_EQ(2u, lvx::find_matching("(a", opener_at_start, 0));
    EXPECT_EQ(4u, lvx::find_matching("(()(", opener_at_start, 0));
    EXPECT_EQ(1u, lvx::find_matching("(", opener_at_start, 0));
    EXPECT_EQ(3u, lvx::find_matching("ab(", opener_at_start, 2));
}

TEST(FindMatching, with_an_opener_given_begins_inside) {
    EXPECT_EQ(1u, lvx::find_matching("a)b)", '(', 0));
    EXPECT_EQ(3u, lvx::find_matching("a)b)", '(', 2));
    EXPECT_EQ(0u, lvx::find_matching(")", '(', 0));
    EXPECT_EQ(3u, lvx::find_matching("(a))", '(', 0));
    EXPECT_EQ(4u, lvx::find_matching("(a)b", '(', 0));
}

TEST(FindMatching, a_start_beyond_the_text_comes_back) {
    EXPECT_EQ(3u, lvx::find_matching("(a)", opener_at_start, 3));
    EXPECT_EQ(99u, lvx::find_matching("(a)", '(', 99));
    EXPECT_EQ(0u, lvx::find_matching("", opener_at_start, 0));
    constexpr unsigned int greatest = std::numeric_limits<unsigned int>::max();
    EXPECT_EQ(greatest, lvx::find_matching("(a)", opener_at_start, greatest));
}

TEST(FindMatching, steps_over_quotes_of_each_kind) {
    EXPECT_EQ(4u, lvx::find_matching("(\")\")", opener_at_start, 0));
    EXPECT_EQ(4u, lvx::find_matching("(')')", opener_at_start, 0));
    EXPECT_EQ(4u, lvx::find_matching("(`)`)", opener_at_start, 0));
    EXPECT_EQ(4u, lvx::find_matching("('(')", opener_at_start, 0));
}

TEST(FindMatching, another_quote_inside_a_quote_is_text) {
    EXPECT_EQ(5u, lvx::find_matching("(\"')\")", opener_at_start, 0));
    EXPECT_EQ(5u, lvx::find_matching("('\"`')", opener_at_start, 0));
}

TEST(FindMatching, an_open_quote_reaches_to_the_end) {
    EXPECT_EQ(4u, lvx::find_matching("(\"a)", opener_at_start, 0));
}

TEST(FindMatching, a_backslash_protects_the_next_character) {
    EXPECT_EQ(3u, lvx::find_matching("(\\))", opener_at_start, 0));
    EXPECT_EQ(3u, lvx::find_matching("(\\()", opener_at_start, 0));
    EXPECT_EQ(3u, lvx::find_matching("(\\\\)", opener_at_start, 0));
    EXPECT_EQ(3u, lvx::find_matching("(\\\")", opener_at_start, 0));
    EXPECT_EQ(3u, lvx::find_matching("(\\a)", opener_at_start, 0));
}

TEST(FindMatching, a_backslash_works_in_quotes_too) {
    EXPECT_EQ(6u, lvx::find_matching("(\"\\\")\")", opener_at_start, 0));
    EXPECT_EQ(5u, lvx::find_matching("(\"\\\\\")", opener_at_start, 0));
}

TEST(FindMatching, any_other_character_closes_itself) {
    EXPECT_EQ(3u, lvx::find_matching("|ab|c|", opener_at_start, 0));
    EXPECT_EQ(5u, lvx::find_matching("|'|'a|", opener_at_start, 0));
    EXPECT_EQ(2u, lvx::find_matching("\xe4"
                                     "b\xe4",
                                     opener_at_start, 0));
    EXPECT_EQ(2u, lvx::find_matching(")a)", opener_at_start, 0));
}

TEST(FindMatching, a_quote_closes_itself) {
    EXPECT_EQ(3u, lvx::find_matching("\"ab\"", opener_at_start, 0));
    EXPECT_EQ(4u, lvx::find_matching("'a\\''", opener_at_start, 0));
    EXPECT_EQ(5u, lvx::find_matching("\"'\"'a\"", opener_at_start, 0));
    EXPECT_EQ(1u, lvx::find_matching("a`", '`', 0));
}

TEST(FindMatching, a_backslash_as_the_opener_is_its_own_partner) {
    EXPECT_EQ(2u, lvx::find_matching("\\a\\", opener_at_start, 0));
    EXPECT_EQ(0u, lvx::find_matching("\\a", '\\', 0));
}

TEST(FindMatching, stops_at_a_nul) {
    EXPECT_EQ(2u, lvx::find_matching("(a\0)"s, opener_at_start, 0));
    EXPECT_EQ(2u, lvx::find_matching("('\0')"s, opener_at_start, 0));
    EXPECT_EQ(0u, lvx::find_matching("\0(a)"s, '(', 0));
    EXPECT_EQ(3u, lvx::find_matching("\0(a)"s, opener_at_start, 1));
}

TEST(FindMatching, a_nul_as_the_opener_closes_at_the_next_one) {
    EXPECT_EQ(3u, lvx::find_matching("\0ab\0c"s, opener_at_start, 0));
    EXPECT_EQ(3u, lvx::find_matching("\0ab"s, opener_at_start, 0));
    EXPECT_EQ(1u, lvx::find_matching("\0"s, opener_at_start, 0));
}

TEST(FindMatching, nests_as_deep_as_the_text_is_long) {
    const std::string deep = std::string(500000, '(') + std::string(500000, ')');
    EXPECT_EQ(999999u, lvx::find_matching(deep, opener_at_start, 0));
    EXPECT_EQ(999998u, lvx::find_matching(deep, opener_at_start, 1));
}

TEST(FindMatching, agrees_with_a_second_coding_of_its_rule) {
    const auto check = [](const std::string& text) {
        for (const char open : "(\"'a\\"s + '\0') {
            for (unsigned int start = 0; start < 3; ++start) {
                ASSERT_EQ(Oracle(text, open, start).answer(), lvx::find_matching(text, open, start))
                    << text << " open " << open << " start " << start;
            }
        }
    };
    for_each_text("()\"'\\a", 5, check);
    for_random_texts("(()))\"'`\\a[]{}"s + '\0', 40, 2000, check);
}
