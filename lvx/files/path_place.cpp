#include <cstdint>
#include <ctime>

#include "lvx/files/path_string.h"
#include "lvx/files/temp_name.h"
#include "lvx/platform/directories.h"
#include "lvx/text/strings.h"

namespace {

// Longer ones are not told. Hosts have cut their paths to it.
constexpr int longest_current_directory = 500;

// The current directory of a drive, "C:" or the like, from its root on.
std::string directory_of_drive(const std::string& drive) {
    char directory[lvx::platform::longest_drive_directory] = "";
    const bool is_told = lvx::platform::_getcurdir(drive.front() - '@', directory) == 0;
    return drive + '\\' + (is_told ? directory : "");
}

// The counter of tempFile().
std::int32_t temp_files = 0;

// As the library comes alive, before a host can go elsewhere.
[[maybe_unused]] const bool start_is_known = (LVXPathString::StartDirectory(), true);

}  // namespace

bool LVXPathString::asCurrent() {
    char directory[longest_current_directory];
    if (_getcwd(directory, longest_current_directory) != nullptr) {
        assign(lvx::to_lower(std::string(directory)));
    }
    return true;
}

void LVXPathString::expand() {
    std::string base;
    const bool has_base = baseOf(base);
    std::string new_directory;
    if (!driveOf(new_directory)) {
        const LVXPathString current = CurrentDirectory();
        new_directory = current;
        if (has_base) {
            new_directory.clear();
            current.driveOf(new_directory);
            new_directory += base;
        }
    } else if (has_base) {
        return;
    } else {
        new_directory = directory_of_drive(new_directory);
    }
    std::string last;
    nameOf(last);
    assign(new_directory);
    addName(last);
}

bool LVXPathString::setDrive() const {
    std::string drive;
    if (!driveOf(drive) || GetDriveTypeA((drive + '\\').c_str()) <= DRIVE_NO_ROOT_DIR) {
        return false;
    }
    SetCurrentDirectoryA(drive.c_str());
    return true;
}

bool LVXPathString::setCurrent() const {
    std::string target = *this;
    if (!isDirectory()) {
        buildPath(target, KeepPart, KeepPart, nullptr);
    }
    if (find('\0') == npos) {
        _chdir(target.c_str());
        setDrive();
    }
    return true;
}

LVXPathString& LVXPathString::tempFile() {
    assign(lvx::temp_name(std::time(nullptr), lvx::take_number(temp_files)));
    return *this;
}

LVXPathString LVXPathString::StartDirectory() {
    static const LVXPathString directory = CurrentDirectory();
    return directory;
}

LVXPathString LVXPathString::CurrentDirectory() {
    LVXPathString directory;
    directory.asCurrent();
    return directory;
}
