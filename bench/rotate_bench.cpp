#include "bench/rotate_bench.h"

#include <leptonica/allheaders.h>

#include <memory>
#include <stdexcept>

#include "bench/photograph.h"
#include "lvx/images/dibitmap.h"

namespace lvx_bench {
namespace {

using LVXUtilities::DIBitmap;

constexpr double angle = 0.3;

struct PixFreer {
    void operator()(Pix* pix) const { pixDestroy(&pix); }
};
using PixOwner = std::unique_ptr<Pix, PixFreer>;

Contender lvx_turner(const std::shared_ptr<DIBitmap>& photograph) {
    const auto result = std::make_shared<lvx::auto_ptr<DIBitmap>>();
    return {"lvx", nullptr, [photograph, result] { *result = photograph->Rotated(angle); },
            [] { return std::uint64_t{1}; }, [result] { result->reset(); }};
}

PixOwner make_pix() {
    const std::vector<unsigned char> pixels = make_photograph();
    PixOwner pix(pixCreate(photograph_width, photograph_height, 32));
    for (int y = 0; y < photograph_height; ++y) {
        l_uint32* const row = pixGetData(pix.get()) + y * pixGetWpl(pix.get());
        for (int x = 0; x < photograph_width; ++x) {
            const unsigned char* const pixel =
                &pixels[(static_cast<std::size_t>(y) * photograph_width + static_cast<std::size_t>(x)) * 3];
            composeRGBPixel(pixel[2], pixel[1], pixel[0], row + x);
        }
    }
    return pix;
}

std::uint32_t colour_in(const PixOwner& pix, int x, int y) {
    l_int32 red = 0;
    l_int32 green = 0;
    l_int32 blue = 0;
    pixGetRGBPixel(pix.get(), x, y, &red, &green, &blue);
    return static_cast<std::uint32_t>(red << 16 | green << 8 | blue);
}

// By sampling, as ours: a pixel is one of the picture's, and nothing is mixed. Positive angles go with the
// clock there.
Contender leptonica_turner(const std::shared_ptr<DIBitmap>& photograph) {
    const auto pix = std::make_shared<PixOwner>(make_pix());
    const auto result = std::make_shared<PixOwner>();
    const auto run = [pix, result] {
        result->reset(pixRotate(pix->get(), static_cast<l_float32>(-angle), L_ROTATE_SAMPLING,
                                L_BRING_IN_WHITE, photograph_width, photograph_height));
        if (*result == nullptr) {
            throw std::runtime_error("leptonica: cannot turn the picture");
        }
    };
    const auto fingerprint = [photograph, result]() -> std::uint64_t {
        const auto turned = photograph->Rotated(angle);
        const MadePicture theirs{pixGetWidth(result->get()), pixGetHeight(result->get()),
                                 [result](int x, int y) { return colour_in(*result, x, y); }};
        constexpr double tolerance = 12;
        return look_alike(made_picture(*turned), theirs, tolerance) ? 1 : 0;
    };
    return {"leptonica", nullptr, run, fingerprint, [result] { result->reset(); }};
}

Benchmark make_rotate() {
    const auto photograph = std::make_shared<DIBitmap>(make_photograph_bitmap(32));
    return {"rotate/3mp", "pixel", photograph_pixels, {lvx_turner(photograph), leptonica_turner(photograph)}};
}

}  // namespace

std::vector<Entry> rotate_benchmarks() {
    return {{"rotate/3mp", make_rotate}};
}

}  // namespace lvx_bench
