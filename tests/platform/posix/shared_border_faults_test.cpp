// The n-th allocation fails, for every n: each call tells so, or succeeds all the same, and nothing is lost.
#include <gtest/gtest.h>
#include <pthread.h>

#include <cstdlib>
#include <string>

#include "lvx/platform/atoms.h"
#include "lvx/platform/waitable.h"
#include "support/allocation.h"
#include "support/threads.h"

using lvx_test::FailingAllocation;
using lvx_test::for_each_failing_allocation;
using lvx_test::on_another_thread;

TEST(SharedBorderFaults, an_event_without_memory_is_null) {
    const long refused = for_each_failing_allocation([] {
        const HANDLE event = CreateEventA(nullptr, 0, 1, nullptr);
        const bool good = event != nullptr && WaitForSingleObject(event, 0) == WAIT_OBJECT_0;
        CloseHandle(event);
        return good;
    });
    EXPECT_GE(refused, 1);
}

TEST(SharedBorderFaults, a_mutex_without_memory_is_null_although_the_thread_was_to_hold_it) {
    on_another_thread([] {
        const long refused = for_each_failing_allocation([] {
            const HANDLE mutex = CreateMutexA(nullptr, 1, nullptr);
            CloseHandle(mutex);
            return mutex != nullptr;
        });
        EXPECT_GE(refused, 2);
    });
}

TEST(SharedBorderFaults, a_wait_without_memory_fails_and_the_mutex_stays_free) {
    const HANDLE mutex = CreateMutexA(nullptr, 0, nullptr);
    on_another_thread([&] {
        const long refused =
            for_each_failing_allocation([&] { return WaitForSingleObject(mutex, 0) == WAIT_OBJECT_0; });
        EXPECT_GE(refused, 1);
        EXPECT_NE(0, ReleaseMutex(mutex));
        EXPECT_EQ(0, ReleaseMutex(mutex));
    });
    EXPECT_EQ(WAIT_OBJECT_0, WaitForSingleObject(mutex, 0));
    ReleaseMutex(mutex);
    CloseHandle(mutex);
}

TEST(SharedBorderFaults, a_wait_in_the_queue_without_memory_fails_and_leaves_no_place) {
    const HANDLE event = CreateEventA(nullptr, 0, 0, nullptr);
    const long refused = for_each_failing_allocation([&] {
        const unsigned long result = WaitForSingleObject(event, 1);
        EXPECT_TRUE(result == WAIT_FAILED || result == WAIT_TIMEOUT) << result;
        return result == WAIT_TIMEOUT;
    });
    EXPECT_GE(refused, 1);
    SetEvent(event);
    EXPECT_EQ(WAIT_OBJECT_0, WaitForSingleObject(event, 0));
    CloseHandle(event);
}

TEST(SharedBorderFaults, a_release_by_a_thread_that_never_held_anything_is_refused_without_memory_too) {
    const HANDLE mutex = CreateMutexA(nullptr, 0, nullptr);
    on_another_thread([&] {
        const FailingAllocation failing(0);
        EXPECT_EQ(0, ReleaseMutex(mutex));
    });
    CloseHandle(mutex);
}

TEST(SharedBorderFaults, an_atom_without_memory_is_0_and_the_table_stays_as_it_was) {
    const std::string name = "a name too long to fit into the string itself";
    unsigned short atom = 0;
    const long refused = for_each_failing_allocation([&] {
        atom = GlobalAddAtomA(name.c_str());
        return atom != 0;
    });
    EXPECT_GE(refused, 3);
    EXPECT_EQ(0, GlobalDeleteAtom(atom));
    EXPECT_EQ(atom, GlobalDeleteAtom(atom));
}

// In a process of its own, which has not locked a mutex yet: the one key that all mutexes need is made then.
TEST(SharedBorderFaultsDeathTest, a_mutex_without_a_key_for_its_owners_is_refused) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            pthread_key_t key{};
            while (pthread_key_create(&key, nullptr) == 0) {
            }
            const HANDLE mutex = CreateMutexA(nullptr, 0, nullptr);
            const bool refused = CreateMutexA(nullptr, 1, nullptr) == nullptr &&
                                 WaitForSingleObject(mutex, 0) == WAIT_FAILED && ReleaseMutex(mutex) == 0;
            std::_Exit(refused ? 7 : 8);
        },
        testing::ExitedWithCode(7), "");
}
