// Whether the pictures in a compound document are those in picture files, pixel by pixel.
//
// usage: compare_pictures DOCUMENT (STREAM PICTURE)...
//
// Prints a line for each pair: the picture, its width and height in pixels, its depth, and "equal" or what
// differs. Exits 0 if all are equal, 1 if one is not or cannot be read, 2 for a wrong call.
#include <cstdlib>
#include <cstring>
#include <exception>
#include <iostream>
#include <memory>
#include <string>

#include "lvx/images/dibitmap.h"
#include "lvx/store/object_store_storage.h"

namespace {

using LVXUtilities::DIBitmap;

// The picture that `lvxdoc pack` put into `stream`: a version, then the object.
std::unique_ptr<Storable> stored_picture(const std::string& document, const std::string& stream) {
    LVXUtilities::ObjectStoreStorage store;
    std::string error;
    if (!store.OpenStorage(document, ObjectStore::ForRead, error) || !store.OpenStream(stream, error)) {
        throw lvx::runtime_error(document + ": " + stream + ": " + error);
    }
    store.ReadVersion();
    Storable* object = nullptr;
    store >> object;
    return std::unique_ptr<Storable>(object);
}

// Rows are compared without their padding, from the bottom row up as they are stored. "" if all are equal.
std::string first_difference(const DIBitmap& stored, const DIBitmap& picture) {
    if (stored.GetWidth() != picture.GetWidth() || stored.GetHeight() != picture.GetHeight() ||
        stored.GetBitsPerPixel() != picture.GetBitsPerPixel()) {
        return "another size or depth";
    }
    const auto row_bits =
        static_cast<std::size_t>(picture.GetWidth()) * static_cast<std::size_t>(picture.GetBitsPerPixel());
    const auto stride = static_cast<std::size_t>(picture.GetStorageWidth());
    const auto height = static_cast<std::size_t>(std::abs(picture.GetHeight()));
    const auto stored_pixels = stored.GetBitsAddress();
    const auto picture_pixels = picture.GetBitsAddress();
    for (std::size_t row = 0; row < height; ++row) {
        if (std::memcmp(stored_pixels.get() + row * stride, picture_pixels.get() + row * stride,
                        (row_bits + 7) / 8) != 0) {
            return "different pixels in row " + std::to_string(row);
        }
    }
    return "";
}

bool compare(const std::string& document, const std::string& stream, const std::string& name) {
    const DIBitmap picture(name, DIBitmap::AnyFormat);
    const std::unique_ptr<Storable> object = stored_picture(document, stream);
    const auto* const stored = dynamic_cast<const DIBitmap*>(object.get());
    const std::string difference = stored == nullptr ? "no picture" : first_difference(*stored, picture);
    std::cout << name << '\t' << picture.GetWidth() << '\t' << std::abs(picture.GetHeight()) << '\t'
              << picture.GetBitsPerPixel() << '\t' << (difference.empty() ? "equal" : difference) << '\n';
    return difference.empty();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 4 || argc % 2 != 0) {
        std::cerr << "usage: compare_pictures DOCUMENT (STREAM PICTURE)...\n";
        return 2;
    }
    bool equal = true;
    for (int i = 2; i < argc; i += 2) {
        try {
            equal = compare(argv[1], argv[i], argv[i + 1]) && equal;
        } catch (const char* text) {
            std::cerr << "compare_pictures: " << argv[i + 1] << ": " << text << '\n';
            equal = false;
        } catch (const std::exception& error) {
            std::cerr << "compare_pictures: " << argv[i + 1] << ": " << error.what() << '\n';
            equal = false;
        }
    }
    return equal ? 0 : 1;
}
