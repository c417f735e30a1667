#include "bench/report.h"

#include <cstdarg>
#include <cstdio>

namespace lvx_bench {
namespace {

[[gnu::format(printf, 1, 2)]] std::string format(const char* pattern, ...) {
    char text[256];
    std::va_list arguments;
    va_start(arguments, pattern);
    std::vsnprintf(text, sizeof text, pattern, arguments);
    va_end(arguments);
    return text;
}

// "8.3 times as fast" or "1.2 times as slow".
std::string in_words(double ratio) {
    return ratio <= 1 ? format("%.2f times as fast", 1 / ratio) : format("%.2f times as slow", ratio);
}

// The names are our own and hold nothing that JSON would have escaped.
std::string json_object(const Result& result) {
    return format("{\"name\": \"%s\", \"peer\": \"%s\", ", result.name.c_str(), result.peer.c_str()) +
           format("\"ns\": %.4f, \"peer_ns\": %.4f, ", result.ns, result.peer_ns) +
           format("\"ratio\": %.4f, \"spread\": [%.4f, %.4f]}", result.ratio, result.least, result.greatest);
}

}  // namespace

void print_table(std::ostream& out, const std::vector<Result>& results) {
    const Result& first = results.front();
    out << format("%-20s %10.3f ns per %s\n", first.name.c_str(), first.ns, first.unit.c_str());
    for (const Result& result : results) {
        out << format("  beside %-11s %10.3f ns   ratio %.3f (%.3f to %.3f)   %s\n", result.peer.c_str(),
                      result.peer_ns, result.ratio, result.least, result.greatest,
                      in_words(result.ratio).c_str());
    }
    out.flush();
}

void print_json(std::ostream& out, const std::vector<Result>& results) {
    const char* separator = "[\n  ";
    for (const Result& result : results) {
        out << separator << json_object(result);
        separator = ",\n  ";
    }
    out << (results.empty() ? "[]\n" : "\n]\n");
}

}  // namespace lvx_bench
