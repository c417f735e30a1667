// Files as the direct codings have them: the C library's own.
#pragma once

#include <cstdio>
#include <memory>
#include <stdexcept>
#include <string>

namespace lvx_bench {

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using PlainFile = std::unique_ptr<std::FILE, FileCloser>;

inline PlainFile open_plain_file(const std::string& path, const char* mode) {
    PlainFile file(std::fopen(path.c_str(), mode));
    if (file == nullptr) {
        throw std::runtime_error("raw: cannot open " + path);
    }
    return file;
}

}  // namespace lvx_bench
