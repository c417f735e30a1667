// Where the systems answer differently, a table of tests has a column for each.
#pragma once

#include <string>

namespace lvx_test {

#ifdef _WIN32
inline constexpr bool on_windows = true;
#else
inline constexpr bool on_windows = false;
#endif

template <class T>
constexpr T by_system(T windows, T elsewhere) {
    return on_windows ? windows : elsewhere;
}

}  // namespace lvx_test
