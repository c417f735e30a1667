#include "lvx/platform/posix/storage_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

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
