// lvx/platform/posix/allocated_text.h
//
// Owns a text that the C library has allocated.
#pragma once

#include <cstdlib>
#include <memory>

namespace lvx::platform {

struct FreeText {
    void operator()(char* text) const { std::free(text); }
};

using AllocatedText = std::unique_ptr<char, FreeText>;

}  // namespace lvx::platform
