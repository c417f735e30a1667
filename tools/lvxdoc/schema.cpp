#include "tools/lvxdoc/schema.h"

#include "tools/lvxdoc/schema_parser.h"

namespace lvxdoc {
namespace {

constexpr std::string_view built_in = R"(
top
    long version
    object(*) object

class LVXUtilities::DIBitmap
    long size
    bitmap(size) block

class myFont
    string face
    double size
    bool bold
    bool italic
    bool underline
    bool strikeout
)";

// Its text is read as the value it is, whatever a schema says about the class.
constexpr std::string_view older_string = R"(
class VString
    cstring text
)";

std::string_view key_of(std::string_view name) {
    const auto qualifier = name.find("::");
    return qualifier == std::string_view::npos ? name : name.substr(qualifier + 2);
}

}  // namespace

const char* type_name(Type type) {
    constexpr const char* names[] = {"bool",    "int",    "long",   "float", "double", "char",
                                     "cstring", "string", "object", "bytes", "bitmap"};
    return names[static_cast<std::size_t>(type)];
}

Schema::Schema() {
    Add(built_in, "built-in schema");
    m_records.push_back(std::move(parse_schema(older_string, "built-in schema").front().record));
    m_older_string = &m_records.back();
}

void Schema::Add(std::string_view text, const std::string& file) {
    for (Section& section : parse_schema(text, file)) {
        m_records.push_back(std::move(section.record));
        const Record& record = m_records.back();
        if (section.is_class) {
            m_classes[record.name] = &record;
            m_keys[std::string(key_of(record.name))] = &record;
        } else if (record.name.empty()) {
            m_default_top = &record;
        } else {
            m_tops[record.name] = &record;
        }
    }
}

const Record* Schema::FindClass(std::string_view name) const {
    const auto exact = m_classes.find(name);
    if (exact != m_classes.end()) {
        return exact->second;
    }
    const auto by_key = m_keys.find(key_of(name));
    return by_key == m_keys.end() ? nullptr : by_key->second;
}

const Record& Schema::TopOf(std::string_view stream) const {
    const auto found = m_tops.find(stream);
    return found == m_tops.end() ? *m_default_top : *found->second;
}

}  // namespace lvxdoc
