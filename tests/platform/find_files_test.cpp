#include "lvx/platform/find_files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "support/drive_folder.h"

namespace {

using lvx::platform::find_directories;
using lvx::platform::FindBlock;
using lvx::platform::findfirst;
using lvx::platform::findnext;
using lvx_test::DriveFolder;
using Names = std::vector<std::string>;

Names found(const std::string& pattern, int attributes = find_directories) {
    Names names;
    FindBlock block;
    for (int result = findfirst(pattern.c_str(), block, attributes); result == 0; result = findnext(block)) {
        names.push_back(block.name);
    }
    std::sort(names.begin(), names.end());
    return names;
}

class FindFiles : public ::testing::Test {
protected:
    FindFiles() {
        m_folder.AddFolder("dir");
        for (const char* name : {"a", "ab", "abc", "a.b", "a.bc", "a.b.c", "abc.txt", "dir/in"}) {
            m_folder.AddFile(name);
        }
    }

    Names Found(const std::string& pattern) const { return found(m_folder.File(pattern)); }

    DriveFolder m_folder;
};

}  // namespace

TEST_F(FindFiles, a_star_stands_for_any_characters) {
    const Names all = {".", "..", "a", "a.b", "a.b.c", "a.bc", "ab", "abc", "abc.txt", "dir"};
    EXPECT_EQ(all, Found("*"));
    EXPECT_EQ(all, Found("**"));
    EXPECT_EQ((Names{"a.b", "a.b.c", "a.bc"}), Found("*.b*"));
    EXPECT_EQ((Names{"a.b"}), Found("*.b"));
    EXPECT_EQ((Names{"a.b.c", "a.bc", "abc"}), Found("*c"));
    EXPECT_EQ((Names{"abc", "abc.txt"}), Found("abc*"));
    EXPECT_EQ((Names{"a.b.c"}), Found("*.b.c"));
    EXPECT_EQ(Names(), Found("x*"));
}

TEST_F(FindFiles, a_question_mark_stands_for_one_character) {
    EXPECT_EQ((Names{"ab"}), Found("a?"));
    EXPECT_EQ((Names{"a.b", "abc", "dir"}), Found("???"));
    EXPECT_EQ((Names{"a.b"}), Found("a.?"));
    EXPECT_EQ((Names{"abc"}), Found("?bc"));
}

TEST_F(FindFiles, a_name_without_a_dot_fits_as_if_it_ended_in_one) {
    EXPECT_EQ(Found("*"), Found("*.*"));
    EXPECT_EQ((Names{"a", "a.b", "a.b.c", "a.bc"}), Found("a.*"));
    EXPECT_EQ((Names{"a"}), Found("a."));
}

TEST_F(FindFiles, a_pattern_may_be_a_plain_name) {
    EXPECT_EQ((Names{"abc.txt"}), Found("abc.txt"));
    EXPECT_EQ((Names{"dir"}), Found("dir"));
    EXPECT_EQ((Names{"in"}), Found("dir\\in"));
    EXPECT_EQ(Names(), Found("missing"));
}

TEST_F(FindFiles, directories_are_found_if_wanted) {
    EXPECT_EQ((Names{"dir"}), found(m_folder.File("d*"), find_directories));
    EXPECT_EQ(Names(), found(m_folder.File("d*"), 0));
    EXPECT_EQ((Names{"in"}), found(m_folder.File("dir\\*"), 0));
}

TEST_F(FindFiles, the_pattern_starts_at_the_current_directory) {
    m_folder.Enter();
    EXPECT_EQ((Names{"abc", "abc.txt"}), found("abc*"));
    EXPECT_EQ((Names{"in"}), found("dir\\i*"));
    EXPECT_EQ((Names{"in"}), found("dir/i*"));
    EXPECT_EQ((Names{"abc.txt"}), found(m_folder.Path().substr(0, 2) + "*.txt"));
}

TEST_F(FindFiles, no_name_or_no_directory_finds_nothing) {
    EXPECT_EQ(Names(), found(""));
    EXPECT_EQ(Names(), Found("dir\\"));
    EXPECT_EQ(Names(), Found("missing\\*"));
    EXPECT_EQ(Names(), Found("abc\\*"));
    EXPECT_EQ(Names(), Found("d?r\\*"));
    EXPECT_EQ(Names(), found("1:\\*"));
}

TEST_F(FindFiles, the_end_leaves_the_last_name) {
    FindBlock block;
    EXPECT_EQ(0, findfirst(m_folder.File("abc.*").c_str(), block, 0));
    EXPECT_EQ(0, findnext(block));
    const std::string last = block.name;
    EXPECT_NE(0, findnext(block));
    EXPECT_NE(0, findnext(block));
    EXPECT_EQ(last, block.name);
}

TEST_F(FindFiles, nothing_follows_without_a_search) {
    FindBlock block;
    EXPECT_NE(0, findnext(block));
    EXPECT_EQ("", block.name);
}

TEST_F(FindFiles, a_block_can_search_again_before_the_end) {
    FindBlock block;
    EXPECT_EQ(0, findfirst(m_folder.File("*").c_str(), block, 0));
    EXPECT_EQ(0, findfirst(m_folder.File("abc.txt").c_str(), block, 0));
    EXPECT_EQ("abc.txt", block.name);
    EXPECT_NE(0, findnext(block));
}

// A search that kept its handle would run out of them.
TEST_F(FindFiles, a_block_gives_back_what_the_search_holds) {
    for (int i = 0; i < 3000; ++i) {
        FindBlock block;
        ASSERT_EQ(0, findfirst(m_folder.File("a*").c_str(), block, 0));
        ASSERT_EQ(0, findfirst(m_folder.File("*").c_str(), block, 0));
    }
    EXPECT_EQ((Names{"in"}), Found("dir\\in"));
}
