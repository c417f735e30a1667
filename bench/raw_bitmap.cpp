#include "bench/raw_bitmap.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <new>
#include <stdexcept>
#include <vector>

#include "bench/picture.h"

namespace lvx_bench {
namespace {

constexpr std::size_t file_bytes = raw_header_bytes + picture_bytes;

RawFile allocate_file() {
    RawFile file(static_cast<unsigned char*>(std::malloc(file_bytes)));
    if (file == nullptr) {
        throw std::bad_alloc();
    }
    return file;
}

class Descriptor {
public:
    Descriptor(const std::string& path, int flags) : m_number(open(path.c_str(), flags, 0666)) {
        if (m_number < 0) {
            throw std::runtime_error("raw: cannot open " + path);
        }
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { close(m_number); }

    int Number() const { return m_number; }

private:
    int m_number;
};

void put_number(unsigned char* place, std::uint32_t number) {
    for (int i = 0; i < 4; ++i) {
        place[i] = static_cast<unsigned char>(number >> (8 * i));
    }
}

void put_headers(unsigned char* file) {
    std::fill_n(file, raw_header_bytes, static_cast<unsigned char>(0));
    file[0] = 'B';
    file[1] = 'M';
    put_number(file + 2, file_bytes);
    put_number(file + 10, raw_header_bytes);
    put_number(file + 14, 40);
    put_number(file + 18, picture_width);
    put_number(file + 22, picture_height);
    file[26] = 1;
    file[28] = 24;
    put_number(file + 34, picture_bytes);
}

}  // namespace

void Freer::operator()(void* memory) const {
    std::free(memory);
}

RawFile make_raw_bitmap() {
    RawFile file = allocate_file();
    put_headers(file.get());
    std::vector<unsigned char> picture = make_picture();
    for (std::size_t i = 0; i < picture_bytes; i += 3) {
        std::swap(picture[i], picture[i + 2]);
    }
    unsigned char* row = file.get() + file_bytes;
    for (std::size_t y = 0; y < picture_height; ++y) {
        row -= picture_stride;
        std::copy_n(&picture[y * picture_stride], picture_stride, row);
    }
    return file;
}

RawFile load_raw_bitmap(const std::string& path) {
    const Descriptor descriptor(path, O_RDONLY);
    RawFile file = allocate_file();
    if (read(descriptor.Number(), file.get(), file_bytes) != static_cast<ssize_t>(file_bytes)) {
        throw std::runtime_error("raw: cannot read " + path);
    }
    return file;
}

void save_raw_bitmap(const std::string& path, const RawFile& file) {
    const Descriptor descriptor(path, O_WRONLY | O_CREAT | O_TRUNC);
    if (write(descriptor.Number(), file.get(), file_bytes) != static_cast<ssize_t>(file_bytes)) {
        throw std::runtime_error("raw: cannot write " + path);
    }
}

}  // namespace lvx_bench
