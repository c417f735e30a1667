#include "owl/print_job.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "owl/pen.h"
#include "tests/owl/printed.h"

namespace {

using owl::PagePlan;
using owl::PrintJob;
using owl::PrintResult;
using owl::TColor;
using owl_test::ColouredPages;
using owl_test::FilePrinter;

const TColor red(255, 0, 0);
const TColor green(0, 255, 0);
const TColor blue(0, 0, 255);

bool Always(int) {
    return true;
}

struct PrintJobTest : testing::Test {
    PrintJobTest() { EXPECT_EQ("", printer.Problem()); }

    PrintResult Run(const PagePlan& plan, const std::function<bool(int)>& goOn = Always) {
        return PrintJob(dc, printout, goOn).Run(plan, nullptr);
    }
    /// The colours of the middles of the pages that came out, as one text.
    std::string Printed() const {
        const owl_test::RenderedPages pages = printer.Pages();
        EXPECT_EQ("", pages.Problem());
        std::string colours;
        for (std::size_t i = 0; i < pages.size(); ++i) {
            const TColor colour = pages[i].At(300, 150);
            colours += colour == red ? 'r' : colour == green ? 'g' : colour == blue ? 'b' : '?';
        }
        return colours;
    }

    FilePrinter printer;
    owl::TPrintDC dc{"winspool", printer.Name(), nullptr, nullptr};
    ColouredPages printout{{red, green, blue}};
};

TEST_F(PrintJobTest, prints_each_page_once) {
    const PrintResult result = Run({1, 3, 1, false});
    EXPECT_TRUE(result.IsGood());
    EXPECT_EQ(nullptr, result.call);
    EXPECT_EQ("dc ( [ 1 2 3 ] ) no-dc ", printout.calls);
    EXPECT_EQ(1, printout.from);
    EXPECT_EQ(3, printout.to);
    EXPECT_EQ(unsigned{owl::pfBoth}, printout.documentFlags);
    EXPECT_EQ("rgb", Printed());
}

// 600 by 300 points at 300 dots to the inch.
TEST_F(PrintJobTest, tells_the_whole_page) {
    Run({1, 1, 1, false});
    EXPECT_EQ(owl::TSize(2500, 1250), printout.GetPageSize());
    EXPECT_EQ(owl::TRect(0, 0, 2500, 1250), printout.pageRect);
    EXPECT_EQ(unsigned{owl::pfBoth}, printout.pageFlags);
    const owl_test::RenderedPages pages = printer.Pages();
    ASSERT_EQ(std::size_t{1}, pages.size());
    EXPECT_EQ(600, pages[0].Width());
    EXPECT_EQ(300, pages[0].Height());
    EXPECT_EQ(red, pages[0].At(1, 1));
    EXPECT_EQ(red, pages[0].At(598, 298));
}

TEST_F(PrintJobTest, prints_a_range_as_far_as_there_are_pages) {
    EXPECT_TRUE(Run({2, 9, 1, false}).IsGood());
    EXPECT_EQ("dc ( [ 2 3 ] ) no-dc ", printout.calls);
    EXPECT_EQ("gb", Printed());
}

TEST_F(PrintJobTest, prints_one_page_of_several) {
    EXPECT_TRUE(Run({2, 2, 1, false}).IsGood());
    EXPECT_EQ("g", Printed());
}

TEST_F(PrintJobTest, sends_nothing_without_the_first_page) {
    EXPECT_TRUE(Run({4, 9, 5, true}).IsGood());
    EXPECT_EQ("dc ( ) no-dc ", printout.calls);
    EXPECT_FALSE(printer.HasPrinted());
}

TEST_F(PrintJobTest, counts_the_pages_behind_the_beginning) {
    printout.begin = [this] { printout.colours = {blue}; };
    EXPECT_TRUE(Run({1, 3, 1, false}).IsGood());
    EXPECT_EQ("b", Printed());
}

TEST_F(PrintJobTest, goes_through_the_document_for_each_collated_copy) {
    EXPECT_TRUE(Run({1, 2, 2, true}).IsGood());
    EXPECT_EQ("dc ( [ 1 2 ] [ 1 2 ] ) no-dc ", printout.calls);
    EXPECT_EQ("rgrg", Printed());
}

TEST_F(PrintJobTest, repeats_the_pages_of_copies_that_are_not_collated) {
    EXPECT_TRUE(Run({1, 2, 3, false}).IsGood());
    EXPECT_EQ("dc ( [ 1 1 1 2 2 2 ] ) no-dc ", printout.calls);
    EXPECT_EQ("rrrggg", Printed());
}

TEST_F(PrintJobTest, gives_each_page_the_modes_and_tools_of_the_first) {
    std::vector<int> modes;
    printout.print = [&](int page) {
        modes.push_back(dc.GetMapMode());
        const owl::TPen pen(blue, 90);
        dc.SelectObject(pen);
        dc.SetMapMode(MM_LOMETRIC);
        if (page == 1)
            dc.SetViewportOrg(owl::TPoint(5000, 5000));
    };
    EXPECT_TRUE(Run({1, 3, 1, false}).IsGood());
    EXPECT_EQ((std::vector<int>{MM_TEXT, MM_TEXT, MM_TEXT}), modes);
    EXPECT_EQ("rgb", Printed());
}

TEST_F(PrintJobTest, ends_when_it_is_told_to) {
    std::vector<int> asked;
    const PrintResult result = Run({1, 3, 1, false}, [&](int page) {
        if (page > 0)
            asked.push_back(page);
        return page < 2;
    });
    EXPECT_EQ(SP_USERABORT, result.code);
    EXPECT_EQ(nullptr, result.call);
    EXPECT_EQ((std::vector<int>{1, 2}), asked);
    EXPECT_EQ("dc ( [ 1 ] ) no-dc ", printout.calls);
    EXPECT_FALSE(printer.HasPrinted());
}

TEST_F(PrintJobTest, on_what_is_no_printer_tells_the_call_that_was_refused) {
    owl::TPrintDC screen("DISPLAY", nullptr, nullptr, nullptr);
    const PrintResult result = PrintJob(screen, printout, Always).Run({1, 3, 1, false}, nullptr);
    EXPECT_EQ(SP_ERROR, result.code);
    EXPECT_STREQ("StartDoc", result.call);
    EXPECT_EQ("dc ( ) no-dc ", printout.calls);
}

TEST_F(PrintJobTest, to_a_file_that_cannot_be_written_tells_the_call_that_was_refused) {
    const PrintResult result =
        PrintJob(dc, printout, Always).Run({1, 3, 1, false}, "C:\\no such folder\\printed.ps");
    EXPECT_GT(0, result.code);
    ASSERT_NE(nullptr, result.call);
    EXPECT_EQ(0u, printout.calls.find("dc ( ")) << printout.calls;
    EXPECT_NE(std::string::npos, printout.calls.find(") no-dc ")) << printout.calls;
    EXPECT_FALSE(printer.HasPrinted());
}

TEST_F(PrintJobTest, to_a_file_goes_there) {
    const lvx_test::TempFolder folder;
    const std::string file = folder.File("other.ps");
    EXPECT_TRUE(PrintJob(dc, printout, Always).Run({1, 3, 1, false}, file.c_str()).IsGood());
    EXPECT_FALSE(printer.HasPrinted());
    EXPECT_EQ(std::size_t{3}, owl_test::RenderedPages(file).size());
}

// The page that is being printed loses its document.
TEST_F(PrintJobTest, that_fails_in_the_middle_prints_no_more) {
    printout.print = [this](int page) {
        if (page == 2)
            dc.EndDoc();
    };
    const PrintResult result = Run({1, 3, 1, false});
    EXPECT_EQ(SP_ERROR, result.code);
    // Some systems end the page all the same, but none begins another.
    EXPECT_THAT(result.call, testing::AnyOf(testing::StrEq("EndPage"), testing::StrEq("StartPage")));
    EXPECT_EQ("dc ( [ 1 2 ] ) no-dc ", printout.calls);
}

TEST_F(PrintJobTest, is_given_up_when_the_printout_throws) {
    printout.print = [](int page) {
        if (page == 2)
            throw std::length_error("page");
    };
    EXPECT_THROW(Run({1, 3, 1, false}), std::length_error);
    EXPECT_EQ("dc ( [ 1 2 no-dc ", printout.calls);
    EXPECT_FALSE(printer.HasPrinted());
    EXPECT_EQ(nullptr, printout.GetPrintDC());
}

TEST_F(PrintJobTest, can_follow_another_on_the_same_context) {
    EXPECT_TRUE(Run({1, 1, 1, false}).IsGood());
    EXPECT_EQ("r", Printed());
    EXPECT_TRUE(Run({3, 3, 1, false}).IsGood());
    EXPECT_EQ("b", Printed());
}

}  // namespace
