#include "lvx/platform/posix/replacement_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>
#include <string>
#include <vector>

#include "platform/posix/folder_names.h"
#include "support/bytes.h"
#include "support/temp_folder.h"

namespace {

using namespace lvx::platform;
using lvx_test::folder_names;
using lvx_test::read_file;
using Names = std::vector<std::string>;

class Replacement : public ::testing::Test {
protected:
    Replacement() : m_directory(open(m_folder.Path().c_str(), O_RDONLY | O_DIRECTORY)) {}

    mode_t ModeOf(const char* name) const {
        struct stat status {};
        EXPECT_EQ(0, stat(m_folder.File(name).c_str(), &status));
        return status.st_mode & 07777;
    }

    lvx_test::TempFolder m_folder;
    FileDescriptor m_directory;
};

}  // namespace

TEST_F(Replacement, takes_the_place_of_the_old_file) {
    lvx_test::write_file(m_folder.File("f"), "a longer old content");
    EXPECT_TRUE(ReplacementFile(m_directory.Number(), "f").Replace("new"));
    EXPECT_EQ("new", read_file(m_folder.File("f")));
    EXPECT_EQ(Names{"f"}, folder_names(m_folder.Path()));
}

TEST_F(Replacement, makes_a_file_that_was_not_there) {
    const mode_t mask = umask(027);
    EXPECT_TRUE(ReplacementFile(m_directory.Number(), "f").Replace(""));
    umask(mask);
    EXPECT_EQ("", read_file(m_folder.File("f")));
    EXPECT_EQ(0640U, ModeOf("f"));
}

TEST_F(Replacement, keeps_the_mode) {
    lvx_test::write_file(m_folder.File("f"), "old");
    for (const mode_t mode : {0600U, 0664U, 0755U, 0606U}) {
        ASSERT_EQ(0, chmod(m_folder.File("f").c_str(), mode));
        EXPECT_TRUE(ReplacementFile(m_directory.Number(), "f").Replace("new"));
        EXPECT_EQ(mode, ModeOf("f"));
    }
}

TEST_F(Replacement, keeps_the_owner_where_that_is_allowed) {
    lvx_test::write_file(m_folder.File("f"), "old");
    const bool is_allowed = chown(m_folder.File("f").c_str(), 12345, 23456) == 0;
    EXPECT_TRUE(ReplacementFile(m_directory.Number(), "f").Replace("new"));
    struct stat status {};
    ASSERT_EQ(0, stat(m_folder.File("f").c_str(), &status));
    EXPECT_EQ(is_allowed ? 12345U : getuid(), status.st_uid);
    EXPECT_EQ(is_allowed ? 23456U : getgid(), status.st_gid);
}

TEST_F(Replacement, leaves_nothing_if_it_is_not_put_in_place) {
    lvx_test::write_file(m_folder.File("f"), "old");
    {
        const ReplacementFile file(m_directory.Number(), "f");
        EXPECT_EQ(2U, folder_names(m_folder.Path()).size());
    }
    EXPECT_EQ(Names{"f"}, folder_names(m_folder.Path()));
    EXPECT_EQ("old", read_file(m_folder.File("f")));
}

TEST_F(Replacement, fails_where_the_name_is_a_directory) {
    ASSERT_EQ(0, mkdir(m_folder.File("d").c_str(), 0700));
    EXPECT_FALSE(ReplacementFile(m_directory.Number(), "d").Replace("new"));
    EXPECT_EQ(Names{"d"}, folder_names(m_folder.Path()));
    EXPECT_FALSE(ReplacementFile(-1, "f").Replace("new"));
}

TEST_F(Replacement, who_has_the_old_file_open_reads_it_to_its_end) {
    lvx_test::write_file(m_folder.File("f"), "old");
    std::ifstream reader(m_folder.File("f"));
    EXPECT_TRUE(ReplacementFile(m_directory.Number(), "f").Replace("other"));
    std::string content;
    EXPECT_TRUE(reader >> content);
    EXPECT_EQ("old", content);
}

// Killed processes leave their files, and process numbers come again.
TEST_F(Replacement, steps_over_files_that_were_left) {
    const ReplacementFile first(m_directory.Number(), "f");
    const std::string name = folder_names(m_folder.Path()).at(0);
    const std::size_t number_begin = name.find('-', 5) + 1;
    const int number = std::stoi(name.substr(number_begin));
    Names left;
    for (int i = 1; i <= 3; ++i) {
        left.push_back(name.substr(0, number_begin) + std::to_string(number + i) + ".new");
        lvx_test::write_file(m_folder.File(left.back()), "left");
    }
    EXPECT_TRUE(ReplacementFile(m_directory.Number(), "f").Replace("new"));
    EXPECT_EQ("new", read_file(m_folder.File("f")));
    for (const std::string& each : left) {
        EXPECT_EQ("left", read_file(m_folder.File(each)));
    }
}
