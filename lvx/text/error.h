// lvx/text/error.h
//
// The base of the library's exceptions. They are thrown by value and carry their whole message; a host that
// catches lvx::runtime_error, or std::runtime_error, gets every one of them.
// Does not cover: exhausted memory (std::bad_alloc) and the texts that bitmap files throw as const char*.
#pragma once

#include <stdexcept>
#include <string>

#include "lvx/platform/export.h"

namespace lvx {

class LVX_EXPORT runtime_error : public std::runtime_error {
public:
    /// what() gives `text`, up to its first NUL.
    explicit runtime_error(const std::string& text);
    runtime_error(const runtime_error&) = default;
    runtime_error& operator=(const runtime_error&) = default;
    /// Defined in the library, so that the type information of the family comes out of one module.
    ~runtime_error() override;
};

}  // namespace lvx
