// tools/lvxdoc/schema_parser.h
//
// The text of a schema into its sections. docs/lvxdoc.md tells the format.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/lvxdoc/schema.h"

namespace lvxdoc {

struct Section {
    /// A class, else the top of a stream; a top without a name is that of every stream that has none.
    bool is_class;
    Record record;
};

/// Throws Usage ("FILE:LINE: why") at the first line that is wrong: an unknown type, a count that is no
/// earlier int or long of the section, a field outside of a section, a name that is taken.
std::vector<Section> parse_schema(std::string_view text, const std::string& file);

}  // namespace lvxdoc
