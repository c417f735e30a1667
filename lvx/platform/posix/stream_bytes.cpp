#include "lvx/platform/posix/stream_bytes.h"

#include <algorithm>

namespace lvx::platform {

std::size_t StreamBytes::PieceLength(std::uint64_t position, std::uint64_t rest) {
    return static_cast<std::size_t>(std::min<std::uint64_t>(rest, block_size - position % block_size));
}

bool StreamBytes::Write(std::uint64_t position, std::span<const unsigned char> data) {
    if (data.empty()) {
        return true;
    }
    if (position > longest || data.size() > longest - position) {
        return false;
    }
    const std::uint64_t end = position + data.size();
    m_blocks.resize(std::max<std::size_t>(m_blocks.size(), (end + block_size - 1) / block_size));
    for (std::uint64_t at = position; at < end; at += PieceLength(at, end - at)) {
        std::unique_ptr<Block>& block = m_blocks[at / block_size];
        if (block == nullptr) {
            block = std::make_unique<Block>();
        }
    }
    while (!data.empty()) {
        const std::size_t length = PieceLength(position, data.size());
        std::ranges::copy(data.first(length), m_blocks[position / block_size]->begin() +
                                                  static_cast<std::ptrdiff_t>(position % block_size));
        data = data.subspan(length);
        position += length;
    }
    m_size = std::max(m_size, end);
    return true;
}

std::size_t StreamBytes::Read(std::uint64_t position, std::span<unsigned char> data) const {
    std::size_t count = 0;
    while (count < data.size() && position < m_size) {
        const std::size_t length =
            PieceLength(position, std::min<std::uint64_t>(data.size() - count, m_size - position));
        const std::unique_ptr<Block>& block = m_blocks[position / block_size];
        if (block == nullptr) {
            std::ranges::fill(data.subspan(count, length), std::uint8_t{0});
        } else {
            std::copy_n(block->begin() + static_cast<std::ptrdiff_t>(position % block_size), length,
                        data.begin() + static_cast<std::ptrdiff_t>(count));
        }
        count += length;
        position += length;
    }
    return count;
}

bool StreamBytes::ForEachPiece(const std::function<bool(std::span<const unsigned char>)>& take) const {
    static constexpr Block zeros{};
    for (std::uint64_t position = 0; position < m_size;) {
        const std::size_t length = PieceLength(position, m_size - position);
        const std::unique_ptr<Block>& block = m_blocks[position / block_size];
        if (!take(std::span((block == nullptr ? zeros : *block).data(), length))) {
            return false;
        }
        position += length;
    }
    return true;
}

}  // namespace lvx::platform
