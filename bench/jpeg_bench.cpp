#include "bench/jpeg_bench.h"

#include <stb/stb_image.h>

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

#include "bench/picture.h"
#include "bench/raw_jpeg.h"
#include "bench/scratch.h"
#include "lvx/images/dibitmap.h"

namespace lvx_bench {
namespace {

using LVXUtilities::DIBitmap;

struct StbFreer {
    void operator()(unsigned char* pixels) const { stbi_image_free(pixels); }
};
using StbPixels = std::unique_ptr<unsigned char, StbFreer>;

std::string input_path() {
    return scratch_file("picture.jpg");
}

// The picture that all must come to; decoders that are not libjpeg round in other places.
class Expected {
public:
    Expected() : m_pixels(load_raw_jpeg(input_path())) {}

    std::uint64_t Fingerprint(const PixelView& found, int tolerance) const {
        return is_alike(found, rgb_from_top(m_pixels.get()), tolerance) ? 1 : 0;
    }

private:
    RawFile m_pixels;
};
using SharedExpected = std::shared_ptr<const Expected>;

Contender lvx_loader(const SharedExpected& expected) {
    const auto picture = std::make_shared<std::optional<DIBitmap>>();
    const auto compare = [picture, expected] {
        return expected->Fingerprint(bgr_from_bottom((*picture)->GetBitsAddress().get()), 0);
    };
    return {"lvx", nullptr, [picture] { picture->emplace(input_path(), DIBitmap::JPEG); }, compare,
            [picture] { picture->reset(); }};
}

Contender raw_loader(const SharedExpected& expected) {
    const auto pixels = std::make_shared<RawFile>();
    const auto compare = [pixels, expected] { return expected->Fingerprint(rgb_from_top(pixels->get()), 0); };
    return {"raw", nullptr, [pixels] { *pixels = load_raw_jpeg(input_path()); }, compare,
            [pixels] { pixels->reset(); }};
}

StbPixels load_by_stb() {
    int width = 0;
    int height = 0;
    int channels = 0;
    StbPixels pixels(stbi_load(input_path().c_str(), &width, &height, &channels, 3));
    if (pixels == nullptr) {
        throw std::runtime_error("stb: cannot load the picture");
    }
    return pixels;
}

Contender stb_loader(const SharedExpected& expected) {
    constexpr int tolerance = 24;
    const auto pixels = std::make_shared<StbPixels>();
    const auto compare = [pixels, expected] {
        return expected->Fingerprint(rgb_from_top(pixels->get()), tolerance);
    };
    return {"stb", nullptr, [pixels] { *pixels = load_by_stb(); }, compare, [pixels] { pixels->reset(); }};
}

Benchmark make_load() {
    save_raw_jpeg(input_path());
    const auto expected = std::make_shared<const Expected>();
    return {"jpeg/load",
            "pixel",
            picture_pixels,
            {lvx_loader(expected), raw_loader(expected), stb_loader(expected)}};
}

}  // namespace

std::vector<Entry> jpeg_benchmarks() {
    return {{"jpeg/load", make_load}};
}

}  // namespace lvx_bench
