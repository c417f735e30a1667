#include "lvx/drawing/printer.h"

#include <gtest/gtest.h>

#include <climits>
#include <stdexcept>

#include "drawing/printed_drawing.h"
#include "lvx/drawing/bitmap.h"
#include "support/vtable_slot.h"
#include "tests/owl/object_counts.h"

using lvx_test::PrinterTest;
using lvx_test::slot_of;
using owl_test::RenderedPage;
using owl_test::RenderedPages;

namespace {

/// The printer of the tests has 300 dots to the inch; its pages are rendered with 72 pixels to it.
int rendered(int dots) {
    return dots * 72 / 300;
}

}  // namespace

TEST_F(PrinterTest, prints_each_page_by_its_callback) {
    EXPECT_TRUE(Print(3));
    EXPECT_EQ("1 2 3 ", pages.calls);
    EXPECT_EQ("rgb", Printed());
    EXPECT_EQ("", printer.reports);
    EXPECT_EQ(0, printer.asked);
}

TEST_F(PrinterTest, prints_what_is_drawn_where_it_is_drawn) {
    pages.draw = [](LVX::Port& port, int) {
        LVXPen pen(20, LineSolid, LVX::Blue);
        LVXBrush brush(LVX::Red);
        port.usePen(&pen);
        port.useBrush(&brush);
        LVXRectangle box(RectCorners, 200, 100, 600, 500);
        port.fillRegion(&box, true);
        LVXEllipse disc(RectCentre, 1500, 600, 400, 400);
        port.fillRegion(&disc, false);
        port.moveTo(200, 1100);
        port.lineTo(2200, 1100);
    };
    EXPECT_TRUE(Print(1));
    const RenderedPages rendering = file.Pages();
    ASSERT_EQ(1u, rendering.size());
    const RenderedPage& page = rendering[0];
    const auto at = [&](int x, int y) { return page.At(rendered(x), rendered(y)); };
    EXPECT_EQ(LVX::Red, at(400, 300));
    EXPECT_EQ(LVX::Blue, at(200, 300));
    EXPECT_EQ(LVX::Blue, at(400, 100));
    EXPECT_EQ(LVX::White, at(150, 300));
    EXPECT_EQ(LVX::White, at(660, 300));
    EXPECT_EQ(LVX::Red, at(1500, 600));
    EXPECT_EQ(LVX::Red, at(1640, 600));
    EXPECT_EQ(LVX::White, at(1650, 450)) << "the corner beside the disc";
    EXPECT_EQ(LVX::Blue, at(1200, 1100));
    EXPECT_EQ(LVX::White, at(1200, 1140));
    EXPECT_EQ(LVX::White, at(2300, 1100));
}

TEST_F(PrinterTest, prints_text_as_large_as_on_paper) {
    int height = 0;
    int width = 0;
    pages.draw = [&](LVX::Port& port, int) {
        LVXFont font("Arial", 48, true, false, false, false);
        LVXPen pen(LVX::Red);
        port.useFont(&font);
        port.usePen(&pen);
        width = port.wrtText("HHH", 300, 300);
        height = font.height();
    };
    EXPECT_TRUE(Print(1));
    // The cell of a font is a bit higher than its characters: 48 points are 200 dots.
    EXPECT_GE(height, 200);
    EXPECT_LE(height, 250);
    const RenderedPages rendering = file.Pages();
    ASSERT_EQ(1u, rendering.size());
    int marked = 0;
    for (int y = 0; y < rendering[0].Height(); ++y) {
        for (int x = 0; x < rendering[0].Width(); ++x) {
            if (rendering[0].At(x, y) != LVX::White) {
                ++marked;
                EXPECT_GE(x, rendered(300) - 1);
                EXPECT_LE(x, rendered(300 + width) + 1);
                EXPECT_GE(y, rendered(300) - 1);
                EXPECT_LE(y, rendered(300 + height) + 1);
            }
        }
    }
    // Three letters of two bars and a dash fill about a third of their boxes.
    const int box = rendered(width) * rendered(height);
    EXPECT_GT(marked, box / 6);
    EXPECT_LT(marked, box);
}

TEST_F(PrinterTest, prints_pictures) {
    LVXBitmap picture(100, 100, false);
    {
        LVX::Port port(picture);
        LVXBrush brush(LVX::Green);
        port.useBrush(&brush);
        port.Open();
        LVXRectangle all(RectSize, 0, 0, 100, 100);
        port.fillRegion(&all, false);
    }
    pages.draw = [&](LVX::Port& port, int) {
        const LVXRectangle source(RectSize, 0, 0, 100, 100);
        const LVXRectangle target(RectSize, 300, 200, 800, 600);
        port.drawBitMap(*static_cast<owl::TBitmap*>(picture), target, source);
    };
    EXPECT_TRUE(Print(1));
    const RenderedPages rendering = file.Pages();
    ASSERT_EQ(1u, rendering.size());
    EXPECT_EQ(LVX::Green, rendering[0].At(rendered(700), rendered(500)));
    EXPECT_EQ(LVX::Green, rendering[0].At(rendered(310), rendered(210)));
    EXPECT_EQ(LVX::White, rendering[0].At(rendered(1120), rendered(500)));
    EXPECT_EQ(LVX::White, rendering[0].At(rendered(700), rendered(820)));
}

TEST_F(PrinterTest, begins_each_page_with_what_a_port_begins_with) {
    pages.draw = [](LVX::Port& port, int page) {
        LVXRectangle all(RectSize, 0, 0, 2500, 1250);
        if (page == 1) {
            port.rule(RuleNop);
            port.GetDC()->SetViewportOrg(owl::TPoint(5000, 5000));
        }
        LVXBrush brush(LVX::Blue);
        port.useBrush(&brush);
        port.fillRegion(&all, false);
    };
    EXPECT_TRUE(Print(2));
    EXPECT_EQ("-b", Printed());
}

TEST_F(PrinterTest, without_a_callback_prints_empty_pages) {
    device.setCallback(nullptr);
    EXPECT_TRUE(Print(3));
    EXPECT_EQ("---", Printed());
    EXPECT_EQ("", pages.calls);
    device.setCallback(&pages);
    EXPECT_TRUE(Print(2));
    EXPECT_EQ("rg", Printed());
}

TEST_F(PrinterTest, has_the_pages_from_1_to_the_last_one) {
    EXPECT_FALSE(device.HasPage(0));
    EXPECT_TRUE(device.HasPage(1));
    EXPECT_FALSE(device.HasPage(2));
    EXPECT_TRUE(Print(3));
    EXPECT_FALSE(device.HasPage(-1));
    EXPECT_FALSE(device.HasPage(0));
    EXPECT_TRUE(device.HasPage(1));
    EXPECT_TRUE(device.HasPage(3));
    EXPECT_FALSE(device.HasPage(4));
    EXPECT_FALSE(device.HasPage(INT_MAX));
    EXPECT_FALSE(device.HasPage(INT_MIN));
}

TEST_F(PrinterTest, of_no_pages_prints_nothing) {
    for (const int count : {0, -1, INT_MIN}) {
        EXPECT_TRUE(Print(count));
        EXPECT_EQ("nothing", Printed());
    }
    EXPECT_EQ("", pages.calls);
}

TEST_F(PrinterTest, prints_many_pages) {
    device.setCallback(nullptr);
    EXPECT_TRUE(Print(120));
    EXPECT_EQ(std::string(120, '-'), Printed());
}

// The context

TEST_F(PrinterTest, has_a_context_only_while_it_prints) {
    EXPECT_EQ(nullptr, device.AcquireDC());
    device.ReleaseDC();
    LVX::Port early(device);
    EXPECT_FALSE(early.Open());
    pages.draw = [&](LVX::Port& port, int) {
        EXPECT_EQ(device.AcquireDC(), port.GetDC());
        device.ReleaseDC();
        device.ReleaseDC();
        EXPECT_EQ(DWORD{OBJ_DC}, ::GetObjectType(port.GetHDC()));
        int x = 0;
        int y = 0;
        EXPECT_TRUE(port.GetPixelsPerInch(&x, &y));
        EXPECT_EQ(300, x);
        EXPECT_EQ(300, y);
    };
    EXPECT_TRUE(Print(2));
    EXPECT_EQ("1 2 ", pages.calls);
    EXPECT_EQ(nullptr, device.AcquireDC());
}

TEST_F(PrinterTest, tells_the_size_of_a_page) {
    int width = -1;
    int height = -1;
    device.sizeOfImage(&width, &height);
    EXPECT_EQ(0, width);
    EXPECT_EQ(0, height);
    pages.draw = [&](LVX::Port&, int) {
        device.sizeOfImage(&width, nullptr);
        device.sizeOfImage(nullptr, &height);
        device.sizeOfImage(nullptr, nullptr);
    };
    EXPECT_TRUE(Print(1));
    // 600 by 300 points.
    EXPECT_EQ(2500, width);
    EXPECT_EQ(1250, height);
}

TEST_F(PrinterTest, is_the_device_of_a_bitmap_while_it_prints_and_afterwards) {
    LVXBitmap bitmap;
    pages.draw = [&](LVX::Port& port, int) {
        bitmap = LVXBitmap(10, 10, &device);
        bitmap.eraseWhite();
        port.drawBitMap(bitmap, 0, 0);
    };
    EXPECT_TRUE(Print(1));
    EXPECT_EQ("-", Printed());
    bitmap.eraseWhite();
    EXPECT_EQ(10, bitmap.GetWidth());
}

TEST_F(PrinterTest, shares_tools_with_the_screen) {
    LVXBitmap sheet(40, 40, false);
    LVXFont font("Arial", 24, false, false, false, false);
    LVX::Port onSheet(sheet);
    onSheet.useFont(&font);
    onSheet.Open();
    const int screenHeight = onSheet.textLineSpace();
    int printedHeight = 0;
    pages.draw = [&](LVX::Port& port, int) {
        port.useFont(&font);
        printedHeight = port.textLineSpace();
        port.useFont(nullptr);
    };
    EXPECT_TRUE(Print(1));
    // 300 dots to the inch instead of 96.
    EXPECT_NEAR(screenHeight * 300.0 / 96, printedHeight, 6);
    EXPECT_EQ(screenHeight, onSheet.textLineSpace());
    onSheet.useFont(nullptr);
}

// Failures

TEST_F(PrinterTest, tells_a_printer_that_is_gone) {
    printer.SetPrinter("winspool", "no such printer of ours", nullptr);
    EXPECT_FALSE(Print(2));
    EXPECT_EQ(SP_ERROR, printer.GetError());
    EXPECT_EQ(0u, printer.reports.find("Drawing: CreateDC: ")) << printer.reports;
    EXPECT_EQ("", pages.calls);
    EXPECT_EQ(nullptr, device.AcquireDC());
}

TEST_F(PrinterTest, tells_a_printer_that_fails_in_the_middle_and_prints_again) {
    pages.draw = [&](LVX::Port&, int page) {
        if (page == 2) {
            device.GetPrintDC()->EndDoc();
        }
    };
    EXPECT_FALSE(Print(3));
    EXPECT_EQ("1 2 ", pages.calls);
    EXPECT_EQ(0u, printer.reports.find("Drawing: ")) << printer.reports;
    EXPECT_EQ(nullptr, device.AcquireDC());
    pages.draw = nullptr;
    EXPECT_TRUE(Print(1));
    EXPECT_EQ(0, printer.GetError());
}

TEST_F(PrinterTest, lets_pass_what_a_callback_throws) {
    pages.draw = [](LVX::Port&, int page) {
        if (page == 2) {
            throw std::runtime_error("no such page");
        }
    };
    EXPECT_THROW(Print(3), std::runtime_error);
    EXPECT_EQ("1 2 ", pages.calls);
    EXPECT_EQ(nullptr, device.AcquireDC());
    EXPECT_EQ("", printer.reports);
    pages.draw = nullptr;
    EXPECT_TRUE(Print(1));
}

TEST_F(PrinterTest, stops_when_a_callback_cancels_the_job) {
    pages.draw = [&](LVX::Port&, int page) {
        if (page == 2) {
            printer.SetUserAbort();
        }
    };
    EXPECT_FALSE(Print(5));
    EXPECT_EQ("1 2 ", pages.calls);
    EXPECT_EQ(SP_USERABORT, printer.GetError());
    EXPECT_EQ("", printer.reports);
}

TEST_F(PrinterTest, leaves_no_objects_behind) {
    const auto print_all_ways = [&] {
        EXPECT_TRUE(Print(2));
        ::DeleteDC(device.CreateICA());
        pages.draw = [](LVX::Port&, int) { throw std::runtime_error("no such page"); };
        EXPECT_THROW(Print(2), std::runtime_error);
        pages.draw = nullptr;
    };
    // The system keeps some objects for the next who needs one.
    for (int i = 0; i < 3; ++i) {
        print_all_ways();
    }
    const owl_test::ObjectCounts before = owl_test::CountObjects();
    for (int i = 0; i < 30; ++i) {
        print_all_ways();
    }
    EXPECT_EQ(owl_test::ObjectCounts{}, owl_test::Added(before, owl_test::CountObjects()));
}

TEST(PrintCallback, has_its_one_operation_in_front) {
    EXPECT_EQ(0u, slot_of(&LVXPrintCallbackInterface::PrintPage));
}
