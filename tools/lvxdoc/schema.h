// tools/lvxdoc/schema.h
//
// What the classes of a document store, field by field, and what stands at the top of its streams. Made from
// the built-in descriptions and those of a schema file; docs/lvxdoc.md tells its format.
#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace lvxdoc {

enum class Type {
    boolean,
    integer,
    long_integer,
    single,
    real,
    character,
    c_string,
    string,
    object,
    bytes,
    bitmap
};

/// The word for it in a schema: "bool", "int", "long", "float", "double", "char", "cstring", "string",
/// "object", "bytes", "bitmap".
const char* type_name(Type type);

/// How many values of a field follow each other; for bytes and bitmaps, how many bytes it has.
struct Count {
    enum Kind { once, fixed, from_field, to_end };
    Kind kind = once;
    std::uint64_t number = 1;
    /// For from_field: the place in the record of the earlier int or long that tells.
    std::size_t field = 0;
};

struct Field {
    Type type;
    std::string name;
    Count count;
    /// Where a walker keeps the value of a field that is a later one's count; -1 for other fields.
    int slot = -1;
};

/// A class, or the top of a stream.
struct Record {
    std::string name;
    std::vector<Field> fields;
    int slots = 0;
};

class Schema {
public:
    /// The classes of the library, LVXUtilities::DIBitmap and myFont, and the usual top: a long, then objects
    /// to the end.
    Schema();

    /// Adds the descriptions in `text`; they go before the built-in ones. Throws Usage that begins with
    /// `file` and the line's number at the first line that is wrong.
    void Add(std::string_view text, const std::string& file);

    /// As the library looks classes up: the part behind the first "::" of `name` is what counts, but a class
    /// that is described under its whole name comes first. Null if there is none.
    const Record* FindClass(std::string_view name) const;

    /// The text in an older string, an object of the class VString that stands in the place of a string. Not
    /// found by FindClass: as an object it is of a class like any other, which nobody creates unless a schema
    /// describes it.
    const Record& OlderString() const { return *m_older_string; }

    /// What stands at the top of the stream of that name.
    const Record& TopOf(std::string_view stream) const;

private:
    using Records = std::map<std::string, const Record*, std::less<>>;

    std::deque<Record> m_records;
    Records m_classes;
    Records m_keys;
    Records m_tops;
    const Record* m_default_top = nullptr;
    const Record* m_older_string = nullptr;
};

}  // namespace lvxdoc
