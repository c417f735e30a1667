// Whether the pictures in a compound document are those in picture files, to the last byte of header, colour
// table and pixels.
//
// usage: compare_pictures DOCUMENT (STREAM PICTURE)...
//
// Prints a line for each pair: the picture, its width and height in pixels, its depth, and "equal" or what
// differs. Exits 0 if all are equal, 1 if one is not or cannot be read, 2 for a wrong call.
#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "lvx/images/dibitmap.h"
#include "lvx/store/object_store_storage.h"
#include "lvx/store/object_store_stream.h"

namespace {

using LVXUtilities::DIBitmap;

using Bytes = std::vector<char>;

constexpr std::ptrdiff_t header_size = 40;

// The picture's block, as its class stores it: the length in 4 bytes, then the block.
Bytes bytes_of(const DIBitmap& picture) {
    std::ostringstream stream;
    ObjectStoreStream store;
    store.OpenStream(&stream);
    picture.PutTo(store);
    const std::string stored = stream.str();
    return Bytes(stored.begin() + 4, stored.end());
}

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

// Header, colour table and pixels. Blocks of memory may be longer than what was asked for, and one that was
// stored keeps that length; what is beyond the shorter one is no part of the picture. "" if all is equal.
std::string first_difference(const DIBitmap& stored, const DIBitmap& picture) {
    const Bytes first = bytes_of(stored);
    const Bytes second = bytes_of(picture);
    if (!std::equal(first.begin(), first.begin() + header_size, second.begin())) {
        return "another header";
    }
    const auto [place, other] = std::mismatch(first.begin(), first.end(), second.begin(), second.end());
    if (place != first.end() && other != second.end()) {
        return "different from byte " + std::to_string(place - first.begin()) + " on";
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
