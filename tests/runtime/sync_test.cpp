#include "lvx/runtime/sync.h"

#include <gtest/gtest.h>

#include <atomic>
#include <type_traits>

#include "support/expect_throw.h"
#include "support/threads.h"

using lvx_test::long_time;
using lvx_test::milliseconds_of;
using lvx_test::on_another_thread;
using lvx_test::sleep_for;
using lvx_test::Threads;

namespace {

constexpr const char* cannot_lock_object = "Failed to lock synchronization object.";
constexpr const char* cannot_lock_mutex = "Failed to lock mutex.";
constexpr const char* cannot_release = "Failed to release mutex.";

// In milliseconds, of a wait of 20: clocks tick more coarsely than that on some systems.
constexpr long shortest_wait = 10;

class Event : public LVXEvent {
public:
    explicit Event(bool set = false, bool by_hand = false) : LVXEvent(set, by_hand, nullptr, nullptr) {}

    /// Whether it lets a thread through at once.
    bool IsSet() {
        try {
            return Lock(0);
        } catch (const LVXEvent::LockFailed&) {
            return false;
        }
    }
};

class Mutex : public LVXMutex {
public:
    explicit Mutex(bool held = false) : LVXMutex(held, nullptr, nullptr) {}
};

// A host's own kind, which calls the body of the base.
class OwnObject : public LVXSyncObject {
public:
    OwnObject() = default;
    explicit OwnObject(HANDLE handle) { m_handle = handle; }

    bool Lock(unsigned long timeout) override { return LVXSyncObject::Lock(timeout); }
    bool Unlock() override { return ReleaseMutex(m_handle) != 0; }
};

OwnObject own_mutex() {
    return OwnObject(CreateMutexA(nullptr, false, nullptr));
}

template <class Exception>
constexpr bool is_of_the_family = std::is_base_of_v<lvx::runtime_error, Exception>;

static_assert(is_of_the_family<LVXSyncObject::LockFailed> && is_of_the_family<LVXEvent::CreateFailed> &&
              is_of_the_family<LVXEvent::LockFailed> && is_of_the_family<LVXMutex::CreateFailed> &&
              is_of_the_family<LVXMutex::LockFailed> && is_of_the_family<LVXMutex::ReleaseFailed>);
static_assert(std::is_abstract_v<LVXSyncObject> && !std::is_copy_constructible_v<LVXEvent> &&
              !std::is_copy_assignable_v<LVXMutex>);
// One field in the base, none more.
static_assert(sizeof(LVXEvent) == 2 * sizeof(void*) && sizeof(LVXMutex) == 2 * sizeof(void*));

}  // namespace

TEST(SyncObject, has_its_handle_from_the_derived_class) {
    EXPECT_EQ(nullptr, OwnObject().GetHandle());
    const HANDLE handle = CreateEventA(nullptr, true, true, nullptr);
    const OwnObject object(handle);
    EXPECT_EQ(handle, object.GetHandle());
}

TEST(SyncObject, closes_its_handle) {
    const HANDLE handle = CreateEventA(nullptr, true, true, nullptr);
    { const OwnObject object(handle); }
    EXPECT_EQ(WAIT_FAILED, WaitForSingleObject(handle, 0));
}

TEST(SyncObject, of_the_base_lock_is_true_or_throws_whatever_the_reason) {
    OwnObject object = own_mutex();
    EXPECT_TRUE(object.Lock(0));
    on_another_thread(
        [&] { EXPECT_THROW_TEXT(object.Lock(0), LVXSyncObject::LockFailed, cannot_lock_object); });
    EXPECT_TRUE(object.Unlock());
    OwnObject none;
    EXPECT_THROW_TEXT(none.Lock(INFINITE), LVXSyncObject::LockFailed, cannot_lock_object);
}

TEST(SyncObject, of_the_base_an_abandoned_mutex_throws_and_is_held) {
    OwnObject object = own_mutex();
    on_another_thread([&] { object.Lock(0); });
    EXPECT_THROW_TEXT(object.Lock(0), LVXSyncObject::LockFailed, cannot_lock_object);
    EXPECT_TRUE(object.Unlock());
    EXPECT_FALSE(object.Unlock());
}

TEST(SyncObject, of_the_base_lock_waits_for_as_long_as_it_was_told) {
    OwnObject object(CreateEventA(nullptr, 0, 0, nullptr));
    std::atomic<bool> result{false};
    Threads waiting(1, [&] { result = object.Lock(long_time); });
    sleep_for(20);
    EXPECT_EQ(0, waiting.Through());
    ::SetEvent(object.GetHandle());
    EXPECT_TRUE(waiting.ComeThrough(1));
    EXPECT_TRUE(result);
    EXPECT_LE(shortest_wait, milliseconds_of([&] {
                  EXPECT_THROW_TEXT(object.Lock(20), LVXSyncObject::LockFailed, cannot_lock_object);
              }));
}

TEST(Event, takes_its_state_first_and_its_way_to_reset_second) {
    LVXEvent set_once(true, false, nullptr, nullptr);
    EXPECT_TRUE(set_once.Lock(0));
    EXPECT_THROW(set_once.Lock(0), LVXEvent::LockFailed);
    LVXEvent by_hand(false, true, nullptr, nullptr);
    EXPECT_THROW(by_hand.Lock(0), LVXEvent::LockFailed);
    by_hand.SetEvent();
    EXPECT_TRUE(by_hand.Lock(0));
    EXPECT_TRUE(by_hand.Lock(0));
}

TEST(Event, a_time_out_throws_after_its_time_and_speaks_of_a_mutex) {
    Event event;
    EXPECT_LE(shortest_wait, milliseconds_of([&] {
                  EXPECT_THROW_TEXT(event.Lock(20), LVXEvent::LockFailed, cannot_lock_mutex);
              }));
    EXPECT_THROW_TEXT(event.Lock(0), lvx::runtime_error, cannot_lock_mutex);
}

TEST(Event, is_set_pulsed_and_reset) {
    Event event(false, true);
    EXPECT_TRUE(event.SetEvent());
    EXPECT_TRUE(event.IsSet());
    EXPECT_TRUE(event.ResetEvent());
    EXPECT_FALSE(event.IsSet());
    EXPECT_TRUE(event.SetEvent());
    EXPECT_TRUE(event.PulseEvent());
    EXPECT_FALSE(event.IsSet());
}

TEST(Event, unlocking_does_nothing_and_is_true) {
    Event event;
    EXPECT_TRUE(event.Unlock());
    EXPECT_FALSE(event.IsSet());
    event.SetEvent();
    EXPECT_TRUE(event.Unlock());
    EXPECT_TRUE(event.IsSet());
}

TEST(Event, lets_one_waiting_thread_through_for_each_set) {
    Event event;
    Threads threads(2, [&] { event.Lock(long_time); });
    sleep_for(20);
    EXPECT_EQ(0, threads.Through());
    event.SetEvent();
    EXPECT_TRUE(threads.ComeThrough(1));
    sleep_for(20);
    EXPECT_EQ(1, threads.Through());
    event.SetEvent();
    EXPECT_TRUE(threads.ComeThrough(2));
}

TEST(Event, a_pulse_lets_through_who_waits) {
    Event event(false, true);
    Threads threads(2, [&] { event.Lock(long_time); });
    EXPECT_TRUE(lvx_test::comes_true([&] { return event.PulseEvent() && threads.Through() == 2; }));
    EXPECT_FALSE(event.IsSet());
}

TEST(Event, what_is_no_event_is_not_set_pulsed_or_reset) {
    class Wrong : public LVXEvent {
    public:
        Wrong() : LVXEvent(true, true, nullptr, nullptr) {
            CloseHandle(m_handle);
            m_handle = CreateMutexA(nullptr, false, nullptr);
        }
    };
    Wrong wrong;
    EXPECT_FALSE(wrong.SetEvent());
    EXPECT_FALSE(wrong.PulseEvent());
    EXPECT_FALSE(wrong.ResetEvent());
}

TEST(Mutex, a_free_one_is_locked_at_once_and_a_held_one_is_not) {
    Mutex mutex;
    EXPECT_TRUE(mutex.Lock(0));
    on_another_thread([&] { EXPECT_THROW_TEXT(mutex.Lock(0), LVXMutex::LockFailed, cannot_lock_mutex); });
    EXPECT_TRUE(mutex.Unlock());
    on_another_thread([&] {
        EXPECT_TRUE(mutex.Lock(0));
        EXPECT_TRUE(mutex.Unlock());
    });
}

TEST(Mutex, a_time_out_throws_after_its_time) {
    Mutex mutex(true);
    on_another_thread([&] {
        EXPECT_LE(shortest_wait, milliseconds_of([&] {
                      EXPECT_THROW_TEXT(mutex.Lock(20), lvx::runtime_error, cannot_lock_mutex);
                  }));
    });
}

TEST(Mutex, may_begin_held) {
    Mutex mutex(true);
    on_another_thread([&] { EXPECT_THROW(mutex.Lock(0), LVXMutex::LockFailed); });
    EXPECT_TRUE(mutex.Unlock());
}

TEST(Mutex, is_unlocked_as_often_as_it_was_locked) {
    Mutex mutex;
    EXPECT_TRUE(mutex.Lock(0));
    EXPECT_TRUE(mutex.Lock(0));
    EXPECT_TRUE(mutex.Unlock());
    on_another_thread([&] { EXPECT_THROW(mutex.Lock(0), LVXMutex::LockFailed); });
    EXPECT_TRUE(mutex.Unlock());
    EXPECT_THROW_TEXT(mutex.Unlock(), LVXMutex::ReleaseFailed, cannot_release);
}

TEST(Mutex, is_unlocked_by_its_owner_alone) {
    Mutex mutex(true);
    on_another_thread([&] { EXPECT_THROW_TEXT(mutex.Unlock(), LVXMutex::ReleaseFailed, cannot_release); });
    EXPECT_TRUE(mutex.Unlock());
}

TEST(Mutex, of_a_dead_owner_is_false_and_held) {
    Mutex mutex;
    on_another_thread([&] { mutex.Lock(0); });
    EXPECT_FALSE(mutex.Lock(0));
    on_another_thread([&] { EXPECT_THROW(mutex.Lock(0), LVXMutex::LockFailed); });
    EXPECT_TRUE(mutex.Unlock());
    EXPECT_TRUE(mutex.Lock(0));
    EXPECT_TRUE(mutex.Unlock());
}

TEST(Mutex, guards_what_threads_share) {
    Mutex mutex;
    int shared = 0;
    Threads threads(3, [&] {
        for (int i = 0; i < 300; ++i) {
            mutex.Lock(long_time);
            ++shared;
            mutex.Unlock();
        }
    });
    threads.Join();
    EXPECT_EQ(900, shared);
}

TEST(Mutex, ended_while_it_is_held_leaves_the_thread_able_to_lock_others) {
    on_another_thread([] {
        { const Mutex mutex(true); }
        Mutex other;
        EXPECT_TRUE(other.Lock(0));
    });
}

TEST(SyncObject, an_event_can_stand_where_a_lock_is_asked_for) {
    Event event(true, true);
    Mutex mutex;
    for (LVXSyncObject* const lock :
         {static_cast<LVXSyncObject*>(&event), static_cast<LVXSyncObject*>(&mutex)}) {
        EXPECT_TRUE(lock->Lock(0));
        EXPECT_TRUE(lock->Unlock());
    }
}
