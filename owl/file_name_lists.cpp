#include "owl/file_name_lists.h"

#include <windows.h>

#include <algorithm>
#include <string_view>

namespace owl {

namespace {

std::vector<std::string> Split(std::string_view text, char separator) {
    std::vector<std::string> parts;
    while (!text.empty()) {
        const std::string_view part = text.substr(0, text.find(separator));
        if (!part.empty())
            parts.emplace_back(part);
        text.remove_prefix(std::min(text.size(), part.size() + 1));
    }
    return parts;
}

std::string_view TextAt(const std::vector<char>& list, std::size_t at) {
    const std::string_view rest(list.data() + at, list.size() - at);
    return rest.substr(0, rest.find('\0'));
}

// A root ends with the separator already.
std::string Join(const std::string& folder, const std::string& name) {
    return folder.back() == '\\' ? folder + name : folder + '\\' + name;
}

}  // namespace

// A description without a pattern must not make the system read on behind the list: one NUL more.
std::vector<char> FilterList(const std::string& filter) {
    std::vector<char> list(filter.begin(), filter.end());
    std::replace(list.begin(), list.end(), '|', '\0');
    list.insert(list.end(), 3, '\0');
    return list;
}

std::vector<char> CustomFilterBuffer(const std::string& filter) {
    std::vector<char> list = FilterList(filter);
    list.resize(list.size() + MAX_PATH);
    return list;
}

std::string FirstFilter(const std::vector<char>& list) {
    if (list.empty() || list.front() == '\0')
        return std::string();
    std::string filter(TextAt(list, 0));
    const std::size_t pattern = filter.size() + 1;
    if (pattern < list.size())
        filter.append(1, '|').append(TextAt(list, pattern));
    return filter;
}

std::string ChosenNames(const std::vector<char>& buffer, bool several) {
    const std::string_view all(buffer.data(), buffer.size());
    return std::string(
        all.substr(0, all.find(several ? std::string_view("\0\0", 2) : std::string_view("\0", 1))));
}

std::vector<std::string> FullPaths(const std::string& chosen, char separator) {
    std::vector<std::string> parts = Split(chosen, separator);
    if (parts.size() < 2)
        return parts;
    std::vector<std::string> paths;
    for (std::size_t i = 1; i < parts.size(); ++i)
        paths.push_back(Join(parts.front(), parts[i]));
    return paths;
}

}  // namespace owl
