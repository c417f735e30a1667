// lvx/images/texture_size.h
//
// How large a texture is made of a picture.
#pragma once

namespace lvx::images {

/// Textures are no larger, whatever the device can.
inline constexpr int most_texture_side = 128;

/// The longest side of a texture for a device that can have sides of `device_limit`; 1 if that is below 1.
int texture_limit(int device_limit);

/// The side of a texture for a side of a picture: the next power of two, from the limit's own if the side is
/// above the limit. Requires: both are at least 1.
int texture_side(int side, int limit);

}  // namespace lvx::images
