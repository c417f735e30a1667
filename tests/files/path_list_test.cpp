#include <gtest/gtest.h>

#include <algorithm>

#include "lvx/files/path_string.h"
#include "lvx/text/strings.h"
#include "platform/environment.h"
#include "support/drive_folder.h"

namespace {

using lvx_test::DriveFolder;
using lvx_test::EnvironmentVariable;
using Names = std::vector<std::string>;

constexpr const char* variable = "LVX_TEST_SEARCH";

Names names(const LVXPathString& pattern, const char* list, bool include_current) {
    Names found;
    EXPECT_TRUE(pattern.listNames(found, list, include_current));
    return found;
}

Names paths(const LVXPathString& pattern, const char* list, bool include_current) {
    Names found;
    EXPECT_TRUE(pattern.list(found, list, include_current));
    return found;
}

Names sorted(Names found) {
    std::sort(found.begin(), found.end());
    return found;
}

std::string lower(const std::string& path) {
    return lvx::to_lower(path);
}

class PathList : public ::testing::Test {
protected:
    PathList() {
        for (const char* folder : {"one", "two", "empty"}) {
            m_folder.AddFolder(folder);
        }
        for (const char* file : {"one/a.bmp", "one/b.bmp", "one/c.txt", "two/a.bmp", "two/d.bmp"}) {
            m_folder.AddFile(file);
        }
    }

    /// The paths of folders as a search list.
    std::string List(const Names& folders) const {
        std::string list;
        for (const std::string& folder : folders) {
            list += (list.empty() ? "" : ";") + m_folder.File(folder);
        }
        return list;
    }

    DriveFolder m_folder;
};

}  // namespace

TEST_F(PathList, the_directories_of_a_variable_are_looked_through) {
    const EnvironmentVariable list(variable, List({"one", "two"}));
    EXPECT_EQ((Names{"a.bmp", "a.bmp", "b.bmp", "d.bmp"}), sorted(names("*.bmp", variable, false)));
    EXPECT_EQ((Names{lower(m_folder.File("one\\c.txt"))}), paths("c.txt", variable, false));
}

TEST_F(PathList, order_is_that_of_the_search_list_and_what_is_found_twice_is_there_twice) {
    const EnvironmentVariable list(variable, List({"two", "one", "two"}));
    const auto found = [this](const char* folder) {
        return lower(m_folder.File(std::string(folder) + "\\a.bmp"));
    };
    EXPECT_EQ((Names{found("two"), found("one"), found("two")}), paths("a.bmp", variable, false));
    EXPECT_EQ((Names{"a.bmp", "a.bmp", "a.bmp"}), names("a.bmp", variable, false));
}

TEST_F(PathList, the_current_directory_comes_first) {
    const EnvironmentVariable list(variable, List({"two"}));
    m_folder.Enter("one");
    const std::string current = LVXPathString::CurrentDirectory();
    EXPECT_EQ((Names{current + "\\a.bmp", lower(m_folder.File("two\\a.bmp"))}),
              paths("a.bmp", variable, true));
    EXPECT_EQ((Names{lower(m_folder.File("two\\a.bmp"))}), paths("a.bmp", variable, false));
}

TEST_F(PathList, without_a_variable_it_is_the_current_directory) {
    m_folder.Enter("one");
    EXPECT_EQ((Names{"c.txt"}), names("*.txt", "", false));
    EXPECT_EQ((Names{"c.txt"}), names("*.txt", "", true));
    EXPECT_EQ((Names{"c.txt"}), names("*.txt", nullptr, false));
    EXPECT_EQ((Names{LVXPathString::CurrentDirectory() + "\\c.txt"}), paths("*.txt", nullptr, true));
}

TEST_F(PathList, a_variable_that_is_not_set_finds_nothing_more) {
    m_folder.Enter("one");
    EXPECT_EQ(Names(), names("*.txt", "LVX_TEST_NO_SUCH_VARIABLE", false));
    EXPECT_EQ((Names{"c.txt"}), names("*.txt", "LVX_TEST_NO_SUCH_VARIABLE", true));
}

TEST_F(PathList, the_worker_tells_paths_or_names) {
    const EnvironmentVariable list(variable, List({"two"}));
    Names found;
    EXPECT_TRUE(LVXPathString("d.bmp").dolist(true, found, variable, false));
    EXPECT_TRUE(LVXPathString("d.bmp").dolist(false, found, variable, false));
    EXPECT_EQ((Names{lower(m_folder.File("two\\d.bmp")), "d.bmp"}), found);
}

TEST_F(PathList, the_result_is_added_to_what_is_there) {
    const EnvironmentVariable list(variable, List({"one"}));
    Names found = {"before"};
    EXPECT_TRUE(LVXPathString("c.txt").listNames(found, variable, false));
    EXPECT_EQ((Names{"before", "c.txt"}), found);
}

TEST_F(PathList, finding_nothing_is_true_as_well) {
    const EnvironmentVariable list(variable, List({"empty", "missing", "one\\c.txt"}));
    EXPECT_EQ(Names(), names("*.bmp", variable, false));
    EXPECT_EQ(Names(), names("", variable, false));
}

TEST_F(PathList, empty_entries_are_passed_over) {
    const EnvironmentVariable list(variable, ";;" + List({"one"}) + ";;;" + List({"two"}) + ";");
    EXPECT_EQ((Names{"a.bmp", "a.bmp"}), names("a.bmp", variable, false));
}

TEST_F(PathList, an_entry_may_end_in_a_separator) {
    const EnvironmentVariable list(variable, List({"one\\"}));
    EXPECT_EQ((Names{lower(m_folder.File("one\\c.txt"))}), paths("c.txt", variable, false));
}

TEST_F(PathList, directories_are_found_too) {
    const EnvironmentVariable list(variable, m_folder.Path());
    EXPECT_EQ((Names{"one"}), names("on*", variable, false));
    EXPECT_EQ((Names{".", "..", "empty", "one", "two"}), sorted(names("*", variable, false)));
    EXPECT_EQ((Names{".", "..", "empty", "one", "two"}), sorted(names("*.*", variable, false)));
}

TEST_F(PathList, names_are_told_in_lower_case) {
    m_folder.AddFile("one/Upper.JPG");
    const EnvironmentVariable list(variable, List({"one"}));
    EXPECT_EQ((Names{"upper.jpg"}), names("*.JPG", variable, false));
    EXPECT_EQ((Names{lower(m_folder.File("one\\upper.jpg"))}), paths("*.JPG", variable, false));
}

TEST_F(PathList, the_pattern_may_have_a_directory) {
    const EnvironmentVariable list(variable, m_folder.Path());
    EXPECT_EQ((Names{"c.txt"}), names("one\\*.txt", variable, false));
    EXPECT_EQ((Names{lower(m_folder.File("c.txt"))}), paths("one\\*.txt", variable, false))
        << "the path is the entry's and the name's";
    EXPECT_EQ(Names(), names("o?e\\*.txt", variable, false));
}

TEST_F(PathList, a_search_list_of_more_than_500_characters_is_used_whole) {
    Names folders(40, "missing");
    folders.push_back("one");
    const EnvironmentVariable list(variable, List(folders));
    ASSERT_GT(List(folders).size(), 1000U);
    EXPECT_EQ((Names{lower(m_folder.File("one\\c.txt"))}), paths("c.txt", variable, false));
}

TEST_F(PathList, an_entry_of_more_than_500_characters_is_one_entry) {
    const EnvironmentVariable list(variable, m_folder.File(std::string(2000, 'x')) + ";" + List({"two"}));
    EXPECT_EQ((Names{"d.bmp"}), names("d.*", variable, false));
}

TEST_F(PathList, a_nul_in_the_pattern_finds_nothing) {
    const EnvironmentVariable list(variable, List({"one"}));
    EXPECT_EQ(Names(), names(std::string("c.txt\0x", 7), variable, true));
    EXPECT_EQ(Names(), names(std::string("*\0", 2), nullptr, true));
}

TEST_F(PathList, very_long_patterns_find_nothing) {
    const EnvironmentVariable list(variable, List({"one"}));
    EXPECT_EQ(Names(), names(std::string(70000, 'a'), variable, false));
    EXPECT_EQ(Names(), names(std::string(70000, '?'), variable, false));
}
