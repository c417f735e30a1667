// Bytes as tests write them down.
#pragma once

#include <cstddef>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

namespace lvx_test {

/// "03 00 'myFont' 0D" as bytes: pairs of hexadecimal digits, and text between single quotes.
inline std::string bytes(std::string_view notation) {
    std::string result;
    for (std::size_t i = 0; i < notation.size();) {
        if (notation[i] == ' ' || notation[i] == '\n') {
            ++i;
        } else if (notation[i] == '\'') {
            const std::size_t end = notation.find('\'', i + 1);
            result += notation.substr(i + 1, end - i - 1);
            i = end + 1;
        } else {
            result += static_cast<char>(std::stoi(std::string(notation.substr(i, 2)), nullptr, 16));
            i += 2;
        }
    }
    return result;
}

/// Bytes as hexadecimal pairs, for messages that a person can compare.
inline std::string hex(std::string_view data) {
    std::string result;
    char pair[4];
    for (const char c : data) {
        std::snprintf(pair, sizeof pair, "%02X ", static_cast<unsigned>(static_cast<unsigned char>(c)));
        result += pair;
    }
    return result;
}

inline std::string read_file(const std::string& name) {
    std::ifstream file(name, std::ios::binary);
    if (!file) {
        throw std::runtime_error("cannot read " + name);
    }
    return {std::istreambuf_iterator<char>(file), {}};
}

inline void write_file(const std::string& name, std::string_view data) {
    std::ofstream file(name, std::ios::binary);
    file.write(data.data(), static_cast<std::streamsize>(data.size()));
    file.flush();
    if (!file) {
        throw std::runtime_error("cannot write " + name);
    }
}

}  // namespace lvx_test
