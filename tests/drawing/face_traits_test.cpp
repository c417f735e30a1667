#include "lvx/drawing/face_traits.h"

#include <gtest/gtest.h>

#include <string>

using lvx::drawing::face_traits;

namespace {

void expect_traits(int pitchAndFamily, int charSet, const std::string& name) {
    const lvx::drawing::FaceTraits traits = face_traits(name);
    EXPECT_EQ(0, int{traits.quality}) << name;
    EXPECT_EQ(pitchAndFamily, int{traits.pitchAndFamily}) << name;
    EXPECT_EQ(charSet, int{traits.charSet}) << name;
}

}  // namespace

TEST(FaceTraits, of_the_faces_with_character_sets_of_their_own) {
    expect_traits(0x32, 255, "Modern");
    expect_traits(0x12, 255, "Roman");
    expect_traits(0x42, 255, "Script");
    expect_traits(0x01, 255, "8514oem");
    expect_traits(0x01, 255, "Terminal");
}

TEST(FaceTraits, of_all_others_leave_the_choice) {
    for (const char* name : {"Arial", "", "terminal", "Terminal ", "Times New Roman", "Roma"}) {
        expect_traits(0, 1, name);
    }
    expect_traits(0, 1, std::string("Roman\0", 6));
}
