#include "lvx/platform/posix/storage_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstring>
#include <filesystem>

#include "platform/storage_calls.h"
#include "support/bytes.h"
#include "support/temp_folder.h"

using lvx::platform::StorageFile;
using lvx_test::code;
using lvx_test::wide;

namespace {

class StorageFiles : public ::testing::Test {
protected:
    std::string ReadCode(const std::string& name) {
        StorageFile file;
        const HRESULT result = lvx::platform::open_to_read(wide(name).c_str(), file);
        EXPECT_EQ(SUCCEEDED(result), file != nullptr);
        return code(result);
    }
    std::string ReplaceCode(const std::string& name) {
        StorageFile file;
        const HRESULT result = lvx::platform::open_to_replace(wide(name).c_str(), file);
        EXPECT_EQ(SUCCEEDED(result), file != nullptr);
        return code(result);
    }

    lvx_test::TempFolder m_folder;
    std::string m_name = m_folder.File("file");
};

// Whoever runs the tests, somebody who may not do everything while this lives.
class NobodySpecial {
public:
    NobodySpecial() : m_was_root(geteuid() == 0) {
        if (m_was_root && seteuid(65534) != 0) {
            ADD_FAILURE() << "root cannot become nobody";
        }
    }
    NobodySpecial(const NobodySpecial&) = delete;
    NobodySpecial& operator=(const NobodySpecial&) = delete;
    ~NobodySpecial() {
        if (m_was_root && seteuid(0) != 0) {
            ADD_FAILURE() << "nobody cannot become root again";
        }
    }

private:
    bool m_was_root;
};

}  // namespace

TEST_F(StorageFiles, open_for_reading_as_they_are) {
    lvx_test::write_file(m_name, "content");
    StorageFile file;
    ASSERT_EQ("", code(lvx::platform::open_to_read(wide(m_name).c_str(), file)));
    EXPECT_EQ(7u, lvx::platform::file_length(file.get()));
}

TEST_F(StorageFiles, are_empty_when_they_are_replaced) {
    lvx_test::write_file(m_name, "content");
    StorageFile file;
    ASSERT_EQ("", code(lvx::platform::open_to_replace(wide(m_name).c_str(), file)));
    EXPECT_EQ(0u, lvx::platform::file_length(file.get()));
}

TEST_F(StorageFiles, keep_their_content_while_somebody_reads_it) {
    lvx_test::write_file(m_name, "content");
    StorageFile reader;
    ASSERT_EQ("", code(lvx::platform::open_to_read(wide(m_name).c_str(), reader)));
    EXPECT_EQ("80030020", ReplaceCode(m_name));
    EXPECT_EQ("", ReadCode(m_name));
    EXPECT_EQ("content", lvx_test::read_file(m_name));
    reader.reset();
    EXPECT_EQ("", ReplaceCode(m_name));
}

TEST_F(StorageFiles, tell_what_is_missing) {
    EXPECT_EQ("80030002", ReadCode(m_name));
    EXPECT_EQ("80030003", ReadCode(m_folder.File("missing") + "/file"));
    EXPECT_EQ("80030003", ReplaceCode(m_folder.File("missing") + "/file"));
    lvx_test::write_file(m_name, "a file is no folder");
    EXPECT_EQ("80030003", ReadCode(m_name + "/file"));
}

TEST_F(StorageFiles, are_no_folders_pipes_or_devices) {
    EXPECT_EQ("80030005", ReadCode(m_folder.Path()));
    EXPECT_EQ("80030005", ReplaceCode(m_folder.Path()));
    ASSERT_EQ(0, mkfifo(m_name.c_str(), 0600));
    EXPECT_EQ("80030005", ReadCode(m_name)) << "and nobody waits for the other end";
    EXPECT_EQ("80030005", ReplaceCode(m_name));
    EXPECT_EQ("80030005", ReadCode("/dev/null"));
    EXPECT_EQ("80030005", ReplaceCode("/dev/full"));
}

TEST_F(StorageFiles, tell_of_names_that_no_file_has) {
    EXPECT_EQ("800300fc", ReadCode(""));
    EXPECT_EQ("800300fc", ReplaceCode(""));
    EXPECT_EQ("800300fc", ReadCode(m_folder.File(std::string(300, 'a'))));
    EXPECT_EQ("80030003", ReadCode("/proc/self/exe/x"));
}

TEST_F(StorageFiles, tell_of_links_in_a_circle) {
    std::filesystem::create_symlink("file", m_name);
    EXPECT_EQ("80030003", ReadCode(m_name));
}

TEST_F(StorageFiles, tell_that_somebody_may_not) {
    lvx_test::write_file(m_name, "content");
    std::filesystem::permissions(m_folder.Path(), std::filesystem::perms(0555));
    std::filesystem::permissions(m_name, std::filesystem::perms(0444));
    const std::string secret = m_folder.File("secret");
    lvx_test::write_file(secret, "content");
    std::filesystem::permissions(secret, std::filesystem::perms(0));
    {
        const NobodySpecial nobody;
        EXPECT_EQ("", ReadCode(m_name));
        EXPECT_EQ("80030005", ReplaceCode(m_name));
        EXPECT_EQ("80030005", ReplaceCode(m_folder.File("new")));
        EXPECT_EQ("80030005", ReadCode(secret));
    }
    std::filesystem::permissions(m_folder.Path(), std::filesystem::perms(0755));
    EXPECT_EQ("content", lvx_test::read_file(m_name));
}

TEST_F(StorageFiles, tell_of_a_program_that_runs) {
    std::filesystem::copy_file("/bin/sleep", m_name);
    // Whoever opens the file to write it keeps it from running: the copy is closed by now.
    const pid_t child = fork();
    if (child == 0) {
        execl(m_name.c_str(), "sleep", "60", nullptr);
        _exit(127);
    }
    const std::string program = "/proc/" + std::to_string(child) + "/exe";
    while (std::filesystem::read_symlink(program) != std::filesystem::canonical(m_name) &&
           waitpid(child, nullptr, WNOHANG) == 0) {
        usleep(1000);
    }
    EXPECT_EQ("80030020", ReplaceCode(m_name));
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    EXPECT_EQ("", ReplaceCode(m_name));
}

TEST_F(StorageFiles, tell_that_too_many_are_open) {
    lvx_test::write_file(m_name, "content");
    rlimit before{};
    getrlimit(RLIMIT_NOFILE, &before);
    const rlimit none{0, before.rlim_max};
    setrlimit(RLIMIT_NOFILE, &none);
    const std::string result = ReadCode(m_name);
    setrlimit(RLIMIT_NOFILE, &before);
    EXPECT_EQ("80030004", result);
}

TEST_F(StorageFiles, are_no_sockets) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, m_name.c_str(), sizeof address.sun_path - 1);
    const int socket_descriptor = socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(0, bind(socket_descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address));
    EXPECT_EQ("80030005", ReadCode(m_name));
    close(socket_descriptor);
}

TEST_F(StorageFiles, in_the_current_folder_are_missing_without_a_missing_folder) {
    EXPECT_EQ("80030002", ReadCode("lvx-there-is-no-such-file"));
}

TEST_F(StorageFiles, that_must_not_shrink_are_not_replaced) {
    const int sealed = memfd_create("sealed", MFD_ALLOW_SEALING);
    ASSERT_EQ(7, write(sealed, "content", 7));
    ASSERT_EQ(0, fcntl(sealed, F_ADD_SEALS, F_SEAL_SHRINK));
    const std::string name = "/proc/self/fd/" + std::to_string(sealed);
    EXPECT_EQ("80030005", ReplaceCode(name));
    EXPECT_EQ("content", lvx_test::read_file(name));
    close(sealed);
}

TEST_F(StorageFiles, without_their_bytes_or_their_descriptor_are_not_read) {
    const StorageFile only_written(std::fopen(m_name.c_str(), "wb"));
    char byte = 'x';
    EXPECT_FALSE(lvx::platform::read_at(only_written.get(), 0, &byte, 1));
    EXPECT_TRUE(lvx::platform::read_at(only_written.get(), 0, &byte, 0));
    const StorageFile closed(std::fopen(m_name.c_str(), "rb"));
    close(fileno(closed.get()));
    EXPECT_EQ(0u, lvx::platform::file_length(closed.get()));
    EXPECT_FALSE(lvx::platform::read_at(closed.get(), 0, &byte, 1));
}
