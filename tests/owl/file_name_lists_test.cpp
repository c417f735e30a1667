#include "owl/file_name_lists.h"

#include <windows.h>

#include <gtest/gtest.h>

namespace {

using Texts = std::vector<std::string>;

std::string Bytes(const std::vector<char>& list) {
    return std::string(list.begin(), list.end());
}

std::vector<char> Buffer(const std::string& bytes) {
    return std::vector<char>(bytes.begin(), bytes.end());
}

// The list ends at an empty description, so that a missing pattern must not hide the end.
TEST(FileNameLists, filters_end_with_an_empty_one_whatever_is_missing) {
    EXPECT_EQ(std::string("Text\0*.txt\0\0\0", 13), Bytes(owl::FilterList("Text|*.txt")));
    EXPECT_EQ(std::string("Text\0*.txt\0\0\0\0", 14), Bytes(owl::FilterList("Text|*.txt|")));
    EXPECT_EQ(std::string("Text\0\0\0", 7), Bytes(owl::FilterList("Text")));
    EXPECT_EQ(std::string("\0\0\0", 3), Bytes(owl::FilterList("")));
}

TEST(FileNameLists, filters_may_come_with_their_NULs) {
    EXPECT_EQ(Bytes(owl::FilterList("A|*.a|B|*.b")),
              Bytes(owl::FilterList(std::string("A\0*.a\0B\0*.b", 11))));
}

TEST(FileNameLists, a_custom_filter_has_room_for_any_pattern) {
    const std::vector<char> buffer = owl::CustomFilterBuffer("Other|*.abc");
    EXPECT_LE(std::size_t{11 + MAX_PATH}, buffer.size());
    EXPECT_EQ("Other|*.abc", owl::FirstFilter(buffer));
}

TEST(FileNameLists, the_first_filter_is_a_description_and_a_pattern) {
    EXPECT_EQ("Other|*.new", owl::FirstFilter(Buffer(std::string("Other\0*.new\0\0\0\0", 15))));
    EXPECT_EQ("Other|", owl::FirstFilter(Buffer(std::string("Other\0\0", 7))));
    EXPECT_EQ("", owl::FirstFilter(Buffer(std::string("\0*.new\0\0", 8))));
    EXPECT_EQ("", owl::FirstFilter({}));
}

TEST(FileNameLists, a_filter_without_its_end_is_not_read_beyond_it) {
    EXPECT_EQ("Other", owl::FirstFilter(Buffer("Other")));
    EXPECT_EQ("Other", owl::FirstFilter(Buffer(std::string("Other\0", 6))));
    EXPECT_EQ("Other|*.n", owl::FirstFilter(Buffer(std::string("Other\0*.n", 9))));
}

TEST(FileNameLists, one_chosen_name_ends_at_its_NUL) {
    EXPECT_EQ("C:\\a.txt", owl::ChosenNames(Buffer(std::string("C:\\a.txt\0rest", 13)), false));
    EXPECT_EQ("no end", owl::ChosenNames(Buffer("no end"), false));
    EXPECT_EQ("", owl::ChosenNames({}, false));
}

TEST(FileNameLists, several_chosen_names_keep_the_NULs_between_them) {
    EXPECT_EQ(std::string("C:\\\0a\0b", 7),
              owl::ChosenNames(Buffer(std::string("C:\\\0a\0b\0\0rest", 13)), true));
    EXPECT_EQ("C:\\a.txt", owl::ChosenNames(Buffer(std::string("C:\\a.txt\0\0", 10)), true));
}

TEST(FileNameLists, full_paths_join_the_folder_and_each_name) {
    EXPECT_EQ((Texts{"C:\\f\\a.txt", "C:\\f\\b.txt"}),
              owl::FullPaths(std::string("C:\\f\0a.txt\0b.txt", 16), '\0'));
    EXPECT_EQ((Texts{"C:\\a.txt", "C:\\b.txt"}), owl::FullPaths("C:\\ a.txt b.txt", ' '));
}

TEST(FileNameLists, one_name_is_a_full_path_already) {
    EXPECT_EQ((Texts{"C:\\f\\a.txt"}), owl::FullPaths("C:\\f\\a.txt", ' '));
    EXPECT_EQ(Texts{}, owl::FullPaths("", ' '));
    EXPECT_EQ(Texts{}, owl::FullPaths("  ", ' '));
}

}  // namespace
