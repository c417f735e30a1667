// The n-th allocation fails, for each n.
#include <gtest/gtest.h>

#include <atomic>
#include <set>
#include <string>

#include "lvx/runtime/atom.h"
#include "lvx/runtime/sync.h"
#include "support/allocation.h"
#include "support/expect_throw.h"
#include "support/threads.h"

using lvx_test::for_each_failing_allocation;

namespace {

using Texts = std::set<std::string>;

// The texts of the exceptions that come when an allocation of `action` fails, for one after another.
template <class Exception, class Action>
Texts texts_without_memory(Action action) {
    std::string text;
    Texts texts;
    for_each_failing_allocation(
        [&] {
            text = lvx_test::thrown_text<Exception>(action);
            return text.empty();
        },
        [&] { texts.insert(text); });
    return texts;
}

}  // namespace

TEST(RuntimeFaults, an_event_that_cannot_be_made_throws) {
    EXPECT_EQ(Texts{"Failed to create mutex."},
              texts_without_memory<LVXEvent::CreateFailed>([] { LVXEvent(false, false, nullptr, nullptr); }));
}

TEST(RuntimeFaults, a_mutex_that_cannot_be_made_throws) {
    EXPECT_EQ(Texts{"Failed to create mutex."},
              texts_without_memory<LVXMutex::CreateFailed>([] { LVXMutex(true, nullptr, nullptr); }));
}

TEST(RuntimeFaults, a_wait_that_cannot_begin_throws) {
    LVXEvent event(false, false, nullptr, nullptr);
    std::atomic<bool> done{false};
    // Lets through who waits, and leaves nothing for who does not.
    lvx_test::Threads pulses(1, [&] {
        while (!done) {
            event.PulseEvent();
            lvx_test::sleep_for(1);
        }
    });
    EXPECT_EQ(Texts{"Failed to lock mutex."},
              texts_without_memory<LVXEvent::LockFailed>([&] { event.Lock(lvx_test::long_time); }));
    done = true;
}

TEST(RuntimeFaults, an_atom_without_memory_for_its_name_throws_and_delivers_it_later) {
    LVXAtom atom("lvx atom faults");
    const char* text = nullptr;
    EXPECT_LE(2, for_each_failing_allocation([&] { text = atom; }));
    EXPECT_STREQ("lvx atom faults", text);
    !atom;
}

TEST(RuntimeFaults, an_atom_that_finds_no_memory_in_the_table_is_0) {
    const std::string name = "lvx atom that is too long for a small string";
    unsigned int number = 0;
    EXPECT_LT(0, for_each_failing_allocation([&] {
                  number = LVXAtom(name);
                  return number != 0;
              }));
    LVXAtom added(static_cast<unsigned short>(number));
    EXPECT_EQ(name, std::string(static_cast<const char*>(added)));
    !added;
}
