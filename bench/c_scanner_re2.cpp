#include <re2/re2.h>

#include <memory>
#include <vector>

#include "bench/c_scanners.h"
#include "bench/c_tokens.h"

namespace lvx_bench {
namespace {

using Expressions = std::vector<std::unique_ptr<RE2>>;

Expressions compile() {
    RE2::Options options;
    options.set_encoding(RE2::Options::EncodingLatin1);
    options.set_longest_match(true);
    Expressions expressions;
    for (const char* const pattern : c_token_patterns) {
        expressions.push_back(std::make_unique<RE2>(pattern, options));
    }
    return expressions;
}

std::uint64_t scan(const Expressions& expressions, const std::string& text) {
    TokenSum sum;
    const re2::StringPiece whole(text);
    for (std::size_t place = 0; place < text.size();) {
        std::size_t token = c_token_count;
        std::size_t length = 0;
        for (std::size_t i = 0; i < expressions.size(); ++i) {
            re2::StringPiece match;
            if (expressions[i]->Match(whole.substr(place), 0, text.size() - place, RE2::ANCHOR_START, &match,
                                      1) &&
                match.size() > length) {
                token = i;
                length = match.size();
            }
        }
        length = length == 0 ? 1 : length;
        sum.Add(token, length);
        place += length;
    }
    return sum.Sum();
}

}  // namespace

CScanner make_re2_scanner() {
    const auto expressions = std::make_shared<const Expressions>(compile());
    return [expressions](const std::string& text) { return scan(*expressions, text); };
}

}  // namespace lvx_bench
