// lvx_bench [NAME...] [--json FILE] [--rounds N] [--alone]
//
// The benchmarks of what needs windows; see README.md.
#include "bench/program.h"
#include "bench/shapes_bench.h"

int main(int count, char** arguments) {
    return lvx_bench::run_program(count, arguments, lvx_bench::shapes_benchmarks());
}
