#include "bench/c_source.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>
#include <vector>

#include "bench/scratch.h"

namespace lvx_bench {
namespace {

namespace fs = std::filesystem;

// Folders of the kernel's headers and the C library's alone, which hold nothing that other packages add.
constexpr const char* folders[] = {"asm-generic", "linux", "misc", "mtd",   "net",
                                   "netinet",     "rdma",  "scsi", "sound", "video"};

void add_headers(const fs::path& folder, std::vector<std::string>& paths) {
    std::error_code missing;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder, missing)) {
        if (entry.is_regular_file() && entry.path().extension() == ".h") {
            paths.push_back(entry.path().string());
        }
    }
}

std::string read_headers() {
    std::vector<std::string> paths;
    for (const char* const folder : folders) {
        add_headers(fs::path("/usr/include") / folder, paths);
    }
    std::sort(paths.begin(), paths.end());
    std::string text;
    for (const std::string& path : paths) {
        text += read_scratch_file(path);
    }
    return text;
}

}  // namespace

std::string make_c_source() {
    const std::string headers = read_headers();
    if (headers.empty()) {
        throw std::runtime_error("there are no C headers in /usr/include");
    }
    std::string source;
    source.reserve(c_source_size);
    while (source.size() < c_source_size) {
        source.append(headers, 0, c_source_size - source.size());
    }
    return source;
}

}  // namespace lvx_bench
