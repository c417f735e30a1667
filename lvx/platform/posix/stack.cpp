#include "lvx/platform/stack.h"

#include <pthread.h>

#include "lvx/platform/stack_limit.h"

namespace lvx::platform {
namespace {

constexpr std::uintptr_t unknown = ~std::uintptr_t{0};

std::uintptr_t find_low_mark() {
    pthread_attr_t attributes;
    if (pthread_getattr_np(pthread_self(), &attributes) != 0) {
        return 0;
    }
    void* lowest = nullptr;
    std::size_t size = 0;
    const bool known = pthread_attr_getstack(&attributes, &lowest, &size) == 0;
    pthread_attr_destroy(&attributes);
    return known ? low_mark(reinterpret_cast<std::uintptr_t>(lowest), size) : 0;
}

// Asked once per thread: the C library reads the process's memory map to answer. The variable lies at a fixed
// distance in the thread's block, since it is looked at for every object and a look-up of it would show.
[[gnu::tls_model("initial-exec")]] thread_local constinit std::uintptr_t mark = unknown;

[[gnu::noinline]] void set_mark() {
    mark = find_low_mark();
}

}  // namespace

bool stack_is_low() {
    if (mark == unknown) {
        set_mark();
    }
    return reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0)) < mark;
}

}  // namespace lvx::platform
