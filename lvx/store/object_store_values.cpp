// The stored forms of numbers and strings.
#include <cstdint>
#include <cstring>
#include <limits>

#include "lvx/store/byte_order.h"
#include "lvx/store/object_store.h"
#include "lvx/store/shortcuts.h"

namespace {

using lvx::store::Shortcuts;

// A string object of the older writer, which had a class of its own for them.
constexpr const char* older_string_class = "VString";

// What is not at hand goes through the store's operations. They stay out of the operators' way: an operator
// that calls nothing saves no registers.
template <class Unsigned>
[[gnu::noinline]] void put_by_write(ObjectStore& store, Unsigned value) {
    unsigned char bytes[sizeof(Unsigned)];
    lvx::store::encode(value, bytes);
    store.Write(bytes, sizeof bytes);
}

template <class Unsigned>
[[gnu::noinline]] Unsigned get_by_read(ObjectStore& store, Shortcuts& shortcuts) {
    unsigned char bytes[sizeof(Unsigned)] = {};
    shortcuts.fell_short = false;
    store.Read(bytes, sizeof bytes);
    return shortcuts.fell_short ? Unsigned{0} : lvx::store::decode<Unsigned>(bytes);
}

template <class Unsigned>
inline void put(ObjectStore& store, Shortcuts& shortcuts, Unsigned value) {
    if (unsigned char* const place = shortcuts.Claim(sizeof(Unsigned))) {
        lvx::store::encode(value, place);
    } else {
        put_by_write(store, value);
    }
}

template <class Unsigned>
inline Unsigned get(ObjectStore& store, Shortcuts& shortcuts) {
    const unsigned char* const place = shortcuts.Take(sizeof(Unsigned));
    return place != nullptr ? lvx::store::decode<Unsigned>(place) : get_by_read<Unsigned>(store, shortcuts);
}

// A length as it is stored; there is no form for one that needs more than an int.
int stored_length(std::size_t length) {
    if (length >= static_cast<std::size_t>(std::numeric_limits<int>::max())) {
        throw ObjectStore::WriteFailure();
    }
    return static_cast<int>(length);
}

// The characters of a string as they stand in the store, as far as they came.
std::string read_characters(ObjectStore& store, int length) {
    store.ExpectBytes(length);
    std::string characters(static_cast<std::size_t>(length), '\0');
    if (length != 0) {
        store.Read(characters.data(), static_cast<unsigned int>(length));
    }
    return characters;
}

}  // namespace

ObjectStore& ObjectStore::operator<<(bool value) {
    return *this << static_cast<int>(value);
}

ObjectStore& ObjectStore::operator<<(int value) {
    put(*this, *m_shortcuts, static_cast<std::uint32_t>(value));
    return *this;
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
    put(*this, *m_shortcuts, std::bit_cast<std::uint64_t>(value));
    return *this;
}

ObjectStore& ObjectStore::operator<<(char value) {
    put(*this, *m_shortcuts, static_cast<unsigned char>(value));
    return *this;
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
    value = static_cast<std::int32_t>(get<std::uint32_t>(*this, *m_shortcuts));
    return *this;
}

ObjectStore& ObjectStore::operator>>(long& value) {
    value = static_cast<std::int32_t>(get<std::uint32_t>(*this, *m_shortcuts));
    return *this;
}

ObjectStore& ObjectStore::operator>>(float& value) {
    double number = 0;
    *this >> number;
    value = static_cast<float>(number);
    return *this;
}

ObjectStore& ObjectStore::operator>>(double& value) {
    value = std::bit_cast<double>(get<std::uint64_t>(*this, *m_shortcuts));
    return *this;
}

ObjectStore& ObjectStore::operator>>(char& value) {
    value = static_cast<char>(get<unsigned char>(*this, *m_shortcuts));
    return *this;
}

ObjectStore& ObjectStore::operator>>(char*& text) {
    int length = 0;
    *this >> length;
    // The terminating NUL follows unless the text is empty.
    const long long stored = length == 0 ? 0 : length + 1LL;
    ExpectBytes(length < 0 ? -1 : stored);
    constexpr std::size_t spare = 10;
    lvx::auto_array<char> characters(new char[static_cast<std::size_t>(length) + spare]());
    if (length != 0) {
        Read(characters.get(), static_cast<unsigned int>(stored));
    }
    characters[static_cast<std::size_t>(length)] = '\0';
    text = characters.release();
    return *this;
}

ObjectStore& ObjectStore::operator>>(std::string& text) {
    text.clear();
    const char tag = GetChar();
    if (tag == 's') {
        int length = 0;
        *this >> length;
        text = read_characters(*this, length).c_str();
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
