#include "lvx/platform/profile_directory.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <mutex>
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

void set_profile_directory(const std::string& directory) {
    const std::lock_guard lock(chosen().mutex);
    chosen().directory = without_separator(directory);
}

}  // namespace lvx
