#include "lvx/files/settings.h"

#include <cstddef>
#include <locale>
#include <sstream>

#include "lvx/platform/module_name.h"
#include "lvx/platform/profile.h"

namespace LVXUtilities {
namespace {

constexpr std::size_t first_size = 1024;
// What would need more is cut: no file holds such a text, and a system that says otherwise is not believed.
constexpr std::size_t largest_size = 256 * 1024 * 1024;

// Empty if the system does not tell, or tells a path that it has cut.
LVXPathString path_of_program(std::vector<char>& buffer) {
    const HMODULE program = GetModuleHandleA(nullptr);
    if (program == nullptr) {
        return {};
    }
    const auto size = static_cast<DWORD>(buffer.size());
    const DWORD length = GetModuleFileNameA(program, buffer.data(), size);
    return length < size ? LVXPathString(std::string(buffer.data(), length)) : LVXPathString();
}

std::string text_or_empty(const char* text) {
    return text != nullptr ? text : "";
}

}  // namespace

Settings::Settings(const std::string& name_, bool /*flag*/)
    : name(name_), simpleName(name_), buffer(first_size) {
    simpleName.suffix("INI");
    LVXPathString path = path_of_program(buffer);
    if (path.empty()) {
        path.asCurrent();
    }
    path.expand();
    std::string directory;
    path.directoryOf(directory);
    path = directory;
    path.addName(name + ".INI");
    fileName = path.exists() ? path : simpleName;
}

int Settings::GetInt(const std::string& section, const std::string& key, int defaultValue) const {
    return static_cast<int>(
        GetPrivateProfileIntA(section.c_str(), key.c_str(), defaultValue, fileName.c_str()));
}

std::string Settings::GetStr(const std::string& section, const std::string& key,
                             const std::string& defaultValue) {
    for (;;) {
        const auto size = static_cast<DWORD>(buffer.size());
        const DWORD count = GetPrivateProfileStringA(section.c_str(), key.c_str(), defaultValue.c_str(),
                                                     buffer.data(), size, fileName.c_str());
        if (count != size - 1 || buffer.size() >= largest_size) {
            // The system ends the text with a NUL in any case.
            return buffer.data();
        }
        buffer.resize(buffer.size() + buffer.size() / 2);
    }
}

std::string Settings::GetStr(const char* section, const char* key, const char* defaultValue) {
    return GetStr(text_or_empty(section), text_or_empty(key), text_or_empty(defaultValue));
}

void Settings::WriteInt(const std::string& section, const std::string& key, int value) {
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << value;
    WriteStr(section, key, text.str());
}

void Settings::WriteStr(const std::string& section, const std::string& key, const std::string& value) {
    WritePrivateProfileStringA(section.c_str(), key.c_str(), value.c_str(), fileName.c_str());
}

}  // namespace LVXUtilities
