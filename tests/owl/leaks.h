// Tests that something can be made and ended again and again and leaves no object of the system behind.
//
// A kind is a class with a `name`, an operation Round(), which makes some and ends them, and the number of
// `rounds` that come to a thousand, or to what there is time for. It is constructed once, on the desk.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "desk.h"
#include "object_counts.h"

namespace owl_test {

template <class Kind>
class Leaks : public testing::Test {
protected:
    void Make(Kind& kind, int rounds) {
        for (int i = 0; i < rounds; ++i) {
            kind.Round();
            // What is deleted behind its window goes between two messages.
            ::PostMessageA(desk.frame->GetHandle(), WM_NULL, 0, 0);
            desk.application.PumpWaitingMessages();
        }
    }

    desk::Desk desk;
};

TYPED_TEST_SUITE_P(Leaks);

TYPED_TEST_P(Leaks, leave_nothing_behind) {
    TypeParam kind(*this->desk.frame);
    // The system keeps some objects, such as contexts, for the next who needs one.
    this->Make(kind, 10);
    const ObjectCounts before = CountObjects();
    this->Make(kind, TypeParam::rounds);
    EXPECT_EQ(ObjectCounts{}, Added(before, CountObjects()));
}

REGISTER_TYPED_TEST_SUITE_P(Leaks, leave_nothing_behind);

/// The name of a kind in the name of its test.
struct KindName {
    template <class Kind>
    static std::string GetName(int) {
        return Kind::name;
    }
};

}  // namespace owl_test
