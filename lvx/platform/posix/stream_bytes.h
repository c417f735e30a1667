// lvx/platform/posix/stream_bytes.h
//
// The bytes of a stream that is being written, in blocks, so that a long one is never moved as it grows.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <vector>

namespace lvx::platform {

class StreamBytes {
public:
    /// The longest stream that the file format tells in 32 bits.
    static constexpr std::uint64_t longest = 0xFFFFFFFF;

    std::uint64_t Size() const { return m_size; }

    /// Writes over what is there and beyond; a gap in front becomes zeros. False, with nothing changed, if it
    /// would get too long. Throws std::bad_alloc, with nothing written.
    bool Write(std::uint64_t position, std::span<const unsigned char> data);

    /// Fills `data` from `position` on and returns how many bytes there were.
    std::size_t Read(std::uint64_t position, std::span<unsigned char> data) const;

    /// Hands all bytes over in order, piece by piece, until `take` returns false; false then.
    bool ForEachPiece(const std::function<bool(std::span<const unsigned char>)>& take) const;

private:
    static constexpr std::size_t block_size = 16 * 1024;
    using Block = std::array<unsigned char, block_size>;

    // The part of a block that begins at `position` and is `rest` long or goes to the block's end.
    static std::size_t PieceLength(std::uint64_t position, std::uint64_t rest);

    // A block that was never written is null and stands for zeros.
    std::vector<std::unique_ptr<Block>> m_blocks;
    std::uint64_t m_size = 0;
};

}  // namespace lvx::platform
