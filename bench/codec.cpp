#include "bench/codec.h"

#include <fstream>

namespace lvx_bench {

void Codec::WriteFile(const std::string& path) {
    std::ofstream out(path, std::ios_base::binary);
    Write(out);
}

void Codec::ReadFile(const std::string& path) {
    std::ifstream in(path, std::ios_base::binary);
    Read(in);
}

}  // namespace lvx_bench
