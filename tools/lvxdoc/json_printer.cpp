#include "tools/lvxdoc/json_printer.h"

#include <cmath>

#include "tools/lvxdoc/text.h"
#include "tools/lvxdoc/text_printer.h"

namespace lvxdoc {
namespace {

using Kind = Event::Kind;

const char* kind_name(Kind kind) {
    switch (kind) {
        case Kind::marker:
            return "marker";
        case Kind::class_name:
            return "class-name";
        case Kind::class_number:
            return "class-number";
        case Kind::object:
            return "object";
        case Kind::reference:
            return "reference";
        case Kind::null:
            return "null";
        case Kind::unknown_tag:
            return "unknown-tag";
        default:
            return "value";
    }
}

std::string member(const char* name, const std::string& json) {
    return std::string(", \"") + name + "\": " + json;
}

// JSON has no numbers for these.
std::string json_real(double value) {
    return std::isfinite(value) ? shortest(value) : json_bytes(shortest(value));
}

std::string json_text_value(const Event& event) {
    return member("value", json_bytes(event.text)) + member("length", std::to_string(event.length));
}

std::string json_raw_value(const Event& event) {
    return member("length", std::to_string(event.length)) +
           member("crc32", json_bytes(hex_offset(event.checksum).substr(2))) +
           member("start", json_bytes(hex_bytes(event.text)));
}

std::string json_value(const Event& event) {
    switch (event.kind) {
        case Kind::boolean:
            return member("value", event.number == 0 ? "false" : "true");
        case Kind::real:
            return member("value", json_real(event.real));
        case Kind::text:
            return json_text_value(event);
        case Kind::raw:
            return json_raw_value(event);
        default:
            return member("value", std::to_string(event.number));
    }
}

std::string members(const Event& event) {
    const std::string number = std::to_string(event.number);
    switch (event.kind) {
        case Kind::marker:
            return member("value", json_bytes(event.text));
        case Kind::class_name:
        case Kind::class_number:
            return member("class", json_bytes(event.text)) + member("number", number);
        case Kind::object:
        case Kind::reference:
            return member("class", json_bytes(event.text)) + member("id", number);
        case Kind::null:
            return {};
        case Kind::unknown_tag:
            return member("byte", number);
        default:
            return member("type", json_bytes(event.type)) + member("name", json_bytes(event.name)) +
                   json_value(event);
    }
}

}  // namespace

std::string json_event(const Event& event) {
    return "{\"offset\": " + std::to_string(event.offset) + member("size", std::to_string(event.size)) +
           member("depth", std::to_string(event.depth)) +
           member("what", std::string("\"") + kind_name(event.kind) + '"') + members(event) + "}";
}

void JsonPrinter::Take(const Event& event) {
    m_output.Write((m_first ? "\n      " : ",\n      ") + json_event(event));
    m_first = false;
}

}  // namespace lvxdoc
