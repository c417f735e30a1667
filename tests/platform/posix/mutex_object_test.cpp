// What every mutex does is tested through its calls (tests/platform/waitable_test.cpp).
#include "lvx/platform/posix/mutex_object.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/threads.h"

using lvx::platform::HeldMutexes;
using lvx::platform::MutexObject;
using lvx_test::long_time;
using lvx_test::on_another_thread;

TEST(MutexObject, is_abandoned_by_its_owner_alone) {
    const auto mutex = std::make_shared<MutexObject>();
    mutex->Wait(0);
    mutex->Abandon(HeldMutexes());
    on_another_thread([&] { EXPECT_EQ(WAIT_TIMEOUT, mutex->Wait(0)); });
    EXPECT_TRUE(mutex->Release());
    mutex->Abandon(*HeldMutexes::OfThisThread());
    EXPECT_EQ(WAIT_OBJECT_0, mutex->Wait(0));
    mutex->Release();
}

TEST(MutexObject, goes_from_thread_to_thread_in_the_order_in_which_they_came) {
    const auto mutex = std::make_shared<MutexObject>();
    mutex->Wait(0);
    std::vector<int> order;
    std::vector<std::unique_ptr<lvx_test::Threads>> threads;
    for (int i = 0; i < 4; ++i) {
        threads.push_back(std::make_unique<lvx_test::Threads>(1, [&, i] {
            mutex->Wait(long_time);
            order.push_back(i);
            mutex->Release();
        }));
        // Long enough for the thread to stand in the queue.
        lvx_test::sleep_for(50);
    }
    mutex->Release();
    threads.clear();
    EXPECT_EQ((std::vector<int>{0, 1, 2, 3}), order);
}

TEST(MutexObject, destroyed_while_it_is_held_is_in_no_list_any_more) {
    on_another_thread([] {
        auto mutex = std::make_shared<MutexObject>();
        mutex->Wait(0);
        mutex.reset();
        EXPECT_EQ(1, HeldMutexes::OfThisThread().use_count() - 1);
    });
}

TEST(MutexObject, is_destroyed_by_one_thread_while_the_owner_ends) {
    for (int round = 0; round < 200; ++round) {
        auto mutex = std::make_shared<MutexObject>();
        std::thread owner([own = mutex]() mutable {
            own->Wait(0);
            own.reset();
        });
        mutex.reset();
        owner.join();
    }
}
