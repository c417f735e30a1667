#include <png.h>

#include <stdexcept>

#include "images/reference_picture.h"

namespace lvx_test {

bool can_read_references() {
    return true;
}

ReferencePicture read_reference(const std::string& name) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_file(&image, name.c_str()) == 0) {
        throw std::runtime_error(name + ": " + image.message);
    }
    image.format = PNG_FORMAT_RGB;
    ReferencePicture picture{image.width, image.height, {}};
    picture.colours.resize(std::size_t{image.width} * image.height);
    if (png_image_finish_read(&image, nullptr, picture.colours.data(), 0, nullptr) == 0) {
        throw std::runtime_error(name + ": " + image.message);
    }
    return picture;
}

}  // namespace lvx_test
