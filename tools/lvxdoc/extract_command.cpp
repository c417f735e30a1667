#include "tools/lvxdoc/extract_command.h"

#include <filesystem>
#include <limits>

#include "tools/lvxdoc/bitmap_writer.h"
#include "tools/lvxdoc/platform/system.h"
#include "tools/lvxdoc/text.h"
#include "tools/lvxdoc/walk_part.h"

namespace lvxdoc {
namespace {

std::filesystem::path prepare_folder(const std::string& name) {
    std::filesystem::path folder = platform::native_path(name);
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (!std::filesystem::is_directory(folder)) {
        throw Failure("cannot make the folder '" + name + "'" + (error ? ": " + error.message() : ""));
    }
    return folder;
}

void report(const std::string& part, const std::string& why, Console& console) {
    console.err.Line("lvxdoc: " + (part.empty() ? why : "stream \"" + part + "\": " + why));
}

// Writes what can be written, and tells why if the part was not walked to its end.
bool walk_to_the_end(const Document& document, const Document::Part& part, const Schema& schema,
                     Numbering& numbering, BitmapWriter& writer, ProgressBar& bar, Console& console) {
    std::string why;
    try {
        walk_part(document, part, schema, false, numbering, writer, bar);
    } catch (const Damage& damage) {
        why = tell_damage(damage);
    } catch (const Failure& failure) {
        why = failure.what();
    }
    writer.Abandon();
    if (!why.empty()) {
        report(part.name, why, console);
    }
    return why.empty();
}

struct Outcome {
    bool walked = false;
    bool all_written = false;
};

Outcome extract_part(const Document& document, const Document::Part& part, const Schema& schema,
                     Numbering& numbering, BitmapWriter& writer, ProgressBar& bar, Console& console) {
    const std::size_t written = writer.Written().size();
    const std::size_t refused = writer.Refused().size();
    writer.BeginStream(part.name.empty() ? "picture" : part.name);
    Outcome outcome;
    outcome.walked = walk_to_the_end(document, part, schema, numbering, writer, bar, console);
    outcome.all_written = outcome.walked && writer.Refused().size() == refused;
    for (std::size_t i = written; i < writer.Written().size(); ++i) {
        console.out.Line(writer.Written()[i]);
    }
    for (std::size_t i = refused; i < writer.Refused().size(); ++i) {
        report(part.name, writer.Refused()[i], console);
    }
    return outcome;
}

int run(const Arguments& arguments, Console& console) {
    if (!arguments.Has("output")) {
        throw Usage("'extract' needs the folder to write to: -o DIR");
    }
    const Schema schema = load_schema(arguments);
    const Document document(arguments.words.front());
    const auto parts = chosen_parts(document, arguments);
    BitmapWriter writer(prepare_folder(arguments.Get("output")), arguments.Has("force"));
    ProgressBar bar(console.err, console.err_is_terminal, total_size(parts));
    Numbering numbering;
    bool all_good = true;
    for (const Document::Part& part : parts) {
        if (!arguments.Has("continued")) {
            numbering = {};
        }
        const Outcome outcome = extract_part(document, part, schema, numbering, writer, bar, console);
        all_good = all_good && outcome.all_written;
        if (!outcome.walked && arguments.Has("continued")) {
            // From here on every number would be a guess.
            break;
        }
    }
    return all_good ? 0 : 1;
}

}  // namespace

const Command extract_command{
    "extract",
    "FILE [STREAM...]",
    1,
    std::numeric_limits<std::size_t>::max(),
    "Write the bitmaps of a document as files",
    "Every bitmap of all streams, or of the named ones, becomes a .bmp file in DIR, named after its stream; "
    "what is\n"
    "no part of a file name is replaced by '_', and nothing is ever written outside of DIR. The names of the "
    "files\n"
    "are printed.\n",
    {{"output", 'o', "DIR", "write to this folder, which is made if it is missing"},
     {"force", 'f', nullptr, "replace files that exist"},
     schema_option,
     {"continued", 'c', nullptr, "ids and class numbers run on from stream to stream, in the order given"}},
    &run};

}  // namespace lvxdoc
