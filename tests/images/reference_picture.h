// Pictures in another format, to compare with.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace lvx_test {

/// Red, green and blue.
using Colour = std::array<unsigned char, 3>;

struct ReferencePicture {
    unsigned int width = 0;
    unsigned int height = 0;
    /// Rows from the top.
    std::vector<Colour> colours;
};

/// Whether this build has a library for them.
bool can_read_references();

/// Requires: can_read_references(). Throws std::runtime_error.
ReferencePicture read_reference(const std::string& name);

}  // namespace lvx_test
