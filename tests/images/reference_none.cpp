#include <stdexcept>

#include "images/reference_picture.h"

namespace lvx_test {

bool can_read_references() {
    return false;
}

ReferencePicture read_reference(const std::string& name) {
    throw std::runtime_error("no reader for " + name);
}

}  // namespace lvx_test
