#include "bench/tokens_bench.h"

#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>

#include "bench/c_source.h"
#include "bench/token_scanners.h"

namespace lvx_bench {
namespace {

// Words between white space: not the same tokens, but what a host would read with otherwise. They have the
// same characters.
template <class Visitor>
Visitor scan_with_words(std::istringstream& stream) {
    Visitor visit;
    std::string word;
    while (stream >> word) {
        visit(1, word);
    }
    return visit;
}

using Text = std::shared_ptr<std::string>;

// Reads what `text` holds. What was counted is kept, so that no scan can be left out.
Contender contender(const char* name, const Text& text, TokenCount (*count)(std::string&),
                    PrintHash (*hash)(std::string&)) {
    const auto counted = std::make_shared<TokenCount>();
    return {name, nullptr, [text, count, counted] { *counted = count(*text); },
            [text, hash] { return hash(*text).hash.sum; }, nullptr};
}

Contender words_contender(const std::string& source) {
    const auto stream = std::make_shared<std::istringstream>(source);
    const auto counted = std::make_shared<TokenCount>();
    const auto rewind = [stream] {
        stream->clear();
        stream->seekg(0);
    };
    return {"istream", rewind, [stream, counted] { *counted = scan_with_words<TokenCount>(*stream); },
            [stream, rewind] {
                rewind();
                return scan_with_words<PrintHash>(*stream).hash.sum;
            },
            nullptr};
}

Benchmark make_benchmark() {
    const auto text = std::make_shared<std::string>(make_c_source());
    const auto flex_text = std::make_shared<std::string>(*text + std::string(2, '\0'));
    if (scan_with_token_stream<TokenHash>(*text).sum != scan_with_token_flex<TokenHash>(*flex_text).sum) {
        throw std::runtime_error("tokens/c-source: flex finds other tokens");
    }
    return {"tokens/c-source",
            "byte",
            static_cast<double>(text->size()),
            {contender("lvx", text, scan_with_token_stream<TokenCount>, scan_with_token_stream<PrintHash>),
             contender("flex", flex_text, scan_with_token_flex<TokenCount>, scan_with_token_flex<PrintHash>),
             words_contender(*text)}};
}

}  // namespace

std::vector<Entry> tokens_benchmarks() {
    return {{"tokens/c-source", make_benchmark}};
}

}  // namespace lvx_bench
