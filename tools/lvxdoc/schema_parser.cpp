#include "tools/lvxdoc/schema_parser.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "tools/lvxdoc/errors.h"
#include "tools/lvxdoc/text.h"

namespace lvxdoc {
namespace {

constexpr std::string_view blanks = " \t\r";

std::string_view trimmed(std::string_view text) {
    const auto begin = text.find_first_not_of(blanks);
    return begin == std::string_view::npos ? std::string_view()
                                           : text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

// Takes the first word off `text`.
std::string_view next_word(std::string_view& text) {
    text = trimmed(text);
    const std::string_view word = text.substr(0, text.find_first_of(blanks));
    text = trimmed(text.substr(word.size()));
    return word;
}

std::optional<Type> find_type(std::string_view word) {
    for (int i = 0; i <= static_cast<int>(Type::bitmap); ++i) {
        if (word == type_name(static_cast<Type>(i))) {
            return static_cast<Type>(i);
        }
    }
    return std::nullopt;
}

std::string quoted(std::string_view text) {
    return '\'' + escape_bytes(text) + '\'';
}

bool is_raw(Type type) {
    return type == Type::bytes || type == Type::bitmap;
}

class Parser {
public:
    explicit Parser(const std::string& file) : m_file(file) {}

    std::vector<Section> Parse(std::string_view text);

private:
    void ParseLine(std::string_view line);
    void Begin(bool is_class, std::string_view name);
    void AddField(std::string_view type, std::string_view name);
    Count ParseCount(std::string_view count);
    Count CountFrom(std::string_view field);
    [[noreturn]] void Refuse(const std::string& why) const;

    const std::string& m_file;
    unsigned m_line = 0;
    std::vector<Section> m_sections;
};

void Parser::Refuse(const std::string& why) const {
    throw Usage(m_file + ':' + std::to_string(m_line) + ": " + why);
}

std::vector<Section> Parser::Parse(std::string_view text) {
    while (!text.empty()) {
        ++m_line;
        const auto end = std::min(text.find('\n'), text.size());
        ParseLine(trimmed(text.substr(0, end)));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return std::move(m_sections);
}

void Parser::ParseLine(std::string_view line) {
    if (line.empty() || line.front() == '#') {
        return;
    }
    std::string_view rest = line;
    const std::string_view word = next_word(rest);
    if (word == "class" || word == "top") {
        Begin(word == "class", rest);
    } else {
        AddField(word, rest);
    }
}

void Parser::Begin(bool is_class, std::string_view name) {
    if (is_class && name.empty()) {
        Refuse("a class needs a name");
    }
    for (const Section& section : m_sections) {
        if (section.is_class == is_class && section.record.name == name) {
            Refuse((is_class ? "the class " : "the top ") + quoted(name) + " is described already");
        }
    }
    m_sections.push_back({is_class, {std::string(name), {}, 0}});
}

void Parser::AddField(std::string_view type, std::string_view name) {
    const auto bracket = std::min(type.find('('), type.size());
    const auto found = find_type(type.substr(0, bracket));
    if (!found) {
        Refuse("unknown type " + quoted(type.substr(0, bracket)));
    }
    if (m_sections.empty()) {
        Refuse("a field stands in front of the first 'class' or 'top'");
    }
    std::vector<Field>& fields = m_sections.back().record.fields;
    if (name.empty() || name.find_first_of(blanks) != std::string_view::npos) {
        Refuse("a field has a type and a name of one word");
    }
    if (std::any_of(fields.begin(), fields.end(), [name](const Field& f) { return f.name == name; })) {
        Refuse("the field " + quoted(name) + " is described already");
    }
    if (!fields.empty() && fields.back().count.kind == Count::to_end) {
        Refuse("nothing can follow a field that goes to the end");
    }
    Count count;
    if (bracket != type.size()) {
        if (type.back() != ')') {
            Refuse("a count ends with ')' and has no blanks in it");
        }
        count = ParseCount(type.substr(bracket + 1, type.size() - bracket - 2));
    } else if (is_raw(*found)) {
        Refuse(quoted(type) + " needs a count: " + std::string(type) + "(16), or an earlier field's name");
    }
    fields.push_back({*found, std::string(name), count, -1});
}

Count Parser::ParseCount(std::string_view count) {
    if (count == "*") {
        if (m_sections.back().is_class) {
            Refuse("only the top of a stream goes to the end");
        }
        return {Count::to_end, 0, 0};
    }
    if (count.empty() || count.front() < '0' || count.front() > '9') {
        return CountFrom(count);
    }
    std::uint64_t number = 0;
    const auto result = std::from_chars(count.data(), count.data() + count.size(), number);
    if (result.ec != std::errc() || result.ptr != count.data() + count.size()) {
        Refuse("the count " + quoted(count) + " is not a number");
    }
    return {Count::fixed, number, 0};
}

Count Parser::CountFrom(std::string_view name) {
    Record& record = m_sections.back().record;
    for (std::size_t i = 0; i < record.fields.size(); ++i) {
        Field& field = record.fields[i];
        if (field.name != name) {
            continue;
        }
        const bool is_number = field.type == Type::integer || field.type == Type::long_integer;
        if (!is_number || field.count.kind != Count::once) {
            Refuse("the count " + quoted(name) + " is not a single int or long");
        }
        if (field.slot < 0) {
            field.slot = record.slots++;
        }
        return {Count::from_field, 0, i};
    }
    Refuse("the count " + quoted(name) + " is no earlier field of this section");
}

}  // namespace

std::vector<Section> parse_schema(std::string_view text, const std::string& file) {
    return Parser(file).Parse(text);
}

}  // namespace lvxdoc
