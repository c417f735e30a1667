#include "tools/lvxdoc/walk_part.h"

#include <algorithm>

#include "tools/lvxdoc/text.h"

namespace lvxdoc {

const Option schema_option{"schema", 's', "FILE", "describe further classes by FILE (see docs/lvxdoc.md)"};

Schema load_schema(const Arguments& arguments) {
    constexpr std::uint64_t longest_schema = 1024 * 1024;
    Schema schema;
    if (arguments.Has(schema_option.name)) {
        const std::string name = arguments.Get(schema_option.name);
        const auto file = open_file(name);
        if (file->Size() > longest_schema) {
            throw Failure("the schema file '" + name + "' is longer than 1 MiB");
        }
        std::string text(static_cast<std::size_t>(file->Size()), '\0');
        file->ReadAt(0, text.data(), text.size());
        schema.Add(text, name);
    }
    return schema;
}

std::vector<Document::Part> chosen_parts(const Document& document, const Arguments& arguments) {
    std::vector<Document::Part> parts;
    for (std::size_t i = 1; i < arguments.words.size(); ++i) {
        parts.push_back(document.Find(arguments.words[i]));
    }
    if (parts.empty()) {
        std::copy_if(document.Parts().begin(), document.Parts().end(), std::back_inserter(parts),
                     [](const Document::Part& part) { return !part.is_storage; });
    }
    return parts;
}

std::uint64_t total_size(const std::vector<Document::Part>& parts) {
    std::uint64_t total = 0;
    for (const Document::Part& part : parts) {
        total += std::min(part.size, UINT64_MAX - total);
    }
    return total;
}

std::size_t walk_part(const Document& document, const Document::Part& part, const Schema& schema, bool strict,
                      Numbering& numbering, EventSink& sink, ProgressBar& bar) {
    const auto source = document.Open(part);
    WatchedSource watched(*source, bar);
    WalkOptions options;
    options.strict = strict;
    options.longest_class_name = document.LongestClassName();
    Walker walker(watched, schema, sink, numbering, options);
    walker.Walk(schema.TopOf(part.name));
    return walker.DeepestNest();
}

std::string tell_damage(const Damage& damage) {
    return "offset " + std::to_string(damage.Offset()) + " (" + hex_offset(damage.Offset()) +
           "): " + damage.what();
}

std::string tell_damage(const std::string& part, const Damage& damage) {
    return (part.empty() ? "" : "stream \"" + part + "\", ") + tell_damage(damage);
}

}  // namespace lvxdoc
