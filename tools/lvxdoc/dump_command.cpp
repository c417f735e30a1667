#include "tools/lvxdoc/dump_command.h"

#include <limits>
#include <memory>

#include "tools/lvxdoc/json_printer.h"
#include "tools/lvxdoc/text.h"
#include "tools/lvxdoc/text_printer.h"
#include "tools/lvxdoc/walk_part.h"

namespace lvxdoc {
namespace {

// How a dump is written around the events of its streams.
class Form {
public:
    Form() = default;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;
    virtual ~Form() = default;

    virtual void BeginFile(const std::string& name, bool is_compound, std::size_t streams) = 0;
    virtual std::unique_ptr<EventSink> BeginPart(const Document::Part& part) = 0;
    /// `damage` is null for a part that was walked to its end.
    virtual void EndPart(const Damage* damage) = 0;
    virtual void EndFile() = 0;
};

class TextForm : public Form {
public:
    explicit TextForm(Output& output) : m_output(output) {}

    void BeginFile(const std::string& name, bool is_compound, std::size_t streams) override {
        m_output.Line(name +
                      (is_compound ? ": compound file, " + counted(streams, "stream") : ": plain store"));
    }
    std::unique_ptr<EventSink> BeginPart(const Document::Part& part) override {
        m_output.Line('\n' + (part.name.empty() ? "store" : "stream \"" + part.name + '"') + ", " +
                      counted(part.size, "byte"));
        return std::make_unique<TextPrinter>(m_output);
    }
    void EndPart(const Damage* damage) override {
        if (damage != nullptr) {
            m_output.Line("damage at " + tell_damage(*damage));
        }
    }
    void EndFile() override {}

private:
    Output& m_output;
};

class JsonForm : public Form {
public:
    explicit JsonForm(Output& output) : m_output(output) {}

    void BeginFile(const std::string& name, bool is_compound, std::size_t) override {
        m_output.Write("{\"file\": " + json_text(name) +
                       ", \"kind\": " + (is_compound ? "\"compound\"" : "\"store\"") + ",\n \"streams\": [");
    }
    std::unique_ptr<EventSink> BeginPart(const Document::Part& part) override {
        m_output.Write(std::string(m_first ? "" : ",") +
                       "\n  {\"name\": " + (part.name.empty() ? "null" : json_text(part.name)) +
                       ", \"size\": " + std::to_string(part.size) + ",\n    \"events\": [");
        m_first = false;
        return std::make_unique<JsonPrinter>(m_output);
    }
    void EndPart(const Damage* damage) override {
        m_output.Write("],\n    \"damage\": " + (damage == nullptr
                                                     ? "null}"
                                                     : "{\"offset\": " + std::to_string(damage->Offset()) +
                                                           ", \"why\": " + json_text(damage->what()) + "}}"));
    }
    void EndFile() override { m_output.Line("]}"); }

private:
    Output& m_output;
    bool m_first = true;
};

// True if the part has no damage that ends the walk.
bool dump_part(const Document& document, const Document::Part& part, const Schema& schema,
               Numbering& numbering, Form& form, ProgressBar& bar) {
    const auto sink = form.BeginPart(part);
    try {
        walk_part(document, part, schema, false, numbering, *sink, bar);
    } catch (const Damage& damage) {
        form.EndPart(&damage);
        return false;
    }
    form.EndPart(nullptr);
    return true;
}

std::unique_ptr<Form> make_form(const Arguments& arguments, Output& output) {
    if (arguments.Has("json")) {
        return std::make_unique<JsonForm>(output);
    }
    return std::make_unique<TextForm>(output);
}

int run(const Arguments& arguments, Console& console) {
    const Schema schema = load_schema(arguments);
    const Document document(arguments.words.front());
    const auto parts = chosen_parts(document, arguments);
    const auto form = make_form(arguments, console.out);
    // On one terminal the bar would run through the lines.
    ProgressBar bar(console.err, console.err_is_terminal && !console.out_is_terminal, total_size(parts));
    Numbering numbering;
    bool all_good = true;
    form->BeginFile(arguments.words.front(), document.IsCompound(), parts.size());
    for (const Document::Part& part : parts) {
        if (!arguments.Has("continued")) {
            numbering = {};
        }
        const bool good = dump_part(document, part, schema, numbering, *form, bar);
        all_good = all_good && good;
        if (!good && arguments.Has("continued")) {
            // From here on every number would be a guess.
            break;
        }
    }
    form->EndFile();
    return all_good ? 0 : 1;
}

}  // namespace

const Command dump_command{
    "dump",
    "FILE [STREAM...]",
    1,
    std::numeric_limits<std::size_t>::max(),
    "Print every marker, class, id, reference and value of a document, with its offset",
    "FILE is a compound file, of which all streams or the named ones are printed, or a plain store. Of "
    "pixels and\n"
    "other runs of bytes the first ones, the length and the CRC-32 are shown. What cannot be read ends a "
    "stream\n"
    "with a line that tells its offset and why, and the exit status is 1 then; a class that is not described "
    "is\n"
    "such a case.\n",
    {{"json", 'j', nullptr, "print JSON (see docs/lvxdoc.md)"},
     schema_option,
     {"continued", 'c', nullptr, "ids and class numbers run on from stream to stream, in the order given"}},
    &run};

}  // namespace lvxdoc
