// lvx/platform/find_files.h
//
// The names in a directory that fit a pattern, one after the other.
#pragma once

#include <memory>
#include <string>

namespace lvx::platform {

/// Directories are found as well as files.
inline constexpr int find_directories = 16;

/// What the system holds for a search.
class NameSearch {
public:
    NameSearch() = default;
    NameSearch(const NameSearch&) = delete;
    NameSearch& operator=(const NameSearch&) = delete;
    virtual ~NameSearch() = default;

    /// The next name that fits, until it is asked for again; null at the end.
    virtual const char* Next() = 0;
};

/// A search as the system has it; what findfirst begins with.
std::unique_ptr<NameSearch> search_names(const char* pattern, int attributes);

/// A search under way. What the system holds for it is given back with the block, or with its next search.
struct FindBlock {
    std::string name;  // what was found last, without its directory
    std::unique_ptr<NameSearch> search;
};

/// Finds the first name that fits the last component of `pattern` in the directory that the rest of it names,
/// or the current one. 0, or -1 if there is none; `block.name` is then as it was. `attributes` is 0 for files
/// alone, or find_directories; hidden and system files are not found, on systems that mark them.
///
/// `*` stands for any characters, `?` for one; in a directory they stand for themselves. A name without a dot
/// fits as if it had one at its end, too, for which a `?` does not stand: "*.*" fits all names, and "a.*"
/// fits "a". Where the case of letters in names counts, it counts here. What is odder than that is the
/// system's affair. Directories bring "." and "..", if the system lists them. The order is the system's.
int findfirst(const char* pattern, FindBlock& block, int attributes);

/// Finds the next name. 0, or -1 at the end; `block.name` is then as it was.
int findnext(FindBlock& block);

}  // namespace lvx::platform
