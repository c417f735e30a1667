#include "bench/scratch.h"

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <system_error>

namespace lvx_bench {
namespace {

class Folder {
public:
    Folder() : m_path((std::filesystem::temp_directory_path() / "lvx-bench-XXXXXX").string()) {
        if (mkdtemp(m_path.data()) == nullptr) {
            throw std::system_error(errno, std::generic_category(), m_path);
        }
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    ~Folder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }

    std::string File(const std::string& name) const { return m_path + "/" + name; }

private:
    std::string m_path;
};

}  // namespace

std::string scratch_file(const std::string& name) {
    static const Folder folder;
    return folder.File(name);
}

void remove_scratch_file(const std::string& path) {
    std::filesystem::remove(path);
}

std::string read_scratch_file(const std::string& path) {
    std::ifstream in(path, std::ios_base::binary);
    if (!in) {
        throw std::runtime_error("cannot read " + path);
    }
    return std::string(std::istreambuf_iterator<char>(in), {});
}

}  // namespace lvx_bench
