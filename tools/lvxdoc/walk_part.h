// tools/lvxdoc/walk_part.h
//
// What the commands that look into documents have in common: the schema option, the bar, a walk through one
// part of a document, and how damage is told.
#pragma once

#include <string>
#include <vector>

#include "tools/lvxdoc/command_line.h"
#include "tools/lvxdoc/document.h"
#include "tools/lvxdoc/errors.h"
#include "tools/lvxdoc/progress_bar.h"
#include "tools/lvxdoc/schema.h"
#include "tools/lvxdoc/walker.h"

namespace lvxdoc {

/// The option --schema, for the tables of the commands.
extern const Option schema_option;

/// The built-in schema with that of the option added. Throws Failure if the file cannot be read, Usage if it
/// is wrong.
Schema load_schema(const Arguments& arguments);

/// The streams to look into: those named behind the file's name, else all of them.
std::vector<Document::Part> chosen_parts(const Document& document, const Arguments& arguments);

/// The bytes of all of them together.
std::uint64_t total_size(const std::vector<Document::Part>& parts);

/// Walks through one part. Returns how deep its objects nest. Throws Damage with an offset in the part.
std::size_t walk_part(const Document& document, const Document::Part& part, const Schema& schema, bool strict,
                      Numbering& numbering, EventSink& sink, ProgressBar& bar);

/// `stream "x", offset 12 (0x0000000c): why`, without the stream for a plain store.
std::string tell_damage(const std::string& part, const Damage& damage);

/// `offset 12 (0x0000000c): why`.
std::string tell_damage(const Damage& damage);

}  // namespace lvxdoc
