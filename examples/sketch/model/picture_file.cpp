#include "sketch/model/picture_file.h"

#include <fstream>

#include "sketch/model/error.h"

namespace sketch {
namespace {

using LVXUtilities::DIBitmap;

// The library must not be handed a file that is no JPEG file as one.
DIBitmap::Format FormatOf(const std::string& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        throw DocumentError("The file cannot be read.");
    }
    char start[3] = "";
    stream.read(start, sizeof start);
    const std::string bytes(start, static_cast<std::size_t>(stream.gcount()));
    if (bytes.starts_with("BM")) {
        return DIBitmap::DIB;
    }
    if (bytes == "\xFF\xD8\xFF") {
        return DIBitmap::JPEG;
    }
    throw DocumentError("This is neither a bitmap nor a JPEG file.");
}

}  // namespace

Bitmap LoadPicture(const std::string& file) {
    try {
        return std::make_shared<DIBitmap>(file, FormatOf(file));
    } catch (const char* text) {
        throw DocumentError(text);
    }
}

std::string PictureName(const std::string& file) {
    const std::string name = file.substr(file.find_last_of("\\/:") + 1);
    return name.substr(0, name.rfind('.'));
}

}  // namespace sketch
