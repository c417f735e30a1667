// What a JPEG file says of its picture, as the decoder reads it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace lvx_fuzz {

struct JpegClaim {
    std::uint64_t pixels;
    /// More than any block can hold, at 3 bytes or more for each pixel.
    bool fits_no_block;
};

/// Nothing if the decoder gives up before it knows.
std::optional<JpegClaim> claim_of_jpeg(const std::string& name);

}  // namespace lvx_fuzz
