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

// What fchown refuses, and the calls that came to it.
enum class Refused { Nothing, Owners, Groups };
Refused refused = Refused::Nothing;
int refusal = EPERM;

struct Giving {
    uid_t owner;
    gid_t group;

    bool operator==(const Giving&) const = default;
};
std::vector<Giving> givings;

constexpr auto same_owner = static_cast<uid_t>(-1);

bool is_refused(uid_t owner) {
    return refused == Refused::Groups || (refused == Refused::Owners && owner != same_owner);
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
    if (fails()) {
        return -1;
    }
    givings.push_back({owner, group});
    if (is_refused(owner)) {
        errno = refusal;
        return -1;
    }
    return original(&fchown, "fchown")(file, owner, group);
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
    ~ProfileFaults() override {
        calls_until_failure = -1;
        refused = Refused::Nothing;
    }

    /// The result of writing with one call that fails.
    bool Write(int call, int error) {
        failure = error;
        calls_until_failure = call;
        const bool result = WritePrivateProfileStringA("s", "a", "2", m_file.c_str()) != 0;
        m_failed = calls_until_failure < 0;
        calls_until_failure = -1;
        return result;
    }

    /// The mode that a file of `mode` has behind a write, in which fchown refuses that with this error.
    mode_t ModeBehindWrite(mode_t mode, Refused what, int error) {
        lvx_test::write_file(m_file, before);
        EXPECT_EQ(0, chmod(m_file.c_str(), mode));
        refused = what;
        refusal = error;
        givings.clear();
        EXPECT_TRUE(Write(-1, 0));
        refused = Refused::Nothing;
        EXPECT_EQ(after, lvx_test::read_file(m_file));
        return Status().st_mode & 07777;
    }

    struct stat Status() const {
        struct stat status {};
        EXPECT_EQ(0, stat(m_file.c_str(), &status));
        return status;
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

// The group was once lost along with an owner that could not be given.
TEST_F(ProfileFaults, where_the_owner_may_not_be_given_the_group_is) {
    for (const int error : {EPERM, EINVAL}) {
        EXPECT_EQ(0664U, ModeBehindWrite(04664, Refused::Owners, error));
        const struct stat status = Status();
        EXPECT_EQ((std::vector<Giving>{{status.st_uid, status.st_gid}, {same_owner, status.st_gid}}),
                  givings);
    }
}

TEST_F(ProfileFaults, a_group_that_may_not_be_given_takes_its_rights_along) {
    for (const int error : {EPERM, EINVAL}) {
        EXPECT_EQ(0604U, ModeBehindWrite(02664, Refused::Groups, error));
        EXPECT_EQ(2U, givings.size());
    }
    EXPECT_EQ(0664U, ModeBehindWrite(0664, Refused::Nothing, 0));
    EXPECT_EQ(1U, givings.size());
}

TEST_F(ProfileFaults, an_error_in_giving_fails_the_write) {
    lvx_test::write_file(m_file, before);
    refused = Refused::Owners;
    refusal = EIO;
    EXPECT_FALSE(Write(-1, 0));
    EXPECT_EQ(before, lvx_test::read_file(m_file));
    refusal = EPERM;
    int failures = 0;
    int call = 0;
    do {
        lvx_test::write_file(m_file, before);
        failures += !Write(call++, EIO);
    } while (m_failed);
    EXPECT_EQ(call - 2, failures) << "the lock may fail, and in the last turn nothing does";
    EXPECT_EQ(Names{"f"}, lvx_test::folder_names(m_folder.Path()));
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
