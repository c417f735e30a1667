#include "tools/lvxdoc/safe_name.h"

#include <gtest/gtest.h>

using namespace lvxdoc;

TEST(FileNameFor, keeps_an_ordinary_name) {
    EXPECT_EQ("Sky 1", file_name_for("Sky 1"));
    EXPECT_EQ("Bäume", file_name_for("Bäume"));
}

TEST(FileNameFor, never_leads_anywhere) {
    EXPECT_EQ("stream", file_name_for(".."));
    EXPECT_EQ("stream", file_name_for("."));
    EXPECT_EQ("stream", file_name_for(""));
    EXPECT_EQ("_._etc_passwd", file_name_for("../etc/passwd"));
    EXPECT_EQ("_etc_passwd", file_name_for("/etc/passwd"));
    EXPECT_EQ("C__windows_x", file_name_for("C:\\windows\\x"));
    EXPECT_EQ("a_b", file_name_for(std::string_view("a\0b", 3)));
    EXPECT_EQ("_x05Summary", file_name_for("\\x05Summary"));
}

TEST(FileNameFor, makes_no_hidden_file_and_no_option) {
    EXPECT_EQ("_bashrc", file_name_for(".bashrc"));
    EXPECT_EQ("_rf", file_name_for("-rf"));
}

TEST(FileNameFor, drops_ends_that_windows_drops) {
    EXPECT_EQ("a", file_name_for("a. ."));
}

TEST(FileNameFor, names_no_device) {
    for (const char* device :
         {"CON", "nul", "Aux.txt", "prn", "COM1", "lpt9.x", "com\xc2\xb9", "CONIN$", "NUL .a"}) {
        EXPECT_EQ(std::string("_") + device, file_name_for(device));
    }
    EXPECT_EQ("CONE", file_name_for("CONE"));
    EXPECT_EQ("COMET", file_name_for("COMET"));
}

TEST(FileNameFor, cuts_between_characters) {
    const std::string name = file_name_for("x" + std::string(60, 'y') + "ääääääääääääääääääääääääääääää");
    EXPECT_EQ(99u, name.size());
    EXPECT_EQ("ä", name.substr(97));
}

TEST(StreamNameFor, is_the_name_without_folder_and_extension) {
    EXPECT_EQ("nature2", stream_name_for("/home/me/pictures/nature2.jpg"));
    EXPECT_EQ("nature2", stream_name_for("C:\\pictures\\nature2.jpg"));
    EXPECT_EQ("a.b", stream_name_for("a.b.bmp"));
    EXPECT_EQ("none", stream_name_for("none"));
    EXPECT_EQ(".hidden", stream_name_for(".hidden"));
    EXPECT_EQ("picture", stream_name_for("folder/"));
}

TEST(StreamNameFor, has_31_characters_that_a_compound_file_takes) {
    EXPECT_EQ(std::string(31, 'n'), stream_name_for(std::string(40, 'n') + ".bmp"));
    EXPECT_EQ("a_b_", stream_name_for("a!b\x01.bmp"));
    EXPECT_EQ("B__ume", stream_name_for("Bäume.bmp"));
}

TEST(UniqueNames, numbers_names_that_were_given_before) {
    UniqueNames names;
    EXPECT_EQ("sky", names.Take("sky", 31));
    EXPECT_EQ("sky-2", names.Take("sky", 31));
    EXPECT_EQ("SKY-3", names.Take("SKY", 31));
    EXPECT_EQ("sky-2-2", names.Take("sky-2", 31));
}

TEST(UniqueNames, keeps_within_the_limit) {
    UniqueNames names;
    EXPECT_EQ("abcdef", names.Take("abcdefgh", 6));
    EXPECT_EQ("abcd-2", names.Take("abcdefgh", 6));
    for (int i = 3; i < 10; ++i) {
        names.Take("abcdefgh", 6);
    }
    EXPECT_EQ("abc-10", names.Take("abcdefgh", 6));
}
