#include "bench/skew_bench.h"

#include <memory>
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>
#include <optional>
#include <string>

#include "bench/literal_skew.h"
#include "bench/photograph.h"
#include "lvx/images/dibitmap.h"

namespace lvx_bench {
namespace {

using LVXUtilities::DIBitmap;
using LVXUtilities::Rectangles::TopLeft;

// As far as one drags it to set a photograph of a page upright.
constexpr int dx = 120;
constexpr int dy = 90;

// What ours comes to, for comparison.
using SharedSkewed = std::shared_ptr<const lvx::auto_ptr<DIBitmap>>;

std::uint64_t fingerprint_of(const unsigned char* pixels) {
    std::uint64_t sum = 0;
    for (std::size_t i = 0; i < photograph_pixels * 4; ++i) {
        sum = (sum ^ pixels[i]) * 0x100000001B3u;
    }
    return sum;
}

Contender lvx_skewer(const std::shared_ptr<DIBitmap>& photograph) {
    const auto result = std::make_shared<lvx::auto_ptr<DIBitmap>>();
    return {"lvx", nullptr, [photograph, result] { *result = photograph->SkewPoint(TopLeft, dx, dy); },
            [result] { return fingerprint_of((*result)->GetBitsAddress().get()); },
            [result] { result->reset(); }};
}

Contender literal_skewer(const std::shared_ptr<DIBitmap>& photograph) {
    const auto result = std::make_shared<std::vector<std::uint32_t>>();
    const auto run = [photograph, result] {
        const auto pixels = photograph->GetBitsAddress();
        *result = skew_literally({photograph_width, photograph_height, dx, dy, pixels.get()});
    };
    const auto fingerprint = [result] {
        return fingerprint_of(reinterpret_cast<const unsigned char*>(result->data()));
    };
    return {"literal", nullptr, run, fingerprint, [result] { *result = {}; }};
}

// In a block's coordinates y counts the rows from the bottom; here the rows lie as they do in the block.
cv::Mat transform() {
    constexpr float width = photograph_width;
    constexpr float height = photograph_height;
    const cv::Point2f before[4] = {{0, 0}, {width, 0}, {width, height}, {0, height}};
    const cv::Point2f after[4] = {{dx, dy}, {width, 0}, {width, height}, {0, height}};
    return cv::getPerspectiveTransform(before, after);
}

// A quadrilateral by the usual projection, which differs a little from ours in its inside: what counts is
// that the same is done for each pixel.
Contender opencv_skewer(const char* name, int interpolation, const std::shared_ptr<DIBitmap>& photograph,
                        std::uint64_t expected) {
    const auto result = std::make_shared<cv::Mat>();
    const auto run = [photograph, result, interpolation] {
        const auto pixels = photograph->GetBitsAddress();
        const cv::Mat source(photograph_height, photograph_width, CV_8UC3, pixels.get());
        *result = cv::Mat();
        cv::warpPerspective(source, *result, transform(), source.size(), interpolation, cv::BORDER_CONSTANT,
                            cv::Scalar(255, 255, 255));
    };
    const auto fingerprint = [photograph, result, expected]() -> std::uint64_t {
        const auto skewed = photograph->SkewPoint(TopLeft, dx, dy);
        const MadePicture theirs{
            photograph_width, photograph_height, [result](int x, int y) {
                const auto& pixel = result->at<cv::Vec3b>(photograph_height - 1 - y, x);
                return static_cast<std::uint32_t>(pixel[0] | pixel[1] << 8 | pixel[2] << 16);
            }};
        constexpr double tolerance = 16;
        return look_alike(made_picture(*skewed), theirs, tolerance) ? expected : 0;
    };
    return {name, nullptr, run, fingerprint, [result] { result->release(); }};
}

Benchmark make_skew() {
    cv::setNumThreads(1);
    const auto photograph = std::make_shared<DIBitmap>(make_photograph_bitmap(24));
    const auto skewed = photograph->SkewPoint(TopLeft, dx, dy);
    const std::uint64_t expected = fingerprint_of(skewed->GetBitsAddress().get());
    return {"skew/3mp",
            "pixel",
            photograph_pixels,
            {lvx_skewer(photograph), literal_skewer(photograph),
             opencv_skewer("opencv-linear", cv::INTER_LINEAR, photograph, expected),
             opencv_skewer("opencv-nearest", cv::INTER_NEAREST, photograph, expected)}};
}

}  // namespace

std::vector<Entry> skew_benchmarks() {
    return {{"skew/3mp", make_skew}};
}

}  // namespace lvx_bench
