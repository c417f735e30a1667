// lvx/store/object_frame.h
//
// What stands around an object in a store: a marker, then the reference to an object that is there already,
// or the class and the body.
#pragma once

#include <cstddef>
#include <cstdint>

#include "lvx/store/byte_order.h"

namespace lvx::store {

constexpr char ascii_marker = 'A';
constexpr char binary_marker = 'B';
constexpr char reference_tag = 'O';
constexpr char class_number_tag = 'C';
constexpr char class_name_tag = 'c';
constexpr char body_tag = 'o';
constexpr char null_tag = '0';

constexpr bool is_marker(char byte) {
    return byte == ascii_marker || byte == binary_marker;
}

/// A tag and the number behind it: an id or a class number.
constexpr std::size_t tagged_number_size = 1 + sizeof(std::uint32_t);

inline void encode_tagged_number(char tag, std::uint32_t number, unsigned char* bytes) {
    bytes[0] = static_cast<unsigned char>(tag);
    encode(number, bytes + 1);
}

/// The beginning of an object as nearly all have it: a marker and a reference, or a marker, a class number
/// and the tag of the body.
class Frame {
public:
    static constexpr std::size_t reference_size = 1 + tagged_number_size;
    static constexpr std::size_t size = reference_size + 1;

    /// Over `size` bytes that live as long as this is asked, or over none. A reference is followed by
    /// anything.
    explicit Frame(const unsigned char* bytes) : m_bytes(bytes) {}

    bool IsReference() const { return Has(reference_tag); }
    bool IsBody() const { return Has(class_number_tag) && At(size - 1) == body_tag; }
    bool IsAscii() const { return At(0) == ascii_marker; }
    /// The id or the class number, as it is stored.
    std::int32_t Number() const { return static_cast<std::int32_t>(decode<std::uint32_t>(m_bytes + 2)); }

private:
    char At(std::size_t place) const { return static_cast<char>(m_bytes[place]); }
    bool Has(char tag) const { return m_bytes != nullptr && At(1) == tag && is_marker(At(0)); }

    const unsigned char* m_bytes;
};

}  // namespace lvx::store
