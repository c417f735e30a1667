#include "tools/lvxdoc/store_buffer.h"

#include <algorithm>

namespace lvxdoc {

StoreBuffer::int_type StoreBuffer::overflow(int_type character) {
    if (!traits_type::eq_int_type(character, traits_type::eof())) {
        const char byte = traits_type::to_char_type(character);
        m_store.Write(&byte, 1);
    }
    return traits_type::not_eof(character);
}

std::streamsize StoreBuffer::xsputn(const char* bytes, std::streamsize size) {
    constexpr std::streamsize piece = 1 << 30;
    for (std::streamsize done = 0; done < size;) {
        const auto count = static_cast<unsigned int>(std::min(piece, size - done));
        m_store.Write(bytes + done, count);
        done += count;
    }
    return size;
}

}  // namespace lvxdoc
