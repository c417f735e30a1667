// tools/lvxdoc/json_printer.h
//
// A walk as JSON objects, one for each thing that is met; docs/lvxdoc.md tells their members. They are
// written as they come, so that a walk that ends early leaves what it met before.
#pragma once

#include <string>

#include "tools/lvxdoc/events.h"
#include "tools/lvxdoc/output.h"

namespace lvxdoc {

class JsonPrinter : public EventSink {
public:
    /// Writes the members of an array; its brackets are the caller's.
    explicit JsonPrinter(Output& output) : m_output(output) {}
    void Take(const Event& event) override;

private:
    Output& m_output;
    bool m_first = true;
};

/// `event` as one JSON object.
std::string json_event(const Event& event);

}  // namespace lvxdoc
