// bench/c_scanners.h
//
// Other ways to find the tokens of bench/c_tokens.h. Each goes through the whole text and tells what it came
// to.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace lvx_bench {

using CScanner = std::function<std::uint64_t(const std::string& text)>;

/// RE2, all patterns in turn at each token.
CScanner make_re2_scanner();

/// PCRE2's compiled code, of the patterns that can begin with the byte at hand. Throws std::runtime_error if
/// a pattern does not compile.
CScanner make_pcre2_scanner();

/// Scanners that flex has made of the patterns, with its usual tables and with its fast ones. `text` is a
/// buffer that ends with two NULs; they change it while they work.
std::uint64_t scan_with_flex(std::string& text);
std::uint64_t scan_with_fast_flex(std::string& text);

}  // namespace lvx_bench
