#include <malloc.h>
#include <sched.h>
#include <time.h>

#include <cerrno>
#include <system_error>

#include "bench/machine.h"

namespace lvx_bench {
namespace {

double nanoseconds(clockid_t clock) {
    timespec now{};
    clock_gettime(clock, &now);
    return static_cast<double>(now.tv_sec) * 1e9 + static_cast<double>(now.tv_nsec);
}

}  // namespace

double elapsed_time() {
    return nanoseconds(CLOCK_MONOTONIC);
}

double processor_time() {
    return nanoseconds(CLOCK_THREAD_CPUTIME_ID);
}

// Blocks of 32 MiB and more, malloc's own limit, come fresh from the system. So what is measured is the
// libraries and not how the system hands out pages.
void keep_heap() {
    mallopt(M_MMAP_THRESHOLD, 32 * 1024 * 1024);
    mallopt(M_TRIM_THRESHOLD, 1024 * 1024 * 1024);
}

void pin_to_one_core() {
    cpu_set_t allowed;
    if (sched_getaffinity(0, sizeof allowed, &allowed) != 0) {
        throw std::system_error(errno, std::generic_category(), "cannot ask for the cores");
    }
    int core = CPU_SETSIZE - 1;
    while (core > 0 && !CPU_ISSET(core, &allowed)) {
        --core;
    }
    CPU_ZERO(&allowed);
    CPU_SET(core, &allowed);
    if (sched_setaffinity(0, sizeof allowed, &allowed) != 0) {
        throw std::system_error(errno, std::generic_category(), "cannot keep to one core");
    }
}

}  // namespace lvx_bench
