// tools/lvxdoc/safe_name.h
//
// Names for files made from those of streams, and the other way. A document may come from anybody: the names
// in it must not lead out of the folder that was asked for, or to a device.
#pragma once

#include <set>
#include <string>
#include <string_view>

namespace lvxdoc {

/// A file name, without extension, for the stream of that path: one part, in UTF-8, legal on every system,
/// never empty, hidden, or the name of a device.
std::string file_name_for(std::string_view stream);

/// A stream name for the picture file `file`: its name without folders and extension, with what a compound
/// file does not take replaced by '_', cut to 31 characters.
std::string stream_name_for(std::string_view file);

/// Makes names differ from those that it gave before, also in more than the case of their letters.
class UniqueNames {
public:
    /// `name` itself, or `name` with "-2", "-3"... behind it, of at most `longest` bytes.
    std::string Take(const std::string& name, std::size_t longest);

private:
    std::set<std::string> m_taken;
};

}  // namespace lvxdoc
