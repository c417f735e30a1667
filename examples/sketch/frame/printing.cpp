#include "sketch/frame/printing.h"

#include <algorithm>
#include <cmath>

#include "lvx/drawing/port.h"
#include "lvx/drawing/printer.h"
#include "owl/dc.h"
#include "sketch/model/drawing_bounds.h"

namespace sketch {
namespace {

constexpr double pixels_of_an_inch = 96;
// How finely the scale is told to the system, which takes whole numbers.
constexpr int units_of_the_map = 1000;

class PrintedSheet : public LVXPrintCallbackInterface {
public:
    PrintedSheet(LVXPrinter& printer, const Figures& figures) : m_printer(printer), m_figures(figures) {}

    void PrintPage(int) override {
        LVX::Port port(m_printer);
        if (!port.Open()) {
            return;
        }
        MapSheet(*port.GetDC());
        for (const FigurePointer& figure : m_figures) {
            figure->Draw(port);
        }
    }

private:
    void MapSheet(owl::TDC& dc) const {
        // With the sheet's corner: what lies away from it on the screen does so on paper.
        const owl::TRect area = United(BoundsOf(m_figures), {0, 0, 1, 1});
        int width = 0;
        int height = 0;
        m_printer.sizeOfImage(&width, &height);
        const double across = dc.GetDeviceCaps(LOGPIXELSX) / pixels_of_an_inch;
        const double down = dc.GetDeviceCaps(LOGPIXELSY) / pixels_of_an_inch;
        const double fit = std::min({1.0, width / (across * area.Width()), height / (down * area.Height())});
        dc.SetMapMode(MM_ANISOTROPIC);
        dc.SetWindowOrg(area.TopLeft());
        dc.SetWindowExt({units_of_the_map, units_of_the_map});
        dc.SetViewportExt({Scaled(across * fit), Scaled(down * fit)});
    }
    static int Scaled(double scale) { return static_cast<int>(std::floor(scale * units_of_the_map)); }

    LVXPrinter& m_printer;
    const Figures& m_figures;
};

// Whoever asked for the page is answered; nobody need sit at the screen.
class QuietPrinter : public owl::TPrinter {
public:
    void ReportError(owl::TWindow*, owl::TPrintout&) override {}
};

bool Print(owl::TWindow& parent, owl::TPrinter& printer, const std::string& title, const Figures& figures,
           bool prompt) {
    LVXPrinter document(title.c_str(), &printer);
    PrintedSheet sheet(document, figures);
    document.setCallback(&sheet);
    return document.print(&parent, prompt, 1);
}

}  // namespace

void PrintFigures(owl::TWindow& parent, owl::TPrinter& printer, const std::string& title,
                  const Figures& figures) {
    Print(parent, printer, title, figures, true);
}

bool PrintQuietly(owl::TWindow& parent, const std::string& title, const Figures& figures) {
    QuietPrinter printer;
    return Print(parent, printer, title, figures, false);
}

}  // namespace sketch
