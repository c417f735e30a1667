#include "lvx/platform/posix/profile_writer.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include "lvx/platform/posix/profile_file.h"
#include "lvx/platform/profile.h"
#include "lvx/platform/profile_directory.h"
#include "platform/posix/folder_names.h"
#include "support/bytes.h"
#include "support/temp_folder.h"

namespace {

using namespace lvx::platform;
using lvx_test::folder_names;
using lvx_test::read_file;
using Names = std::vector<std::string>;

class ProfileWriter : public ::testing::Test {
protected:
    bool Write(const std::string& name, const std::string& key, const std::string& value) const {
        return write_profile({m_folder.File(name), false}, "s", key, value);
    }

    /// Does it in a process of its own, as one that is not the superuser, and tells whether it gave true.
    template <class Work>
    static bool InProcess(Work work) {
        const pid_t process = fork();
        if (process == 0) {
            _exit(work() ? 0 : 1);
        }
        int status = 0;
        EXPECT_EQ(process, waitpid(process, &status, 0));
        EXPECT_TRUE(WIFEXITED(status));
        return WEXITSTATUS(status) == 0;
    }

    static bool BecomeNobody() {
        constexpr uid_t nobody = 65534;
        return geteuid() != 0 || (setgid(nobody) == 0 && setuid(nobody) == 0);
    }

    lvx_test::TempFolder m_folder;
};

}  // namespace

TEST_F(ProfileWriter, a_file_is_made_and_changed) {
    EXPECT_TRUE(Write("f", "a", "1"));
    EXPECT_TRUE(Write("f", "b", "2"));
    EXPECT_TRUE(Write("f", "a", "3"));
    EXPECT_EQ("[s]\r\na=3\r\nb=2\r\n", read_file(m_folder.File("f")));
    EXPECT_EQ(Names{"f"}, folder_names(m_folder.Path()));
}

TEST_F(ProfileWriter, an_equal_value_leaves_the_file_itself) {
    lvx_test::write_file(m_folder.File("f"), "[s]\na=1\n");
    struct stat before {};
    struct stat after {};
    ASSERT_EQ(0, stat(m_folder.File("f").c_str(), &before));
    EXPECT_TRUE(Write("f", "a", "1"));
    ASSERT_EQ(0, stat(m_folder.File("f").c_str(), &after));
    EXPECT_EQ(before.st_ino, after.st_ino);
    EXPECT_TRUE(Write("f", "a", "2"));
    ASSERT_EQ(0, stat(m_folder.File("f").c_str(), &after));
    EXPECT_NE(before.st_ino, after.st_ino);
}

TEST_F(ProfileWriter, a_value_of_any_length_is_written) {
    const std::string value(100'000, 'v');
    EXPECT_TRUE(Write("f", "a", value));
    EXPECT_TRUE(read_file(m_folder.File("f")) == "[s]\r\na=" + value + "\r\n");
}

TEST_F(ProfileWriter, a_link_stays_and_its_file_changes) {
    ASSERT_TRUE(std::filesystem::create_directory(m_folder.File("d")));
    std::filesystem::create_symlink("d/f", m_folder.File("link"));
    EXPECT_TRUE(Write("link", "a", "1"));
    EXPECT_TRUE(Write("link", "a", "2"));
    EXPECT_TRUE(std::filesystem::is_symlink(m_folder.File("link")));
    EXPECT_EQ("[s]\r\na=2\r\n", read_file(m_folder.File("d/f")));
    EXPECT_EQ(Names{"f"}, folder_names(m_folder.File("d")));
}

TEST_F(ProfileWriter, what_is_no_file_stays) {
    ASSERT_EQ(0, mkfifo(m_folder.File("pipe").c_str(), 0600));
    ASSERT_EQ(0, mkdir(m_folder.File("directory").c_str(), 0700));
    std::filesystem::create_symlink("circle", m_folder.File("circle"));
    EXPECT_FALSE(Write("pipe", "a", "1"));
    EXPECT_FALSE(Write("directory", "a", "1"));
    EXPECT_FALSE(Write("circle", "a", "1"));
    EXPECT_FALSE(Write("none/f", "a", "1"));
    EXPECT_FALSE(Write(std::string(300, 'n'), "a", "1"));
    EXPECT_FALSE(write_profile({"", false}, "s", "a", "1"));
    EXPECT_EQ((Names{"circle", "directory", "pipe"}), folder_names(m_folder.Path()));
    EXPECT_TRUE(std::filesystem::is_fifo(m_folder.File("pipe")));
}

TEST_F(ProfileWriter, a_file_is_not_made_larger_than_can_be_read) {
    lvx_test::write_file(m_folder.File("f"), "[s]\nb=1\n");
    std::filesystem::resize_file(m_folder.File("f"), largest_profile - 2);
    EXPECT_FALSE(Write("f", "a", "1"));
    EXPECT_EQ(largest_profile - 2, std::filesystem::file_size(m_folder.File("f")));
    EXPECT_TRUE(Write("f", "b", "23"));
}

// Each write once put another line with U+FFFD into the file, and none was read back.
TEST_F(ProfileWriter, what_has_no_place_in_utf_16_is_not_written) {
    const std::string utf8 = "k=\xC3\xA9";
    for (const std::string& content :
         {std::string("\xFF\xFE[\0s\0]\0\n\0", 10), std::string("\xFE\xFF\0[\0s\0]\0\n", 10),
          std::string("\xFF\xFE", 2)}) {
        lvx_test::write_file(m_folder.File("f"), content);
        EXPECT_FALSE(Write("f",
                           "gr\xF6\xDF"
                           "e",
                           "1"));
        EXPECT_FALSE(Write("f", "k",
                           "gr\xFC"
                           "n"));
        EXPECT_FALSE(Write("f", "k", "\xC3"));
        EXPECT_FALSE(write_profile({m_folder.File("f"), false}, "\xE9", "k", "1"));
        // Two halves of a character, each written as a character, would come back as one.
        EXPECT_FALSE(Write("f", "k", "\xED\xA0\xBD\xED\xB8\x80"));
        EXPECT_EQ(content, read_file(m_folder.File("f")));
    }
}

TEST_F(ProfileWriter, what_has_a_place_in_utf_16_is_written) {
    lvx_test::write_file(m_folder.File("f"), std::string("\xFF\xFE[\0s\0]\0\n\0", 10));
    EXPECT_TRUE(Write("f", "k", "\xC3\xA9\xEF\xBF\xBD\xF0\x9F\x98\x80\xED\xA0\xBD"));
    EXPECT_EQ(std::string("\xFF\xFE[\0s\0]\0\n\0k\0=\0\xE9\0\xFD\xFF\x3D\xD8\x00\xDE\x3D\xD8\n\0", 26),
              read_file(m_folder.File("f")));
}

// It became the mark of the file, which then was read as one of another encoding, without its settings.
TEST_F(ProfileWriter, a_first_key_that_looks_like_a_byte_order_mark_is_not_written) {
    for (const std::string content : {"[s]\nk=v\n", ""}) {
        lvx_test::write_file(m_folder.File("f"), content);
        for (const char* const mark : {"\xFF\xFE", "\xFE\xFF", "\xEF\xBB\xBF"}) {
            const std::string key = std::string(mark) + "kk";
            EXPECT_FALSE(write_profile({m_folder.File("f"), false}, "", key, "1"));
            EXPECT_FALSE(write_profile({m_folder.File("none"), false}, "", key, "1"));
            EXPECT_EQ(content, read_file(m_folder.File("f")));
        }
    }
    EXPECT_EQ(Names{"f"}, folder_names(m_folder.Path()));
}

TEST_F(ProfileWriter, a_key_that_looks_like_a_byte_order_mark_is_one_like_others_elsewhere) {
    lvx_test::write_file(m_folder.File("f"), "a=1\n[s]\n");
    EXPECT_TRUE(Write("f", "\xFF\xFEk", "2"));
    EXPECT_TRUE(write_profile({m_folder.File("f"), false}, "", "\xEF\xBB\xBF", "3"));
    EXPECT_EQ("a=1\n\xEF\xBB\xBF=3\n[s]\n\xFF\xFEk=2\n", read_file(m_folder.File("f")));
    lvx_test::write_file(m_folder.File("g"), "\xEF\xBB\xBF[s]\n");
    EXPECT_TRUE(write_profile({m_folder.File("g"), false}, "", "\xEF\xBB\xBFk", "4"));
    EXPECT_EQ("\xEF\xBB\xBF\xEF\xBB\xBFk=4\n[s]\n", read_file(m_folder.File("g")));
}

TEST_F(ProfileWriter, a_read_only_file_and_a_read_only_folder_stay) {
    lvx_test::write_file(m_folder.File("f"), "[s]\r\na=1\r\n");
    std::filesystem::permissions(m_folder.Path(), std::filesystem::perms::all);
    ASSERT_EQ(0, chmod(m_folder.File("f").c_str(), 0444));
    EXPECT_FALSE(InProcess([&] { return BecomeNobody() && Write("f", "a", "2"); }));
    ASSERT_EQ(0, chmod(m_folder.File("f").c_str(), 0666));
    EXPECT_TRUE(InProcess([&] { return BecomeNobody() && Write("f", "a", "3"); }));
    ASSERT_EQ(0, chmod(m_folder.Path().c_str(), 0555));
    EXPECT_FALSE(InProcess([&] { return BecomeNobody() && Write("f", "a", "4"); }));
    EXPECT_FALSE(InProcess([&] { return BecomeNobody() && Write("g", "a", "4"); }));
    ASSERT_EQ(0, chmod(m_folder.Path().c_str(), 0755));
    EXPECT_EQ("[s]\r\na=3\r\n", read_file(m_folder.File("f")));
    EXPECT_EQ(Names{"f"}, folder_names(m_folder.Path()));
}

TEST_F(ProfileWriter, a_full_disk_leaves_the_old_file_and_nothing_else) {
    const std::string before = "[s]\r\na=1\r\n;" + std::string(5000, 'x') + "\r\n";
    lvx_test::write_file(m_folder.File("f"), before);
    EXPECT_FALSE(InProcess([&] {
        constexpr rlimit limit{4096, 4096};
        return signal(SIGXFSZ, SIG_IGN) != SIG_ERR && setrlimit(RLIMIT_FSIZE, &limit) == 0 &&
               Write("f", "a", "2");
    }));
    EXPECT_EQ(before, read_file(m_folder.File("f")));
    EXPECT_EQ(Names{"f"}, folder_names(m_folder.Path()));
}

TEST_F(ProfileWriter, processes_and_threads_that_write_at_once_lose_nothing) {
    constexpr int keys = 12;
    const auto write_all = [&](const std::string& name) {
        bool good = true;
        for (int i = 0; i < keys; ++i) {
            good = Write("f", name + std::to_string(i), "v") && good;
        }
        return good;
    };
    std::vector<pid_t> processes;
    for (const char* const name : {"p", "q"}) {
        processes.push_back(fork());
        if (processes.back() == 0) {
            _exit(write_all(name) ? 0 : 1);
        }
    }
    bool thread_was_good = false;
    std::thread other([&] { thread_was_good = write_all("t"); });
    EXPECT_TRUE(write_all("u"));
    other.join();
    EXPECT_TRUE(thread_was_good);
    for (const pid_t process : processes) {
        int status = -1;
        EXPECT_EQ(process, waitpid(process, &status, 0));
        EXPECT_EQ(0, status);
    }
    for (const char* const name : {"p", "q", "t", "u"}) {
        for (int i = 0; i < keys; ++i) {
            const std::string key = name + std::to_string(i);
            char value[4];
            EXPECT_EQ(1U, GetPrivateProfileStringA("s", key.c_str(), "", value, sizeof value,
                                                   m_folder.File("f").c_str()))
                << key;
        }
    }
    EXPECT_EQ(Names{"f"}, folder_names(m_folder.Path()));
}

TEST_F(ProfileWriter, readers_meanwhile_see_whole_files) {
    const std::string values[] = {std::string(3000, '1'), std::string(20, '2')};
    ASSERT_TRUE(Write("f", "a", values[0]));
    const pid_t process = fork();
    if (process == 0) {
        for (int i = 0; i < 40; ++i) {
            Write("f", "a", values[i % 2]);
        }
        _exit(0);
    }
    int status = 0;
    int reads = 0;
    while (waitpid(process, &status, WNOHANG) == 0 || reads == 0) {
        std::string buffer(4096, '\0');
        const DWORD count =
            GetPrivateProfileStringA("s", "a", "", buffer.data(), 4096, m_folder.File("f").c_str());
        buffer.resize(count);
        ASSERT_TRUE(buffer == values[0] || buffer == values[1]) << buffer;
        ++reads;
    }
}

TEST_F(ProfileWriter, the_profile_directory_is_made_when_it_is_needed) {
    lvx::set_profile_directory(m_folder.File("home/.config"));
    EXPECT_NE(0, WritePrivateProfileStringA("s", "a", "1", "Tool.INI"));
    lvx::set_profile_directory("");
    EXPECT_EQ("[s]\r\na=1\r\n", read_file(m_folder.File("home/.config/Tool.INI")));
    struct stat status {};
    ASSERT_EQ(0, stat(m_folder.File("home/.config").c_str(), &status));
    EXPECT_EQ(0700U, status.st_mode & 0777U);
}

TEST_F(ProfileWriter, a_profile_directory_that_cannot_be_made_fails_the_write) {
    lvx_test::write_file(m_folder.File("f"), "");
    lvx::set_profile_directory(m_folder.File("f/below/it"));
    EXPECT_EQ(0, WritePrivateProfileStringA("s", "a", "1", "Tool.INI"));
    lvx::set_profile_directory("");
}

TEST_F(ProfileWriter, null_names_read_the_default_and_write_nothing) {
    const std::string file = m_folder.File("f");
    lvx_test::write_file(file, "[s]\na=1\n");
    char value[8];
    EXPECT_EQ(1U, GetPrivateProfileStringA(nullptr, "a", "D", value, sizeof value, file.c_str()));
    EXPECT_STREQ("D", value);
    EXPECT_EQ(1U, GetPrivateProfileStringA("s", nullptr, "D", value, sizeof value, file.c_str()));
    EXPECT_EQ(1U, GetPrivateProfileStringA("s", "a", "D", value, sizeof value, nullptr));
    EXPECT_STREQ("D", value);
    EXPECT_EQ(0U, GetPrivateProfileStringA("s", "a", "D", nullptr, 8, file.c_str()));
    EXPECT_EQ(7U, GetPrivateProfileIntA("s", nullptr, 7, file.c_str()));
    EXPECT_EQ(0, WritePrivateProfileStringA(nullptr, "a", "2", file.c_str()));
    EXPECT_EQ(0, WritePrivateProfileStringA("s", nullptr, "2", file.c_str()));
    EXPECT_EQ(0, WritePrivateProfileStringA("s", "a", nullptr, file.c_str()));
    EXPECT_EQ(0, WritePrivateProfileStringA("s", "a", "2", nullptr));
    EXPECT_EQ("[s]\na=1\n", read_file(file));
}
