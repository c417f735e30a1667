// tests/platform/slow_profile.h
//
// A second reader of settings files, slow and plain, to hold the library's against: it takes the whole file
// apart into a list of what there is, and looks things up there.
#pragma once

#include <cctype>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lvx_test {

class SlowProfile {
public:
    explicit SlowProfile(std::string_view text) {
        // Sections are told apart by number: one of the same name further down is another one.
        int section = 0;
        std::string name;
        for (const std::string& line : Lines(text)) {
            const std::string stripped = Strip(line);
            if (stripped.empty()) {
                continue;
            }
            const std::size_t close = stripped.find_last_of(']');
            if (stripped[0] == '[' && close != std::string::npos) {
                ++section;
                name = Name(stripped.substr(1, close - 1));
                m_sections.push_back(name);
                continue;
            }
            Add(section, stripped);
        }
    }

    std::optional<std::string> Value(std::string_view section, std::string_view key) const {
        const int number = Find(Name(std::string(section)));
        for (const Entry& entry : m_entries) {
            if (entry.section == number && entry.key == Name(std::string(key))) {
                return entry.value;
            }
        }
        return std::nullopt;
    }

    /// Each without its end.
    static std::vector<std::string> Lines(std::string_view text) {
        std::vector<std::string> lines;
        std::string line;
        for (std::size_t i = 0; i < text.size(); ++i) {
            if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') {
                ++i;
            }
            if (text[i] == '\r' || text[i] == '\n') {
                lines.push_back(line);
                line.clear();
            } else {
                line += text[i];
            }
        }
        if (!line.empty()) {
            lines.push_back(line);
        }
        return lines;
    }

    static std::string Strip(const std::string& text) {
        const char* const blanks = " \t\n\v\f\r\x1A";
        const std::size_t first = text.find_first_not_of(blanks);
        return first == std::string::npos ? ""
                                          : text.substr(first, text.find_last_not_of(blanks) - first + 1);
    }

private:
    struct Entry {
        int section;
        std::string key;
        std::optional<std::string> value;
    };

    // Folded, so that equal names are equal texts.
    static std::string Name(const std::string& text) {
        std::string name = Strip(text.substr(0, text.find('\0')));
        for (char& character : name) {
            if (static_cast<unsigned char>(character) < 128) {
                character = static_cast<char>(std::tolower(character));
            }
        }
        return name;
    }

    void Add(int section, const std::string& line) {
        const std::size_t sign = line.find('=');
        if (sign == std::string::npos) {
            m_entries.push_back({section, Name(line), std::nullopt});
            return;
        }
        const std::string value = Strip(line.substr(sign + 1));
        m_entries.push_back({section, Name(line.substr(0, sign)), value.substr(0, value.find('\0'))});
    }

    // 0 are the lines in front of the first header; -1 is no section.
    int Find(const std::string& name) const {
        if (name.empty()) {
            return 0;
        }
        for (std::size_t i = 0; i < m_sections.size(); ++i) {
            if (m_sections[i] == name) {
                return static_cast<int>(i) + 1;
            }
        }
        return -1;
    }

    std::vector<std::string> m_sections;
    std::vector<Entry> m_entries;
};

/// Whether a name or value holds what cannot be told from the rest of a line.
inline bool is_writable(std::string_view section, std::string_view key, std::string_view value) {
    const auto one_line = [](std::string_view text) {
        return text.find_first_of("\r\n") == std::string_view::npos;
    };
    return one_line(section) && one_line(key) && one_line(value) &&
           key.find_first_of("=[") == std::string_view::npos;
}

/// The lines that are not blank.
inline std::vector<std::string> filled_lines(std::string_view text) {
    std::vector<std::string> lines = SlowProfile::Lines(text);
    std::erase_if(lines, [](const std::string& line) { return SlowProfile::Strip(line).empty(); });
    return lines;
}

/// What is wrong with `after`, said to be `before` with that entry written; empty if nothing.
inline std::string what_is_wrong(std::string_view before, std::string_view after, std::string_view section,
                                 std::string_view key, std::string_view value) {
    const SlowProfile profile(after);
    const auto read = profile.Value(section, key);
    if (!read || *read != SlowProfile::Strip(std::string(value))) {
        return "the value does not read back";
    }
    const auto old_lines = filled_lines(before);
    const auto new_lines = filled_lines(after);
    if (old_lines.size() == new_lines.size()) {
        std::size_t changed = 0;
        for (std::size_t i = 0; i < old_lines.size(); ++i) {
            changed += old_lines[i] != new_lines[i];
        }
        return changed > 1 ? "another line changed" : "";
    }
    if (new_lines.size() > old_lines.size() + 2) {
        return "too many new lines";
    }
    std::size_t place = 0;
    for (const std::string& line : new_lines) {
        place += place < old_lines.size() && line == old_lines[place];
    }
    return place < old_lines.size() ? "a line was lost" : "";
}

}  // namespace lvx_test
