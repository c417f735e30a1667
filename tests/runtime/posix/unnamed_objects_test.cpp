// Where objects have no names.
#include <gtest/gtest.h>

#include "lvx/runtime/sync.h"
#include "support/threads.h"

TEST(UnnamedObjects, two_events_of_one_name_are_two) {
    LVXEvent first(false, false, "lvx test", nullptr);
    LVXEvent second(false, false, "lvx test", nullptr);
    first.SetEvent();
    EXPECT_THROW(second.Lock(0), LVXEvent::LockFailed);
    EXPECT_TRUE(first.Lock(0));
}

TEST(UnnamedObjects, a_name_may_be_that_of_another_kind_of_object) {
    LVXEvent event(true, false, "lvx test", nullptr);
    LVXMutex mutex(true, "lvx test", nullptr);
    lvx_test::on_another_thread([&] {
        EXPECT_THROW(mutex.Lock(0), LVXMutex::LockFailed);
        EXPECT_TRUE(event.Lock(0));
    });
}
