#include "bench/literal_skew.h"

#include <cmath>
#include <cstddef>
#include <cstring>

namespace lvx_bench {
namespace {

struct Point {
    int x;
    int y;
};

struct Map {
    Point p0;
    Point p1;
    Point p2;
    double m1;
    double m2;

    Point Of(double x, double y) const {
        constexpr double least = 0.00001;
        Point result{static_cast<int>(x), static_cast<int>(y)};
        const double e1 = m1 * x + 1 - p2.x * m1;
        if (std::fabs(e1) < least) {
            return result;
        }
        const double t = (p1.y * m1 * x + y - p1.y * m1 * p2.x) / e1;
        const double e2 = m2 * t + 1 - p0.y * m2;
        if (std::fabs(e2) < least) {
            return result;
        }
        const double r = (t * m2 * p1.x + x - p1.x * m2 * p0.y) / e2;
        result.x = static_cast<int>(r + 0.5);
        result.y = static_cast<int>(t + 0.5);
        return result;
    }
};

Map map_of(const LiteralSkew& skew) {
    const Point p3{skew.dx, skew.dy};
    Map map{{0, skew.height}, {skew.width, skew.height}, {skew.width, 0}, 0, 0};
    map.m1 = (p3.y - map.p2.y) / (static_cast<double>(p3.x - map.p2.x) * (map.p2.y - map.p1.y));
    map.m2 = (p3.x - map.p0.x) / (static_cast<double>(p3.y - map.p0.y) * (map.p0.x - map.p1.x));
    return map;
}

std::uint32_t sample(const LiteralSkew& skew, const Map& map, std::size_t stride, double x, double y) {
    const Point place = map.Of(x, y);
    if (place.x < 0 || place.x >= skew.width || place.y < 0 || place.y >= skew.height) {
        return 0x00FFFFFF;
    }
    std::uint32_t word;
    std::memcpy(
        &word,
        skew.pixels + static_cast<std::size_t>(place.y) * stride + static_cast<std::size_t>(place.x) * 24 / 8,
        sizeof word);
    return word;
}

std::uint32_t mean(std::uint32_t mask, const std::uint32_t (&words)[4]) {
    return ((words[0] & mask) + (words[1] & mask) + (words[2] & mask) + (words[3] & mask)) >> 2 & mask;
}

}  // namespace

std::vector<std::uint32_t> skew_literally(const LiteralSkew& skew) {
    const Map map = map_of(skew);
    const auto width = static_cast<std::size_t>(skew.width);
    const std::size_t stride = (width * 24 + 31) / 32 * 4;
    std::vector<std::uint32_t> result(width * static_cast<std::size_t>(skew.height));
    for (int x = 0; x < skew.width; ++x) {
        for (int y = 0; y < skew.height; ++y) {
            const std::uint32_t words[4] = {
                sample(skew, map, stride, x + 0.25, y + 0.65), sample(skew, map, stride, x + 0.35, y + 0.25),
                sample(skew, map, stride, x + 0.75, y + 0.35), sample(skew, map, stride, x + 0.65, y + 0.75)};
            result[static_cast<std::size_t>(y) * width + static_cast<std::size_t>(x)] =
                mean(0xFF0000, words) | mean(0xFF00, words) | mean(0xFF, words) | mean(0xFF000000, words);
        }
    }
    return result;
}

}  // namespace lvx_bench
