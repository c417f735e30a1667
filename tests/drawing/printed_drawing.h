// What the tests of printing through ports share: a document that is drawn by a test, and a printer that
// prints it to a file.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "lvx/drawing/port.h"
#include "lvx/drawing/printer.h"
#include "lvx/drawing/region.h"
#include "owl/printer.h"
#include "tests/owl/driven_dialog.h"
#include "tests/owl/printed.h"

namespace lvx_test {

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
        const owl::TColor colours[] = {LVX::Red, LVX::Green, LVX::Blue};
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

inline char letter_of(const owl_test::RenderedPage& page) {
    const owl::TColor colour = page.At(300, 150);
    return colour == LVX::Red     ? 'r'
           : colour == LVX::Green ? 'g'
           : colour == LVX::Blue  ? 'b'
           : page.IsEmpty()       ? '-'
                                  : '?';
}

inline std::string letters(const owl_test::RenderedPages& pages) {
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

    owl_test::FilePrinter file;
    desk::Desk desk;
    desk::Watchdog watchdog;
    QuietPrinter printer;
    LVXPrinter device{"Drawing", &printer};
    Pages pages{device};
};

}  // namespace lvx_test
