#include "lvx/platform/stack.h"

#include <pthread.h>

#include "lvx/platform/stack_limit.h"

namespace lvx::platform {
namespace {

// The part of the thread's stack that counts as low.
struct LowPart {
    std::uintptr_t lowest;
    std::size_t size;
};

constexpr std::size_t unknown = ~std::size_t{0};

LowPart find_low_part() {
    pthread_attr_t attributes;
    if (pthread_getattr_np(pthread_self(), &attributes) != 0) {
        return {0, 0};
    }
    void* lowest = nullptr;
    std::size_t size = 0;
    const bool known = pthread_attr_getstack(&attributes, &lowest, &size) == 0;
    pthread_attr_destroy(&attributes);
    const auto address = reinterpret_cast<std::uintptr_t>(lowest);
    return known ? LowPart{address, low_part(size)} : LowPart{0, 0};
}

// Asked once per thread: the C library reads the process's memory map to answer. The variable lies at a fixed
// distance in the thread's block, since it is looked at for every object and a look-up of it would show.
[[gnu::tls_model("initial-exec")]] thread_local constinit LowPart known_part{0, unknown};

[[gnu::noinline]] void set_known_part() {
    known_part = find_low_part();
}

}  // namespace

bool stack_is_low() {
    if (known_part.size == unknown) {
        set_known_part();
    }
    return is_low(reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0)), known_part.lowest,
                  known_part.size);
}

}  // namespace lvx::platform
