// Where the golden documents lie and what they are called.
#pragma once

#include <span>
#include <string>

#include "support/places.h"

namespace lvx_test::golden {

inline constexpr const char* first_documents[] = {"values", "graph", "older-strings", "bitmap"};
inline constexpr const char* font_documents[] = {"fonts"};

/// A compound document, and the plain ones that are its streams.
struct Compound {
    const char* file;
    std::span<const char* const> streams;
};

inline constexpr Compound compound_documents[] = {
    {"compound-linux.lvx", first_documents},
    {"compound-windows.lvx", first_documents},
    {"fonts-linux.lvx", font_documents},
    {"fonts-windows.lvx", font_documents},
};

inline std::string path(const std::string& name) {
    return lvx_test::own_data() + "/golden/" + name;
}

}  // namespace lvx_test::golden
