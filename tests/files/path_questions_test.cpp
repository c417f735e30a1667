#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "lvx/files/path_string.h"
#include "support/drive_folder.h"

namespace {

using lvx_test::DriveFolder;

/// Which of the three questions are answered with yes: "exists", "file", "directory".
std::string answers(const LVXPathString& path) {
    std::string text = path.exists() ? "exists" : "";
    text += path.isFile() ? " file" : "";
    text += path.isDirectory() ? " directory" : "";
    return text;
}

class PathQuestions : public ::testing::Test {
protected:
    PathQuestions() {
        m_folder.AddFile("f.txt");
        m_folder.AddFolder("sub");
        m_folder.AddFile("sub/inner");
    }

    DriveFolder m_folder;
};

}  // namespace

TEST_F(PathQuestions, a_file_and_a_directory_are_told_apart) {
    EXPECT_EQ("exists file", answers(m_folder.File("f.txt")));
    EXPECT_EQ("exists directory", answers(m_folder.File("sub")));
    EXPECT_EQ("exists file", answers(m_folder.File("sub\\inner")));
    EXPECT_EQ("", answers(m_folder.File("other")));
    EXPECT_EQ("", answers(m_folder.File("f.txt\\inner")));
}

TEST_F(PathQuestions, relative_paths_start_at_the_current_directory) {
    m_folder.Enter("sub");
    EXPECT_EQ("exists file", answers("inner"));
    EXPECT_EQ("exists file", answers("..\\f.txt"));
    EXPECT_EQ("exists file", answers(".\\inner"));
    EXPECT_EQ("exists directory", answers("."));
    EXPECT_EQ("exists directory", answers(".."));
    EXPECT_EQ("exists directory", answers("..\\sub"));
    EXPECT_EQ("", answers("sub"));
}

TEST_F(PathQuestions, a_path_without_a_drive_is_the_current_drives) {
    m_folder.Enter();
    EXPECT_EQ("exists file", answers(m_folder.File("f.txt").substr(2)));
}

TEST_F(PathQuestions, a_drive_without_a_root_is_at_its_current_directory) {
    m_folder.Enter();
    EXPECT_EQ("exists file", answers(m_folder.Path().substr(0, 2) + "f.txt"));
    EXPECT_EQ("exists file", answers(m_folder.Path().substr(0, 2) + "sub\\inner"));
}

TEST_F(PathQuestions, the_letter_of_a_drive_may_be_small) {
    std::string path = m_folder.File("f.txt");
    path[0] = static_cast<char>(path[0] | 0x20);
    EXPECT_EQ("exists file", answers(path));
}

TEST_F(PathQuestions, one_separator_at_the_end_is_taken_off_a_directory) {
    EXPECT_EQ("exists directory", answers(m_folder.File("sub\\")));
    EXPECT_FALSE(LVXPathString(m_folder.File("sub\\\\")).isDirectory());
    EXPECT_EQ("", answers(m_folder.File("f.txt\\")));
}

TEST_F(PathQuestions, a_root_is_there_but_no_directory) {
    const std::string drive = m_folder.Path().substr(0, 2);
    EXPECT_EQ("exists", answers(drive + "\\"));
    EXPECT_EQ("exists", answers(drive));
    EXPECT_TRUE(LVXPathString(drive + "\\.").isDirectory());
    EXPECT_EQ("exists", answers("\\"));
}

TEST_F(PathQuestions, an_empty_path_is_nothing) {
    EXPECT_EQ("", answers(""));
}

TEST_F(PathQuestions, a_drive_that_is_not_there_has_nothing) {
    EXPECT_EQ("", answers("1:\\"));
    EXPECT_EQ("", answers("1:"));
    EXPECT_EQ("", answers("::"));
    EXPECT_EQ("", answers("1:f.txt"));
}

TEST_F(PathQuestions, a_star_is_neither_file_nor_directory) {
    EXPECT_EQ("", answers(m_folder.File("*")));
    EXPECT_EQ("", answers(m_folder.File("f*.txt")));
    EXPECT_EQ("", answers(m_folder.File("*\\")));
}

// It is the system's affair: no other file is found by it.
TEST_F(PathQuestions, a_question_mark_does_not_stand_for_a_character) {
    m_folder.AddFile("f1.txt");
    m_folder.AddFolder("s1");
    EXPECT_EQ("", answers(m_folder.File("f?.txt")));
    EXPECT_EQ("", answers(m_folder.File("?.txt")));
    EXPECT_EQ("", answers(m_folder.File("s?")));
    EXPECT_EQ("", answers(m_folder.File("s?\\")));
}

TEST_F(PathQuestions, a_nul_names_nothing) {
    const std::string path = m_folder.File("f.txt") + '\0';
    EXPECT_EQ("", answers(path));
    EXPECT_EQ("", answers(path + "x"));
    EXPECT_EQ("", answers(m_folder.File("sub") + '\0'));
    EXPECT_EQ("", answers(m_folder.File("sub") + '\0' + '\\'));
    EXPECT_EQ("", answers(std::string(1, '\0')));
}

TEST_F(PathQuestions, parents_are_taken_out_of_the_text) {
    EXPECT_EQ("exists file", answers(m_folder.File("sub\\..\\f.txt")));
    EXPECT_EQ("exists file", answers(m_folder.File("missing\\..\\f.txt")));
    EXPECT_EQ("exists file", answers(m_folder.Path().insert(2, "\\..\\..") + "\\f.txt"))
        << "above the root there is the root";
    EXPECT_EQ("exists file", answers(m_folder.File("sub\\\\inner")));
}

TEST_F(PathQuestions, the_system_takes_a_slash_for_a_separator) {
    EXPECT_EQ("exists file", answers(m_folder.File("sub/inner")));
    EXPECT_EQ("exists file", answers(m_folder.File("sub/../f.txt")));
}

TEST_F(PathQuestions, very_long_paths_name_nothing) {
    EXPECT_EQ("", answers(m_folder.File(std::string(300, 'n'))));
    EXPECT_EQ("", answers(m_folder.File(std::string(70000, 'n'))));
    std::string deep = m_folder.Path();
    for (int i = 0; i < 20000; ++i) {
        deep += "\\d";
    }
    EXPECT_EQ("", answers(deep));
}

TEST_F(PathQuestions, a_file_of_five_gigabytes_is_a_file) {
    const std::string name = m_folder.File("long");
    m_folder.AddFile("long");
    m_folder.Enter();
    std::error_code error;
    std::filesystem::resize_file("long", 5'000'000'000ULL, error);
    ASSERT_FALSE(error) << error.message();
    EXPECT_EQ("exists file", answers(name));
}
