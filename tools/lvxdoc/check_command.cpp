#include "tools/lvxdoc/check_command.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <utility>

#include "tools/lvxdoc/text.h"
#include "tools/lvxdoc/walk_part.h"

namespace lvxdoc {
namespace {

class Silence : public EventSink {
public:
    void Take(const Event&) override {}
};

// A line on a file without damage.
std::string praise(const Document& document, std::size_t streams, std::size_t objects, std::size_t deepest) {
    return (document.IsCompound() ? "ok, compound file, " + counted(streams, "stream") : "ok, plain store") +
           ", " + counted(objects, "object") +
           (deepest == 0 ? "" : ", nested " + std::to_string(deepest) + " deep");
}

std::string check_parts(const Document& document, const Arguments& arguments, const Schema& schema,
                        const Console& console) {
    const auto parts = chosen_parts(document, {});
    ProgressBar bar(console.err, console.err_is_terminal, total_size(parts));
    Silence silence;
    Numbering numbering;
    std::size_t objects = 0;
    std::size_t deepest = 0;
    for (const Document::Part& part : parts) {
        if (!arguments.Has("continued")) {
            objects += numbering.objects.size();
            numbering = {};
        }
        try {
            deepest = std::max(deepest, walk_part(document, part, schema, true, numbering, silence, bar));
        } catch (const Damage& damage) {
            throw Damage(damage.Offset(), tell_damage(part.name, damage));
        }
    }
    return praise(document, parts.size(), objects + numbering.objects.size(), deepest);
}

// The line on one file, and whether it is without damage.
std::pair<std::string, bool> check_file(const std::string& name, const Arguments& arguments,
                                        const Schema& schema, const Console& console) {
    std::optional<Document> document;
    try {
        document.emplace(name);
    } catch (const Damage& damage) {
        return {"damaged: " + tell_damage(damage), false};
    }
    try {
        return {check_parts(*document, arguments, schema, console), true};
    } catch (const Damage& damage) {
        return {std::string("damaged: ") + damage.what(), false};
    }
}

// False if the file is damaged or cannot be read.
bool report_file(const std::string& name, const Arguments& arguments, const Schema& schema,
                 Console& console) {
    std::pair<std::string, bool> result;
    try {
        result = check_file(name, arguments, schema, console);
    } catch (const Failure& failure) {
        console.err.Line(std::string("lvxdoc: ") + failure.what());
        return false;
    }
    console.out.Line(name + ": " + result.first);
    return result.second;
}

int run(const Arguments& arguments, Console& console) {
    const Schema schema = load_schema(arguments);
    bool all_good = true;
    for (const std::string& name : arguments.words) {
        all_good = report_file(name, arguments, schema, console) && all_good;
    }
    return all_good ? 0 : 1;
}

}  // namespace

const Command check_command{
    "check",
    "FILE...",
    1,
    std::numeric_limits<std::size_t>::max(),
    "Walk through everything in documents and tell the first damage of each",
    "For every file there is one line: ok, or the stream and the offset of the first damage and why it is "
    "one.\n"
    "Damage is also what readers accept but no writer leaves, a class that is not described, and a bitmap "
    "whose\n"
    "header does not fit its size. The exit status is 1 if any file is damaged or cannot be read.\n",
    {schema_option,
     {"continued", 'c', nullptr,
      "ids and class numbers run on from stream to stream, in the order of 'list'"}},
    &run};

}  // namespace lvxdoc
