// Turns a picture by 30 degrees, and sets it upright as one does with a photograph of a page: the corner that
// is seen at the upper left is dragged in by a tenth.
//
// usage: turn_and_skew PICTURE FOLDER
//
// Reads a bitmap or JPEG file, best of 24 bits per pixel, and writes turned.bmp and skewed.bmp into the
// folder. Prints their sizes. Exits 0 if both were written, 1 if not, 2 for a wrong call.
#include <exception>
#include <iostream>
#include <numbers>
#include <string>

#include "lvx/images/dibitmap.h"
#include "lvx/images/rectangles.h"

namespace {

using LVXUtilities::DIBitmap;

constexpr double angle = std::numbers::pi / 6;

// Rows count from the first one in memory, which is the lowest: what is seen above is the bottom.
lvx::auto_ptr<DIBitmap> skewed(const DIBitmap& picture) {
    const int dx = picture.GetWidth() / 10;
    const int dy = picture.GetHeight() / 10;
    return picture.SkewPoint(LVXUtilities::Rectangles::BottomLeft, dx, -dy);
}

void save(DIBitmap* picture, const std::string& folder, const std::string& name) {
    if (picture == nullptr) {
        throw "cannot be turned";
    }
    picture->SaveAs(folder + "/" + name, DIBitmap::DIB);
    std::cout << name << ": " << picture->GetWidth() << " by " << picture->GetHeight() << ", "
              << picture->GetBitsPerPixel() << " bits\n";
}

void run(const std::string& name, const std::string& folder) {
    const DIBitmap picture(name, DIBitmap::AnyFormat);
    save(picture.Rotated(angle).get(), folder, "turned.bmp");
    save(skewed(picture).get(), folder, "skewed.bmp");
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: turn_and_skew PICTURE FOLDER\n";
        return 2;
    }
    try {
        run(argv[1], argv[2]);
        return 0;
    } catch (const char* text) {
        std::cerr << "turn_and_skew: " << argv[1] << ": " << text << '\n';
    } catch (const std::exception& error) {
        std::cerr << "turn_and_skew: " << argv[1] << ": " << error.what() << '\n';
    }
    return 1;
}
