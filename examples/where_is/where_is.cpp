// Finds files along a search list, and takes their paths apart.
//
// usage: where_is PATTERN VARIABLE     looks in the current directory and in those of an environment variable
//                                      and exits with 1 if nothing is found
#include <iostream>
#include <string>
#include <vector>

#include "lvx/files/path_string.h"

namespace {

// The name, its two halves and its directory in a line, and the name that a backup would have.
void tell(const LVXPathString& path) {
    std::string name;
    std::string prefix;
    std::string suffix;
    std::string directory;
    path.nameOf(name);
    path.prefixOf(prefix);
    if (!path.suffixOf(suffix)) {
        suffix = "none";
    }
    path.directoryOf(directory);

    LVXPathString backup = path;
    backup.suffix("bak");
    std::cout << name << ": prefix " << prefix << ", suffix " << suffix << "\n    in " << directory
              << "\n    backup " << backup << '\n';
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: where_is PATTERN VARIABLE\n";
        return 2;
    }
    std::vector<std::string> found;
    LVXPathString(argv[1]).list(found, argv[2], true);
    if (found.empty()) {
        std::cerr << "nothing found\n";
        return 1;
    }
    for (const LVXPathString path : found) {
        if (path.isFile()) {
            tell(path);
        }
    }
    return 0;
}
