#include <algorithm>

#include "lvx/platform/posix/profile_line.h"
#include "lvx/platform/posix/profile_section.h"
#include "lvx/platform/posix/profile_text.h"

namespace lvx::platform {
namespace {

// What the first line of the text ends with.
std::string_view line_end_of(std::string_view text) {
    const std::size_t first = text.find_first_of("\r\n");
    if (first == std::string_view::npos || text.substr(first, 2) == "\r\n") {
        return "\r\n";
    }
    return text.substr(first, 1);
}

bool begins_line(std::string_view text, std::size_t position) {
    return position == 0 || text[position - 1] == '\n' || text[position - 1] == '\r';
}

// `lines` put in at `position`, which begins a line or ends the text.
std::string inserted(std::string_view text, std::size_t position, const std::string& lines) {
    std::string result(text.substr(0, position));
    if (!begins_line(text, position)) {
        result += line_end_of(text);
    }
    result += lines;
    result += text.substr(position);
    return result;
}

bool reads_back_as_entry(std::string_view written, std::string_view key, std::string_view value) {
    ProfileLines lines(written);
    if (!lines.Next() || lines.Line().size() != written.size()) {
        return false;
    }
    const ProfileLine line = parse_profile_line(written);
    return line.kind == ProfileLine::Entry && line.has_value && line.name == profile_name(key) &&
           line.value == without_blanks(value);
}

bool reads_back_as_header(std::string_view written, std::string_view section) {
    ProfileLines lines(written);
    if (!lines.Next() || lines.Line().size() != written.size()) {
        return false;
    }
    const ProfileLine line = parse_profile_line(written);
    return line.kind == ProfileLine::Header && line.name == profile_name(section);
}

std::string joined(std::string_view one, std::string_view two, std::string_view three) {
    std::string result(one);
    result += two;
    result += three;
    return result;
}

// Where an entry stands, or would be put.
struct Place {
    bool has_section = false;
    bool has_entry = false;
    /// The entry's line.
    std::string_view line;
    /// Behind the section's last line that is not blank.
    std::size_t end = 0;
};

Place find_place(std::string_view text, std::string_view section, std::string_view key) {
    Place place;
    ProfileLines lines(text);
    place.has_section = find_profile_section(lines, section);
    if (!place.has_section) {
        return place;
    }
    place.end = lines.Behind();
    const std::string_view wanted = profile_name(key);
    while (lines.Next()) {
        const ProfileLine line = parse_profile_line(lines.Line());
        if (line.kind == ProfileLine::Header) {
            break;
        }
        if (line.kind == ProfileLine::Entry && same_profile_name(line.name, wanted)) {
            place.has_entry = true;
            place.line = lines.Line();
            break;
        }
        if (line.kind == ProfileLine::Entry) {
            place.end = lines.Behind();
        }
    }
    return place;
}

// The line up to its value: the key with the blanks and the sign as the file has them.
std::string entry_front(std::string_view line) {
    const std::size_t sign = line.find('=');
    if (sign == std::string_view::npos) {
        return std::string(line.substr(0, line.find('\0'))) + '=';
    }
    const std::string_view behind = line.substr(sign + 1);
    return std::string(line.substr(0, line.size() - without_leading_blanks(behind).size()));
}

std::optional<std::string> with_changed_entry(std::string_view text, std::string_view line,
                                              std::string_view key, std::string_view value) {
    const ProfileLine entry = parse_profile_line(line);
    if (entry.has_value && entry.value == without_blanks(value)) {
        return std::string(text);
    }
    const std::string written = entry_front(line) + std::string(value);
    // The key may be written in another case in the file.
    if (!same_profile_name(entry.name, profile_name(key)) ||
        !reads_back_as_entry(written, entry.name, value)) {
        return std::nullopt;
    }
    const auto begin = static_cast<std::size_t>(line.data() - text.data());
    return joined(text.substr(0, begin), written, text.substr(begin + line.size()));
}

// New lines go in front of end-of-file characters in a line of their own.
std::size_t end_of_lines(std::string_view text) {
    const std::size_t end = text.find_last_not_of('\x1a') + 1;
    return begins_line(text, end) ? end : text.size();
}

}  // namespace

std::optional<std::string> set_profile_value(std::string_view text, std::string_view section,
                                             std::string_view key, std::string_view value) {
    const std::string_view kept_value = without_leading_blanks(value);
    const Place place = find_place(text, section, key);
    if (place.has_entry) {
        return with_changed_entry(text, place.line, key, kept_value);
    }
    const std::string entry = joined(without_leading_blanks(key), "=", kept_value);
    if (!reads_back_as_entry(entry, key, value)) {
        return std::nullopt;
    }
    const std::string_view line_end = line_end_of(text);
    if (place.has_section) {
        return inserted(text, place.end, joined(entry, line_end, ""));
    }
    const std::string header = joined("[", without_leading_blanks(section), "]");
    if (!reads_back_as_header(header, section)) {
        return std::nullopt;
    }
    return inserted(text, end_of_lines(text), joined(header, line_end, joined(entry, line_end, "")));
}

}  // namespace lvx::platform
