// Pictures out of files.
#pragma once

#include <string>

#include "sketch/model/picture_making.h"

namespace sketch {

/// Reads a bitmap file or a JPEG file. Throws DocumentError with the cause, without the file's name, also for
/// a file that begins as neither; std::bad_alloc. A JPEG file that is damaged further on ends the process:
/// the library's own way.
Bitmap LoadPicture(const std::string& file);

/// The file's name without folder and extension.
std::string PictureName(const std::string& file);

}  // namespace sketch
