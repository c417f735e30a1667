// tools/lvxdoc/bitmap_writer.h
//
// Writes the bitmaps that a walk passes into files of a folder. They go there piece by piece, so that the
// largest picture takes no memory. A bitmap that is refused is passed over and told afterwards; the walk goes
// on to those behind it.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "tools/lvxdoc/events.h"
#include "tools/lvxdoc/pending_file.h"
#include "tools/lvxdoc/safe_name.h"

namespace lvxdoc {

class BitmapWriter : public EventSink {
public:
    /// `folder` exists. Existing files are replaced only if `force`.
    BitmapWriter(std::filesystem::path folder, bool force) : m_folder(std::move(folder)), m_force(force) {}

    /// The bitmaps from now on are those of this stream: "sky.bmp", "sky-2.bmp"...
    void BeginStream(const std::string& name) { m_stem = file_name_for(name); }

    void Take(const Event&) override {}
    /// Refuses the bitmap if its file is there already. Throws Failure if the file cannot be made.
    void BeginBitmap(std::uint64_t size) override;
    /// Refuses a block without a plausible header. Throws Failure if the file cannot be written.
    void TakeBitmapBytes(std::string_view bytes) override;
    void EndBitmap() override;

    /// Drops a file that was begun, after a walk that ended early.
    void Abandon() { m_file.reset(); }

    /// The names of the files that are complete, without the folder.
    const std::vector<std::string>& Written() const { return m_written; }

    /// Why bitmaps were passed over, a text for each.
    const std::vector<std::string>& Refused() const { return m_refused; }

private:
    void Refuse(const std::string& why);
    bool WriteFileHeader(std::string_view start);

    std::filesystem::path m_folder;
    bool m_force;
    std::string m_stem;
    UniqueNames m_names;
    std::string m_name;
    std::uint64_t m_size = 0;
    bool m_has_header = false;
    // None while a bitmap is passed over.
    std::unique_ptr<PendingFile> m_file;
    std::vector<std::string> m_written;
    std::vector<std::string> m_refused;
};

}  // namespace lvxdoc
