#include "tools/lvxdoc/safe_name.h"

#include <algorithm>

#include "tools/lvxdoc/text.h"

namespace lvxdoc {
namespace {

constexpr std::size_t longest_stream_name = 31;
constexpr std::size_t longest_file_name = 100;
constexpr char stand_in = '_';

void replace_all(std::string& text, std::string_view refused) {
    for (char& c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x20 || byte == 0x7f || refused.find(c) != std::string_view::npos) {
            c = stand_in;
        }
    }
}

bool is_device(std::string_view name) {
    const std::string_view stem = name.substr(0, name.find_first_of(". "));
    for (const char* device : {"CON", "PRN", "AUX", "NUL", "CLOCK$", "CONIN$", "CONOUT$"}) {
        if (same_but_for_case(stem, device)) {
            return true;
        }
    }
    // COM1 and its kin. The superscript digits count too, and take two bytes.
    const bool has_number = stem.size() == 4 || (stem.size() == 5 && stem[3] == '\xc2');
    return has_number &&
           (same_but_for_case(stem.substr(0, 3), "COM") || same_but_for_case(stem.substr(0, 3), "LPT"));
}

// Not within a character of UTF-8.
void cut(std::string& text, std::size_t longest) {
    if (text.size() <= longest) {
        return;
    }
    while (longest != 0 && (text[longest] & 0xc0) == 0x80) {
        --longest;
    }
    text.resize(longest);
}

void trim_end(std::string& text, std::string_view refused) {
    text.resize(text.find_last_not_of(refused) + 1);
}

std::string folded(std::string name) {
    std::transform(name.begin(), name.end(), name.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return name;
}

}  // namespace

std::string file_name_for(std::string_view stream) {
    std::string name(stream);
    replace_all(name, "/\\:*?\"<>|");
    cut(name, longest_file_name);
    // Windows drops them silently, and two names become one.
    trim_end(name, ". ");
    if (name.empty()) {
        return "stream";
    }
    // A leading dash would be taken for an option by the next command.
    if (name.front() == '.' || name.front() == '-' || name.front() == ' ') {
        name.front() = stand_in;
    }
    return is_device(name) ? stand_in + name : name;
}

std::string stream_name_for(std::string_view file) {
    const auto folder = file.find_last_of("/\\:");
    std::string name(folder == std::string_view::npos ? file : file.substr(folder + 1));
    const auto dot = name.rfind('.');
    if (dot != std::string::npos && dot != 0) {
        name.resize(dot);
    }
    replace_all(name, "/\\:!");
    // Names go to the store a byte at a time, and only ASCII is the same in every code page.
    std::replace_if(
        name.begin(), name.end(), [](char c) { return (c & 0x80) != 0; }, stand_in);
    name.resize(std::min(name.size(), longest_stream_name));
    return name.empty() ? "picture" : name;
}

std::string UniqueNames::Take(const std::string& name, std::size_t longest) {
    std::string candidate = name;
    cut(candidate, longest);
    for (unsigned number = 2; !m_taken.insert(folded(candidate)).second; ++number) {
        const std::string suffix = '-' + std::to_string(number);
        candidate = name;
        cut(candidate, longest - suffix.size());
        candidate += suffix;
    }
    return candidate;
}

}  // namespace lvxdoc
