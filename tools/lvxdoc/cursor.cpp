#include "tools/lvxdoc/cursor.h"

#include <algorithm>

#include "lvx/store/byte_order.h"
#include "tools/lvxdoc/errors.h"
#include "tools/lvxdoc/text.h"

namespace lvxdoc {
namespace {

constexpr std::size_t block_size = 64 * 1024;

}  // namespace

void Cursor::Refill() {
    m_block.resize(static_cast<std::size_t>(std::min<std::uint64_t>(block_size, Remaining())));
    m_next = 0;
    m_source.ReadAt(m_position, m_block.data(), m_block.size());
}

unsigned char Cursor::Peek() {
    if (m_next == m_block.size()) {
        Refill();
    }
    return m_block[m_next];
}

void Cursor::Expect(std::uint64_t size, const std::string& what) const {
    if (size > Remaining()) {
        throw Damage(m_position, what + " needs " + counted(size, "byte") + " here, but the data end after " +
                                     counted(Remaining(), "byte"));
    }
}

void Cursor::Read(void* data, std::size_t size, const std::string& what) {
    Expect(size, what);
    auto* target = static_cast<unsigned char*>(data);
    while (size != 0) {
        if (m_next == m_block.size()) {
            Refill();
        }
        const std::size_t count = std::min(size, m_block.size() - m_next);
        target = std::copy_n(m_block.data() + m_next, count, target);
        m_next += count;
        m_position += count;
        size -= count;
    }
}

unsigned char Cursor::ReadByte(const std::string& what) {
    unsigned char byte = 0;
    Read(&byte, 1, what);
    return byte;
}

std::int32_t Cursor::ReadInteger(const std::string& what) {
    unsigned char bytes[4];
    Read(bytes, sizeof bytes, what);
    return static_cast<std::int32_t>(lvx::store::decode<std::uint32_t>(bytes));
}

double Cursor::ReadDouble() {
    unsigned char bytes[8];
    Read(bytes, sizeof bytes, "a double");
    return std::bit_cast<double>(lvx::store::decode<std::uint64_t>(bytes));
}

}  // namespace lvxdoc
