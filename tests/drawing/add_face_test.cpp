#include <gtest/gtest.h>
#include <windows.h>

#include <cstring>

#include "lvx/drawing/my_font.h"

namespace {

using Faces = std::vector<std::string>;

constexpr short raster = RASTER_FONTTYPE;
constexpr short device = DEVICE_FONTTYPE;
constexpr short true_type = TRUETYPE_FONTTYPE;

Faces added(const std::string& face, short type, Faces faces = {}) {
    LOGFONTA font{};
    face.copy(font.lfFaceName, LF_FACESIZE);
    NEWTEXTMETRICA metrics{};
    EXPECT_EQ(1, add_face(&font, &metrics, type, reinterpret_cast<char*>(&faces)));
    return faces;
}

}  // namespace

TEST(AddFace, adds_a_true_type_face) {
    EXPECT_EQ(Faces{"Arial"}, added("Arial", true_type));
    EXPECT_EQ(Faces{"Arial"}, added("Arial", true_type | device));
    EXPECT_EQ((Faces{"Tahoma", "Arial"}), added("Arial", true_type, {"Tahoma"}));
}

TEST(AddFace, passes_over_all_others_and_goes_on) {
    for (const short type : {short{0}, raster, device, static_cast<short>(raster | device)}) {
        EXPECT_EQ(Faces{}, added("System", type)) << type;
    }
}

TEST(AddFace, adds_a_face_once) {
    EXPECT_EQ((Faces{"Arial", "Tahoma"}), added("Arial", true_type, {"Arial", "Tahoma"}));
    EXPECT_EQ((Faces{"Arial", "arial"}), added("arial", true_type, {"Arial"}));
    EXPECT_EQ((Faces{"Arial", "Aria"}), added("Aria", true_type, {"Arial"}));
}

TEST(AddFace, reads_no_more_than_the_field_of_a_name) {
    const std::string name(LF_FACESIZE, 'x');
    struct {
        LOGFONTA font;
        char behind[8];
    } block{{}, "behind"};
    std::memset(block.font.lfFaceName, 'x', LF_FACESIZE);
    Faces faces;
    add_face(&block.font, nullptr, true_type, reinterpret_cast<char*>(&faces));
    EXPECT_EQ(Faces{name}, faces);
    EXPECT_EQ(Faces{name.substr(1)}, added(name.substr(1), true_type));
}
