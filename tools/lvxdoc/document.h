// tools/lvxdoc/document.h
//
// A file that holds stores: a compound file with one in each stream, or a plain file that is one.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "tools/lvxdoc/byte_source.h"
#include "tools/lvxdoc/compound_file.h"

namespace lvxdoc {

class Document {
public:
    struct Part {
        /// The path of a stream or storage; empty for the one part of a plain file.
        std::string name;
        std::uint64_t size = 0;
        bool is_storage = false;
        std::size_t entry = 0;
    };

    /// Opens `file`. Throws Failure if it cannot be read, Damage if it is a compound file whose tables or
    /// directory are damaged; a file without the signature is a plain one.
    explicit Document(const std::string& file);

    bool IsCompound() const { return m_compound.has_value(); }
    const std::vector<Part>& Parts() const { return m_parts; }

    /// The stream of that path; case counts only where two names differ in nothing else. Throws Failure if
    /// there is none, or `name` is a storage, or the file is a plain one.
    const Part& Find(const std::string& name) const;

    /// The bytes of a part that is no storage. Throws Damage with an offset in the stream. The document
    /// outlives what is returned.
    std::unique_ptr<ByteSource> Open(const Part& part) const;

    /// The longest class name that the library reads back from this kind of file.
    std::size_t LongestClassName() const;

private:
    std::string m_file_name;
    std::unique_ptr<ByteSource> m_file;
    std::optional<CompoundFile> m_compound;
    std::vector<Part> m_parts;
};

}  // namespace lvxdoc
