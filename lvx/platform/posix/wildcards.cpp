#include "lvx/platform/posix/wildcards.h"

#include <string>

namespace lvx::platform {

namespace {

// Where a match went on behind the last `*`, and has to go on again with one more character given to that.
struct Retry {
    std::size_t in_name = 0;
    std::size_t in_pattern = std::string_view::npos;  // none yet
};

// A `?` stands for one of the first `questionable` characters only.
bool fits(std::string_view name, std::string_view pattern, std::size_t questionable) {
    std::size_t in_name = 0;
    std::size_t in_pattern = 0;
    Retry retry;
    while (in_name < name.size()) {
        if (in_pattern < pattern.size() && pattern[in_pattern] == '*') {
            retry = {in_name, ++in_pattern};
        } else if (in_pattern < pattern.size() &&
                   (pattern[in_pattern] == '?' ? in_name < questionable
                                               : pattern[in_pattern] == name[in_name])) {
            ++in_name;
            ++in_pattern;
        } else if (retry.in_pattern != std::string_view::npos) {
            in_name = ++retry.in_name;
            in_pattern = retry.in_pattern;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', in_pattern) == std::string_view::npos;
}

}  // namespace

bool fits_wildcards(std::string_view name, std::string_view pattern) {
    const bool has_dot = name.find('.') != std::string_view::npos;
    return fits(name, pattern, name.size()) ||
           (!has_dot && fits(std::string(name) + '.', pattern, name.size()));
}

}  // namespace lvx::platform
