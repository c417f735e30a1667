#include "tools/lvxdoc/value_reader.h"

#include <algorithm>
#include <array>

#include "tools/lvxdoc/bitmap_header.h"
#include "tools/lvxdoc/crc32.h"
#include "tools/lvxdoc/errors.h"
#include "tools/lvxdoc/text.h"

namespace lvxdoc {
namespace {

using Kind = Event::Kind;

// Of longer texts and runs of bytes only the beginning is kept in memory and shown.
constexpr std::uint64_t longest_text = 64 * 1024;
constexpr std::size_t shown_bytes = 32;
constexpr std::size_t block_size = 64 * 1024;

Event value(Kind kind, std::uint64_t offset, std::uint64_t size, const char* type, std::string_view name) {
    Event event{.kind = kind, .offset = offset, .size = size};
    event.type = type;
    event.name = name;
    return event;
}

std::string article(Type type) {
    return std::string(type == Type::integer ? "an " : "a ") + type_name(type);
}

}  // namespace

void ValueReader::Emit(Event event) {
    event.depth = m_depth;
    m_sink.Take(event);
}

void ValueReader::ReadBoolean(const std::string& name) {
    Event event = value(Kind::boolean, m_cursor.Position(), 4, "bool", name);
    event.number = m_cursor.ReadInteger("a bool");
    if (m_strict && event.number != 0 && event.number != 1) {
        throw Damage(event.offset, "the bool '" + name + "' is " + std::to_string(event.number));
    }
    Emit(event);
}

std::int32_t ValueReader::ReadInteger(Type type, const std::string& name) {
    Event event = value(Kind::integer, m_cursor.Position(), 4, type_name(type), name);
    const std::int32_t number = m_cursor.ReadInteger(article(type));
    event.number = number;
    Emit(event);
    return number;
}

void ValueReader::ReadReal(Type type, const std::string& name) {
    // A float takes the same eight bytes.
    Event event = value(Kind::real, m_cursor.Position(), 8, type_name(type), name);
    event.real = m_cursor.ReadDouble();
    Emit(event);
}

void ValueReader::ReadCharacter(const std::string& name) {
    Event event = value(Kind::text, m_cursor.Position(), 1, "char", name);
    const char byte = static_cast<char>(m_cursor.ReadByte("a char"));
    event.text = {&byte, 1};
    event.length = 1;
    Emit(event);
}

std::uint64_t ValueReader::ReadLength(const std::string& what) {
    const std::uint64_t offset = m_cursor.Position();
    const std::int32_t length = m_cursor.ReadInteger("the length of " + what);
    if (length < 0) {
        throw Damage(offset, what + " has a length of " + std::to_string(length));
    }
    return static_cast<std::uint64_t>(length);
}

std::string ValueReader::ReadText(std::uint64_t length, const std::string& what) {
    m_cursor.Expect(length, what);
    std::string text(static_cast<std::size_t>(std::min(length, longest_text)), '\0');
    m_cursor.Read(text.data(), text.size(), what);
    std::array<char, block_size> rest;
    for (std::uint64_t left = length - text.size(); left != 0;) {
        const auto count = static_cast<std::size_t>(std::min<std::uint64_t>(left, rest.size()));
        m_cursor.Read(rest.data(), count, what);
        left -= count;
    }
    return text;
}

void ValueReader::ReadCString(const std::string& name) {
    const std::uint64_t offset = m_cursor.Position();
    const std::uint64_t length = ReadLength("a C string");
    m_cursor.Expect(length == 0 ? 0 : length + 1, "a C string");
    const std::string text = ReadText(length, "a C string");
    const std::uint64_t end = m_cursor.Position();
    if (length != 0 && m_cursor.ReadByte("a C string") != 0 && m_strict) {
        throw Damage(end, "there is no NUL behind the C string '" + name + "'");
    }
    Event event = value(Kind::text, offset, m_cursor.Position() - offset, "cstring", name);
    event.text = text;
    event.length = length;
    Emit(event);
}

void ValueReader::ReadTaggedString(std::uint64_t offset, const std::string& name) {
    const std::uint64_t length = ReadLength("a string");
    const std::string text = ReadText(length, "a string");
    Event event = value(Kind::text, offset, m_cursor.Position() - offset, "string", name);
    event.text = text;
    event.length = length;
    Emit(event);
}

void ValueReader::ReadRegion(std::uint64_t length, const char* type, const std::string& name,
                             bool is_bitmap) {
    Event event = value(Kind::raw, m_cursor.Position(), length, type, name);
    std::array<char, block_size> block;
    std::string start;
    for (std::uint64_t left = length; left != 0;) {
        const auto count = static_cast<std::size_t>(std::min<std::uint64_t>(left, block.size()));
        m_cursor.Read(block.data(), count, name);
        const std::string_view bytes(block.data(), count);
        if (is_bitmap) {
            m_sink.TakeBitmapBytes(bytes);
        }
        start += bytes.substr(0, shown_bytes - start.size());
        event.checksum = crc32(bytes, event.checksum);
        left -= count;
    }
    event.text = start;
    event.length = length;
    Emit(event);
}

void ValueReader::ReadBytes(std::uint64_t length, const std::string& name) {
    m_cursor.Expect(length, "'" + name + "'");
    ReadRegion(length, "bytes", name, false);
}

void ValueReader::ReadHeaderFields(std::uint64_t offset, std::uint64_t size, const BitmapHeader& header) {
    struct HeaderField {
        const char* type;
        const char* name;
        unsigned width;
        std::int64_t number;
    };
    const unsigned side = header.IsCore() ? 2 : 4;
    const char* const side_type = header.IsCore() ? "word" : "long";
    const HeaderField fields[] = {{"dword", "header size", 4, header.header_size},
                                  {side_type, "width", side, header.width},
                                  {side_type, "height", side, header.height},
                                  {"word", "planes", 2, header.planes},
                                  {"word", "bits per pixel", 2, header.bits},
                                  {"dword", "compression", 4, header.compression},
                                  {"dword", "image size", 4, header.image_size},
                                  {"long", "pixels per metre across", 4, header.pixels_per_metre_x},
                                  {"long", "pixels per metre down", 4, header.pixels_per_metre_y},
                                  {"dword", "colours used", 4, header.colours_used},
                                  {"dword", "colours important", 4, header.colours_important}};
    const std::uint64_t end = offset + header.FieldsSize();
    for (const HeaderField& field : fields) {
        if (offset >= end) {
            break;
        }
        Event event = value(Kind::integer, offset, field.width, field.type, field.name);
        event.number = field.number;
        Emit(event);
        offset += field.width;
    }
    // What stands between the fields and the pixels, as far as the block goes.
    const std::uint64_t extension = std::clamp<std::uint64_t>(header.header_size, header.FieldsSize(), size);
    const std::uint64_t pixels = std::clamp<std::uint64_t>(header.PixelOffset(), extension, size);
    const std::pair<const char*, std::uint64_t> regions[] = {
        {"further header", extension - header.FieldsSize()},
        {"colours", pixels - extension},
        {"pixels", size - pixels}};
    for (const auto& [name, length] : regions) {
        if (length != 0) {
            ReadRegion(length, "bytes", name, true);
        }
    }
}

void ValueReader::ReadBitmap(std::uint64_t size, const std::string& name) {
    const std::uint64_t offset = m_cursor.Position();
    m_cursor.Expect(size, "the bitmap block '" + name + "'");
    unsigned char start[BitmapHeader::info_size];
    auto start_size = static_cast<std::size_t>(std::min<std::uint64_t>(size, BitmapHeader::core_size));
    m_cursor.Read(start, start_size, name);
    auto header = decode_bitmap_header(start, start_size);
    if (!header && size >= sizeof start) {
        m_cursor.Read(start + start_size, sizeof start - start_size, name);
        start_size = sizeof start;
        header = decode_bitmap_header(start, start_size);
    }
    const auto why = header ? find_implausible(*header, size) : "it has no room for a header";
    if (m_strict && why) {
        throw Damage(offset, "a bitmap block of " + counted(size, "byte") + " cannot be right: " + *why);
    }
    m_sink.BeginBitmap(size);
    m_sink.TakeBitmapBytes({reinterpret_cast<const char*>(start), start_size});
    if (header) {
        ReadHeaderFields(offset, size, *header);
    } else {
        Event event = value(Kind::raw, offset, start_size, "bytes", name);
        event.text = {reinterpret_cast<const char*>(start), std::min(start_size, shown_bytes)};
        event.length = start_size;
        event.checksum = crc32({reinterpret_cast<const char*>(start), start_size});
        Emit(event);
        ReadRegion(size - start_size, "bytes", name, true);
    }
    m_sink.EndBitmap();
}

}  // namespace lvxdoc
