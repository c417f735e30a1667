#include "lvx/platform/posix/profile_path.h"

#include <unistd.h>

#include <algorithm>
#include <climits>
#include <string_view>

#include "lvx/platform/posix/native_path.h"
#include "lvx/platform/profile_directory.h"

namespace lvx::platform {
namespace {

constexpr int most_links = 40;

bool is_bare(std::string_view file) {
    return !names_drive(file) && std::none_of(file.begin(), file.end(), is_separator);
}

}  // namespace

ProfilePath profile_path(const char* file) {
    if (file == nullptr || *file == '\0') {
        return {};
    }
    if (!is_bare(file)) {
        return {native_path(file).value_or(std::string()), false};
    }
    const std::string directory = profile_directory();
    return {directory.empty() ? directory : directory + '/' + file, true};
}

std::string behind_links(std::string path) {
    for (int links = 0; links <= most_links; ++links) {
        char target[PATH_MAX];
        const ssize_t length = readlink(path.c_str(), target, sizeof target);
        if (length < 0) {
            return path;
        }
        const std::string_view text(target, static_cast<std::size_t>(length));
        // A relative one counts from the folder that the link is in.
        path.resize(text.starts_with('/') ? 0 : path.rfind('/') + 1);
        path += text;
    }
    return {};
}

}  // namespace lvx::platform
