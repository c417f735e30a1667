#include <algorithm>
#include <string_view>

#include "lvx/files/path_string.h"
#include "lvx/platform/find_files.h"
#include "lvx/text/strings.h"

namespace {

// The directories to look through, with ';' between them, as they are given.
std::string search_list(const LVXPathString& path, const std::string& variable, bool include_current) {
    std::string list;
    if (include_current || variable.empty()) {
        list = LVXPathString::CurrentDirectory();
    }
    std::string value;
    if (path._environ(variable, value)) {
        list += ';' + value;
    }
    return list;
}

std::vector<LVXPathString> entries_of(std::string_view list) {
    std::vector<LVXPathString> entries;
    while (!list.empty()) {
        const std::string_view entry = list.substr(0, list.find(';'));
        if (!entry.empty()) {
            entries.emplace_back(std::string(entry));
        }
        list.remove_prefix(std::min(entry.size() + 1, list.size()));
    }
    return entries;
}

std::vector<std::string> names_found(const std::string& pattern) {
    std::vector<std::string> names;
    lvx::platform::FindBlock block;
    int result = lvx::platform::findfirst(pattern.c_str(), block, lvx::platform::find_directories);
    while (result == 0) {
        names.push_back(lvx::to_lower(block.name));
        result = lvx::platform::findnext(block);
    }
    return names;
}

}  // namespace

bool LVXPathString::list(std::vector<std::string>& out, const char* variable, bool includeCurrent) const {
    return dolist(true, out, variable == nullptr ? "" : variable, includeCurrent);
}

bool LVXPathString::listNames(std::vector<std::string>& out, const char* variable,
                              bool includeCurrent) const {
    return dolist(false, out, variable == nullptr ? "" : variable, includeCurrent);
}

bool LVXPathString::dolist(bool fullPaths, std::vector<std::string>& out, const std::string& variable,
                           bool includeCurrent) const {
    if (find('\0') != npos) {
        return true;  // the system would look for something shorter
    }
    for (const LVXPathString& entry :
         entries_of(lvx::to_lower(search_list(*this, variable, includeCurrent)))) {
        for (const std::string& name : names_found(LVXPathString(entry).addName(*this))) {
            out.push_back(fullPaths ? LVXPathString(entry).addName(name) : name);
        }
    }
    return true;
}
