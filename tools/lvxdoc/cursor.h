// tools/lvxdoc/cursor.h
//
// Reads a source from its start to its end and never past it. What is short is told as damage at the place
// where the value begins.
#pragma once

#include <bit>
#include <cstdint>
#include <string>
#include <vector>

#include "tools/lvxdoc/byte_source.h"

namespace lvxdoc {

class Cursor {
public:
    /// `source` outlives the cursor.
    explicit Cursor(ByteSource& source) : m_source(source), m_size(source.Size()) {}

    std::uint64_t Position() const { return m_position; }
    std::uint64_t Remaining() const { return m_size - m_position; }
    bool AtEnd() const { return Remaining() == 0; }

    /// The next byte, which stays. Requires: not at the end.
    unsigned char Peek();
    /// Throws Damage unless `size` more bytes are there; `what` names what they would be ("a long").
    void Expect(std::uint64_t size, const std::string& what) const;
    /// Expect, then reads.
    void Read(void* data, std::size_t size, const std::string& what);

    unsigned char ReadByte(const std::string& what);
    std::int32_t ReadInteger(const std::string& what);
    double ReadDouble();

private:
    void Refill();

    ByteSource& m_source;
    std::uint64_t m_size;
    std::uint64_t m_position = 0;
    std::vector<unsigned char> m_block;
    std::size_t m_next = 0;
};

}  // namespace lvxdoc
