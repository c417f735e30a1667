#include "lvx/drawing/printer.h"

#include <gtest/gtest.h>

#include <climits>
#include <functional>
#include <stdexcept>

#include "lvx/drawing/bitmap.h"
#include "lvx/drawing/port.h"
#include "lvx/drawing/region.h"
#include "owl/printer.h"
#include "support/vtable_slot.h"
#include "tests/owl/driven_dialog.h"
#include "tests/owl/object_counts.h"
#include "tests/owl/printed.h"

using lvx_test::slot_of;
using owl::TColor;
using owl_test::DefaultPrinter;
using owl_test::FilePrinter;
using owl_test::RenderedPage;
using owl_test::RenderedPages;

namespace {

/// The printer of the tests has 300 dots to the inch; its pages are rendered with 72 pixels to it.
int rendered(int dots) {
    return dots * 72 / 300;
}

/// Keeps what would be told to the user in a box, and answers the print dialog.
class QuietPrinter : public owl::TPrinter {
public:
    void ReportError(owl::TWindow*, owl::TPrintout& printout) override {
        reports += printout.GetTitle() + ": " + GetErrorText() + "\n";
    }

    /// What the user does; null cancels.
    std::function<void(owl::TPrintDialog::TData&)> answer;
    std::string reports;
    int asked = 0;

protected:
    bool ExecPrintDialog(owl::TWindow*, owl::TPrintDialog::TData& data) override {
        ++asked;
        if (answer) {
            answer(data);
        }
        return answer != nullptr;
    }
};

/// Draws each page by what a test says, or fills it with the colour of its number.
class Pages : public LVXPrintCallbackInterface {
public:
    explicit Pages(LVXPrinter& device) : m_device(device) {}

    void PrintPage(int page) override {
        calls += std::to_string(page) + " ";
        LVX::Port port(m_device);
        ASSERT_TRUE(port.Open());
        if (draw) {
            draw(port, page);
        } else {
            Fill(port, page);
        }
    }

    std::function<void(LVX::Port&, int page)> draw;
    std::string calls;

private:
    void Fill(LVX::Port& port, int page) {
        const TColor colours[] = {LVX::Red, LVX::Green, LVX::Blue};
        LVXBrush brush(colours[(page - 1) % 3]);
        port.useBrush(&brush);
        int width = 0;
        int height = 0;
        m_device.sizeOfImage(&width, &height);
        LVXRectangle all(RectSize, 0, 0, width, height);
        port.fillRegion(&all, false);
    }

    LVXPrinter& m_device;
};

char letter_of(const RenderedPage& page) {
    const TColor colour = page.At(300, 150);
    return colour == LVX::Red     ? 'r'
           : colour == LVX::Green ? 'g'
           : colour == LVX::Blue  ? 'b'
           : page.IsEmpty()       ? '-'
                                  : '?';
}

std::string letters(const RenderedPages& pages) {
    EXPECT_EQ("", pages.Problem());
    std::string text;
    for (std::size_t i = 0; i < pages.size(); ++i) {
        text += letter_of(pages[i]);
    }
    return text;
}

/// A printer that prints to a file, and a document for it.
struct PrinterTest : testing::Test {
    PrinterTest() {
        EXPECT_EQ("", file.Problem());
        device.setCallback(&pages);
    }

    /// The pages that came out, a letter each; "nothing" if no job did.
    std::string Printed() const { return file.HasPrinted() ? letters(file.Pages()) : "nothing"; }
    bool Print(int count, bool prompt = false) { return device.print(desk.frame, prompt, count); }

    FilePrinter file;
    desk::Desk desk;
    desk::Watchdog watchdog;
    QuietPrinter printer;
    LVXPrinter device{"Drawing", &printer};
    Pages pages{device};
};

/// What a message box of that caption says; it is closed.
std::string box_text;
void close_box_when_it_comes() {
    box_text.clear();
    ::SetTimer(nullptr, 0, 100, [](HWND, UINT, UINT_PTR timer, DWORD) {
        const HWND box = ::FindWindowA("#32770", "Print");
        const HWND text = box != nullptr ? ::GetDlgItem(box, 0xFFFF) : nullptr;
        if (text == nullptr) {
            return;
        }
        ::KillTimer(nullptr, timer);
        char buffer[200] = "";
        ::GetWindowTextA(text, buffer, sizeof buffer);
        box_text = buffer;
        ::PostMessageA(box, WM_COMMAND, IDOK, 0);
    });
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

// The user

TEST_F(PrinterTest, lets_the_user_choose_among_its_pages) {
    printer.answer = [](owl::TPrintDialog::TData& data) {
        EXPECT_EQ(1, data.MinPage);
        EXPECT_EQ(5, data.MaxPage);
        EXPECT_EQ(1, data.FromPage);
        EXPECT_EQ(5, data.ToPage);
        EXPECT_EQ(1, data.Copies);
        EXPECT_EQ(0u, data.Flags & PD_NOPAGENUMS);
        data.Flags |= PD_PAGENUMS;
        data.FromPage = 2;
        data.ToPage = 4;
    };
    EXPECT_TRUE(Print(5, true));
    EXPECT_EQ("2 3 4 ", pages.calls);
    EXPECT_EQ("gbr", Printed());
}

TEST_F(PrinterTest, makes_the_copies_that_the_user_wants) {
    printer.answer = [](owl::TPrintDialog::TData& data) { data.Copies = 2; };
    EXPECT_TRUE(Print(2, true));
    EXPECT_EQ("rrgg", Printed());
    printer.answer = [](owl::TPrintDialog::TData& data) {
        EXPECT_EQ(1, data.Copies) << "not as many as the last time";
        data.Copies = 2;
        data.Flags |= PD_COLLATE;
    };
    EXPECT_TRUE(Print(2, true));
    EXPECT_EQ("rgrg", Printed());
    EXPECT_TRUE(Print(2));
    EXPECT_EQ("rg", Printed());
}

TEST_F(PrinterTest, prepares_the_setup_anew_for_each_job) {
    owl::TPrintDialog::TData& setup = printer.GetSetup();
    setup.Copies = 7;
    setup.MinPage = setup.FromPage = 3;
    setup.MaxPage = setup.ToPage = 4;
    setup.Flags = PD_PAGENUMS;
    EXPECT_TRUE(Print(2));
    EXPECT_EQ("rg", Printed());
    EXPECT_EQ(1, setup.Copies);
    EXPECT_EQ(1, setup.MinPage);
    EXPECT_EQ(2, setup.MaxPage);
    EXPECT_EQ(1, setup.FromPage);
    EXPECT_EQ(2, setup.ToPage);
    EXPECT_EQ(DWORD{PD_PAGENUMS}, setup.Flags);
}

TEST_F(PrinterTest, is_driven_through_the_systems_dialog) {
    class AskingPrinter : public owl::TPrinter {
    protected:
        bool ExecPrintDialog(owl::TWindow* parent, owl::TPrintDialog::TData& data) override {
            constexpr int some_pages = 0x422;
            desk::Driven<owl::TPrintDialog> dialog(parent, data);
            dialog.action = [&] {
                ASSERT_TRUE(desk::Activate(dialog));
                desk::Press({VK_MENU, 'G'});
                EXPECT_TRUE(
                    desk::PumpUntil([&] { return dialog.IsDlgButtonChecked(some_pages) == BST_CHECKED; }));
                dialog.SetDlgItemText(0x480, "3");
                dialog.SetDlgItemText(0x481, "3");
                desk::Press({VK_RETURN});
            };
            return dialog.Execute() == IDOK;
        }
    };
    AskingPrinter asking;
    LVXPrinter drawing("Drawing", &asking);
    Pages thePages(drawing);
    drawing.setCallback(&thePages);
    ASSERT_TRUE(desk::Activate(*desk.frame));
    EXPECT_TRUE(drawing.print(desk.frame, true, 3));
    EXPECT_EQ("3 ", thePages.calls);
    EXPECT_EQ("b", Printed());
}

TEST_F(PrinterTest, prints_nothing_when_the_user_cancels) {
    printer.answer = nullptr;
    EXPECT_FALSE(Print(3, true));
    EXPECT_EQ("nothing", Printed());
    EXPECT_EQ("", pages.calls);
    EXPECT_EQ("", printer.reports);
    EXPECT_EQ(1, printer.asked);
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

// Other ways to a printer

TEST_F(PrinterTest, goes_to_the_default_printer_when_none_is_given) {
    LVXPrinter plain("Drawing", nullptr);
    Pages thePages(plain);
    plain.setCallback(&thePages);
    EXPECT_TRUE(plain.print(nullptr, false, 2));
    EXPECT_EQ("1 2 ", thePages.calls);
    EXPECT_EQ("rg", Printed());
    EXPECT_EQ(nullptr, plain.CreateICA());
}

TEST_F(PrinterTest, goes_to_the_printer_that_was_chosen) {
    const FilePrinter other;
    printer.SetPrinter("winspool", file.Name(), nullptr);
    EXPECT_TRUE(Print(1));
    EXPECT_FALSE(other.HasPrinted());
    EXPECT_EQ("r", Printed());
}

TEST_F(PrinterTest, goes_by_its_title) {
    EXPECT_EQ("Drawing", device.GetTitle());
    const LVXPrinter nameless(nullptr, &printer);
    EXPECT_EQ("", nameless.GetTitle());
}

TEST_F(PrinterTest, makes_a_context_to_ask_what_the_printer_can) {
    EXPECT_FALSE(printer.GetSetup().HasDevice());
    const HDC byDefault = device.CreateICA();
    EXPECT_EQ(300, ::GetDeviceCaps(byDefault, LOGPIXELSX));
    EXPECT_EQ(2500, ::GetDeviceCaps(byDefault, HORZRES));
    EXPECT_EQ(DT_RASPRINTER, ::GetDeviceCaps(byDefault, TECHNOLOGY));
    EXPECT_TRUE(::DeleteDC(byDefault));
    EXPECT_FALSE(printer.GetSetup().HasDevice()) << "asking chooses nothing";
    printer.SetPrinter("winspool", file.Name(), nullptr);
    const HDC chosen = device.CreateICA();
    EXPECT_EQ(300, ::GetDeviceCaps(chosen, LOGPIXELSX));
    EXPECT_TRUE(::DeleteDC(chosen));
}

TEST_F(PrinterTest, asks_by_the_settings_of_the_printer) {
    ASSERT_TRUE(owl::TPrintDialog(nullptr, printer.GetSetup()).ChooseDefault());
    DEVMODEA* const mode = printer.GetSetup().GetDevMode();
    ASSERT_NE(nullptr, mode);
    mode->dmOrientation = DMORIENT_LANDSCAPE;
    mode->dmFields |= DM_ORIENTATION;
    const HDC landscape = device.CreateICA();
    EXPECT_EQ(1250, ::GetDeviceCaps(landscape, HORZRES));
    EXPECT_EQ(2500, ::GetDeviceCaps(landscape, VERTRES));
    ::DeleteDC(landscape);
}

TEST_F(PrinterTest, has_no_context_of_a_printer_that_is_gone) {
    printer.SetPrinter("winspool", "no such printer of ours", nullptr);
    EXPECT_EQ(nullptr, device.CreateICA());
}

TEST(PrintCallback, has_its_one_operation_in_front) {
    EXPECT_EQ(0u, slot_of(&LVXPrintCallbackInterface::PrintPage));
}

// Nothing is installed in these.

TEST(NoPrinter, is_told_by_the_printer_that_was_given) {
    ASSERT_EQ("", DefaultPrinter::Name());
    const desk::Desk desk;
    QuietPrinter printer;
    LVXPrinter device("Drawing", &printer);
    EXPECT_FALSE(device.print(desk.frame, false, 1));
    EXPECT_EQ("Drawing: there is no default printer\n", printer.reports);
    EXPECT_EQ(nullptr, device.CreateICA());
    EXPECT_EQ(nullptr, device.AcquireDC());
}

TEST(NoPrinter, is_told_in_a_box_when_none_was_given) {
    ASSERT_EQ("", DefaultPrinter::Name());
    const desk::Desk desk;
    const desk::Watchdog watchdog;
    LVXPrinter device("Drawing", nullptr);
    for (const bool prompt : {false, true}) {
        close_box_when_it_comes();
        EXPECT_FALSE(device.print(desk.frame, prompt, 1));
        EXPECT_EQ("\"Drawing\" could not be printed:\nthere is no default printer", box_text);
    }
}
