#include "lvx/images/texture_size.h"

#include <algorithm>
#include <cmath>

namespace lvx::images {

int texture_limit(int device_limit) {
    return std::clamp(device_limit, 1, most_texture_side);
}

int texture_side(int side, int limit) {
    const double exponent = std::log(static_cast<double>(std::min(side, limit))) / std::log(2.0);
    const int whole = static_cast<int>(exponent);
    return 1 << (whole == exponent ? whole : whole + 1);
}

}  // namespace lvx::images
