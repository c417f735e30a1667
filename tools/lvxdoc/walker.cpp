#include "tools/lvxdoc/walker.h"

#include <algorithm>

#include "tools/lvxdoc/errors.h"
#include "tools/lvxdoc/text.h"

namespace lvxdoc {
namespace {

using Kind = Event::Kind;

std::string quoted(std::string_view text) {
    return '"' + escape_bytes(text) + '"';
}

std::string tag_text(unsigned char tag) {
    return quoted({reinterpret_cast<const char*>(&tag), 1});
}

}  // namespace

Walker::Walker(ByteSource& source, const Schema& schema, EventSink& sink, Numbering& numbering,
               WalkOptions options)
    : m_cursor(source),
      m_schema(schema),
      m_numbering(numbering),
      m_options(options),
      m_values(m_cursor, sink, options.strict) {}

void Walker::Walk(const Record& top) {
    Open(top);
    while (!m_frames.empty()) {
        Step();
    }
    m_values.SetDepth(0);
    ReadRest();
}

void Walker::ReadRest() {
    if (m_cursor.AtEnd()) {
        return;
    }
    if (m_options.strict) {
        throw Damage(m_cursor.Position(), counted(m_cursor.Remaining(), "byte") + " more than are described");
    }
    m_values.ReadBytes(m_cursor.Remaining(), "rest");
}

void Walker::Open(const Record& record) {
    m_frames.push_back({&record, 0, 0, static_cast<std::uint32_t>(m_slots.size())});
    m_slots.resize(m_slots.size() + static_cast<std::size_t>(record.slots));
    m_deepest = std::max(m_deepest, m_frames.size() - 1);
    m_values.SetDepth(m_frames.size() - 1);
}

void Walker::Close() {
    m_slots.resize(m_frames.back().slots);
    m_frames.pop_back();
    m_values.SetDepth(m_frames.empty() ? 0 : m_frames.size() - 1);
}

void Walker::Step() {
    Frame& frame = m_frames.back();
    if (frame.field == frame.record->fields.size()) {
        Close();
        return;
    }
    const Field& field = frame.record->fields[frame.field];
    if (!HasItem(frame, field)) {
        ++frame.field;
        frame.item = 0;
        return;
    }
    ++frame.item;
    ReadItem(frame, field);
}

bool Walker::HasItem(const Frame& frame, const Field& field) {
    if (field.type == Type::bytes || field.type == Type::bitmap) {
        return frame.item == 0;
    }
    switch (field.count.kind) {
        case Count::to_end:
            return !m_cursor.AtEnd();
        case Count::from_field:
            return frame.item < ValueOf(frame, field.count.field);
        default:
            return frame.item < field.count.number;
    }
}

std::uint64_t Walker::ValueOf(const Frame& frame, std::size_t field) {
    const Field& counting = frame.record->fields[field];
    const std::int32_t value = m_slots[frame.slots + static_cast<std::size_t>(counting.slot)];
    if (value < 0) {
        throw Damage(m_cursor.Position(), "the count '" + counting.name + "' is " + std::to_string(value));
    }
    return static_cast<std::uint64_t>(value);
}

std::uint64_t Walker::RawLength(const Frame& frame, const Field& field) {
    switch (field.count.kind) {
        case Count::to_end:
            return m_cursor.Remaining();
        case Count::from_field:
            return ValueOf(frame, field.count.field);
        default:
            return field.count.number;
    }
}

void Walker::ReadItem(const Frame& frame, const Field& field) {
    const bool is_raw = field.type == Type::bytes || field.type == Type::bitmap;
    const std::string name = field.count.kind == Count::once || is_raw
                                 ? field.name
                                 : field.name + '[' + std::to_string(frame.item - 1) + ']';
    switch (field.type) {
        case Type::boolean:
            m_values.ReadBoolean(name);
            break;
        case Type::integer:
        case Type::long_integer: {
            const std::int32_t value = m_values.ReadInteger(field.type, name);
            if (field.slot >= 0) {
                m_slots[frame.slots + static_cast<std::size_t>(field.slot)] = value;
            }
            break;
        }
        case Type::single:
        case Type::real:
            m_values.ReadReal(field.type, name);
            break;
        case Type::character:
            m_values.ReadCharacter(name);
            break;
        case Type::c_string:
            m_values.ReadCString(name);
            break;
        case Type::string:
            ReadString(name);
            break;
        case Type::object:
            ReadObject(field.count.kind == Count::to_end);
            break;
        case Type::bytes:
            m_values.ReadBytes(RawLength(frame, field), name);
            break;
        case Type::bitmap:
            m_values.ReadBitmap(RawLength(frame, field), name);
            break;
    }
}

void Walker::Emit(Kind kind, std::uint64_t offset, std::int64_t number, std::string_view text) {
    Event event{.kind = kind, .offset = offset, .size = m_cursor.Position() - offset};
    event.number = number;
    event.text = text;
    m_values.Emit(event);
}

void Walker::ReadObject(bool to_end) {
    ObjectClass found{};
    unsigned char last_tag = 0;
    if (ReadObjectHead(found, last_tag)) {
        ReadBodyTag();
        BeginObject(found, Described(found));
        return;
    }
    if (last_tag == '0' || last_tag == 'O') {
        return;
    }
    // A reader that was told how many objects to read takes the byte for a null pointer. One that reads to
    // the end would do so with every byte of a stream that is no store at all.
    const std::uint64_t offset = m_cursor.Position() - 1;
    if (m_options.strict || to_end) {
        throw Damage(offset, "an object begins here, but the byte " + tag_text(last_tag) + " begins none");
    }
    Emit(Kind::unknown_tag, offset, last_tag, {});
}

// Reads up to a class, in which case it is true, or to what stands in the place of an object.
bool Walker::ReadObjectHead(ObjectClass& found, unsigned char& last_tag) {
    found.offset = m_cursor.Position();
    for (;;) {
        const std::uint64_t offset = m_cursor.Position();
        last_tag = m_cursor.ReadByte("an object");
        switch (last_tag) {
            case 'A':
            case 'B':
                Emit(Kind::marker, offset, 0, last_tag == 'A' ? "A" : "B");
                break;
            case '0':
                Emit(Kind::null, offset, 0, {});
                return false;
            case 'O':
                ReadReference(offset);
                return false;
            case 'c':
                found.number = ReadClassName(offset);
                return true;
            case 'C':
                found.number = ReadClassNumber(offset);
                return true;
            default:
                return false;
        }
    }
}

// A class name up to its line end, which is CR LF or LF alone.
std::string Walker::ReadLine(std::uint64_t offset) {
    std::string name;
    bool has_end = false;
    while (!has_end && name.size() <= m_options.longest_class_name + 1) {
        name += static_cast<char>(m_cursor.ReadByte("a class name"));
        has_end = name.back() == '\n';
    }
    name.resize(name.find_last_not_of(has_end ? "\r\n" : "\r") + 1);
    if (name.size() > m_options.longest_class_name) {
        throw Damage(offset, "a class name is longer than the " +
                                 std::to_string(m_options.longest_class_name) +
                                 " characters that are read back: " + quoted(name));
    }
    // Readers take a name as a C string.
    return m_options.strict ? name : name.substr(0, name.find('\0'));
}

std::uint32_t Walker::ReadClassName(std::uint64_t offset) {
    const std::string name = ReadLine(offset);
    const bool is_plain = std::all_of(name.begin(), name.end(), [](char c) { return c >= ' ' && c <= '~'; });
    // Readers drop the first qualifier unseen, whatever is in it.
    const bool is_read = is_plain || (!m_options.strict && m_schema.FindClass(name) != nullptr);
    if (name.empty() || !is_read) {
        throw Damage(offset, "this is no class name: " + quoted(name));
    }
    m_numbering.class_names.push_back(name);
    const std::size_t number = m_numbering.class_names.size() - 1;
    Emit(Kind::class_name, offset, static_cast<std::int64_t>(number), name);
    return static_cast<std::uint32_t>(number);
}

std::uint32_t Walker::ReadClassNumber(std::uint64_t offset) {
    const std::int32_t number = m_cursor.ReadInteger("a class number");
    const std::size_t known = m_numbering.class_names.size();
    if (number < 0 || static_cast<std::size_t>(number) >= known) {
        throw Damage(offset + 1,
                     "the class number is " + std::to_string(number) + ", but " +
                         (known == 1 ? "only 1 class was" : std::to_string(known) + " classes were") +
                         " named before");
    }
    Emit(Kind::class_number, offset, number, m_numbering.class_names[static_cast<std::size_t>(number)]);
    return static_cast<std::uint32_t>(number);
}

void Walker::ReadReference(std::uint64_t offset) {
    const std::int32_t id = m_cursor.ReadInteger("a reference");
    const std::size_t known = m_numbering.objects.size();
    if (id < 0 || static_cast<std::size_t>(id) >= known) {
        throw Damage(offset + 1, "a reference to object " + std::to_string(id) + ", but only " +
                                     counted(known, "object") + " began before");
    }
    Emit(Kind::reference, offset, id,
         m_numbering.class_names[m_numbering.objects[static_cast<std::size_t>(id)]]);
}

const Record& Walker::Described(const ObjectClass& found) const {
    const std::string& name = m_numbering.class_names[found.number];
    const Record* const record = m_schema.FindClass(name);
    if (record == nullptr) {
        throw Damage(found.offset, "the class " + quoted(name) +
                                       " is not described; a schema has to have a line 'class " + name +
                                       "' with its fields behind it");
    }
    return *record;
}

void Walker::ReadBodyTag() {
    const std::uint64_t offset = m_cursor.Position();
    const unsigned char body = m_cursor.ReadByte("the body of an object");
    if (body != 'o') {
        throw Damage(offset, "the body of an object begins with \"o\", not with " + tag_text(body));
    }
}

// Behind the tag of its body.
void Walker::BeginObject(const ObjectClass& found, const Record& record) {
    if (m_frames.size() > m_options.deepest_nest) {
        throw Damage(found.offset,
                     "objects are nested deeper than " + std::to_string(m_options.deepest_nest));
    }
    m_numbering.objects.push_back(found.number);
    Emit(Kind::object, m_cursor.Position() - 1, static_cast<std::int64_t>(m_numbering.objects.size()) - 1,
         m_numbering.class_names[found.number]);
    Open(record);
}

void Walker::ReadString(const std::string& name) {
    constexpr const char* older_string_class = "VString";
    const std::uint64_t offset = m_cursor.Position();
    m_cursor.Expect(1, "a string");
    if (m_cursor.Peek() == 's') {
        m_cursor.ReadByte("a string");
        m_values.ReadTaggedString(offset, name);
        return;
    }
    // The older form, an object of a class that nothing but this place reads.
    ObjectClass found{};
    unsigned char last_tag = 0;
    if (!ReadObjectHead(found, last_tag)) {
        throw Damage(offset, "the string '" + name + "' begins here, but the byte " + tag_text(last_tag) +
                                 " begins none");
    }
    const std::string& class_name = m_numbering.class_names[found.number];
    if (class_name != older_string_class) {
        throw Damage(offset, "the string '" + name + "' begins here, but an object of the class " +
                                 quoted(class_name) + " is found");
    }
    ReadBodyTag();
    BeginObject(found, m_schema.OlderString());
}

}  // namespace lvxdoc
