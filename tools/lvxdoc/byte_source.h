// tools/lvxdoc/byte_source.h
//
// Bytes of known number that can be read at any place: a file, a stream of a compound file, a block of
// memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace lvxdoc {

class ByteSource {
public:
    ByteSource() = default;
    ByteSource(const ByteSource&) = delete;
    ByteSource& operator=(const ByteSource&) = delete;
    virtual ~ByteSource() = default;

    virtual std::uint64_t Size() const = 0;
    /// Requires: the `size` bytes from `offset` on lie within Size(). Throws Failure or Damage if they cannot
    /// be had all the same.
    virtual void ReadAt(std::uint64_t offset, void* data, std::size_t size) = 0;
};

/// A copy of `bytes`.
class MemorySource : public ByteSource {
public:
    explicit MemorySource(std::string bytes) : m_bytes(std::move(bytes)) {}
    std::uint64_t Size() const override { return m_bytes.size(); }
    void ReadAt(std::uint64_t offset, void* data, std::size_t size) override;

private:
    std::string m_bytes;
};

/// Opens a disk file. Throws Failure, with the name and the cause, unless it is a file that can be read.
std::unique_ptr<ByteSource> open_file(const std::string& name);

}  // namespace lvxdoc
