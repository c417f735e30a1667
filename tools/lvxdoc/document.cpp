#include "tools/lvxdoc/document.h"

#include <algorithm>

#include "tools/lvxdoc/errors.h"
#include "tools/lvxdoc/text.h"

namespace lvxdoc {
namespace {

// A part of another source, which outlives it.
class BorrowedSource : public ByteSource {
public:
    explicit BorrowedSource(ByteSource& source) : m_source(source) {}
    std::uint64_t Size() const override { return m_source.Size(); }
    void ReadAt(std::uint64_t offset, void* data, std::size_t size) override {
        m_source.ReadAt(offset, data, size);
    }

private:
    ByteSource& m_source;
};

}  // namespace

Document::Document(const std::string& file) : m_file_name(file), m_file(open_file(file)) {
    if (!CompoundFile::Recognise(*m_file)) {
        m_parts.push_back({"", m_file->Size(), false, 0});
        return;
    }
    m_compound.emplace(*m_file);
    for (std::size_t i = 0; i < m_compound->Entries().size(); ++i) {
        const CompoundFile::Entry& entry = m_compound->Entries()[i];
        m_parts.push_back({entry.path, entry.size, !entry.is_stream, i});
    }
}

const Document::Part& Document::Find(const std::string& name) const {
    const auto quoted_file = " in '" + m_file_name + "'";
    if (!IsCompound()) {
        throw Failure("there are no streams" + quoted_file + ", it is a plain store");
    }
    auto found = std::find_if(m_parts.begin(), m_parts.end(), [&](const Part& p) { return p.name == name; });
    if (found == m_parts.end()) {
        found = std::find_if(m_parts.begin(), m_parts.end(),
                             [&](const Part& p) { return same_but_for_case(p.name, name); });
    }
    if (found == m_parts.end()) {
        throw Failure("there is no stream '" + name + "'" + quoted_file);
    }
    if (found->is_storage) {
        throw Failure("'" + name + "'" + quoted_file + " is a storage, not a stream");
    }
    return *found;
}

std::unique_ptr<ByteSource> Document::Open(const Part& part) const {
    if (!IsCompound()) {
        return std::make_unique<BorrowedSource>(*m_file);
    }
    return m_compound->OpenStream(m_compound->Entries()[part.entry]);
}

std::size_t Document::LongestClassName() const {
    // The line end counts in a plain file.
    return IsCompound() ? 48 : 47;
}

}  // namespace lvxdoc
