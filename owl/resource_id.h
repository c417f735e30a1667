// owl/resource_id.h
//
// The name of a resource: a number from 1 to 65535, a text, or nothing. A plain value, as large as a pointer,
// in the form in which the system takes it. Does not: own or copy the text, which must live as long as the
// value is used.
#pragma once

#include <cstdint>

namespace owl {

class TResId {
public:
    /// Names nothing.
    constexpr TResId() = default;
    /// Of `number` the low 16 bits count; 0 names nothing.
    TResId(int number)
        : m_name(reinterpret_cast<const char*>(static_cast<std::uintptr_t>(number) & 0xFFFF)) {}
    /// A null text names nothing.
    constexpr TResId(const char* name) : m_name(name) {}

    bool IsNull() const { return m_name == nullptr; }
    bool IsString() const { return Bits() > 0xFFFF; }
    /// The number; 0 if the name is a text or nothing.
    int GetNumber() const { return IsString() ? 0 : static_cast<int>(Bits()); }
    /// What the system's calls take: not to be read as a text unless IsString().
    operator const char*() const { return m_name; }

private:
    std::uintptr_t Bits() const { return reinterpret_cast<std::uintptr_t>(m_name); }

    const char* m_name = nullptr;
};

}  // namespace owl
