// owl/file_name_lists.h
//
// The lists of texts that the system's dialogs for files take and give, each text with its NUL and another
// NUL behind the last. Private to the framework.
#pragma once

#include <string>
#include <vector>

namespace owl {

/// "Text|*.txt|All|*.*" as such a list; NULs that are in `filter` already may stand for the bars.
std::vector<char> FilterList(const std::string& filter);

/// A custom filter as such a list, with room for a pattern of MAX_PATH bytes.
std::vector<char> CustomFilterBuffer(const std::string& filter);

/// The first description and pattern of `list` with a bar between them. Empty if there is no description.
std::string FirstFilter(const std::vector<char>& list);

/// What the system left in `buffer` as one text: up to the first NUL, or, with `several`, up to two of them,
/// the NULs between the names kept. A buffer without its terminator is taken whole.
std::string ChosenNames(const std::vector<char>& buffer, bool several);

/// The full paths in `chosen`, whose parts stand between `separator`s: one path, or a folder and the names in
/// it.
std::vector<std::string> FullPaths(const std::string& chosen, char separator);

}  // namespace owl
