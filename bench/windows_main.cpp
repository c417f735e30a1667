// lvx_bench [NAME...] [--json FILE] [--rounds N] [--alone]
//
// The benchmarks of what needs windows; see README.md.
#include <utility>

#include "bench/program.h"
#include "bench/propdlg_bench.h"
#include "bench/shapes_bench.h"

int main(int count, char** arguments) {
    auto entries = lvx_bench::propdlg_benchmarks();
    for (lvx_bench::Entry& entry : lvx_bench::shapes_benchmarks())
        entries.push_back(std::move(entry));
    return lvx_bench::run_program(count, arguments, std::move(entries));
}
