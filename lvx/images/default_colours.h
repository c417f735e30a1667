// lvx/images/default_colours.h
//
// The colour tables that the system gives to pictures of 1, 4 and 8 bits that it makes of true colours.
#pragma once

#include <cstddef>
#include <cstdint>

namespace lvx::images {

/// Entry `index` as 0xRRGGBB: black and white; the sixteen colours; or the system's ten first and ten last
/// colours around eight shades of red, eight of green and four of blue, of which red changes first. Requires:
/// a depth of 1, 4 or 8, and that it has such an entry.
std::uint32_t default_colour(unsigned depth, std::size_t index);

}  // namespace lvx::images
