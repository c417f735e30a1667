// lvx/drawing/face_traits.h
//
// What is asked for along with the name of a face. The faces of strokes and those of the old terminal are in
// character sets of their own and are not found otherwise.
#pragma once

#include <cstdint>
#include <string_view>

namespace lvx::drawing {

/// As the system's LOGFONT has them.
struct FaceTraits {
    std::uint8_t quality;
    std::uint8_t pitchAndFamily;
    std::uint8_t charSet;
};

/// Of the face with exactly this name.
constexpr FaceTraits face_traits(std::string_view name) {
    struct Known {
        std::string_view name;
        FaceTraits traits;
    };
    constexpr Known known[] = {
        {"Modern", {0, 0x32, 0xFF}},  {"Roman", {0, 0x12, 0xFF}},    {"Script", {0, 0x42, 0xFF}},
        {"8514oem", {0, 0x01, 0xFF}}, {"Terminal", {0, 0x01, 0xFF}},
    };
    for (const Known& face : known) {
        if (face.name == name) {
            return face.traits;
        }
    }
    return {0, 0, 1};
}

}  // namespace lvx::drawing
