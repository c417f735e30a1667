#include <algorithm>
#include <cstdlib>
#include <string_view>

#include "lvx/files/path_string.h"

namespace {

// How much of a path baseOf() sees. Hosts have cut their paths to it.
constexpr std::size_t seen_by_base = 500;

constexpr char separator = '\\';

bool has_drive(std::string_view path) {
    return path.size() >= 2 && path[1] == ':';
}

char raised(char letter) {
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

std::string_view name_in(std::string_view path) {
    const std::size_t before = path.find_last_of("\\:");
    return before == std::string_view::npos ? path : path.substr(before + 1);
}

}  // namespace

bool LVXPathString::driveOf(std::string& out) const {
    if (!has_drive(*this)) {
        return false;
    }
    out = {raised(front()), ':'};
    return true;
}

bool LVXPathString::baseOf(std::string& out) const {
    std::string rest = substr(0, seen_by_base);
    if (has_drive(rest)) {
        rest.erase(0, 2);
    } else if (rest.empty()) {
        return false;
    }
    if (!isDirectory()) {
        const std::size_t last = rest.rfind(separator);
        if (last == npos) {
            return false;
        }
        rest.resize(std::max<std::size_t>(last, 1));
    }
    out = std::move(rest);
    return true;
}

bool LVXPathString::nameOf(std::string& out) const {
    if (empty()) {
        return false;
    }
    out = std::string(name_in(*this));
    return true;
}

bool LVXPathString::directoryOf(std::string& out) const {
    if (isDirectory()) {
        out = *this;
        return true;
    }
    std::string path;
    if (!driveOf(path)) {
        return baseOf(out);
    }
    std::string base;
    if (baseOf(base)) {
        path += base;
    }
    out = std::move(path);
    return true;
}

bool LVXPathString::suffixOf(std::string& out) const {
    const char* const dot = dotOf();
    if (dot == nullptr) {
        out.clear();
        return false;
    }
    out = substr(static_cast<size_type>(dot - data()) + 1);
    return true;
}

bool LVXPathString::prefixOf(std::string& out) const {
    if (empty()) {
        return false;
    }
    const std::string_view name = name_in(*this);
    out = std::string(name.substr(0, name.find('.')));
    return true;
}

const char* LVXPathString::dotOf() const {
    const size_type stop = find_last_of("\\:.");
    const bool is_suffix = stop != npos && stop > 0 && (*this)[stop] == '.' && (*this)[stop - 1] != '.';
    return is_suffix ? data() + stop : nullptr;
}

bool LVXPathString::_environ(const std::string& variable, std::string& out) const {
    if (variable.empty() || variable.find('\0') != npos) {
        return false;
    }
    const char* const value = std::getenv(variable.c_str());
    if (value == nullptr) {
        return false;
    }
    out = value;
    return true;
}
