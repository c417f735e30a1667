// Patterns and a text. What the lexer finds at each place of it is what the patterns give in turn, and adding
// a pattern to a lexer that was used before changes nothing else.
//
//     byte 0      bits 0 to 6: how many patterns, at most 8   bit 7: the bytes are the patterns; if not,
//                 they choose what patterns are made of
//     a pattern   its priority, its token, how often it repeats itself, and a length and bytes; or bytes that
//                 choose its parts
//     the rest    the text; or bytes that choose its characters
#include <cstdint>
#include <memory>
#include <string>

#include "check.h"
#include "input.h"
#include "lvx/text/lexer.h"
#include "memory_limit.h"
#include "support/lexer_oracle.h"
#include "support/pattern_maker.h"

namespace {

using namespace lvx_fuzz;

constexpr unsigned int most_patterns = 8;
constexpr std::size_t longest_pattern = 255;
// Of all together, when they are repeated.
constexpr std::size_t longest_patterns = 4096;
constexpr std::size_t longest_text = 80;
constexpr std::size_t most_memory = 64 * 1024 * 1024;

class Lexers {
public:
    void Add(const std::string& pattern, unsigned short token, int priority) {
        m_lexer.addPattern(pattern, token, priority);
        m_oracle.addPattern(pattern, token, priority);
    }

    void Compare(const std::string& text, unsigned int start) const {
        unsigned int expected_length = 0;
        unsigned int length = 0xFFFFFFFF;
        const long expected = m_oracle.getToken(text, start, expected_length);
        require(m_lexer.getToken(text, start, length) == expected,
                "the lexer finds the token that its rule gives");
        require(length == expected_length, "with the length that its rule gives");
        require(start > text.size() ? length == 0 : length <= text.size() - start, "inside of the text");
    }

    void CompareAll(const std::string& text) const {
        for (unsigned int start = 0; start <= text.size() + 1; ++start) {
            Compare(text, start);
        }
        Compare(text, 0xFFFFFFFF);
    }

private:
    Lexer m_lexer;
    lvx_test::LexerOracle m_oracle;
};

// A few bytes, a number of times: what is too large, or nearly so, is long.
std::string raw_pattern(Input& input, std::size_t longest) {
    const std::size_t times = std::size_t{input.Byte()} + 1;
    const std::string_view once = input.Short(longest_pattern);
    std::string pattern;
    for (std::size_t i = 0; i < times && pattern.size() + once.size() <= longest; ++i) {
        pattern += once;
    }
    return pattern;
}

void run(Input& input) {
    lvx_test::PatternMaker maker([&input](unsigned int count) { return input.Byte() % count; });
    const unsigned int options = input.Byte();
    const bool is_raw = (options & 0x80) != 0;
    Lexers lexers;
    const unsigned int count = (options & 0x7F) % (most_patterns + 1);
    for (unsigned int left = count; left > 0; --left) {
        const int priority = maker.Priority();
        const auto token = static_cast<unsigned short>(input.Byte() * 257);
        lexers.Add(is_raw ? raw_pattern(input, longest_patterns / count) : maker.Pattern(), token, priority);
        if (left == 2) {
            lexers.Compare("ab", 0);
        }
    }
    lexers.CompareAll(is_raw ? std::string(input.Rest().substr(0, longest_text)) : maker.Text(longest_text));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    const LargestAllocation limit(most_memory, LargestAllocation::IsFinding);
    run(input);
    return 0;
}
