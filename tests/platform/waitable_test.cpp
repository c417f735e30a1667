#include "lvx/platform/waitable.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <utility>

#include "support/threads.h"

using lvx_test::comes_true;
using lvx_test::long_time;
using lvx_test::on_another_thread;
using lvx_test::sleep_for;
using lvx_test::Threads;

namespace {

// Closes the handle at the end of the test.
class Handle {
public:
    explicit Handle(HANDLE handle) : m_handle(handle) {}
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    ~Handle() { Close(); }

    bool Close() {
        const HANDLE handle = std::exchange(m_handle, nullptr);
        return handle != nullptr && CloseHandle(handle) != 0;
    }
    operator HANDLE() const { return m_handle; }

private:
    HANDLE m_handle;
};

enum Reset { by_itself, by_hand };

class Event : public Handle {
public:
    explicit Event(Reset reset, bool set = false) : Handle(CreateEventA(nullptr, reset, set, nullptr)) {}
};

class Mutex : public Handle {
public:
    explicit Mutex(bool held = false) : Handle(CreateMutexA(nullptr, held, nullptr)) {}
};

unsigned long wait_for(HANDLE object, unsigned long milliseconds = 0) {
    return WaitForSingleObject(object, milliseconds);
}

unsigned long wait_on_another_thread(HANDLE object) {
    unsigned long result = WAIT_FAILED;
    on_another_thread([&] { result = wait_for(object); });
    return result;
}

}  // namespace

TEST(Waitable, the_outcomes_have_their_published_numbers) {
    EXPECT_EQ(0u, static_cast<unsigned long>(WAIT_OBJECT_0));
    EXPECT_EQ(0x80u, static_cast<unsigned long>(WAIT_ABANDONED));
    EXPECT_EQ(0x102u, static_cast<unsigned long>(WAIT_TIMEOUT));
    EXPECT_EQ(0xFFFFFFFFu, static_cast<unsigned long>(WAIT_FAILED));
    EXPECT_EQ(0xFFFFFFFFu, static_cast<unsigned long>(INFINITE));
}

TEST(Waitable, an_event_begins_as_it_was_made) {
    for (const Reset reset : {by_itself, by_hand}) {
        EXPECT_EQ(WAIT_TIMEOUT, wait_for(Event(reset, false)));
        EXPECT_EQ(WAIT_OBJECT_0, wait_for(Event(reset, true)));
    }
}

TEST(Waitable, an_event_that_resets_itself_lets_one_wait_through_however_often_it_was_set) {
    const Event event(by_itself);
    EXPECT_NE(0, SetEvent(event));
    EXPECT_NE(0, SetEvent(event));
    EXPECT_EQ(WAIT_OBJECT_0, wait_for(event));
    EXPECT_EQ(WAIT_TIMEOUT, wait_for(event));
}

TEST(Waitable, an_event_reset_by_hand_stays_set_until_then) {
    const Event event(by_hand);
    EXPECT_NE(0, SetEvent(event));
    EXPECT_EQ(WAIT_OBJECT_0, wait_for(event));
    EXPECT_EQ(WAIT_OBJECT_0, wait_for(event));
    EXPECT_NE(0, ResetEvent(event));
    EXPECT_EQ(WAIT_TIMEOUT, wait_for(event));
    EXPECT_NE(0, ResetEvent(event));
}

TEST(Waitable, resetting_takes_back_a_set_event_that_resets_itself) {
    const Event event(by_itself, true);
    EXPECT_NE(0, ResetEvent(event));
    EXPECT_EQ(WAIT_TIMEOUT, wait_for(event));
}

TEST(Waitable, a_pulse_that_nobody_waits_for_is_lost) {
    for (const Reset reset : {by_itself, by_hand}) {
        for (const bool set : {false, true}) {
            const Event event(reset, set);
            EXPECT_NE(0, PulseEvent(event));
            EXPECT_EQ(WAIT_TIMEOUT, wait_for(event));
        }
    }
}

TEST(Waitable, a_set_event_lets_exactly_one_waiting_thread_through) {
    const Event event(by_itself);
    Threads threads(3, [&] { wait_for(event, long_time); });
    for (int count = 1; count <= 3; ++count) {
        EXPECT_EQ(count - 1, threads.Through());
        SetEvent(event);
        EXPECT_TRUE(threads.ComeThrough(count));
        sleep_for(20);
    }
    EXPECT_EQ(WAIT_TIMEOUT, wait_for(event));
}

TEST(Waitable, two_sets_let_two_waiting_threads_through) {
    const Event event(by_itself);
    Threads threads(2, [&] { wait_for(event, long_time); });
    sleep_for(20);
    SetEvent(event);
    SetEvent(event);
    EXPECT_TRUE(threads.ComeThrough(2));
    EXPECT_EQ(WAIT_TIMEOUT, wait_for(event));
}

TEST(Waitable, an_event_reset_by_hand_lets_all_waiting_threads_through) {
    const Event event(by_hand);
    Threads threads(3, [&] { wait_for(event, long_time); });
    sleep_for(20);
    EXPECT_EQ(0, threads.Through());
    SetEvent(event);
    EXPECT_TRUE(threads.ComeThrough(3));
    EXPECT_EQ(WAIT_OBJECT_0, wait_for(event));
}

TEST(Waitable, pulses_let_all_through_that_wait_and_nobody_later) {
    const Event event(by_hand);
    Threads threads(3, [&] { wait_for(event, long_time); });
    EXPECT_TRUE(comes_true([&] { return PulseEvent(event) != 0 && threads.Through() == 3; }));
    EXPECT_EQ(WAIT_TIMEOUT, wait_for(event, 10));
}

TEST(Waitable, a_pulse_lets_at_most_one_through_if_the_event_resets_itself) {
    const Event event(by_itself);
    Threads threads(3, [&] { wait_for(event, long_time); });
    int pulses = 0;
    while (threads.Through() < 3 && pulses < 1000) {
        ++pulses;
        PulseEvent(event);
        sleep_for(10);
        ASSERT_LE(threads.Through(), pulses);
    }
    EXPECT_EQ(3, threads.Through());
}

TEST(Waitable, a_time_out_takes_its_time_and_no_less) {
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(WAIT_TIMEOUT, wait_for(Event(by_itself), 60));
    const auto taken = std::chrono::steady_clock::now() - start;
    // The clocks of a system are not in step to the last tick.
    EXPECT_GE(std::chrono::duration_cast<std::chrono::milliseconds>(taken).count(), 50);
}

TEST(Waitable, a_wait_without_end_ends_with_the_event) {
    const Event event(by_itself);
    std::atomic<unsigned long> outcome{WAIT_FAILED};
    Threads threads(1, [&] { outcome = wait_for(event, INFINITE); });
    sleep_for(10);
    SetEvent(event);
    threads.Join();
    EXPECT_EQ(WAIT_OBJECT_0, outcome);
}

TEST(Waitable, what_was_written_before_an_event_is_seen_behind_it) {
    const Event event(by_itself);
    int written = 0;
    Threads threads(1, [&] {
        written = 42;
        SetEvent(event);
    });
    EXPECT_EQ(WAIT_OBJECT_0, wait_for(event, long_time));
    EXPECT_EQ(42, written);
}

TEST(Waitable, a_mutex_is_held_by_one_thread_alone) {
    const Mutex mutex;
    EXPECT_EQ(WAIT_OBJECT_0, wait_for(mutex));
    EXPECT_EQ(WAIT_TIMEOUT, wait_on_another_thread(mutex));
    EXPECT_NE(0, ReleaseMutex(mutex));
    on_another_thread([&] {
        EXPECT_EQ(WAIT_OBJECT_0, wait_for(mutex));
        EXPECT_NE(0, ReleaseMutex(mutex));
    });
    EXPECT_EQ(WAIT_OBJECT_0, wait_for(mutex));
    ReleaseMutex(mutex);
}

TEST(Waitable, a_mutex_may_begin_held) {
    const Mutex mutex(true);
    EXPECT_EQ(WAIT_TIMEOUT, wait_on_another_thread(mutex));
    EXPECT_NE(0, ReleaseMutex(mutex));
    EXPECT_EQ(0, ReleaseMutex(mutex));
}

TEST(Waitable, a_mutex_is_released_as_often_as_it_was_waited_for) {
    const Mutex mutex(true);
    EXPECT_EQ(WAIT_OBJECT_0, wait_for(mutex));
    EXPECT_EQ(WAIT_OBJECT_0, wait_for(mutex, INFINITE));
    EXPECT_NE(0, ReleaseMutex(mutex));
    EXPECT_NE(0, ReleaseMutex(mutex));
    EXPECT_EQ(WAIT_TIMEOUT, wait_on_another_thread(mutex));
    EXPECT_NE(0, ReleaseMutex(mutex));
    EXPECT_EQ(0, ReleaseMutex(mutex));
}

TEST(Waitable, a_mutex_is_released_by_its_owner_alone) {
    const Mutex mutex(true);
    on_another_thread([&] { EXPECT_EQ(0, ReleaseMutex(mutex)); });
    EXPECT_EQ(WAIT_TIMEOUT, wait_on_another_thread(mutex));
    EXPECT_NE(0, ReleaseMutex(mutex));
}

TEST(Waitable, a_thread_that_waits_for_a_mutex_gets_it_from_the_owner) {
    const Mutex mutex(true);
    std::atomic<unsigned long> outcome{WAIT_FAILED};
    Threads threads(1, [&] {
        outcome = wait_for(mutex, long_time);
        ReleaseMutex(mutex);
    });
    sleep_for(20);
    EXPECT_EQ(0, threads.Through());
    ReleaseMutex(mutex);
    threads.Join();
    EXPECT_EQ(WAIT_OBJECT_0, outcome);
    EXPECT_EQ(WAIT_OBJECT_0, wait_for(mutex));
}

TEST(Waitable, a_thread_that_gave_up_waiting_does_not_get_the_mutex_later) {
    const Mutex mutex(true);
    on_another_thread([&] { EXPECT_EQ(WAIT_TIMEOUT, wait_for(mutex, 20)); });
    ReleaseMutex(mutex);
    EXPECT_EQ(WAIT_OBJECT_0, wait_on_another_thread(mutex));
}

TEST(Waitable, threads_never_hold_a_mutex_together) {
    const Mutex mutex;
    int count = 0;
    Threads threads(4, [&] {
        for (int i = 0; i < 500; ++i) {
            wait_for(mutex, long_time);
            ++count;
            ReleaseMutex(mutex);
        }
    });
    threads.Join();
    EXPECT_EQ(2000, count);
}

TEST(Waitable, the_next_thread_is_told_that_the_owner_ended_and_holds_the_mutex) {
    const Mutex mutex;
    on_another_thread([&] { wait_for(mutex); });
    EXPECT_EQ(WAIT_ABANDONED, wait_for(mutex));
    EXPECT_EQ(WAIT_TIMEOUT, wait_on_another_thread(mutex));
    EXPECT_NE(0, ReleaseMutex(mutex));
    EXPECT_EQ(WAIT_OBJECT_0, wait_for(mutex));
    ReleaseMutex(mutex);
}

TEST(Waitable, an_abandoned_mutex_is_held_once_however_often_the_dead_thread_held_it) {
    const Mutex mutex;
    on_another_thread([&] {
        wait_for(mutex);
        wait_for(mutex);
    });
    EXPECT_EQ(WAIT_ABANDONED, wait_for(mutex));
    EXPECT_NE(0, ReleaseMutex(mutex));
    EXPECT_EQ(0, ReleaseMutex(mutex));
}

TEST(Waitable, a_mutex_can_be_abandoned_again_and_again) {
    const Mutex mutex;
    on_another_thread([&] { wait_for(mutex); });
    EXPECT_EQ(WAIT_ABANDONED, wait_on_another_thread(mutex));
    EXPECT_EQ(WAIT_ABANDONED, wait_on_another_thread(mutex));
    EXPECT_EQ(WAIT_ABANDONED, wait_for(mutex));
    ReleaseMutex(mutex);
}

TEST(Waitable, a_thread_that_already_waits_is_told_as_well) {
    const Mutex mutex;
    const Event held(by_itself);
    const Event end(by_itself);
    Threads owner(1, [&] {
        wait_for(mutex);
        SetEvent(held);
        wait_for(end, long_time);
    });
    wait_for(held, long_time);
    std::atomic<unsigned long> outcome{WAIT_FAILED};
    Threads waiting(1, [&] {
        outcome = wait_for(mutex, long_time);
        ReleaseMutex(mutex);
    });
    sleep_for(20);
    SetEvent(end);
    waiting.Join();
    EXPECT_EQ(WAIT_ABANDONED, outcome);
    EXPECT_EQ(WAIT_OBJECT_0, wait_for(mutex));
}

TEST(Waitable, every_mutex_of_a_thread_is_abandoned_but_those_that_it_released) {
    const Mutex first;
    const Mutex second;
    const Mutex released;
    on_another_thread([&] {
        wait_for(first);
        wait_for(released);
        wait_for(second);
        ReleaseMutex(released);
    });
    EXPECT_EQ(WAIT_ABANDONED, wait_for(first));
    EXPECT_EQ(WAIT_ABANDONED, wait_for(second));
    EXPECT_EQ(WAIT_OBJECT_0, wait_for(released));
}

TEST(Waitable, null_is_no_object) {
    EXPECT_EQ(WAIT_FAILED, wait_for(nullptr));
    EXPECT_EQ(0, SetEvent(nullptr));
    EXPECT_EQ(0, PulseEvent(nullptr));
    EXPECT_EQ(0, ResetEvent(nullptr));
    EXPECT_EQ(0, ReleaseMutex(nullptr));
    EXPECT_EQ(0, CloseHandle(nullptr));
}

TEST(Waitable, an_event_is_no_mutex_and_a_mutex_no_event) {
    const Event event(by_itself);
    EXPECT_EQ(0, ReleaseMutex(event));
    const Mutex mutex;
    EXPECT_EQ(0, SetEvent(mutex));
    EXPECT_EQ(0, PulseEvent(mutex));
    EXPECT_EQ(0, ResetEvent(mutex));
    EXPECT_EQ(WAIT_OBJECT_0, wait_for(mutex));
}

TEST(Waitable, a_closed_handle_is_no_object) {
    const HANDLE event = CreateEventA(nullptr, by_itself, true, nullptr);
    EXPECT_NE(0, CloseHandle(event));
    EXPECT_EQ(WAIT_FAILED, wait_for(event));
    EXPECT_EQ(0, SetEvent(event));
    EXPECT_EQ(0, CloseHandle(event));
}

TEST(Waitable, closing_the_handle_leaves_a_waiting_thread_its_time_out) {
    Event event(by_itself);
    std::atomic<unsigned long> outcome{WAIT_FAILED};
    Threads threads(1, [&, handle = HANDLE(event)] { outcome = wait_for(handle, 300); });
    sleep_for(100);
    EXPECT_TRUE(event.Close());
    threads.Join();
    EXPECT_EQ(WAIT_TIMEOUT, outcome);
}

TEST(Waitable, a_thread_that_waits_for_a_mutex_without_a_handle_still_gets_it_from_a_thread_that_ends) {
    Mutex mutex;
    const Event held(by_itself);
    const Event end(by_itself);
    Threads owner(1, [&, handle = HANDLE(mutex)] {
        wait_for(handle);
        SetEvent(held);
        wait_for(end, long_time);
    });
    wait_for(held, long_time);
    std::atomic<unsigned long> outcome{WAIT_FAILED};
    Threads waiting(1, [&, handle = HANDLE(mutex)] { outcome = wait_for(handle, long_time); });
    sleep_for(100);
    EXPECT_TRUE(mutex.Close());
    SetEvent(end);
    waiting.Join();
    EXPECT_EQ(WAIT_ABANDONED, outcome);
}

TEST(Waitable, a_held_mutex_may_be_closed) {
    on_another_thread([] {
        for (int i = 0; i < 100; ++i) {
            EXPECT_TRUE(Mutex(true).Close());
        }
        const Mutex mutex(true);
        EXPECT_EQ(WAIT_OBJECT_0, wait_for(mutex));
    });
}
