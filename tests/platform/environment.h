// A variable of the environment for the length of a scope. Not set before.
#pragma once

#include <stdlib.h>

#include <string>

namespace lvx_test {

class EnvironmentVariable {
public:
    EnvironmentVariable(std::string name, const std::string& value) : m_name(std::move(name)) {
        Set(value.c_str());
    }
    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;
    ~EnvironmentVariable() { Set(nullptr); }

private:
#ifdef _WIN32
    void Set(const char* value) {
        _putenv_s(m_name.c_str(), value == nullptr ? "" : value);
    }
#else
    void Set(const char* value) {
        if (value == nullptr) {
            unsetenv(m_name.c_str());
        } else {
            setenv(m_name.c_str(), value, 1);
        }
    }
#endif

    std::string m_name;
};

}  // namespace lvx_test
