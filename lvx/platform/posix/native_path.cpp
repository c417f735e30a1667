#include "lvx/platform/posix/native_path.h"

#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <utility>
#include <vector>

#include "lvx/platform/posix/allocated_text.h"
#include "lvx/platform/posix/drive_table.h"

namespace lvx::platform {

namespace {

// A path without its drive, in parts.
struct Steps {
    explicit Steps(std::string_view path) { Walk(path); }

    /// Goes on from where the steps so far lead.
    void Walk(std::string_view path) {
        while (!path.empty()) {
            const auto end = std::find_if(path.begin(), path.end(), is_separator);
            const auto size = static_cast<std::size_t>(end - path.begin());
            Step(path.substr(0, size));
            path.remove_prefix(std::min(size + 1, path.size()));
        }
    }

    std::string Text() const {
        std::string text;
        for (const std::string_view name : names) {
            text.append(text.empty() ? "" : "/").append(name);
        }
        return text;
    }

    std::vector<std::string_view> names;  // below the place where the walk has its top
    bool went_above = false;              // whether a ".." led above the start

private:
    void Step(std::string_view name) {
        if (name.empty() || name == ".") {
            return;
        }
        if (name != "..") {
            names.push_back(name);
        } else if (names.empty()) {
            went_above = true;
        } else {
            names.pop_back();
        }
    }
};

std::string joined(const std::string& root, const std::string& path) {
    return root.back() == '/' ? root + path : root + '/' + path;
}

bool is_server(std::string_view path) {
    return path.size() >= 2 && is_separator(path[0]) && is_separator(path[1]);
}

bool starts_at_root(std::string_view rest) {
    return !rest.empty() && is_separator(rest.front());
}

// `rest`, from the root of a drive on if it starts there, or else from the drive's current directory.
std::string walked(const std::string& current, std::string_view rest) {
    Steps steps(starts_at_root(rest) ? std::string_view() : current);
    steps.Walk(rest);
    return steps.Text();
}

std::string walked_in(const DriveSet& drives, char letter, std::string_view rest) {
    return walked(starts_at_root(rest) ? std::string() : current_directory_of(letter, drives), rest);
}

std::optional<std::string> path_in_drive(const DriveSet& drives, char letter, std::string_view rest) {
    const std::optional<std::string> root = drives.Root(letter);
    return root ? std::optional(joined(*root, walked_in(drives, letter, rest))) : std::nullopt;
}

// `path`, which has no drive.
std::optional<std::string> path_in_current_drive(const DriveSet& drives, std::string_view path) {
    const std::optional<DrivePlace> place = current_place(drives);
    const std::optional<std::string> root = place ? drives.Root(place->letter) : std::nullopt;
    return root ? std::optional(joined(*root, walked(place->path, path))) : std::nullopt;
}

// `path`, which has no drive and does not start at a root.
std::optional<std::string> relative_path(const DriveSet& drives, std::string_view path) {
    const Steps steps(path);
    return steps.went_above ? path_in_current_drive(drives, path) : "./" + steps.Text();
}

std::optional<std::string> found_path(std::string_view path, const DriveSet& drives) {
    if (path.empty() || is_server(path)) {
        return std::nullopt;
    }
    if (names_drive(path)) {
        return path_in_drive(drives, path.front(), path.substr(2));
    }
    return starts_at_root(path) ? path_in_current_drive(drives, path) : relative_path(drives, path);
}

}  // namespace

std::optional<std::string> native_path(std::string_view path) {
    return native_path(path, DriveTable::Process().Now());
}

std::optional<std::string> native_path(std::string_view path, const DriveSet& drives) {
    std::optional<std::string> found = found_path(path, drives);
    if (found && is_separator(path.back()) && found->back() != '/') {
        found->push_back('/');
    }
    return found;
}

std::optional<DrivePlace> named_place(std::string_view path, const DriveSet& drives) {
    if (!names_drive(path) || !drives.Root(path.front())) {
        return std::nullopt;
    }
    const char letter = *drive_letter(path.front());
    return DrivePlace{letter, walked_in(drives, letter, path.substr(2))};
}

std::optional<std::string> drive_path(const std::string& absolute) {
    if (absolute.find('\\') != std::string::npos) {
        return std::nullopt;
    }
    std::optional<DrivePlace> place = DriveTable::Process().Now().PlaceOf(absolute);
    if (!place) {
        return std::nullopt;
    }
    std::replace(place->path.begin(), place->path.end(), '/', '\\');
    return std::string{place->letter, ':', '\\'} + place->path;
}

std::optional<DrivePlace> current_place(const DriveSet& drives) {
    const AllocatedText directory(getcwd(nullptr, 0));
    if (!directory || std::strchr(directory.get(), '\\') != nullptr) {
        return std::nullopt;
    }
    return drives.PlaceOf(directory.get());
}

std::string current_directory_of(char letter, const DriveSet& drives) {
    std::optional<DrivePlace> place = current_place(drives);
    if (place && place->letter == drive_letter(letter)) {
        return std::move(place->path);
    }
    return drives.Remembered(letter);
}

bool is_separator(char character) {
    return character == '\\' || character == '/';
}

bool names_drive(std::string_view path) {
    return path.size() >= 2 && path[1] == ':';
}

}  // namespace lvx::platform
