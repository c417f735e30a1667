#include "lvx/platform/posix/directory_lock.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <atomic>
#include <chrono>
#include <optional>
#include <thread>

#include "support/temp_folder.h"

namespace {

using lvx::platform::DirectoryLock;
using lvx_test::TempFolder;

}  // namespace

TEST(DirectoryLock, it_opens_the_directory) {
    const TempFolder folder;
    const DirectoryLock lock(folder.Path());
    ASSERT_TRUE(lock.Opened());
    struct stat status {};
    EXPECT_EQ(0, fstat(lock.Directory(), &status));
    EXPECT_TRUE(S_ISDIR(status.st_mode));
    EXPECT_NE(0, fcntl(lock.Directory(), F_GETFD) & FD_CLOEXEC);
}

TEST(DirectoryLock, what_is_no_directory_is_not_opened) {
    const TempFolder folder;
    EXPECT_FALSE(DirectoryLock(folder.File("none")).Opened());
    EXPECT_FALSE(DirectoryLock("/dev/null").Opened());
    EXPECT_FALSE(DirectoryLock("").Opened());
}

TEST(DirectoryLock, a_second_one_waits_for_the_first) {
    const TempFolder folder;
    std::optional<DirectoryLock> first(folder.Path());
    ASSERT_TRUE(first->Opened());
    std::atomic<bool> released = false;
    std::atomic<bool> was_early = false;
    std::thread other([&] {
        const DirectoryLock second(folder.Path());
        was_early = !released;
        EXPECT_TRUE(second.Opened());
    });
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    released = true;
    first.reset();
    other.join();
    EXPECT_FALSE(was_early);
}

TEST(DirectoryLock, other_directories_are_not_locked) {
    const TempFolder one;
    const TempFolder two;
    const DirectoryLock first(one.Path());
    const auto start = std::chrono::steady_clock::now();
    EXPECT_TRUE(DirectoryLock(two.Path()).Opened());
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

// A program that forgets the lock, or another kind of program that holds one, must not stop this one for
// good.
TEST(DirectoryLock, it_gives_up_when_the_time_is_over) {
    const TempFolder folder;
    const DirectoryLock first(folder.Path());
    const auto start = std::chrono::steady_clock::now();
    constexpr auto wait = std::chrono::milliseconds(30);
    EXPECT_FALSE(DirectoryLock(folder.Path(), wait).Opened());
    EXPECT_GE(std::chrono::steady_clock::now() - start, wait);
}
