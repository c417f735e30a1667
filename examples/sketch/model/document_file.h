// Documents on disk: compound files with a stream "Sketch", which holds a version and a Drawing. Documents of
// pictures that have no such stream, as lvxdoc packs them, are read as well, each picture a figure.
#pragma once

#include <string>

#include "sketch/model/figure.h"

namespace sketch {

struct LoadedDocument {
    Figures figures;
    /// Whether the file is this program's own kind: one that may be overwritten without a question.
    bool isOwn = false;
};

/// Throws DocumentError with the cause, without the file's name, or std::bad_alloc.
LoadedDocument LoadDocument(const std::string& file);

/// Writes the whole document beside `file` and then puts it in its place: if anything fails, the former file
/// is as it was. Throws DocumentError.
void SaveDocument(const std::string& file, const Figures& figures);

}  // namespace sketch
