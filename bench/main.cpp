// lvx_bench [NAME...] [--json FILE] [--rounds N] [--alone]
//
// Runs the named benchmarks, or those of the named groups, or all; see README.md.
#include <algorithm>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/bmp_bench.h"
#include "bench/compound_bench.h"
#include "bench/jpeg_bench.h"
#include "bench/lexer_bench.h"
#include "bench/report.h"
#include "bench/rotate_bench.h"
#include "bench/runner.h"
#include "bench/settings_bench.h"
#include "bench/skew_bench.h"
#include "bench/store_bench.h"
#include "bench/tokens_bench.h"

namespace {

using lvx_bench::Entry;
using lvx_bench::Result;

struct Options {
    std::vector<std::string> names;
    std::string json;
    int rounds = 9;
    // Ours without its peers, for a profiler to look at.
    bool alone = false;
};

// What the caller asked for cannot be done.
class UsageError : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

constexpr int least_rounds = 7;

Options parse(int count, char** arguments) {
    Options options;
    for (int i = 1; i < count; ++i) {
        const std::string argument = arguments[i];
        if (argument.empty() || argument[0] != '-') {
            options.names.push_back(argument);
            continue;
        }
        if (argument == "--alone") {
            options.alone = true;
            continue;
        }
        if ((argument != "--json" && argument != "--rounds") || i + 1 == count) {
            throw UsageError("usage: bench [NAME...] [--json FILE] [--rounds N] [--alone]");
        }
        const char* const value = arguments[++i];
        if (argument == "--json") {
            options.json = value;
        } else {
            options.rounds = std::max(least_rounds, std::atoi(value));
        }
    }
    return options;
}

std::vector<Entry> all_entries() {
    std::vector<Entry> entries;
    for (const auto& group :
         {lvx_bench::store_benchmarks(), lvx_bench::compound_benchmarks(), lvx_bench::bmp_benchmarks(),
          lvx_bench::jpeg_benchmarks(), lvx_bench::lexer_benchmarks(), lvx_bench::rotate_benchmarks(),
          lvx_bench::settings_benchmarks(), lvx_bench::skew_benchmarks(), lvx_bench::tokens_benchmarks()}) {
        entries.insert(entries.end(), group.begin(), group.end());
    }
    return entries;
}

// "store" names all of its group, "store/file-read" the one.
bool is_named(const Entry& entry, const std::string& name) {
    return entry.name == name || entry.name.rfind(name + "/", 0) == 0;
}

std::vector<Entry> choose(const std::vector<Entry>& entries, const std::vector<std::string>& names) {
    std::vector<Entry> chosen;
    for (const std::string& name : names) {
        const auto before = chosen.size();
        std::copy_if(entries.begin(), entries.end(), std::back_inserter(chosen),
                     [&name](const Entry& entry) { return is_named(entry, name); });
        if (chosen.size() == before) {
            std::string known;
            for (const Entry& entry : entries) {
                known += "\n  " + entry.name;
            }
            throw UsageError("no such benchmark: " + name + "; there are:" + known);
        }
    }
    return names.empty() ? entries : chosen;
}

lvx_bench::Benchmark make(const Entry& entry, const Options& options) {
    lvx_bench::Benchmark benchmark = entry.make();
    if (options.alone) {
        benchmark.contenders.assign(2, benchmark.contenders.front());
    }
    return benchmark;
}

void run(const Options& options) {
    const std::vector<Entry> chosen = choose(all_entries(), options.names);
    std::ofstream json;
    if (!options.json.empty()) {
        json.open(options.json);
        if (!json) {
            throw UsageError("cannot write " + options.json);
        }
    }
    lvx_bench::pin_to_one_core();
    std::vector<Result> all;
    for (const Entry& entry : chosen) {
        const std::vector<Result> results = lvx_bench::measure(make(entry, options), options.rounds);
        lvx_bench::print_table(std::cout, results);
        all.insert(all.end(), results.begin(), results.end());
    }
    if (json.is_open()) {
        lvx_bench::print_json(json, all);
        json.close();
        if (!json) {
            throw std::runtime_error("cannot write " + options.json);
        }
    }
}

}  // namespace

int main(int count, char** arguments) {
    try {
        run(parse(count, arguments));
        return 0;
    } catch (const UsageError& error) {
        std::cerr << "error: " << error.what() << '\n';
        return 2;
    } catch (const std::exception& error) {
        std::cerr << "error: " << error.what() << '\n';
        return 1;
    }
}
