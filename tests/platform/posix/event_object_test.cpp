// What every event does is tested through its calls (tests/platform/waitable_test.cpp).
#include "lvx/platform/posix/event_object.h"

#include <gtest/gtest.h>

#include "support/threads.h"

using lvx::platform::EventObject;

TEST(EventObject, is_set_by_itself_alone_as_long_as_nobody_waits) {
    EventObject event(false, false);
    event.Set();
    event.Reset();
    EXPECT_EQ(WAIT_TIMEOUT, event.Wait(0));
    event.Set();
    EXPECT_EQ(WAIT_OBJECT_0, event.Wait(INFINITE));
    EXPECT_EQ(WAIT_TIMEOUT, event.Wait(1));
}

TEST(EventObject, of_two_events_each_lets_its_own_thread_through) {
    EventObject first(false, false);
    EventObject second(true, false);
    lvx_test::Threads for_first(1, [&] { first.Wait(lvx_test::long_time); });
    lvx_test::Threads for_second(1, [&] { second.Wait(lvx_test::long_time); });
    second.Set();
    EXPECT_TRUE(for_second.ComeThrough(1));
    EXPECT_EQ(0, for_first.Through());
    first.Set();
    EXPECT_TRUE(for_first.ComeThrough(1));
}
