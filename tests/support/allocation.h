// Replaces the program's operator new, so that a test can count allocations, make the n-th one fail and see
// the most memory that was held. Where shared libraries bind to it, as on Linux, this reaches into the
// library too.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <new>
#include <type_traits>

namespace lvx_test {

/// While it lives, the allocation of number `index`, counted from 0, throws std::bad_alloc (or is null for
/// the forms that do not throw). None fails if `index` is negative.
class FailingAllocation {
public:
    explicit FailingAllocation(long index);
    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;
    ~FailingAllocation();

    /// Whether the count got as far as the index.
    bool HasFailed() const;
    /// Whether it did, and threw std::bad_alloc. Whoever asks in a form that does not throw may do without.
    bool HasThrown() const;
};

/// Whether `action` succeeds: what it returns if that is bool, else whether it throws no std::bad_alloc.
template <class Action>
bool succeeds(Action& action) {
    try {
        if constexpr (std::is_same_v<decltype(action()), bool>) {
            return action();
        } else {
            action();
            return true;
        }
    } catch (const std::bad_alloc&) {
        return false;
    }
}

/// Does `action` with its first allocation failing, then with its second, and so on until none fails any
/// more. Expects that it does not succeed where one threw, and that it does in the last turn. Behind each
/// turn but the last, when there is memory again, it does `check`. Returns how many of those there were, or
/// -1 if there is no end.
template <class Action, class Check>
long for_each_failing_allocation(Action&& action, Check&& check) {
    constexpr long most = 10000;
    for (long index = 0; index < most; ++index) {
        bool succeeded = false;
        bool failed = false;
        bool thrown = false;
        {
            const FailingAllocation failing(index);
            succeeded = succeeds(action);
            failed = failing.HasFailed();
            thrown = failing.HasThrown();
        }
        EXPECT_FALSE(thrown && succeeded) << "allocation " << index;
        EXPECT_TRUE(failed || succeeded) << "allocation " << index;
        if (!failed) {
            return index;
        }
        check();
    }
    return -1;
}

template <class Action>
long for_each_failing_allocation(Action&& action) {
    return for_each_failing_allocation(action, [] {});
}

/// The bytes allocated and not freed.
std::size_t live_bytes();

/// The most bytes that were live since the last call of reset_peak.
std::size_t peak_bytes();
void reset_peak();

}  // namespace lvx_test
