#include "tools/lvxdoc/pending_file.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <system_error>

#include "tools/lvxdoc/errors.h"
#include "tools/lvxdoc/platform/system.h"

namespace lvxdoc {
namespace {

// The one that is being filled; a command fills one at a time.
PendingFile* current = nullptr;

constexpr int interrupted_status = 130;

}  // namespace

PendingFile::PendingFile(std::filesystem::path target)
    : m_target(std::move(target)), m_file(nullptr, &std::fclose) {
    constexpr int attempts = 100;
    for (int i = 0; i < attempts && m_file == nullptr; ++i) {
        m_place = m_target;
        m_place += ".lvxdoc-" + std::to_string(platform::process_number()) + '-' + std::to_string(i);
        m_file.reset(platform::create_new(m_place));
        if (m_file == nullptr && errno != EEXIST) {
            break;
        }
    }
    if (m_file == nullptr) {
        Refuse(std::strerror(errno));
    }
    m_narrow_place = platform::narrow_name(m_place);
    m_pending = true;
    Watch();
}

PendingFile::~PendingFile() {
    Remove();
    if (current == this) {
        current = nullptr;
    }
}

void PendingFile::Refuse(const std::string& why) const {
    throw Failure("cannot write '" + platform::narrow_name(m_target) + "': " + why);
}

void PendingFile::Watch() {
    static const bool registered = [] {
        std::atexit(&PendingFile::RemoveAtProcessEnd);
        std::signal(SIGINT, &PendingFile::RemoveAtInterrupt);
        std::signal(SIGTERM, &PendingFile::RemoveAtInterrupt);
        return true;
    }();
    static_cast<void>(registered);
    current = this;
}

// Also reached when a decoder ends the process in the middle of a picture.
void PendingFile::RemoveAtProcessEnd() {
    if (current != nullptr && current->m_release) {
        current->m_release();
    }
    if (current != nullptr) {
        current->Remove();
    }
}

void PendingFile::RemoveAtInterrupt(int) {
    if (current != nullptr && current->m_pending) {
        std::remove(current->m_narrow_place.c_str());
    }
    std::_Exit(interrupted_status);
}

void PendingFile::Remove() {
    if (!m_pending) {
        return;
    }
    m_pending = false;
    m_file.reset();
    std::error_code ignored;
    std::filesystem::remove(m_place, ignored);
}

void PendingFile::Write(const void* data, std::size_t size) {
    errno = 0;
    if (size != 0 && std::fwrite(data, 1, size, m_file.get()) != size) {
        Refuse(std::strerror(errno));
    }
}

void PendingFile::Close() {
    errno = 0;
    if (m_file != nullptr && std::fclose(m_file.release()) != 0) {
        Refuse(std::strerror(errno));
    }
}

void PendingFile::Commit(bool replace) {
    Close();
    std::error_code error;
    // A link counts as being there, even one that leads nowhere.
    if (!replace &&
        std::filesystem::symlink_status(m_target, error).type() != std::filesystem::file_type::not_found) {
        Refuse("it exists already");
    }
    std::filesystem::rename(m_place, m_target, error);
    if (error) {
        Refuse(error.message());
    }
    m_pending = false;
}

}  // namespace lvxdoc
