#include "lvx/platform/posix/native_path.h"

#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>

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

// `rest`, which starts at the root of a drive or at the drive's current directory.
std::string walked(char letter, std::string_view rest) {
    const bool from_root = !rest.empty() && is_separator(rest.front());
    const std::string current = from_root ? std::string() : current_directory_of(letter);
    Steps steps(current);
    steps.Walk(rest);
    return steps.Text();
}

std::optional<std::string> path_in_drive(char letter, std::string_view rest) {
    const std::optional<std::string> root = DriveTable::Process().Root(letter);
    return root ? std::optional(joined(*root, walked(letter, rest))) : std::nullopt;
}

// `path`, which has no drive and does not start at a root.
std::optional<std::string> relative_path(std::string_view path) {
    const Steps steps(path);
    if (!steps.went_above) {
        return "./" + steps.Text();
    }
    const std::optional<DrivePlace> place = current_place();
    return place ? path_in_drive(place->letter, path) : std::nullopt;
}

std::optional<std::string> path_from_root(std::string_view path) {
    const std::optional<DrivePlace> place = current_place();
    return place ? path_in_drive(place->letter, path) : std::nullopt;
}

std::optional<std::string> found_path(std::string_view path) {
    if (path.empty() || is_server(path)) {
        return std::nullopt;
    }
    if (names_drive(path)) {
        return path_in_drive(path.front(), path.substr(2));
    }
    return is_separator(path.front()) ? path_from_root(path) : relative_path(path);
}

struct Free {
    void operator()(char* text) const { std::free(text); }
};

}  // namespace

std::optional<std::string> native_path(std::string_view path) {
    std::optional<std::string> found = found_path(path);
    if (found && is_separator(path.back()) && found->back() != '/') {
        found->push_back('/');
    }
    return found;
}

std::optional<DrivePlace> named_place(std::string_view path) {
    if (!names_drive(path) || !DriveTable::Process().Root(path.front())) {
        return std::nullopt;
    }
    return DrivePlace{*drive_letter(path.front()), walked(path.front(), path.substr(2))};
}

std::optional<std::string> drive_path(const std::string& absolute) {
    if (absolute.find('\\') != std::string::npos) {
        return std::nullopt;
    }
    std::optional<DrivePlace> place = DriveTable::Process().PlaceOf(absolute);
    if (!place) {
        return std::nullopt;
    }
    std::replace(place->path.begin(), place->path.end(), '/', '\\');
    return std::string{place->letter, ':', '\\'} + place->path;
}

std::optional<DrivePlace> current_place() {
    const std::unique_ptr<char, Free> directory(getcwd(nullptr, 0));
    if (!directory || std::strchr(directory.get(), '\\') != nullptr) {
        return std::nullopt;
    }
    return DriveTable::Process().PlaceOf(directory.get());
}

std::string current_directory_of(char letter) {
    const std::optional<DrivePlace> place = current_place();
    if (place && place->letter == drive_letter(letter)) {
        return place->path;
    }
    return DriveTable::Process().Remembered(letter);
}

bool is_separator(char character) {
    return character == '\\' || character == '/';
}

bool names_drive(std::string_view path) {
    return path.size() >= 2 && path[1] == ':';
}

}  // namespace lvx::platform
