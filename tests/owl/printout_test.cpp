#include "owl/printout.h"

#include <gtest/gtest.h>

#include "owl/print_dc.h"

namespace {

using owl::TPrintout;

TEST(Printout, has_a_title_and_no_context_at_first) {
    const std::string title = "Drawing";
    const TPrintout printout(title);
    EXPECT_EQ("Drawing", printout.GetTitle());
    EXPECT_EQ(nullptr, printout.GetPrintDC());
    EXPECT_EQ(owl::TSize(0, 0), printout.GetPageSize());
}

TEST(Printout, keeps_the_context_and_the_size_of_the_page) {
    TPrintout printout("");
    owl::TPrintDC dc("DISPLAY", nullptr, nullptr, nullptr);
    printout.SetPrintParams(&dc, owl::TSize(300, 200));
    EXPECT_EQ(&dc, printout.GetPrintDC());
    EXPECT_EQ(owl::TSize(300, 200), printout.GetPageSize());
    printout.SetPrintParams(nullptr, owl::TSize(300, 200));
    EXPECT_EQ(nullptr, printout.GetPrintDC());
    EXPECT_EQ(owl::TSize(300, 200), printout.GetPageSize());
}

TEST(Printout, has_one_page_by_itself) {
    TPrintout printout("");
    EXPECT_FALSE(printout.HasPage(0));
    EXPECT_TRUE(printout.HasPage(1));
    EXPECT_FALSE(printout.HasPage(2));
}

TEST(Printout, leaves_the_range_of_pages_by_itself) {
    TPrintout printout("");
    int min = 1, max = 2, from = 3, to = 4;
    printout.GetDialogInfo(min, max, from, to);
    EXPECT_EQ(1, min);
    EXPECT_EQ(2, max);
    EXPECT_EQ(3, from);
    EXPECT_EQ(4, to);
}

TEST(Printout, draws_nothing_by_itself) {
    TPrintout printout("");
    owl::TRect page(0, 0, 10, 10);
    printout.BeginPrinting();
    printout.BeginDocument(1, 1, owl::pfBoth);
    printout.PrintPage(1, page, owl::pfBoth);
    printout.EndDocument();
    printout.EndPrinting();
    EXPECT_EQ(owl::TRect(0, 0, 10, 10), page);
}

}  // namespace
