// Objects that two processes know by one name.
#include <gtest/gtest.h>

#include <atomic>
#include <string>

#include "lvx/runtime/sync.h"
#include "support/expect_throw.h"
#include "support/peer_process.h"
#include "support/threads.h"

using lvx_test::long_time;

namespace {

// A name that belongs to this test alone.
std::string own_name(const std::string& end) {
    const auto* const test = testing::UnitTest::GetInstance()->current_test_info();
    return "lvx " + std::to_string(GetCurrentProcessId()) + " " + test->name() + " " + end;
}

// The other program.
class Peer : public lvx_test::PeerProcess {
public:
    explicit Peer(const std::string& what, const std::string& first, const std::string& second = "")
        : PeerProcess("lvx_sync_peer.exe", {what, first, second}) {}
};

}  // namespace

TEST(NamedObjects, another_process_sets_an_event) {
    LVXEvent event(false, false, own_name("event").c_str(), nullptr);
    Peer peer("set", own_name("event"));
    EXPECT_TRUE(event.Lock(long_time));
    EXPECT_EQ(0, peer.Result());
}

TEST(NamedObjects, another_process_waits_for_an_event) {
    LVXEvent event(false, false, own_name("event").c_str(), nullptr);
    Peer peer("wait", own_name("event"));
    event.SetEvent();
    EXPECT_EQ(0, peer.Result());
    EXPECT_THROW(event.Lock(0), LVXEvent::LockFailed);
}

TEST(NamedObjects, another_process_does_not_get_a_held_mutex) {
    const std::string name = own_name("mutex");
    LVXMutex mutex(true, name.c_str(), nullptr);
    EXPECT_EQ(2, Peer("try", name).Result());
    mutex.Unlock();
    EXPECT_EQ(0, Peer("try", name).Result());
}

TEST(NamedObjects, a_mutex_whose_process_was_killed_is_false_and_held) {
    const std::string name = own_name("mutex");
    LVXMutex mutex(false, name.c_str(), nullptr);
    LVXEvent held(false, false, own_name("held").c_str(), nullptr);
    Peer peer("hold", name, own_name("held"));
    ASSERT_TRUE(held.Lock(long_time));
    EXPECT_THROW(mutex.Lock(0), LVXMutex::LockFailed);
    peer.Kill();
    EXPECT_FALSE(mutex.Lock(long_time));
    EXPECT_EQ(2, Peer("try", name).Result());
    EXPECT_TRUE(mutex.Unlock());
    EXPECT_TRUE(mutex.Lock(0));
    EXPECT_TRUE(mutex.Unlock());
}

TEST(NamedObjects, of_one_name_are_one_and_keep_their_first_state) {
    const std::string name = own_name("event");
    LVXEvent first(false, true, name.c_str(), nullptr);
    LVXEvent second(true, false, name.c_str(), nullptr);
    EXPECT_THROW(second.Lock(0), LVXEvent::LockFailed);
    first.SetEvent();
    EXPECT_TRUE(second.Lock(0));
    EXPECT_TRUE(second.Lock(0));
}

TEST(NamedObjects, a_mutex_that_another_thread_holds_keeps_its_first_owner) {
    const std::string name = own_name("mutex");
    LVXMutex first(false, name.c_str(), nullptr);
    LVXEvent done(false, true, nullptr, nullptr);
    std::atomic<bool> held{false};
    lvx_test::Threads owner(1, [&] {
        held = first.Lock(0);
        done.Lock(long_time);
        first.Unlock();
    });
    EXPECT_TRUE(lvx_test::comes_true([&] { return held.load(); }));
    LVXMutex second(true, name.c_str(), nullptr);
    EXPECT_THROW(second.Lock(0), LVXMutex::LockFailed);
    EXPECT_THROW(second.Unlock(), LVXMutex::ReleaseFailed);
    done.SetEvent();
    owner.Join();
    EXPECT_TRUE(second.Lock(0));
    EXPECT_TRUE(second.Unlock());
}

TEST(NamedObjects, the_name_of_another_kind_of_object_makes_creation_fail) {
    const std::string name = own_name("taken");
    const LVXEvent event(false, false, name.c_str(), nullptr);
    EXPECT_THROW_TEXT(LVXMutex(false, name.c_str(), nullptr), LVXMutex::CreateFailed,
                      "Failed to create mutex.");
    const std::string other = own_name("taken too");
    const LVXMutex mutex(false, other.c_str(), nullptr);
    EXPECT_THROW_TEXT(LVXEvent(false, false, other.c_str(), nullptr), LVXEvent::CreateFailed,
                      "Failed to create mutex.");
}

TEST(NamedObjects, security_attributes_reach_the_system) {
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    const LVXEvent event(false, false, nullptr, &inherited);
    const LVXMutex mutex(false, nullptr, &inherited);
    for (const HANDLE handle : {event.GetHandle(), mutex.GetHandle()}) {
        DWORD flags = 0;
        EXPECT_NE(0, GetHandleInformation(handle, &flags));
        EXPECT_EQ(DWORD{HANDLE_FLAG_INHERIT}, flags & HANDLE_FLAG_INHERIT);
    }
}
