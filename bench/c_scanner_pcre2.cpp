#define PCRE2_CODE_UNIT_WIDTH 8
#include <pcre2.h>

#include <array>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/c_scanners.h"
#include "bench/c_tokens.h"

namespace lvx_bench {
namespace {

struct Freer {
    void operator()(pcre2_code* code) const { pcre2_code_free(code); }
    void operator()(pcre2_match_data* data) const { pcre2_match_data_free(data); }
    void operator()(pcre2_match_context* context) const { pcre2_match_context_free(context); }
    void operator()(pcre2_jit_stack* stack) const { pcre2_jit_stack_free(stack); }
};

class Expressions {
public:
    Expressions() {
        // The usual stack is too small for a long comment.
        pcre2_jit_stack_assign(m_context.get(), nullptr, m_stack.get());
        for (std::size_t token = 0; token < c_token_count; ++token) {
            Compile(token);
        }
    }

    std::uint64_t Scan(const std::string& text) const {
        TokenSum sum;
        for (std::size_t place = 0; place < text.size();) {
            std::size_t token = c_token_count;
            std::size_t length = 0;
            for (const std::size_t candidate : m_candidates[static_cast<unsigned char>(text[place])]) {
                const std::size_t found = Match(candidate, text, place);
                if (found > length) {
                    token = candidate;
                    length = found;
                }
            }
            length = length == 0 ? 1 : length;
            sum.Add(token, length);
            place += length;
        }
        return sum.Sum();
    }

private:
    static PCRE2_SPTR Bytes(const char* text) { return reinterpret_cast<PCRE2_SPTR>(text); }

    void Compile(std::size_t token) {
        int error = 0;
        PCRE2_SIZE place = 0;
        m_codes.emplace_back(pcre2_compile(Bytes(c_token_patterns[token]), PCRE2_ZERO_TERMINATED,
                                           PCRE2_NO_AUTO_CAPTURE, &error, &place, nullptr));
        if (m_codes.back() == nullptr || pcre2_jit_compile(m_codes.back().get(), PCRE2_JIT_COMPLETE) != 0) {
            throw std::runtime_error(std::string("PCRE2 does not compile ") + c_token_patterns[token]);
        }
        Anchor(token);
    }

    // Asks with which bytes the pattern can begin, and compiles it again as one that matches at the start
    // only: it does not tell of such a one.
    void Anchor(std::size_t token) {
        const std::uint8_t* first_bytes = nullptr;
        std::uint32_t has_first = 0;
        std::uint32_t first = 0;
        pcre2_pattern_info(m_codes.back().get(), PCRE2_INFO_FIRSTBITMAP, &first_bytes);
        pcre2_pattern_info(m_codes.back().get(), PCRE2_INFO_FIRSTCODETYPE, &has_first);
        pcre2_pattern_info(m_codes.back().get(), PCRE2_INFO_FIRSTCODEUNIT, &first);
        for (std::size_t byte = 0; byte < 256; ++byte) {
            const bool in_map = first_bytes == nullptr || (first_bytes[byte / 8] >> (byte % 8) & 1) != 0;
            if (has_first == 1 ? byte == first : in_map) {
                m_candidates[byte].push_back(token);
            }
        }
        int error = 0;
        PCRE2_SIZE place = 0;
        m_codes.back().reset(pcre2_compile(Bytes(c_token_patterns[token]), PCRE2_ZERO_TERMINATED,
                                           PCRE2_NO_AUTO_CAPTURE | PCRE2_ANCHORED, &error, &place, nullptr));
        pcre2_jit_compile(m_codes.back().get(), PCRE2_JIT_COMPLETE);
    }

    std::size_t Match(std::size_t token, const std::string& text, std::size_t place) const {
        const int result = pcre2_jit_match(m_codes[token].get(), Bytes(text.data()), text.size(), place, 0,
                                           m_match.get(), m_context.get());
        if (result == PCRE2_ERROR_NOMATCH) {
            return 0;
        }
        if (result < 0) {
            throw std::runtime_error("PCRE2 gives up: error " + std::to_string(result));
        }
        const PCRE2_SIZE* const ends = pcre2_get_ovector_pointer(m_match.get());
        return ends[1] - ends[0];
    }

    std::vector<std::unique_ptr<pcre2_code, Freer>> m_codes;
    std::array<std::vector<std::size_t>, 256> m_candidates;
    std::unique_ptr<pcre2_match_data, Freer> m_match{pcre2_match_data_create(1, nullptr)};
    std::unique_ptr<pcre2_jit_stack, Freer> m_stack{
        pcre2_jit_stack_create(32 * 1024, 64 * 1024 * 1024, nullptr)};
    std::unique_ptr<pcre2_match_context, Freer> m_context{pcre2_match_context_create(nullptr)};
};

}  // namespace

CScanner make_pcre2_scanner() {
    const auto expressions = std::make_shared<const Expressions>();
    return [expressions](const std::string& text) { return expressions->Scan(text); };
}

}  // namespace lvx_bench
