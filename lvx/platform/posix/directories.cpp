#include "lvx/platform/directories.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <string_view>

#include "lvx/platform/posix/drive_table.h"
#include "lvx/platform/posix/native_path.h"

namespace {

using lvx::platform::DriveTable;
using lvx::platform::is_separator;

constexpr int failure = -1;

// By its kind alone: the bits of the system's own modes stand for other things as well.
unsigned short mode_of(const struct stat& status) {
    if (S_ISREG(status.st_mode)) {
        return _S_IFREG;
    }
    return S_ISDIR(status.st_mode) ? _S_IFDIR : static_cast<unsigned short>(0);
}

// Whether _stat finds nothing there, whatever is.
bool is_no_file(std::string_view path) {
    if (path.size() == 2 && path[1] == ':') {
        return true;
    }
    return path.size() >= 2 && is_separator(path.back()) && path[path.size() - 2] != ':';
}

const char* text_or_empty(const char* text) {
    return text == nullptr ? "" : text;
}

// Copies `text` with a NUL if that takes no more than `size` characters.
bool copy_whole(const std::string& text, char* buffer, std::size_t size) {
    if (text.size() >= size) {
        return false;
    }
    std::memcpy(buffer, text.c_str(), text.size() + 1);
    return true;
}

std::string with_separators(std::string path) {
    std::replace(path.begin(), path.end(), '/', '\\');
    return path;
}

}  // namespace

int _stat64(const char* path, struct _stat64* status) {
    const std::string_view text = text_or_empty(path);
    const auto native = lvx::platform::native_path(text);
    struct stat found;
    if (is_no_file(text) || !native || stat(native->c_str(), &found) != 0) {
        return failure;
    }
    status->st_mode = mode_of(found);
    return 0;
}

int _access(const char* path, int) {
    const auto native = lvx::platform::native_path(text_or_empty(path));
    return native && faccessat(AT_FDCWD, native->c_str(), F_OK, AT_EACCESS) == 0 ? 0 : failure;
}

char* _getcwd(char* buffer, int size) {
    const auto place = lvx::platform::current_place(DriveTable::Process().Now());
    if (!place || size <= 0) {
        return nullptr;
    }
    const std::string directory = std::string{place->letter, ':', '\\'} + with_separators(place->path);
    return copy_whole(directory, buffer, static_cast<std::size_t>(size)) ? buffer : nullptr;
}

int _chdir(const char* path) {
    const std::string_view text = text_or_empty(path);
    const lvx::platform::DriveSet drives = DriveTable::Process().Now();
    const auto native = lvx::platform::native_path(text, drives);
    const auto before = lvx::platform::current_place(drives);
    const auto named = lvx::platform::named_place(text, drives);
    if (!native || chdir(native->c_str()) != 0) {
        return failure;
    }
    for (const auto& place : {before, named}) {
        if (place) {
            DriveTable::Process().Remember(*place, *drives.Root(place->letter));
        }
    }
    return 0;
}

unsigned int GetDriveTypeA(const char* root) {
    const std::string_view text = text_or_empty(root);
    const bool is_root = text.size() == 3 && text[1] == ':' && is_separator(text[2]);
    struct _stat64 status;
    return is_root && _stat64(root, &status) == 0 ? DRIVE_FIXED : DRIVE_NO_ROOT_DIR;
}

int SetCurrentDirectoryA(const char* path) {
    return _chdir(path) == 0 ? 1 : 0;
}

namespace lvx::platform {

int _getcurdir(int drive, char (&buffer)[longest_drive_directory]) {
    constexpr int letters = 26;
    if (drive < 1 || drive > letters) {
        return failure;
    }
    const char letter = static_cast<char>('A' + drive - 1);
    const DriveSet drives = DriveTable::Process().Now();
    if (!drives.Root(letter)) {
        return failure;
    }
    const std::string directory = with_separators(current_directory_of(letter, drives));
    return copy_whole(directory, buffer, sizeof buffer) ? 0 : failure;
}

}  // namespace lvx::platform
