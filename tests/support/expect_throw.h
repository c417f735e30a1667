// Exceptions compared with their whole text.
#pragma once

#include <gtest/gtest.h>

#include <string>

namespace lvx_test {

/// The text of the `Exception` that `action` throws; "" if it throws none.
template <class Exception, class Action>
std::string thrown_text(Action&& action) {
    try {
        action();
    } catch (const Exception& exception) {
        return exception.what();
    }
    return "";
}

inline constexpr const char* not_open = "Object store is not open.";
inline constexpr const char* unexpected_eof = "Unexpected end of file.";
inline constexpr const char* wrong_mode = "Object store is open in the wrong mode to perform the operation.";
inline constexpr const char* write_failure = "Failed to write to object store.";

}  // namespace lvx_test

#define EXPECT_THROW_TEXT(action, Exception, text) \
    EXPECT_EQ(std::string(text), lvx_test::thrown_text<Exception>([&] { action; }))
