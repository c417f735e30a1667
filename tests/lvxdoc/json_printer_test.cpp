#include "tools/lvxdoc/json_printer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tools/lvxdoc/errors.h"

using namespace lvxdoc;
using Kind = Event::Kind;

namespace {

Event event_of(Kind kind) {
    Event event{.kind = kind, .offset = 5, .size = 4};
    event.depth = 1;
    event.type = "int";
    event.name = "count";
    event.number = 3;
    return event;
}

const std::string head = R"({"offset": 5, "size": 4, "depth": 1, "what": )";

}  // namespace

TEST(JsonEvent, has_a_form_for_each_kind) {
    Event event = event_of(Kind::marker);
    event.text = "A";
    EXPECT_EQ(head + R"("marker", "value": "A"})", json_event(event));
    event = event_of(Kind::class_name);
    event.text = "myFont";
    EXPECT_EQ(head + R"("class-name", "class": "myFont", "number": 3})", json_event(event));
    event.kind = Kind::class_number;
    EXPECT_EQ(head + R"("class-number", "class": "myFont", "number": 3})", json_event(event));
    event.kind = Kind::object;
    EXPECT_EQ(head + R"("object", "class": "myFont", "id": 3})", json_event(event));
    event.kind = Kind::reference;
    EXPECT_EQ(head + R"("reference", "class": "myFont", "id": 3})", json_event(event));
    EXPECT_EQ(head + R"("null"})", json_event(event_of(Kind::null)));
    EXPECT_EQ(head + R"("unknown-tag", "byte": 3})", json_event(event_of(Kind::unknown_tag)));
}

TEST(JsonEvent, gives_values_with_type_and_name) {
    const std::string value = head + R"("value", "type": "int", "name": "count", )";
    EXPECT_EQ(value + R"("value": 3})", json_event(event_of(Kind::integer)));
    EXPECT_EQ(value + R"("value": true})", json_event(event_of(Kind::boolean)));
    Event event = event_of(Kind::real);
    event.real = -2.5;
    EXPECT_EQ(value + R"("value": -2.5})", json_event(event));
    event = event_of(Kind::text);
    event.text = "\x80\"";
    event.length = 2;
    EXPECT_EQ(value + R"("value": "\u0080\"", "length": 2})", json_event(event));
    event = event_of(Kind::raw);
    event.text = "\x80";
    event.length = 9;
    event.checksum = 0x1f;
    EXPECT_EQ(value + R"("length": 9, "crc32": "0000001f", "start": "80"})", json_event(event));
}

TEST(JsonEvent, has_strings_for_what_is_no_number_in_json) {
    Event event = event_of(Kind::real);
    event.real = std::numeric_limits<double>::infinity();
    EXPECT_NE(std::string::npos, json_event(event).find(R"("value": "inf"})"));
    event.real = -event.real;
    EXPECT_NE(std::string::npos, json_event(event).find(R"("value": "-inf"})"));
    event.real = std::nan("");
    EXPECT_NE(std::string::npos, json_event(event).find(R"("value": "nan"})"));
}

TEST(JsonPrinter, puts_commas_between_events_only) {
    StringOutput output;
    JsonPrinter printer(output);
    printer.Take(event_of(Kind::null));
    printer.Take(event_of(Kind::null));
    const std::string event = json_event(event_of(Kind::null));
    EXPECT_EQ("\n      " + event + ",\n      " + event, output.Text());
}
