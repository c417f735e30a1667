#include "lvx/store/block_buffer.h"

#include <algorithm>

namespace lvx::store {
namespace {

constexpr std::size_t block_size = 64 * 1024;
constexpr std::size_t put_back_room = 16;

}  // namespace

BlockWriter::BlockWriter(Medium& medium)
    : m_medium(medium),
      m_block(new unsigned char[block_size]),
      m_next(m_block.get()),
      m_end(m_next + block_size) {}

bool BlockWriter::Write(const void* data, std::size_t size) {
    unsigned char* place = Claim(size);
    if (place == nullptr) {
        if (!Flush()) {
            return false;
        }
        place = Claim(size);
    }
    if (place == nullptr) {
        return m_medium.Deliver(data, size) || Fail();
    }
    std::copy_n(static_cast<const unsigned char*>(data), size, place);
    return true;
}

bool BlockWriter::Flush() {
    if (m_failed) {
        return false;
    }
    const auto size = static_cast<std::size_t>(m_next - m_block.get());
    m_next = m_block.get();
    return size == 0 || m_medium.Deliver(m_block.get(), size) || Fail();
}

// Leaves no room in the block. Always false.
bool BlockWriter::Fail() {
    m_failed = true;
    m_next = m_end;
    return false;
}

BlockReader::BlockReader(Medium& medium)
    : m_medium(medium),
      m_block(new unsigned char[put_back_room + block_size]),
      m_next(m_block.get() + put_back_room),
      m_end(m_next),
      m_begin(m_next) {}

bool BlockReader::Read(void* data, std::size_t size) {
    auto* target = static_cast<unsigned char*>(data);
    for (;;) {
        const std::size_t buffered = std::min(size, InBlock());
        target = std::copy_n(m_next, buffered, target);
        m_next += buffered;
        size -= buffered;
        if (size == 0) {
            return true;
        }
        if (size < block_size) {
            if (!Refill()) {
                return false;
            }
            continue;
        }
        Drop();
        const std::size_t fetched = m_medium.Fetch(target, size);
        if (fetched == 0) {
            return false;
        }
        target += fetched;
        size -= fetched;
    }
}

int BlockReader::Get() {
    return m_next != m_end || Refill() ? *m_next++ : -1;
}

bool BlockReader::Unget(unsigned char byte) {
    if (m_next == m_block.get()) {
        return false;
    }
    *--m_next = byte;
    return true;
}

bool BlockReader::StepBack() {
    if (m_next <= m_begin) {
        return false;
    }
    --m_next;
    return true;
}

std::size_t BlockReader::Drop() {
    const std::size_t dropped = InBlock();
    m_next = m_end = m_begin = m_block.get() + put_back_room;
    return dropped;
}

void BlockReader::SkipToEnd() {
    Drop();
    m_medium.SkipToEnd();
}

std::optional<std::uint64_t> BlockReader::Remaining() {
    const std::optional<std::uint64_t> behind = m_medium.Remaining();
    return behind ? std::optional(*behind + InBlock()) : std::nullopt;
}

bool BlockReader::Refill() {
    Drop();
    m_end = m_next + m_medium.Fetch(m_next, block_size);
    return m_next != m_end;
}

}  // namespace lvx::store
