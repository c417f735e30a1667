#include "lvx/runtime/wait_cursor.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <type_traits>

namespace {

static_assert(!std::is_copy_constructible_v<LVXWaitCursor> && !std::is_copy_assignable_v<LVXWaitCursor>);

HCURSOR cursor(const char* id) {
    return ::LoadCursorA(nullptr, id);
}

// Begins with the arrow.
class WaitCursor : public testing::Test {
protected:
    WaitCursor() { ::SetCursor(arrow); }

    const HCURSOR arrow = cursor(IDC_ARROW);
    const HCURSOR cross = cursor(IDC_CROSS);
    const HCURSOR hourglass = cursor(reinterpret_cast<const char*>(ULONG_PTR{32514}));
};

}  // namespace

TEST_F(WaitCursor, is_the_hourglass_until_the_end_of_its_scope) {
    ASSERT_NE(arrow, hourglass);
    {
        const LVXWaitCursor busy;
        EXPECT_EQ(hourglass, ::GetCursor());
    }
    EXPECT_EQ(arrow, ::GetCursor());
}

TEST_F(WaitCursor, brings_back_whatever_was_there) {
    ::SetCursor(cross);
    { const LVXWaitCursor busy; }
    EXPECT_EQ(cross, ::GetCursor());
}

TEST_F(WaitCursor, brings_back_that_there_was_none) {
    ::SetCursor(nullptr);
    {
        const LVXWaitCursor busy;
        EXPECT_EQ(hourglass, ::GetCursor());
    }
    EXPECT_EQ(nullptr, ::GetCursor());
}

TEST_F(WaitCursor, nests) {
    {
        const LVXWaitCursor outer;
        ::SetCursor(cross);
        {
            const LVXWaitCursor inner;
            EXPECT_EQ(hourglass, ::GetCursor());
        }
        EXPECT_EQ(cross, ::GetCursor());
        { const LVXWaitCursor another; }
        EXPECT_EQ(cross, ::GetCursor());
    }
    EXPECT_EQ(arrow, ::GetCursor());
}

TEST_F(WaitCursor, nested_directly_stays_until_the_outermost_ends) {
    LVXWaitCursor outer;
    {
        LVXWaitCursor inner;
        inner.Reset();
        EXPECT_EQ(hourglass, ::GetCursor());
    }
    EXPECT_EQ(hourglass, ::GetCursor());
    outer.Reset();
    EXPECT_EQ(arrow, ::GetCursor());
}

TEST_F(WaitCursor, is_reset_early_and_once) {
    {
        LVXWaitCursor busy;
        busy.Reset();
        EXPECT_EQ(arrow, ::GetCursor());
        ::SetCursor(cross);
        busy.Reset();
        EXPECT_EQ(cross, ::GetCursor());
    }
    EXPECT_EQ(cross, ::GetCursor());
}

TEST_F(WaitCursor, goes_when_an_exception_passes) {
    const auto fail = [] {
        const LVXWaitCursor busy;
        throw std::runtime_error("no such file");
    };
    EXPECT_THROW(fail(), std::runtime_error);
    EXPECT_EQ(arrow, ::GetCursor());
}
