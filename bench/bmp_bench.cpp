#include "bench/bmp_bench.h"

#include <SDL2/SDL_surface.h>
#include <stb/stb_image.h>
#include <stb/stb_image_write.h>

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

#include "bench/picture.h"
#include "bench/raw_bitmap.h"
#include "bench/scratch.h"
#include "lvx/images/dibitmap.h"

namespace lvx_bench {
namespace {

using LVXUtilities::DIBitmap;

struct SurfaceFreer {
    void operator()(SDL_Surface* surface) const { SDL_FreeSurface(surface); }
};
using Surface = std::unique_ptr<SDL_Surface, SurfaceFreer>;

struct StbFreer {
    void operator()(unsigned char* pixels) const { stbi_image_free(pixels); }
};
using StbPixels = std::unique_ptr<unsigned char, StbFreer>;

// A picture in each contender's own form, the one that is loaded or the one to save.
struct LvxPicture {
    void Load(const std::string& path) { bitmap.emplace(path, DIBitmap::DIB); }
    void Save(const std::string& path) { bitmap->SaveAsDIB(path); }
    std::uint64_t Fingerprint() const { return fingerprint(bgr_from_bottom(bitmap->GetBitsAddress().get())); }
    void Unload() { bitmap.reset(); }

    std::optional<DIBitmap> bitmap;
};

struct RawPicture {
    void Load(const std::string& path) { file = load_raw_bitmap(path); }
    void Save(const std::string& path) { save_raw_bitmap(path, file); }
    std::uint64_t Fingerprint() const { return fingerprint(bgr_from_bottom(file.get() + raw_header_bytes)); }
    void Unload() { file.reset(); }

    RawFile file;
};

struct SdlPicture {
    void Load(const std::string& path) {
        surface.reset(SDL_LoadBMP(path.c_str()));
        if (surface == nullptr) {
            throw std::runtime_error("sdl2: cannot load " + path);
        }
    }
    void Save(const std::string& path) {
        if (SDL_SaveBMP(surface.get(), path.c_str()) != 0) {
            throw std::runtime_error("sdl2: cannot save " + path);
        }
    }
    std::uint64_t Fingerprint() const {
        return fingerprint({static_cast<const unsigned char*>(surface->pixels), surface->pitch, true});
    }
    void Unload() { surface.reset(); }

    Surface surface;
};

struct StbPicture {
    void Load(const std::string& path) {
        int width = 0;
        int height = 0;
        int channels = 0;
        pixels.reset(stbi_load(path.c_str(), &width, &height, &channels, 3));
        if (pixels == nullptr) {
            throw std::runtime_error("stb: cannot load " + path);
        }
    }
    void Save(const std::string& path) {
        if (stbi_write_bmp(path.c_str(), picture_width, picture_height, 3, pixels.get()) == 0) {
            throw std::runtime_error("stb: cannot save " + path);
        }
    }
    std::uint64_t Fingerprint() const { return fingerprint(rgb_from_top(pixels.get())); }
    void Unload() { pixels.reset(); }

    StbPixels pixels;
};

std::string input_path() {
    return scratch_file("picture.bmp");
}

template <class Picture>
Contender loader(const char* name) {
    const auto picture = std::make_shared<Picture>();
    return {name, nullptr, [picture] { picture->Load(input_path()); },
            [picture] { return picture->Fingerprint(); }, [picture] { picture->Unload(); }};
}

// Saves what it has loaded before. Whether all is in the file is seen by loading it plainly.
template <class Picture>
Contender saver(const char* name) {
    const auto picture = std::make_shared<Picture>();
    picture->Load(input_path());
    const std::string path = scratch_file(std::string("saved-") + name + ".bmp");
    const auto saved_fingerprint = [path] {
        RawPicture saved;
        saved.Load(path);
        return saved.Fingerprint();
    };
    return {name, [path] { remove_scratch_file(path); }, [picture, path] { picture->Save(path); },
            saved_fingerprint, [path] { remove_scratch_file(path); }};
}

Benchmark make_load() {
    save_raw_bitmap(input_path(), make_raw_bitmap());
    return {"bmp/load",
            "byte",
            picture_bytes,
            {loader<LvxPicture>("lvx"), loader<RawPicture>("raw"), loader<SdlPicture>("sdl2"),
             loader<StbPicture>("stb")}};
}

Benchmark make_save() {
    save_raw_bitmap(input_path(), make_raw_bitmap());
    return {"bmp/save",
            "byte",
            picture_bytes,
            {saver<LvxPicture>("lvx"), saver<RawPicture>("raw"), saver<SdlPicture>("sdl2"),
             saver<StbPicture>("stb")}};
}

}  // namespace

std::vector<Entry> bmp_benchmarks() {
    return {{"bmp/load", make_load}, {"bmp/save", make_save}};
}

}  // namespace lvx_bench
