// tools/lvxdoc/pending_file.h
//
// A file that comes to stand under its name only when it is complete. Until then it lies beside its place
// under another name, and goes away with this object, at the end of the process, and on an interrupt.
#pragma once

#include <cstdio>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

namespace lvxdoc {

class PendingFile {
public:
    /// Makes an empty file beside `target`. Throws Failure if that is refused.
    explicit PendingFile(std::filesystem::path target);
    PendingFile(const PendingFile&) = delete;
    PendingFile& operator=(const PendingFile&) = delete;
    ~PendingFile();

    /// The file that was made, for whoever fills it by name. Requires: Close was called.
    const std::filesystem::path& Place() const { return m_place; }

    /// Throws Failure unless all bytes were taken.
    void Write(const void* data, std::size_t size);
    void Close();

    /// Puts the file into its place, over what is there only if `replace`. Throws Failure otherwise; then
    /// nothing has changed there.
    void Commit(bool replace);

    /// Called before the file is removed because the process ends while it is pending: closes what holds it
    /// open.
    void OnProcessEnd(std::function<void()> release) { m_release = std::move(release); }

private:
    static void RemoveAtProcessEnd();
    static void RemoveAtInterrupt(int signal);
    void Watch();
    void Remove();
    [[noreturn]] void Refuse(const std::string& why) const;

    std::filesystem::path m_target;
    std::filesystem::path m_place;
    std::string m_narrow_place;
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> m_file;
    std::function<void()> m_release;
    bool m_pending = false;
};

}  // namespace lvxdoc
