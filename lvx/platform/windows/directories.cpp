#include "lvx/platform/directories.h"

#include <cstring>

namespace lvx::platform {

namespace {

// With drive, root and NUL.
constexpr int longest_directory = longest_drive_directory + 3;
constexpr int failure = -1;

// The C runtime takes a drive that is not there for a mistake of the program, and may end it.
bool is_there(int drive) {
    constexpr int letters = 26;
    const char root[] = {static_cast<char>('A' + drive - 1), ':', '\\', '\0'};
    return drive >= 1 && drive <= letters && GetDriveTypeA(root) > DRIVE_NO_ROOT_DIR;
}

}  // namespace

int _getcurdir(int drive, char (&buffer)[longest_drive_directory]) {
    char directory[longest_directory] = "";
    if (!is_there(drive) || _getdcwd(drive, directory, longest_directory) == nullptr) {
        return failure;
    }
    constexpr std::size_t root_size = sizeof "C:\\" - 1;
    const std::size_t size = std::strlen(directory) + 1;
    if (size <= root_size || size - root_size > sizeof buffer) {
        return failure;
    }
    std::memcpy(buffer, directory + root_size, size - root_size);
    return 0;
}

}  // namespace lvx::platform
