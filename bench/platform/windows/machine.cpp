#include "bench/machine.h"

#include <windows.h>

#include <bit>
#include <system_error>

namespace lvx_bench {
namespace {

[[noreturn]] void fail(const char* what) {
    throw std::system_error(static_cast<int>(::GetLastError()), std::system_category(), what);
}

// Their unit is 100 nanoseconds.
double nanoseconds(const FILETIME& time) {
    return (static_cast<double>(time.dwHighDateTime) * 4294967296.0 + time.dwLowDateTime) * 100.0;
}

}  // namespace

double elapsed_time() {
    LARGE_INTEGER frequency;
    LARGE_INTEGER now;
    ::QueryPerformanceFrequency(&frequency);
    ::QueryPerformanceCounter(&now);
    return static_cast<double>(now.QuadPart) / static_cast<double>(frequency.QuadPart) * 1e9;
}

double processor_time() {
    FILETIME created, ended, kernel, user;
    if (!::GetThreadTimes(::GetCurrentThread(), &created, &ended, &kernel, &user)) {
        fail("cannot ask for the time of the thread");
    }
    return nanoseconds(kernel) + nanoseconds(user);
}

void keep_heap() {}

void pin_to_one_core() {
    DWORD_PTR allowed = 0;
    DWORD_PTR system = 0;
    if (!::GetProcessAffinityMask(::GetCurrentProcess(), &allowed, &system)) {
        fail("cannot ask for the cores");
    }
    if (!::SetProcessAffinityMask(::GetCurrentProcess(), std::bit_floor(allowed))) {
        fail("cannot keep to one core");
    }
}

}  // namespace lvx_bench
