#include "lvx/platform/posix/drive_set.h"

#include <gtest/gtest.h>

namespace {

using lvx::platform::drive_letter;
using lvx::platform::DrivePlace;
using lvx::platform::DriveSet;

using Place = std::optional<DrivePlace>;

constexpr auto nothing = std::nullopt;

}  // namespace

TEST(DriveSet, c_is_the_root_at_first_and_there_is_no_other) {
    const DriveSet drives;
    EXPECT_EQ("/", drives.Root('C'));
    EXPECT_EQ("/", drives.Root('c'));
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        EXPECT_EQ(letter == 'C', drives.Root(letter).has_value());
    }
}

TEST(DriveSet, only_letters_are_drives) {
    DriveSet drives;
    for (const char character : {'@', '[', '`', '{', '1', '\0', '\xC4'}) {
        EXPECT_EQ(nothing, drive_letter(character));
        EXPECT_FALSE(drives.Map(character, "/a"));
        EXPECT_FALSE(drives.Unmap(character));
        EXPECT_EQ(nothing, drives.Root(character));
        EXPECT_EQ("", drives.Remembered(character));
        drives.Remember({character, "x"});
    }
    EXPECT_EQ('A', drive_letter('a'));
    EXPECT_EQ('Z', drive_letter('Z'));
}

TEST(DriveSet, a_letter_can_be_mapped_again_and_unmapped) {
    DriveSet drives;
    EXPECT_TRUE(drives.Map('d', "/mnt/one"));
    EXPECT_TRUE(drives.Map('D', "/mnt/two"));
    EXPECT_EQ("/mnt/two", drives.Root('d'));
    EXPECT_TRUE(drives.Unmap('d'));
    EXPECT_FALSE(drives.Unmap('D'));
    EXPECT_EQ(nothing, drives.Root('D'));
    EXPECT_FALSE(drives.Map('D', ""));
    EXPECT_EQ(nothing, drives.Root('D'));
}

TEST(DriveSet, a_path_is_in_the_drive_with_the_longest_folder) {
    DriveSet drives;
    drives.Map('D', "/mnt/disk");
    drives.Map('E', "/mnt");
    EXPECT_EQ((Place{{'D', "a/b"}}), drives.PlaceOf("/mnt/disk/a/b"));
    EXPECT_EQ((Place{{'D', ""}}), drives.PlaceOf("/mnt/disk"));
    EXPECT_EQ((Place{{'E', "disk2"}}), drives.PlaceOf("/mnt/disk2"));
    EXPECT_EQ((Place{{'C', "home"}}), drives.PlaceOf("/home"));
    EXPECT_EQ((Place{{'C', ""}}), drives.PlaceOf("/"));
}

TEST(DriveSet, of_two_letters_for_a_folder_the_first_is_told) {
    DriveSet drives;
    drives.Map('B', "/");
    EXPECT_EQ((Place{{'B', "x"}}), drives.PlaceOf("/x"));
}

TEST(DriveSet, what_no_drive_leads_to_has_no_place) {
    DriveSet drives;
    drives.Map('C', "/srv");
    EXPECT_EQ(nothing, drives.PlaceOf("/home"));
    EXPECT_EQ(nothing, drives.PlaceOf("/srv2"));
    EXPECT_EQ(nothing, drives.PlaceOf(""));
    drives.Unmap('C');
    EXPECT_EQ(nothing, drives.PlaceOf("/srv"));
}

TEST(DriveSet, a_drive_remembers_its_directory_until_it_is_mapped_again) {
    DriveSet drives;
    drives.Remember({'C', "a/b"});
    EXPECT_EQ("a/b", drives.Remembered('c'));
    EXPECT_EQ("", drives.Remembered('D'));
    drives.Remember({'D', "x"});
    EXPECT_EQ("", drives.Remembered('D')) << "there is no such drive";
    drives.Map('C', "/srv");
    EXPECT_EQ("", drives.Remembered('C'));
}
