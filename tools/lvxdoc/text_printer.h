// tools/lvxdoc/text_printer.h
//
// A walk as lines for people: the offset in decimal and hexadecimal, then what stands there.
#pragma once

#include <string>

#include "tools/lvxdoc/events.h"
#include "tools/lvxdoc/output.h"

namespace lvxdoc {

class TextPrinter : public EventSink {
public:
    explicit TextPrinter(Output& output) : m_output(output) {}
    void Take(const Event& event) override;

private:
    Output& m_output;
};

/// What `event` is, without offset and indentation: `class 0 "myFont"`, `bool bold = true`.
std::string describe(const Event& event);

/// The shortest digits that give `value` back.
std::string shortest(double value);

}  // namespace lvxdoc
