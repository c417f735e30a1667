// Each call to the system that a write makes fails in turn. The calls are put in front of the C library's.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <string>
#include <vector>

#include "lvx/platform/profile.h"
#include "platform/posix/folder_names.h"
#include "support/allocation.h"
#include "support/bytes.h"
#include "support/temp_folder.h"

namespace {

// The call that fails, counted from 0; none if negative.
int calls_until_failure = -1;
int failure = 0;

bool fails() {
    if (calls_until_failure < 0 || calls_until_failure-- > 0) {
        return false;
    }
    errno = failure;
    return true;
}

template <class Function>
Function* original(Function* /*type*/, const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

extern "C" {

int fstat(int file, struct stat* status) noexcept {
    return fails() ? -1 : original(&fstat, "fstat")(file, status);
}

int fstatat(int directory, const char* name, struct stat* status, int flags) noexcept {
    return fails() ? -1 : original(&fstatat, "fstatat")(directory, name, status, flags);
}

ssize_t read(int file, void* data, size_t size) {
    return fails() ? -1 : original(&read, "read")(file, data, size);
}

ssize_t write(int file, const void* data, size_t size) {
    return fails() ? -1 : original(&write, "write")(file, data, size);
}

int fsync(int file) {
    return fails() ? -1 : original(&fsync, "fsync")(file);
}

int fchown(int file, uid_t owner, gid_t group) noexcept {
    return fails() ? -1 : original(&fchown, "fchown")(file, owner, group);
}

int fchmod(int file, mode_t mode) noexcept {
    return fails() ? -1 : original(&fchmod, "fchmod")(file, mode);
}

int faccessat(int directory, const char* name, int mode, int flags) noexcept {
    return fails() ? -1 : original(&faccessat, "faccessat")(directory, name, mode, flags);
}

int renameat(int directory, const char* name, int other_directory, const char* other_name) noexcept {
    return fails() ? -1 : original(&renameat, "renameat")(directory, name, other_directory, other_name);
}

int flock(int file, int operation) noexcept {
    return fails() ? -1 : original(&flock, "flock")(file, operation);
}
}

namespace {

using Names = std::vector<std::string>;

const std::string before = "[s]\r\na=1\r\n";
const std::string after = "[s]\r\na=2\r\n";

class ProfileFaults : public ::testing::Test {
protected:
    ProfileFaults() : m_file(m_folder.File("f")) {}
    ~ProfileFaults() override { calls_until_failure = -1; }

    /// The result of writing with one call that fails.
    bool Write(int call, int error) {
        failure = error;
        calls_until_failure = call;
        const bool result = WritePrivateProfileStringA("s", "a", "2", m_file.c_str()) != 0;
        m_failed = calls_until_failure < 0;
        calls_until_failure = -1;
        return result;
    }

    lvx_test::TempFolder m_folder;
    std::string m_file;
    bool m_failed = false;
};

}  // namespace

TEST_F(ProfileFaults, a_write_is_done_or_not_whichever_call_fails) {
    int calls = 0;
    int failures = 0;
    do {
        lvx_test::write_file(m_file, before);
        const bool result = Write(calls++, EIO);
        failures += !result;
        EXPECT_EQ(result ? after : before, lvx_test::read_file(m_file)) << "call " << calls;
        EXPECT_EQ(Names{"f"}, lvx_test::folder_names(m_folder.Path())) << "call " << calls;
    } while (m_failed);
    // The write is done all the same if the lock fails, and in the last turn, in which nothing does.
    EXPECT_GE(calls, 10);
    EXPECT_EQ(calls - 2, failures);
}

TEST_F(ProfileFaults, interrupted_calls_are_made_again) {
    int calls = 0;
    int successes = 0;
    do {
        lvx_test::write_file(m_file, before);
        successes += Write(calls++, EINTR);
    } while (m_failed);
    // The lock, reading, writing, and the last turn, in which nothing fails.
    EXPECT_EQ(4, successes);
}

TEST_F(ProfileFaults, a_file_that_cannot_be_read_gives_the_default) {
    lvx_test::write_file(m_file, before);
    for (const int call : {0, 1}) {
        failure = EIO;
        calls_until_failure = call;
        EXPECT_EQ(7U, GetPrivateProfileIntA("s", "a", 7, m_file.c_str())) << call;
    }
    EXPECT_EQ(1U, GetPrivateProfileIntA("s", "a", 7, m_file.c_str()));
}

TEST_F(ProfileFaults, without_memory_a_write_is_done_or_not_and_nothing_is_thrown) {
    long allocations = 0;
    int failures = 0;
    bool was_reached = true;
    while (was_reached) {
        lvx_test::write_file(m_file, before);
        BOOL result = 0;
        {
            const lvx_test::FailingAllocation failing(allocations++);
            result = WritePrivateProfileStringA("s", "a", "2", m_file.c_str());
            was_reached = failing.HasFailed();
        }
        failures += result == 0;
        EXPECT_EQ(result != 0 ? after : before, lvx_test::read_file(m_file)) << allocations;
        EXPECT_EQ(Names{"f"}, lvx_test::folder_names(m_folder.Path())) << allocations;
    }
    EXPECT_GT(failures, 5);
    EXPECT_EQ(after, lvx_test::read_file(m_file));
}

TEST_F(ProfileFaults, without_memory_a_text_is_the_default) {
    lvx_test::write_file(m_file, before);
    int defaults = 0;
    bool was_reached = true;
    for (long allocations = 0; was_reached; ++allocations) {
        char value[8] = "";
        {
            const lvx_test::FailingAllocation failing(allocations);
            EXPECT_EQ(1U, GetPrivateProfileStringA("s", "a", "D", value, sizeof value, m_file.c_str()));
            was_reached = failing.HasFailed();
        }
        EXPECT_STREQ(was_reached ? "D" : "1", value) << allocations;
        defaults += was_reached;
    }
    EXPECT_GT(defaults, 0);
}
