#include "lvx/platform/posix/profile_section.h"

#include <cstddef>

namespace lvx::platform {
namespace {

bool is_line_end(char character) {
    return character == '\n' || character == '\r';
}

// Whether nothing but blanks stands between the beginning of the line and `position`.
bool begins_line(std::string_view text, std::size_t position) {
    while (position > 0 && !is_line_end(text[position - 1])) {
        if (!is_profile_blank(text[position - 1])) {
            return false;
        }
        --position;
    }
    return true;
}

}  // namespace

bool find_profile_section(ProfileLines& lines, std::string_view section) {
    const std::string_view wanted = profile_name(section);
    if (wanted.empty()) {
        return true;
    }
    // From bracket to bracket rather than from line to line: the lines between are most of the file.
    const std::string_view text = lines.Text();
    std::size_t bracket = text.find('[');
    while (bracket != std::string_view::npos) {
        std::size_t behind = bracket + 1;
        if (begins_line(text, bracket)) {
            lines.MoveTo(bracket);
            lines.Next();
            const ProfileLine line = parse_profile_line(lines.Line());
            if (line.kind == ProfileLine::Header && same_profile_name(line.name, wanted)) {
                return true;
            }
            behind = lines.Behind();
        }
        bracket = text.find('[', behind);
    }
    return false;
}

}  // namespace lvx::platform
