#include "bench/lexer_bench.h"

#include <memory>
#include <string>
#include <utility>

#include "bench/c_scanners.h"
#include "bench/c_source.h"
#include "bench/c_tokens.h"
#include "lvx/text/lexer.h"

namespace lvx_bench {
namespace {

std::uint64_t scan_with_lexer(const Lexer& lexer, const std::string& text) {
    TokenSum sum;
    const auto size = static_cast<unsigned int>(text.size());
    for (unsigned int place = 0; place < size;) {
        unsigned int length = 0;
        const long token = lexer.getToken(text, place, length);
        length = length == 0 ? 1 : length;
        sum.Add(token < 0 ? c_token_count : static_cast<std::size_t>(token), length);
        place += length;
    }
    return sum.Sum();
}

CScanner make_lexer_scanner() {
    const auto lexer = std::make_shared<Lexer>();
    unsigned short token = 0;
    for (const char* const pattern : c_token_patterns) {
        lexer->addPattern(pattern, token++, 0);
    }
    return [lexer](const std::string& text) { return scan_with_lexer(*lexer, text); };
}

using Source = std::shared_ptr<const std::string>;

Contender contender(const char* name, const Source& source, const CScanner& scan) {
    const auto sum = std::make_shared<std::uint64_t>();
    return {name, nullptr, [source, scan, sum] { *sum = scan(*source); }, [sum] { return *sum; }, nullptr};
}

// A buffer of its own, as flex wants it.
Contender flex_contender(const char* name, const Source& source, std::uint64_t (*scan)(std::string&)) {
    const auto buffer = std::make_shared<std::string>(*source + std::string(2, '\0'));
    const auto sum = std::make_shared<std::uint64_t>();
    return {name, nullptr, [buffer, scan, sum] { *sum = scan(*buffer); }, [sum] { return *sum; }, nullptr};
}

Benchmark make_c_source_benchmark() {
    const auto source = std::make_shared<const std::string>(make_c_source());
    return {
        "lexer/c-source",
        "byte",
        static_cast<double>(source->size()),
        {contender("lvx", source, make_lexer_scanner()), contender("re2-in-turn", source, make_re2_scanner()),
         contender("pcre2-jit", source, make_pcre2_scanner()), flex_contender("flex", source, scan_with_flex),
         flex_contender("flex-fast", source, scan_with_fast_flex)}};
}

}  // namespace

std::vector<Entry> lexer_benchmarks() {
    return {{"lexer/c-source", make_c_source_benchmark}};
}

}  // namespace lvx_bench
