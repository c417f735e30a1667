// lvx/platform/posix/file_descriptor.h
//
// Owns a file descriptor, or none.
#pragma once

#include <unistd.h>

#include <utility>

namespace lvx::platform {

class FileDescriptor {
public:
    FileDescriptor() = default;
    /// Takes over what open() returned; -1 is none.
    explicit FileDescriptor(int number) : m_number(number) {}
    FileDescriptor(FileDescriptor&& other) noexcept : m_number(std::exchange(other.m_number, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        std::swap(m_number, other.m_number);
        return *this;
    }
    ~FileDescriptor() { Close(); }

    explicit operator bool() const { return m_number >= 0; }
    int Number() const { return m_number; }

    /// Whether it could be closed without an error; a file descriptor that is none can.
    bool Close() {
        const int number = std::exchange(m_number, -1);
        return number < 0 || close(number) == 0;
    }

private:
    int m_number = -1;
};

}  // namespace lvx::platform
