// The rules on the text of paths, told a second time: by splitting texts into lists of pieces and joining
// them again, where the library looks for characters. Whether a path is a directory is for the caller to say.
#pragma once

#include <cctype>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lvx_test {

/// What buildPath() is told about one part.
struct OraclePart {
    enum Kind { keep, leave_out, use } kind = keep;
    std::string text;
};

class PathOracle {
public:
    PathOracle(std::string_view path, bool is_directory) : m_path(path), m_is_directory(is_directory) {}

    std::optional<std::string> Drive() const {
        if (m_path.size() < 2 || m_path.substr(1, 1) != ":") {
            return std::nullopt;
        }
        const bool is_small = std::string("abcdefghijklmnopqrstuvwxyz").find(m_path[0]) != std::string::npos;
        return std::string(1, is_small ? static_cast<char>(m_path[0] & ~0x20) : m_path[0]) + ":";
    }

    std::optional<std::string> Base() const {
        std::string seen(m_path.substr(0, 500));
        if (seen.empty()) {
            return std::nullopt;
        }
        if (Drive()) {
            seen = seen.substr(2);
        }
        if (m_is_directory) {
            return seen;
        }
        std::vector<std::string> pieces = Split(seen, "\\");
        pieces.pop_back();
        if (pieces.empty()) {
            return std::nullopt;
        }
        const std::string joined = Join(pieces, '\\');
        return joined.empty() ? "\\" : joined;
    }

    std::optional<std::string> Name() const {
        return m_path.empty() ? std::nullopt : std::optional(Split(m_path, "\\:").back());
    }

    std::optional<std::string> Directory() const {
        if (m_is_directory) {
            return std::string(m_path);
        }
        if (!Drive() && !Base()) {
            return std::nullopt;
        }
        return Drive().value_or("") + Base().value_or("");
    }

    std::optional<std::string> Prefix() const {
        return Name() ? std::optional(Split(*Name(), ".").front()) : std::nullopt;
    }

    std::optional<std::string> Suffix() const {
        const std::vector<std::string> components = Split(m_path, "\\:");
        const std::vector<std::string> pieces = Split(components.back(), ".");
        const bool has_dot = pieces.size() > 1;
        // Nothing between the dot and what is in front of it: another dot, the start, or the end of a
        // directory.
        if (!has_dot ||
            (pieces[pieces.size() - 2].empty() && (pieces.size() > 2 || components.size() == 1))) {
            return std::nullopt;
        }
        return pieces.back();
    }

    /// Where the dot of the suffix is.
    std::optional<std::size_t> Dot() const {
        const std::optional<std::string> suffix = Suffix();
        return suffix ? std::optional(m_path.size() - suffix->size() - 1) : std::nullopt;
    }

    std::string WithSuffix(const std::string& suffix) const {
        const std::string stem(m_path.substr(0, Dot().value_or(m_path.size())));
        return suffix.empty() ? stem : stem + "." + suffix;
    }

    std::string Built(const OraclePart& drive, const OraclePart& directory, const OraclePart& name) const {
        const std::string front = Chosen(drive, Drive(), ":") + Chosen(directory, Base(), "");
        if (name.kind == OraclePart::leave_out) {
            return front;
        }
        const bool parted = front.empty() || front.substr(front.size() - 1) == "\\";
        return front + (parted ? "" : "\\") + Chosen(name, Name(), "");
    }

    bool IsMatch(const PathOracle& pattern) const {
        return Fits(pattern.Prefix(), Prefix()) && Fits(pattern.Suffix(), Suffix());
    }

    /// What asParent() leaves; nothing if it is refused.
    std::optional<std::string> Parent() const {
        std::vector<std::string> pieces = Split(Base().value_or(""), "\\");
        if (pieces.size() < 2 || Base() == "\\") {
            return std::nullopt;
        }
        pieces.pop_back();
        const std::string above = Join(pieces, '\\');
        return Built({}, {OraclePart::use, above.empty() ? "\\" : above}, {});
    }

private:
    static std::vector<std::string> Split(std::string_view text, std::string_view separators) {
        std::vector<std::string> pieces(1);
        for (const char c : text) {
            if (separators.find(c) != std::string_view::npos) {
                pieces.emplace_back();
            } else {
                pieces.back() += c;
            }
        }
        return pieces;
    }

    static std::string Join(const std::vector<std::string>& pieces, char separator) {
        std::string text;
        for (const std::string& piece : pieces) {
            text += (&piece == &pieces.front() ? "" : std::string(1, separator)) + piece;
        }
        return text;
    }

    static std::string Chosen(const OraclePart& part, const std::optional<std::string>& own,
                              const char* behind) {
        switch (part.kind) {
            case OraclePart::keep:
                return own.value_or("");
            case OraclePart::use:
                return part.text + behind;
            default:
                return "";
        }
    }

    static bool Fits(const std::optional<std::string>& wanted, const std::optional<std::string>& own) {
        return !wanted || *wanted == "*" || *wanted == own.value_or("");
    }

    std::string_view m_path;
    bool m_is_directory;
};

/// Whether a name fits `*` and `?`, by a table: in each row, which beginnings of the pattern fit the name so
/// far.
inline bool oracle_fits_wildcards(const std::string& name, const std::string& pattern) {
    const auto fits = [&](const std::string& text) {
        std::vector<bool> row(pattern.size() + 1);
        row[0] = true;
        for (std::size_t i = 0; i < pattern.size() && pattern[i] == '*'; ++i) {
            row[i + 1] = true;
        }
        for (std::size_t n = 0; n < text.size(); ++n) {
            std::vector<bool> next(row.size());
            for (std::size_t i = 0; i < pattern.size(); ++i) {
                const bool stands = pattern[i] == '?' ? n < name.size() : pattern[i] == text[n];
                next[i + 1] = pattern[i] == '*' ? next[i] || row[i + 1] : row[i] && stands;
            }
            row = next;
        }
        return static_cast<bool>(row.back());
    };
    const bool has_dot = name.find('.') != std::string::npos;
    return fits(name) || (!has_dot && fits(name + "."));
}

}  // namespace lvx_test
