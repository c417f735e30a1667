#include "lvx/files/path_string.h"

namespace {

constexpr const char* fits_all = "*";

// A part of a path, or of a pattern with "*" for what it lacks.
std::string part(const LVXPathString& path, bool (LVXPathString::*part_of)(std::string&) const,
                 const char* otherwise) {
    std::string text;
    return (path.*part_of)(text) ? text : otherwise;
}

bool fits(const LVXPathString& path, const LVXPathString& pattern,
          bool (LVXPathString::*part_of)(std::string&) const) {
    const std::string wanted = part(pattern, part_of, fits_all);
    return wanted == fits_all || wanted == part(path, part_of, "");
}

}  // namespace

bool LVXPathString::isMatch(const LVXPathString& pattern) const {
    return fits(*this, pattern, &LVXPathString::prefixOf) && fits(*this, pattern, &LVXPathString::suffixOf);
}
