#include <cstdint>
#include <string_view>

#include "lvx/files/path_string.h"

// The address of no text. The cast is of a constant: the value stands in the module before anything runs.
const char* const LVXPathString::KeepPart = reinterpret_cast<const char*>(~std::uintptr_t{0});

namespace {

constexpr char separator = '\\';

// What one part of a new path is to be.
class Part {
public:
    static Part Kept() { return Part(Source::path, {}); }
    static Part Given(std::string_view text) { return Part(Source::text, text); }

    /// As buildPath() is told.
    static Part Of(const char* part) {
        if (part == nullptr) {
            return Part(Source::nothing, {});
        }
        return part == LVXPathString::KeepPart ? Kept() : Given(part);
    }

    bool IsMissing() const { return m_source == Source::nothing; }
    bool IsGiven() const { return m_source == Source::text; }

    /// The text, or what `part_of` finds in `path` if the part is kept.
    std::string Text(const LVXPathString& path, bool (LVXPathString::*part_of)(std::string&) const) const {
        std::string text(m_text);
        if (m_source == Source::path) {
            (path.*part_of)(text);
        }
        return text;
    }

private:
    enum class Source { path, text, nothing };

    Part(Source source, std::string_view text) : m_source(source), m_text(text) {}

    Source m_source;
    std::string_view m_text;
};

std::string composed(const LVXPathString& path, Part drive, Part directory, Part name) {
    std::string result = drive.Text(path, &LVXPathString::driveOf);
    if (drive.IsGiven()) {
        result += ':';
    }
    result += directory.Text(path, &LVXPathString::baseOf);
    if (!result.empty() && result.back() != separator && !name.IsMissing()) {
        result += separator;
    }
    result += name.Text(path, &LVXPathString::nameOf);
    return result;
}

}  // namespace

LVXPathString::LVXPathString(const char* path) : std::string(path == nullptr ? "" : path) {}

LVXPathString::LVXPathString(const std::string& path) : std::string(path) {}

LVXPathString& LVXPathString::operator=(const char* path) {
    assign(path == nullptr ? "" : path);
    return *this;
}

LVXPathString& LVXPathString::operator=(const std::string& path) {
    assign(path);
    return *this;
}

LVXPathString& LVXPathString::addName(const std::string& name) {
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): it may be this path, which changes
    const std::string added = name;
    if (empty() || back() != separator) {
        push_back(separator);
    }
    append(added);
    return *this;
}

void LVXPathString::suffix(const std::string& newSuffix) {
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): it may be this path, which changes
    const std::string added = newSuffix;
    if (const char* const dot = dotOf()) {
        resize(static_cast<size_type>(dot - data()));
    }
    if (!added.empty()) {
        push_back('.');
        append(added);
    }
}

void LVXPathString::buildPath(std::string& result, const char* drive, const char* directory,
                              const char* name) const {
    result = composed(*this, Part::Of(drive), Part::Of(directory), Part::Of(name));
}

void LVXPathString::drive(const std::string& d) {
    assign(composed(*this, Part::Given(d), Part::Kept(), Part::Kept()));
}

void LVXPathString::directory(const std::string& d) {
    assign(composed(*this, Part::Kept(), Part::Given(d), Part::Kept()));
}

void LVXPathString::name(const std::string& n) {
    assign(composed(*this, Part::Kept(), Part::Kept(), Part::Given(n)));
}

bool LVXPathString::asParent() {
    std::string base;
    if (!baseOf(base)) {
        return false;
    }
    const size_type last = base.rfind(separator);
    if (last == npos || base.size() == 1) {
        return false;
    }
    directory(base.substr(0, last == 0 ? 1 : last));
    return true;
}
