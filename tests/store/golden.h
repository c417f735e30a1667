// Where the golden documents lie and what they are called.
#pragma once

#include <string>

#include "support/places.h"

namespace lvx_test::golden {

inline constexpr const char* documents[] = {"values", "graph", "older-strings", "bitmap"};
inline constexpr const char* compound_documents[] = {"compound-linux.lvx", "compound-windows.lvx"};

inline std::string path(const std::string& name) {
    return lvx_test::own_data() + "/golden/" + name;
}

}  // namespace lvx_test::golden
