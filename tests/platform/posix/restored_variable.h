// tests/platform/posix/restored_variable.h
//
// An environment variable with another value, or none, for the length of a scope.
#pragma once

#include <cstdlib>
#include <optional>
#include <string>

namespace lvx_test {

class RestoredVariable {
public:
    /// Null takes the variable away.
    RestoredVariable(const char* name, const char* value) : m_name(name) {
        if (const char* const before = std::getenv(name); before != nullptr) {
            m_before = before;
        }
        Set(value);
    }
    RestoredVariable(const RestoredVariable&) = delete;
    RestoredVariable& operator=(const RestoredVariable&) = delete;
    ~RestoredVariable() { Set(m_before ? m_before->c_str() : nullptr); }

private:
    void Set(const char* value) const {
        if (value != nullptr) {
            setenv(m_name.c_str(), value, 1);
        } else {
            unsetenv(m_name.c_str());
        }
    }

    std::string m_name;
    std::optional<std::string> m_before;
};

}  // namespace lvx_test
