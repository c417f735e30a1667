#include "lvx/platform/profile_directory.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <mutex>
#include <system_error>
#include <utility>
#include <vector>

namespace lvx {
namespace {

struct Chosen {
    std::mutex mutex;
    std::string directory;
};

// Made at the first call, so that static initialisers of a host may call.
Chosen& chosen() {
    static Chosen instance;
    return instance;
}

std::string environment(const char* name) {
    const char* const value = std::getenv(name);
    return value != nullptr ? value : "";
}

// For a process without $HOME, such as a service.
std::string home_of_account() {
    std::vector<char> buffer(16 * 1024);
    passwd entry{};
    passwd* found = nullptr;
    const int error = getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found);
    return error == 0 && found != nullptr && found->pw_dir != nullptr ? found->pw_dir : "";
}

std::string without_separator(std::string path) {
    while (path.size() > 1 && path.back() == '/') {
        path.pop_back();
    }
    return path;
}

// Empty for the empty path, and if it counts from a current directory that is gone.
std::string absolute(const std::string& path) {
    if (path.empty()) {
        return path;
    }
    std::error_code error;
    const std::filesystem::path whole = std::filesystem::absolute(path, error);
    return error ? std::string() : without_separator(whole.string());
}

std::string usual_directory() {
    const std::string configured = environment("XDG_CONFIG_HOME");
    if (configured.starts_with('/')) {
        return without_separator(configured);
    }
    std::string home = environment("HOME");
    if (home.empty()) {
        home = home_of_account();
    }
    return home.empty() ? home : without_separator(home) + "/.config";
}

}  // namespace

std::string profile_directory() {
    {
        const std::lock_guard lock(chosen().mutex);
        if (!chosen().directory.empty()) {
            return chosen().directory;
        }
    }
    return usual_directory();
}

bool set_profile_directory(const std::string& directory) {
    if (directory.find('\0') != std::string::npos) {
        return false;
    }
    std::string whole = absolute(directory);
    if (whole.empty() && !directory.empty()) {
        return false;
    }
    const std::lock_guard lock(chosen().mutex);
    chosen().directory = std::move(whole);
    return true;
}

}  // namespace lvx
