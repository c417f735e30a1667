// Paths: every rule on text against its second telling, questions and moves inside a drive made for it.
//
//     byte 0      bit 0: start in a directory of the drive, not in its root
//                 bits 1 and 2, 3 and 4, 5 and 6: drive, directory and name of a new path: 0 keeps, 1 leaves
//                 out, 2 and 3 use a text
//     then        a length and a text, four times: drive, directory, name, and a pattern
//     the rest    the path
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "check.h"
#include "input.h"
#include "lvx/files/path_string.h"
#include "lvx/platform/drives.h"
#include "lvx/platform/posix/wildcards.h"
#include "support/bytes.h"
#include "support/path_oracle.h"

namespace {

using namespace lvx_fuzz;
using lvx_test::OraclePart;
using lvx_test::PathOracle;
using Text = std::optional<std::string>;

/// C: is a folder in memory, and there are no other drives: no path leads anywhere else.
class Drive {
public:
    Drive() : m_root("/dev/shm/lvx-fuzz-path-" + std::to_string(getpid())) {
        std::filesystem::create_directories(m_root / "a" / "b");
        for (const char* name : {"ab", "a.b", "b.a.b", "a.txt"}) {
            lvx_test::write_file((m_root / name).string(), "");
        }
        require(lvx::map_drive('C', m_root.string()), "a folder becomes a drive");
    }
    Drive(const Drive&) = delete;
    Drive& operator=(const Drive&) = delete;
    ~Drive() { std::filesystem::remove_all(m_root); }

    static std::vector<std::string> NamesInRoot() { return {".", "..", "a", "a.b", "a.txt", "ab", "b.a.b"}; }
    const std::filesystem::path& Root() const { return m_root; }

private:
    std::filesystem::path m_root;
};

/// In the drive for as long as a path is looked at; the fuzzer goes by relative paths of its own.
class Visit {
public:
    explicit Visit(const std::filesystem::path& folder) : m_before(std::filesystem::current_path()) {
        std::filesystem::current_path(folder);
    }
    Visit(const Visit&) = delete;
    Visit& operator=(const Visit&) = delete;
    ~Visit() { std::filesystem::current_path(m_before); }

private:
    std::filesystem::path m_before;
};

Text part(const LVXPathString& path, bool (LVXPathString::*part_of)(std::string&) const) {
    std::string out = "untouched";
    if (!(path.*part_of)(out)) {
        require(out == "untouched", "a failure leaves the result");
        return std::nullopt;
    }
    LVXPathString alias = path;
    require((alias.*part_of)(alias) && alias == out, "the result may be the path");
    return out;
}

void check_suffix(const LVXPathString& path, const PathOracle& oracle) {
    std::string out = "untouched";
    require(path.suffixOf(out) == oracle.Suffix().has_value(), "a suffix is found");
    require(out == oracle.Suffix().value_or(""), "the suffix");
    const char* const dot = path.dotOf();
    require((dot != nullptr) == oracle.Dot().has_value(), "a dot is found");
    require(dot == nullptr || *oracle.Dot() == static_cast<std::size_t>(dot - path.data()), "the dot");
}

void check_parts(const LVXPathString& path, const PathOracle& oracle) {
    require(part(path, &LVXPathString::driveOf) == oracle.Drive(), "the drive");
    require(part(path, &LVXPathString::baseOf) == oracle.Base(), "the base");
    require(part(path, &LVXPathString::nameOf) == oracle.Name(), "the name");
    require(part(path, &LVXPathString::directoryOf) == oracle.Directory(), "the directory");
    require(part(path, &LVXPathString::prefixOf) == oracle.Prefix(), "the prefix");
    check_suffix(path, oracle);
}

OraclePart chosen(unsigned options, const std::string& text) {
    switch (options & 3) {
        case 0:
            return {OraclePart::keep, ""};
        case 1:
            return {OraclePart::leave_out, ""};
        default:
            return {OraclePart::use, text.c_str()};  // up to its NUL, as buildPath() sees it
    }
}

const char* argument(const OraclePart& part) {
    switch (part.kind) {
        case OraclePart::keep:
            return LVXPathString::KeepPart;
        case OraclePart::leave_out:
            return nullptr;
        default:
            return part.text.c_str();
    }
}

struct Texts {
    std::string drive, directory, name, pattern;
};

void check_composition(const LVXPathString& path, const PathOracle& oracle, unsigned options,
                       const Texts& texts) {
    const OraclePart drive = chosen(options >> 1, texts.drive);
    const OraclePart directory = chosen(options >> 3, texts.directory);
    const OraclePart name = chosen(options >> 5, texts.name);
    LVXPathString result = path;
    result.buildPath(result, argument(drive), argument(directory), argument(name));
    require(result == oracle.Built(drive, directory, name), "a built path");

    LVXPathString renamed = path;
    renamed.name(texts.name);
    require(renamed == oracle.Built({}, {}, {OraclePart::use, texts.name}), "another name");
    LVXPathString suffixed = path;
    suffixed.suffix(texts.name);
    require(suffixed == oracle.WithSuffix(texts.name), "another suffix");
    LVXPathString parent = path;
    require(parent.asParent() == oracle.Parent().has_value(), "a parent is found");
    require(parent == oracle.Parent().value_or(path), "the parent");
    LVXPathString added = path;
    added.addName(added);
    require(added.ends_with(path) && added.size() >= 2 * path.size(), "a path behind itself");
}

void check_listing(const std::string& pattern) {
    for (const std::string& name : Drive::NamesInRoot()) {
        require(
            lvx::platform::fits_wildcards(name, pattern) == lvx_test::oracle_fits_wildcards(name, pattern),
            "a name fits a pattern");
    }
    if (pattern.find_first_of(std::string("\\/\0", 3)) != std::string::npos) {
        return;
    }
    std::vector<std::string> expected = Drive::NamesInRoot();
    std::erase_if(expected, [&](const std::string& name) {
        return pattern.empty() || !lvx_test::oracle_fits_wildcards(name, pattern);
    });
    std::vector<std::string> found;
    require(LVXPathString(pattern).listNames(found, nullptr, true), "listing is true");
    std::sort(found.begin(), found.end());
    require(found == expected, "the names that fit");
}

void check_moves(LVXPathString path, const Drive& drive) {
    std::vector<std::string> found;
    path.list(found, "PATH", true);
    path.setCurrent();
    require(std::filesystem::current_path().string().starts_with(drive.Root().string()),
            "no path leads out of its drive");
    path.setDrive();
    path.expand();
    path.exists();
    path.isFile();
}

void run(Input input, const Drive& drive) {
    const unsigned options = input.Byte();
    Texts texts;
    for (std::string* text : {&texts.drive, &texts.directory, &texts.name, &texts.pattern}) {
        *text = input.Short(100);
    }
    const std::string text(input.Rest());
    {
        const Visit visit(drive.Root());
        check_listing(texts.pattern);
    }
    const Visit visit((options & 1) != 0 ? drive.Root() / "a" : drive.Root());
    const LVXPathString path(text);
    const PathOracle oracle(text, path.isDirectory());
    check_parts(path, oracle);
    check_composition(path, oracle, options, texts);
    require(path.isMatch(texts.pattern) == oracle.IsMatch({texts.pattern, false}), "a match");
    check_moves(path, drive);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Drive drive;
    run(Input(data, size), drive);
    return 0;
}
