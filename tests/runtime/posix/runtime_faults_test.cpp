// The n-th allocation fails.
#include <gtest/gtest.h>

#include <new>
#include <optional>

#include "lvx/runtime/atom.h"
#include "lvx/runtime/sync.h"
#include "support/allocation.h"
#include "support/expect_throw.h"
#include "support/threads.h"

using lvx_test::FailingAllocation;

namespace {

// The text that `Exception` has when the first allocation of `action` fails, or the second, and so on: the
// same for all of them. "different" if it is not.
template <class Exception, class Action>
std::string text_without_memory(Action action) {
    std::optional<std::string> all;
    for (long index = 0;; ++index) {
        std::optional<FailingAllocation> failing(index);
        std::optional<Exception> caught;
        try {
            action();
        } catch (const Exception& exception) {
            caught = exception;
        }
        const bool failed = failing->HasFailed();
        failing.reset();
        if (!failed) {
            return all.value_or("never");
        }
        const std::string text = caught ? caught->what() : "none";
        if (all.value_or(text) != text) {
            return "different: " + text;
        }
        all = text;
    }
}

}  // namespace

TEST(RuntimeFaults, an_event_that_cannot_be_made_throws) {
    EXPECT_EQ("Failed to create mutex.",
              text_without_memory<LVXEvent::CreateFailed>([] { LVXEvent(false, false, nullptr, nullptr); }));
}

TEST(RuntimeFaults, a_mutex_that_cannot_be_made_throws) {
    EXPECT_EQ("Failed to create mutex.",
              text_without_memory<LVXMutex::CreateFailed>([] { LVXMutex(true, nullptr, nullptr); }));
}

TEST(RuntimeFaults, a_wait_that_cannot_begin_throws) {
    LVXEvent event(false, false, nullptr, nullptr);
    const FailingAllocation failing(0);
    EXPECT_THROW(event.Lock(INFINITE), LVXEvent::LockFailed);
}

TEST(RuntimeFaults, an_atom_without_memory_for_its_name_throws_and_delivers_it_later) {
    LVXAtom atom("lvx atom faults");
    for (const long index : {0L, 1L}) {
        const FailingAllocation failing(index);
        EXPECT_THROW(static_cast<void>(static_cast<const char*>(atom)), std::bad_alloc);
    }
    EXPECT_STREQ("lvx atom faults", static_cast<const char*>(atom));
    EXPECT_TRUE(!atom);
}

TEST(RuntimeFaults, an_atom_that_finds_no_memory_in_the_table_is_0) {
    const std::string name = "lvx atom that is too long for a small string";
    const FailingAllocation failing(0);
    EXPECT_EQ(0u, static_cast<unsigned int>(LVXAtom(name)));
}
