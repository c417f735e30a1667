#include "lvx/platform/posix/profile_writer.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>

#include "lvx/platform/posix/directory_lock.h"
#include "lvx/platform/posix/profile_encoding.h"
#include "lvx/platform/posix/profile_file.h"
#include "lvx/platform/posix/profile_text.h"
#include "lvx/platform/posix/replacement_file.h"

namespace lvx::platform {
namespace {

// With those above it. Nobody else looks into the settings of a user.
void make_directory(const std::string& directory) {
    if (mkdir(directory.c_str(), S_IRWXU) == 0 || errno != ENOENT) {
        return;
    }
    const std::size_t separator = directory.find_last_of('/');
    if (separator != std::string::npos && separator > 0) {
        make_directory(directory.substr(0, separator));
        mkdir(directory.c_str(), S_IRWXU);
    }
}

// Replacing needs the right to change the directory alone; a file that is marked as not to be written stays.
bool may_write(int directory, const std::string& name) {
    return faccessat(directory, name.c_str(), W_OK, AT_EACCESS) == 0 || errno == ENOENT;
}

// Whether a file of these bytes is read as that text: a first key may look like a byte-order mark, and not
// every byte has a place in UTF-16.
bool reads_back(std::string_view bytes, ProfileEncoding encoding, std::string_view text) {
    const ProfileText again(bytes);
    return again.Encoding() == encoding && again.Text() == text;
}

bool change_file(int directory, const std::string& name, std::string_view section, std::string_view key,
                 std::string_view value) {
    const ProfileFile file(directory, name.c_str());
    if (file.GetState() == ProfileFile::Unreadable || !may_write(directory, name)) {
        return false;
    }
    const ProfileText before(file.Bytes());
    const auto after = set_profile_value(before.Text(), section, key, value);
    if (!after) {
        return false;
    }
    if (*after == before.Text()) {
        return true;
    }
    const std::string bytes = profile_bytes(before.Encoding(), *after);
    return bytes.size() <= largest_profile && reads_back(bytes, before.Encoding(), *after) &&
           ReplacementFile(directory, name).Replace(bytes);
}

}  // namespace

bool write_profile(const ProfilePath& place, std::string_view section, std::string_view key,
                   std::string_view value) {
    const std::string path = behind_links(place.path);
    const std::size_t behind_separator = path.rfind('/') + 1;
    const std::string name = path.substr(behind_separator);
    if (name.empty()) {
        return false;
    }
    const std::string directory = behind_separator == 0 ? "." : path.substr(0, behind_separator);
    if (place.in_profile_directory) {
        make_directory(directory.substr(0, directory.size() - 1));
    }
    const DirectoryLock lock(directory);
    return lock.Opened() && change_file(lock.Directory(), name, section, key, value);
}

}  // namespace lvx::platform
