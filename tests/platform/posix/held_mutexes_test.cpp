#include "lvx/platform/posix/held_mutexes.h"

#include <gtest/gtest.h>
#include <pthread.h>

#include "lvx/platform/posix/mutex_object.h"
#include "support/threads.h"

using lvx::platform::HeldMutexes;
using lvx::platform::MutexObject;
using lvx_test::on_another_thread;

TEST(HeldMutexes, each_thread_has_one_list) {
    const auto own = HeldMutexes::OfThisThread();
    EXPECT_EQ(own, HeldMutexes::OfThisThread());
    on_another_thread([&] { EXPECT_NE(own, HeldMutexes::OfThisThread()); });
}

TEST(HeldMutexes, a_list_outlives_its_thread_as_long_as_somebody_asks_who_it_was) {
    std::shared_ptr<HeldMutexes> list;
    on_another_thread([&] { list = HeldMutexes::OfThisThread(); });
    EXPECT_EQ(1, list.use_count());
}

TEST(HeldMutexes, a_list_tells_only_mutexes_that_live) {
    const auto kept = std::make_shared<MutexObject>();
    on_another_thread([&] {
        kept->Wait(0);
        const auto gone = std::make_shared<MutexObject>();
        gone->Wait(0);
        // As if it were being destroyed at this moment: it cannot be reached, and has not taken itself out.
        const auto list = HeldMutexes::OfThisThread();
        list->MakeRoom();
        list->Add(std::make_shared<MutexObject>());
    });
    EXPECT_EQ(WAIT_ABANDONED, kept->Wait(0));
    kept->Release();
}

TEST(HeldMutexes, a_mutex_that_is_not_in_the_list_changes_nothing) {
    const auto mutex = std::make_shared<MutexObject>();
    HeldMutexes list;
    list.Forget(*mutex);
    list.MakeRoom();
    list.Add(mutex);
    list.Forget(*std::make_shared<MutexObject>());
    list.Forget(*mutex);
    list.AbandonAll();
    EXPECT_EQ(WAIT_OBJECT_0, mutex->Wait(0));
    mutex->Release();
}

TEST(HeldMutexes, there_is_room_for_many) {
    std::vector<std::shared_ptr<MutexObject>> all(100);
    on_another_thread([&] {
        for (auto& mutex : all) {
            mutex = std::make_shared<MutexObject>();
            mutex->Wait(0);
        }
    });
    for (const auto& mutex : all) {
        EXPECT_EQ(WAIT_ABANDONED, mutex->Wait(0));
        mutex->Release();
    }
}

namespace {

// Takes a mutex when the variables of its thread end.
struct LateOwner {
    ~LateOwner() {
        if (mutex != nullptr) {
            mutex->Wait(0);
        }
    }
    std::shared_ptr<MutexObject> mutex;
};
thread_local LateOwner late_owner;

std::shared_ptr<MutexObject> very_late;

void take_very_late(void*) {
    very_late->Wait(0);
}

}  // namespace

TEST(HeldMutexes, a_mutex_taken_while_the_thread_ends_is_abandoned_too) {
    const auto mutex = std::make_shared<MutexObject>();
    on_another_thread([&] {
        late_owner.mutex = mutex;
        mutex->Wait(0);
        mutex->Release();
    });
    EXPECT_EQ(WAIT_ABANDONED, mutex->Wait(0));
    mutex->Release();
}

TEST(HeldMutexes, also_one_taken_when_the_list_has_ended_already) {
    HeldMutexes::OfThisThread();
    very_late = std::make_shared<MutexObject>();
    pthread_key_t behind_the_lists{};
    ASSERT_EQ(0, pthread_key_create(&behind_the_lists, take_very_late));
    on_another_thread([&] {
        HeldMutexes::OfThisThread();
        pthread_setspecific(behind_the_lists, &behind_the_lists);
    });
    EXPECT_EQ(WAIT_ABANDONED, very_late->Wait(0));
    very_late->Release();
    very_late.reset();
    pthread_key_delete(behind_the_lists);
}
