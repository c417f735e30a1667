// What a system without drives adds: mapped folders, links, permissions, names of any bytes.
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <vector>

#include "lvx/platform/directories.h"
#include "lvx/platform/drives.h"
#include "lvx/platform/find_files.h"
#include "support/drive_folder.h"

namespace {

namespace fs = std::filesystem;

std::string current() {
    char directory[500];
    return _getcwd(directory, sizeof directory) == nullptr ? "none" : directory;
}

std::string current_of(char letter) {
    char directory[lvx::platform::longest_drive_directory];
    return lvx::platform::_getcurdir(letter - '@', directory) == 0 ? directory : "none";
}

bool is_there(const std::string& path) {
    return _access(path.c_str(), 0) == 0;
}

int kind_of(const std::string& path) {
    struct _stat64 status;
    return _stat64(path.c_str(), &status) == 0 ? status.st_mode : -1;
}

std::vector<std::string> found(const std::string& pattern, int attributes = lvx::platform::find_directories) {
    std::vector<std::string> names;
    lvx::platform::FindBlock block;
    for (int result = findfirst(pattern.c_str(), block, attributes); result == 0; result = findnext(block)) {
        names.push_back(block.name);
    }
    std::sort(names.begin(), names.end());
    return names;
}

/// Two folders as D: and E:, D: the current drive.
class LinuxDirectories : public ::testing::Test {
protected:
    LinuxDirectories() {
        fs::create_directories(m_d.File("sub/deep"));
        fs::create_directories(m_e.File("other"));
        EXPECT_TRUE(lvx::map_drive('D', m_d.Path()));
        EXPECT_TRUE(lvx::map_drive('E', m_e.Path()));
        fs::current_path(m_d.Path());
    }
    ~LinuxDirectories() override {
        lvx::unmap_drive('D');
        lvx::unmap_drive('E');
    }

    lvx_test::KeptDirectory m_kept;
    lvx_test::TempFolder m_d;
    lvx_test::TempFolder m_e;
};

using Names = std::vector<std::string>;

}  // namespace

TEST_F(LinuxDirectories, each_drive_has_a_directory_of_its_own) {
    EXPECT_EQ(0, _chdir("D:\\sub"));
    EXPECT_EQ(0, _chdir("E:\\other"));
    EXPECT_EQ("E:\\other", current());
    EXPECT_EQ("sub", current_of('D'));
    EXPECT_EQ("other", current_of('E'));
    EXPECT_EQ(1, SetCurrentDirectoryA("D:"));
    EXPECT_EQ("D:\\sub", current());
    EXPECT_EQ("other", current_of('E'));
    EXPECT_TRUE(is_there("D:deep"));
    EXPECT_TRUE(is_there("E:..\\other"));
    EXPECT_FALSE(is_there("E:other"));
}

TEST_F(LinuxDirectories, a_drive_that_is_left_keeps_its_directory_however_it_came_there) {
    fs::current_path(m_d.File("sub/deep"));
    EXPECT_EQ(0, _chdir("E:\\"));
    EXPECT_EQ("sub\\deep", current_of('D'));
    EXPECT_EQ(1, SetCurrentDirectoryA("D:"));
    EXPECT_EQ("D:\\sub\\deep", current());
}

TEST_F(LinuxDirectories, a_drive_starts_at_its_root) {
    EXPECT_EQ("", current_of('E'));
    EXPECT_EQ("none", current_of('F'));
    EXPECT_EQ(1, SetCurrentDirectoryA("E:"));
    EXPECT_EQ("E:\\", current());
}

TEST_F(LinuxDirectories, the_directory_is_told_with_the_longest_folder) {
    const std::string by_root = lvx_test::drive_path(fs::canonical(m_d.Path()).string());
    EXPECT_EQ(0, _chdir((by_root + "\\sub").c_str()));
    EXPECT_EQ("D:\\sub", current());
    EXPECT_EQ(by_root.substr(3) + "\\sub", current_of('C')) << "and is the named drive's as well";
}

TEST_F(LinuxDirectories, no_drive_leads_to_what_is_outside) {
    fs::current_path("/");
    ASSERT_TRUE(lvx::map_drive('C', m_d.File("sub")));
    EXPECT_EQ("none", current());
    EXPECT_EQ("", current_of('C'));
    EXPECT_EQ(-1, _chdir("\\usr"));
    EXPECT_EQ(0, _chdir("C:\\deep"));
    EXPECT_EQ("C:\\deep", current());
    ASSERT_TRUE(lvx::map_drive('C', "/"));
}

TEST_F(LinuxDirectories, a_directory_that_is_gone_is_not_told) {
    fs::create_directory(m_d.File("gone"));
    fs::current_path(m_d.File("gone"));
    fs::remove(m_d.File("gone"));
    EXPECT_EQ("none", current());
    EXPECT_FALSE(is_there("x"));
    EXPECT_TRUE(found("*").size() <= 2) << "at most \".\" and \"..\"";
}

TEST_F(LinuxDirectories, a_drive_whose_folder_is_gone_is_not_there) {
    fs::create_directory(m_d.File("root"));
    ASSERT_TRUE(lvx::map_drive('E', m_d.File("root")));
    EXPECT_EQ(DRIVE_FIXED, GetDriveTypeA("E:\\"));
    fs::remove(m_d.File("root"));
    EXPECT_EQ(DRIVE_NO_ROOT_DIR, GetDriveTypeA("E:\\"));
    EXPECT_EQ(0, SetCurrentDirectoryA("E:"));
}

TEST_F(LinuxDirectories, a_directory_of_more_than_255_characters_is_no_drives_answer) {
    const std::string name(250, 'n');
    fs::create_directories(m_d.File(name + "/" + name));
    fs::current_path(m_d.File(name));
    EXPECT_EQ(name, current_of('D'));
    EXPECT_EQ("D:\\" + name, current());
    fs::current_path(m_d.File(name + "/" + name));
    EXPECT_EQ("none", current_of('D'));
    EXPECT_EQ("none", current()) << "504 characters do not fit into 500";
}

TEST_F(LinuxDirectories, a_path_longer_than_the_system_takes_can_still_be_walked) {
    const std::string name(250, 'n');
    for (int i = 0; i < 20; ++i) {
        ASSERT_EQ(0, mkdir(name.c_str(), 0700));
        ASSERT_EQ(0, _chdir(name.c_str()));
    }
    EXPECT_EQ("none", current());
    EXPECT_EQ(0, mkdir("here", 0700));
    EXPECT_EQ(_S_IFDIR, kind_of("here"));
    EXPECT_EQ(-1, kind_of("..\\" + name)) << "that would have to be told from the root";
    EXPECT_EQ((Names{"here"}), found("h*"));
}

TEST_F(LinuxDirectories, links_are_followed_and_loops_lead_nowhere) {
    fs::create_symlink("sub", m_d.File("link"));
    fs::create_symlink("loop", m_d.File("loop"));
    fs::create_symlink("missing", m_d.File("broken"));
    EXPECT_EQ(_S_IFDIR, kind_of("D:\\link"));
    EXPECT_TRUE(is_there("D:\\link\\deep"));
    for (const char* path : {"D:\\loop", "D:\\loop\\x", "D:\\broken"}) {
        EXPECT_EQ(-1, kind_of(path)) << path;
        EXPECT_FALSE(is_there(path)) << path;
    }
    EXPECT_EQ((Names{"link", "loop"}), found("D:\\l*")) << "a name is a name";
    EXPECT_EQ((Names{"loop"}), found("D:\\l*", 0));
    EXPECT_EQ(-1, _chdir("D:\\loop"));
}

TEST_F(LinuxDirectories, what_is_neither_file_nor_directory_has_no_kind) {
    ASSERT_EQ(0, mkfifo(m_d.File("pipe").c_str(), 0600));
    EXPECT_EQ(0, kind_of("D:\\pipe"));
    EXPECT_EQ(0, kind_of("C:\\dev\\null"));
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const std::string name =
        m_d.File("socket").copy(address.sun_path, sizeof address.sun_path - 1) != 0 ? address.sun_path : "";
    const int socket_file = socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(0, bind(socket_file, reinterpret_cast<const sockaddr*>(&address), sizeof address)) << name;
    close(socket_file);
    EXPECT_EQ(0, kind_of("D:\\socket")) << "its own bits are those of both";
}

TEST_F(LinuxDirectories, the_case_of_names_counts) {
    lvx_test::write_file(m_d.File("Name.TXT"), "");
    EXPECT_TRUE(is_there("d:\\Name.TXT"));
    EXPECT_FALSE(is_there("d:\\name.txt"));
    EXPECT_EQ((Names{"Name.TXT"}), found("D:\\N*"));
    EXPECT_EQ(Names(), found("D:\\n*"));
}

TEST_F(LinuxDirectories, names_with_a_backslash_are_not_found) {
    lvx_test::write_file(m_d.File("sub/a\\b"), "");
    lvx_test::write_file(m_d.File("sub/a+b"), "");
    EXPECT_EQ((Names{"a+b"}), found("D:\\sub\\a*"));
}

TEST_F(LinuxDirectories, names_may_have_any_other_bytes) {
    const std::string odd = "\xFF\xFE \xE4?*:\n";
    lvx_test::write_file(m_d.File("sub/" + odd), "");
    EXPECT_EQ((Names{odd}), found("D:\\sub\\\xFF*"));
    EXPECT_EQ((Names{odd}), found("D:\\sub\\?\xFE*"));
    EXPECT_EQ(_S_IFREG, kind_of("D:\\sub\\" + odd));
}

TEST_F(LinuxDirectories, dot_files_are_files_like_others) {
    lvx_test::write_file(m_d.File("sub/.profile"), "");
    EXPECT_EQ((Names{".", "..", ".profile"}), found("D:\\sub\\.*"));
}

TEST_F(LinuxDirectories, what_may_not_be_read_finds_nothing) {
    fs::create_directory(m_d.File("closed"));
    lvx_test::write_file(m_d.File("closed/f"), "");
    ASSERT_EQ(0, chmod(m_d.File("closed").c_str(), 0));
    if (geteuid() == 0) {
        ASSERT_EQ(0, seteuid(65534));  // root may read all
    }
    EXPECT_EQ(Names(), found("D:\\closed\\*"));
    EXPECT_FALSE(is_there("D:\\closed\\f"));
    EXPECT_EQ(-1, kind_of("D:\\closed\\f"));
    EXPECT_EQ(-1, _chdir("D:\\closed"));
    if (getuid() == 0) {
        ASSERT_EQ(0, seteuid(0));
    }
    ASSERT_EQ(0, chmod(m_d.File("closed").c_str(), 0700));
}
