// lvx_bench [NAME...] [--json FILE] [--rounds N] [--alone]
//
// Runs the named benchmarks, or those of the named groups, or all; see README.md.
#include <vector>

#include "bench/bmp_bench.h"
#include "bench/compound_bench.h"
#include "bench/jpeg_bench.h"
#include "bench/lexer_bench.h"
#include "bench/program.h"
#include "bench/rotate_bench.h"
#include "bench/settings_bench.h"
#include "bench/skew_bench.h"
#include "bench/store_bench.h"
#include "bench/tokens_bench.h"

namespace {

using lvx_bench::Entry;

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

}  // namespace

int main(int count, char** arguments) {
    return lvx_bench::run_program(count, arguments, all_entries());
}
