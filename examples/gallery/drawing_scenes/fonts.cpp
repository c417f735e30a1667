#include <string>

#include "context_device.h"
#include "drawing.h"
#include "lvx/drawing/port.h"
#include "scenes.h"

namespace gallery {

namespace {

// Each line below the one before, as far as its own font asks for.
void WriteLines(LVX::Port& port) {
    LVXFont font("Times New Roman", 10, false, false, false, false);
    port.useFont(&font);
    int y = 12;
    for (const int points : {8, 10, 12, 16, 24}) {
        font.pointSize(points);
        port.wrtText(("Times New Roman, " + std::to_string(points) + " points").c_str(), 16, y);
        y += port.textLineSpace();
    }
    const struct {
        const char* text;
        bool bold, italic, underline, strikeOut;
    } styles[] = {{"bold", true, false, false, false},
                  {"italic", false, true, false, false},
                  {"underlined", false, false, true, false},
                  {"struck out", false, false, false, true},
                  {"all of it", true, true, true, true}};
    int x = 16;
    for (const auto& style : styles) {
        font = LVXFont("Arial", 12, style.bold, style.italic, style.underline, style.strikeOut);
        x += port.wrtText(style.text, x, y + 8) + 12;
    }
}

void WriteOnBackground(LVX::Port& port) {
    LVXFont font("Courier New", 14, true, false, false, false);
    LVXPen pen(LVX::Red);
    LVXBrush brush(FillForeground, LVX::Black, LVX::Cyan);
    port.useFont(&font);
    port.usePen(&pen);
    port.useBrush(&brush);
    port.enableBkColour(true);
    port.wrtText("red on cyan", 16, 190);
    port.enableBkColour(false);
    font.orientation(300);
    port.wrtText("30 degrees", 300, 250);
}

void WriteTexts(owl::TDC& dc) {
    ContextDevice device(dc);
    LVX::Port port(device);
    port.Open();
    WriteLines(port);
    WriteOnBackground(port);
}

}  // namespace

void ShowPortFonts() {
    ShowDrawing("Fonts of a port", owl::TSize(470, 290), &WriteTexts);
}

}  // namespace gallery
