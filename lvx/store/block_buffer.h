// lvx/store/block_buffer.h
//
// Blocks of 64 KiB in front of a medium, so that a value of four bytes costs a copy and not a call of the
// system. The stores of this library put their bytes through one of these; what a caller sees, byte for byte
// and exception for exception, is the medium itself.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <optional>

namespace lvx::store {

/// Something with a length, as far as that is known.
class Measurable {
public:
    virtual ~Measurable() = default;
    /// The bytes between the medium's present position and its end; nothing if that cannot be told.
    virtual std::optional<std::uint64_t> Remaining() = 0;
    /// Goes to the end of the data, if that can be done.
    virtual void SkipToEnd() = 0;
};

/// Where blocks come from or go to.
class Medium : public Measurable {
public:
    /// Reads up to `size` bytes, as many as are there without waiting, but at least one, and returns how many
    /// came: 0 only at the end of the data or on an error. Requires: `size` is not 0.
    virtual std::size_t Fetch(void* data, std::size_t size) = 0;
    /// Writes all `size` bytes, or returns false.
    virtual bool Deliver(const void* data, std::size_t size) = 0;
};

class BlockWriter {
public:
    explicit BlockWriter(Medium& medium);

    /// Room for `size` bytes that go out with the block, or null if the block has not that much left.
    unsigned char* Claim(std::size_t size) {
        if (static_cast<std::size_t>(m_end - m_next) < size) {
            return nullptr;
        }
        unsigned char* const place = m_next;
        m_next += size;
        return place;
    }

    /// False if the medium did not take the bytes; those in the block are lost then, and nothing is taken any
    /// more, so that no byte is lost without a word.
    bool Write(const void* data, std::size_t size);
    /// Hands the block to the medium.
    bool Flush();
    /// Whether the medium ever refused. The store has then told so by an exception, and need not tell again.
    bool HasFailed() const { return m_failed; }

private:
    bool Fail();

    Medium& m_medium;
    std::unique_ptr<unsigned char[]> m_block;
    unsigned char* m_next;
    unsigned char* m_end;
    bool m_failed = false;
};

class BlockReader {
public:
    explicit BlockReader(Medium& medium);

    /// The next `size` bytes, which are not consumed, or null if the block has not that many left.
    const unsigned char* Peek(std::size_t size) const { return InBlock() < size ? nullptr : m_next; }

    /// Consumes `size` bytes. Requires: Peek gave them.
    void Skip(std::size_t size) { m_next += size; }

    /// False if fewer than `size` bytes were left; those are consumed then.
    bool Read(void* data, std::size_t size);
    /// The next byte, 0 to 255, or -1 at the end.
    int Get();
    /// Puts `byte` back. At least 16 bytes can be put back in a row; what cannot is dropped.
    bool Unget(unsigned char byte);
    /// Steps back over the last byte that came from the medium; false if that byte is not in the block.
    bool StepBack();
    /// Forgets what is in the block and returns how many bytes that were: the medium stands that far ahead.
    std::size_t Drop();
    /// Consumes all that is left.
    void SkipToEnd();
    /// The bytes still to come, as far as that is known.
    std::optional<std::uint64_t> Remaining();
    /// The bytes still to come out of the block alone.
    std::size_t InBlock() const { return static_cast<std::size_t>(m_end - m_next); }

private:
    bool Refill();

    Medium& m_medium;
    std::unique_ptr<unsigned char[]> m_block;
    unsigned char* m_next;
    unsigned char* m_end;
    // Where the bytes that came from the medium begin; what lies before is room for bytes put back.
    unsigned char* m_begin;
};

}  // namespace lvx::store
