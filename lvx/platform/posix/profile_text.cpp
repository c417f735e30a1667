#include "lvx/platform/posix/profile_text.h"

#include "lvx/platform/posix/profile_line.h"
#include "lvx/platform/posix/profile_section.h"

namespace lvx::platform {

std::optional<std::string_view> find_profile_value(std::string_view text, std::string_view section,
                                                   std::string_view key) {
    ProfileLines lines(text);
    if (!find_profile_section(lines, section)) {
        return std::nullopt;
    }
    const std::string_view wanted = profile_name(key);
    while (lines.Next()) {
        const ProfileLine line = parse_profile_line(lines.Line());
        if (line.kind == ProfileLine::Header) {
            break;
        }
        if (line.kind == ProfileLine::Entry && same_profile_name(line.name, wanted)) {
            // Without a value it still hides those of the same key behind it.
            return line.has_value ? std::optional(line.value) : std::nullopt;
        }
    }
    return std::nullopt;
}

std::string_view without_profile_quotes(std::string_view value) {
    const bool is_quoted =
        value.size() >= 2 && value.front() == value.back() && (value.front() == '"' || value.front() == '\'');
    return is_quoted ? value.substr(1, value.size() - 2) : value;
}

}  // namespace lvx::platform
