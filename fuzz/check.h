// What a fuzz target says when the library broke a promise; the fuzzer then keeps the input.
#pragma once

#include <cstdio>
#include <cstdlib>

namespace lvx_fuzz {

inline void require(bool condition, const char* promise) {
    if (!condition) {
        std::fprintf(stderr, "broken promise: %s\n", promise);
        std::abort();
    }
}

}  // namespace lvx_fuzz
