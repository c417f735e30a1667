// Where the golden documents lie and what they are called.
#pragma once

#include <string>

namespace lvx_test::golden {

inline constexpr const char* documents[] = {"values", "graph", "older-strings", "bitmap"};
inline constexpr const char* compound_documents[] = {"compound-linux.lvx", "compound-windows.lvx"};

inline std::string path(const std::string& name) {
    return std::string(LVX_TEST_DATA) + "/golden/" + name;
}

}  // namespace lvx_test::golden
