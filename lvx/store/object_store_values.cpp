// The stored forms of numbers and strings.
#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>
#include <utility>

#include "lvx/store/byte_order.h"
#include "lvx/store/object_store.h"
#include "lvx/store/shortcuts.h"

namespace {

using lvx::store::Shortcuts;

// A string object of the older writer, which had a class of its own for them.
constexpr const char* older_string_class = "VString";

// The stored form of each type that has one of its own.
template <class Value>
using Stored =
    std::conditional_t<std::is_same_v<Value, double>, std::uint64_t,
                       std::conditional_t<std::is_same_v<Value, char>, std::uint8_t, std::uint32_t>>;

template <class Value>
Stored<Value> to_stored(Value value) {
    if constexpr (std::is_same_v<Value, double>) {
        return std::bit_cast<std::uint64_t>(value);
    } else {
        return static_cast<Stored<Value>>(value);
    }
}

template <class Value>
Value from_stored(Stored<Value> stored) {
    if constexpr (std::is_same_v<Value, double>) {
        return std::bit_cast<double>(stored);
    } else {
        return static_cast<std::make_signed_t<Stored<Value>>>(stored);
    }
}

// What is not at hand goes through the store's operations. They stay out of the operators' way, and do all
// that is left to do: an operator that ends with such a call saves no registers.
template <class Value>
[[gnu::noinline]] ObjectStore& put_by_write(ObjectStore& store, Value value) {
    unsigned char bytes[sizeof(Stored<Value>)];
    lvx::store::encode(to_stored(value), bytes);
    store.Write(bytes, sizeof bytes);
    return store;
}

template <class Value>
[[gnu::noinline]] ObjectStore& get_by_read(ObjectStore& store, Shortcuts& shortcuts, Value& value) {
    unsigned char bytes[sizeof(Stored<Value>)] = {};
    shortcuts.fell_short = false;
    store.Read(bytes, sizeof bytes);
    value = shortcuts.fell_short ? Value{} : from_stored<Value>(lvx::store::decode<Stored<Value>>(bytes));
    return store;
}

template <class Value>
inline ObjectStore& put(ObjectStore& store, Shortcuts& shortcuts, Value value) {
    unsigned char* const place = shortcuts.Claim(sizeof(Stored<Value>));
    if (place == nullptr) {
        return put_by_write(store, value);
    }
    lvx::store::encode(to_stored(value), place);
    return store;
}

template <class Value>
inline ObjectStore& get(ObjectStore& store, Shortcuts& shortcuts, Value& value) {
    const unsigned char* const place = shortcuts.Take(sizeof(Stored<Value>));
    if (place == nullptr) {
        return get_by_read(store, shortcuts, value);
    }
    value = from_stored<Value>(lvx::store::decode<Stored<Value>>(place));
    return store;
}

// A length as it is stored; there is no form for one that needs more than an int.
int stored_length(std::size_t length) {
    if (length >= static_cast<std::size_t>(std::numeric_limits<int>::max())) {
        throw ObjectStore::WriteFailure();
    }
    return static_cast<int>(length);
}

using Characters = lvx::auto_array<char>;

// Room behind the text that older hosts write into.
constexpr std::size_t spare = 10;

Characters make_room(std::size_t length) {
    return Characters(new char[length + spare]());
}

// In pieces, each as long as all before it, so that a length that is not true ends where the data do.
Characters read_in_pieces(ObjectStore& store, Shortcuts& shortcuts, std::size_t length,
                          std::size_t first_piece) {
    Characters characters = make_room(first_piece);
    store.Read(characters.get(), static_cast<unsigned int>(first_piece));
    for (std::size_t read = first_piece; read < length && !shortcuts.fell_short;) {
        const std::size_t piece = std::min(read, length - read);
        Characters longer = make_room(read + piece);
        std::copy_n(characters.get(), read, longer.get());
        characters = std::move(longer);
        store.Read(characters.get() + read, static_cast<unsigned int>(piece));
        read += piece;
    }
    return characters;
}

// `length` characters as they stand in the store, as far as they came, and NULs. A host's class gets one
// Read.
Characters read_characters(ObjectStore& store, Shortcuts& shortcuts, long long length) {
    constexpr std::size_t credible = 1024 * 1024;
    store.ExpectBytes(length);
    const auto size = static_cast<std::size_t>(length);
    shortcuts.fell_short = false;
    if (size > credible && shortcuts.IsOwnReader() && !shortcuts.Remaining()) {
        return read_in_pieces(store, shortcuts, size, credible);
    }
    Characters characters = make_room(size);
    if (size != 0) {
        store.Read(characters.get(), static_cast<unsigned int>(size));
    }
    return characters;
}

}  // namespace

ObjectStore& ObjectStore::operator<<(bool value) {
    return *this << static_cast<int>(value);
}

ObjectStore& ObjectStore::operator<<(int value) {
    return put(*this, *m_shortcuts, value);
}

ObjectStore& ObjectStore::operator<<(long value) {
    if (value < std::numeric_limits<std::int32_t>::min() ||
        value > std::numeric_limits<std::int32_t>::max()) {
        throw WriteFailure();
    }
    return *this << static_cast<int>(value);
}

ObjectStore& ObjectStore::operator<<(float value) {
    return *this << static_cast<double>(value);
}

ObjectStore& ObjectStore::operator<<(double value) {
    return put(*this, *m_shortcuts, value);
}

ObjectStore& ObjectStore::operator<<(char value) {
    return put(*this, *m_shortcuts, value);
}

ObjectStore& ObjectStore::operator<<(const char* text) {
    const int length = text == nullptr ? 0 : stored_length(std::strlen(text));
    *this << length;
    if (length != 0) {
        Write(text, static_cast<unsigned int>(length) + 1);
    }
    return *this;
}

ObjectStore& ObjectStore::operator<<(const std::string& text) {
    const int length = stored_length(text.size());
    *this << 's' << length;
    Write(text.data(), static_cast<unsigned int>(length));
    return *this;
}

ObjectStore& ObjectStore::operator>>(bool& value) {
    int number = 0;
    *this >> number;
    value = number != 0;
    return *this;
}

ObjectStore& ObjectStore::operator>>(int& value) {
    return get(*this, *m_shortcuts, value);
}

ObjectStore& ObjectStore::operator>>(long& value) {
    return get(*this, *m_shortcuts, value);
}

ObjectStore& ObjectStore::operator>>(float& value) {
    double number = 0;
    *this >> number;
    value = static_cast<float>(number);
    return *this;
}

ObjectStore& ObjectStore::operator>>(double& value) {
    return get(*this, *m_shortcuts, value);
}

ObjectStore& ObjectStore::operator>>(char& value) {
    return get(*this, *m_shortcuts, value);
}

ObjectStore& ObjectStore::operator>>(char*& text) {
    int length = 0;
    *this >> length;
    // The terminating NUL follows unless the text is empty.
    const long long stored = length > 0 ? length + 1LL : length;
    Characters characters = read_characters(*this, *m_shortcuts, stored);
    if (!m_shortcuts->fell_short) {
        characters[static_cast<std::size_t>(length)] = '\0';
    }
    text = characters.release();
    return *this;
}

ObjectStore& ObjectStore::operator>>(std::string& text) {
    text.clear();
    const char tag = GetChar();
    if (tag == 's') {
        int length = 0;
        *this >> length;
        text = read_characters(*this, *m_shortcuts, length).get();
        return *this;
    }
    UngetChar(tag);
    Storable* object = nullptr;
    if (!ReadObjectOrClass(object)) {
        RefuseAsString(object);
    }
    if (m_className != older_string_class) {
        throw UnexpectedObject(m_className, " a String");
    }
    const char body = GetChar();
    if (body != 'o') {
        throw UnexpectedObject(body, " a String o");
    }
    // The older string was an object and took an id.
    AppendObjectToList(nullptr);
    char* characters = nullptr;
    *this >> characters;
    text = lvx::auto_array<char>(characters).get();
    return *this;
}
