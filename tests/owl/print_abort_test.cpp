#include "owl/print_abort.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "owl/carried_exception.h"
#include "owl/print_dc.h"
#include "tests/owl/printed.h"

namespace {

using owl::AbortScope;

struct PrintAbortTest : testing::Test {
    PrintAbortTest() { EXPECT_EQ("", printer.Problem()); }

    /// Whether a document of one page gets to its end.
    bool Prints() {
        return dc.StartDoc("Asked about") > 0 && dc.StartPage() > 0 && dc.EndPage() > 0 && dc.EndDoc() > 0;
    }

    owl_test::FilePrinter printer;
    owl::TPrintDC dc{"winspool", printer.Name(), nullptr, nullptr};
};

TEST_F(PrintAbortTest, is_asked_by_the_system_while_it_prints) {
    int asked = 0;
    const AbortScope scope(dc, [&] {
        ++asked;
        return true;
    });
    EXPECT_TRUE(Prints());
    EXPECT_LT(0, asked);
}

TEST_F(PrintAbortTest, ends_the_printing_by_a_no) {
    const AbortScope scope(dc, [] { return false; });
    EXPECT_FALSE(Prints());
    EXPECT_FALSE(printer.HasPrinted());
}

TEST_F(PrintAbortTest, carries_an_exception_past_the_system_and_says_no_from_then_on) {
    int asked = 0;
    AbortScope scope(dc, [&]() -> bool {
        ++asked;
        throw std::length_error("asked");
    });
    EXPECT_FALSE(Prints());
    EXPECT_FALSE(scope.GoesOn());
    EXPECT_EQ(1, asked);
    EXPECT_THROW(owl::ThrowCarriedException(), std::length_error);
}

TEST_F(PrintAbortTest, within_another_is_the_one_that_is_asked) {
    int outerAsked = 0;
    const AbortScope outer(dc, [&] {
        ++outerAsked;
        return true;
    });
    {
        const AbortScope inner(dc, [] { return false; });
        EXPECT_FALSE(Prints());
        EXPECT_EQ(0, outerAsked);
    }
    dc.AbortDoc();
    EXPECT_TRUE(Prints());
    EXPECT_LT(0, outerAsked);
}

TEST_F(PrintAbortTest, goes_on_when_nobody_is_there_to_be_asked_any_more) {
    {
        const AbortScope scope(dc, [] { return false; });
    }
    EXPECT_TRUE(Prints());
}

}  // namespace
