#include "owl/font.h"

#include <cstring>

#include "drawing.h"
#include "owl/pen.h"
#include "scenes.h"

namespace gallery {

namespace {

// What a font of this face and height is described by.
LOGFONT Description(const char* face, int height) {
    LOGFONT description{};
    description.lfHeight = -height;
    description.lfWeight = FW_NORMAL;
    std::strncpy(description.lfFaceName, face, LF_FACESIZE - 1);
    return description;
}

int Write(owl::TDC& dc, int x, int y, const LOGFONT& description, const std::string& text) {
    const owl::TFont font(description);
    dc.SelectObject(font);
    dc.TextOut(x, y, text);
    const int height = dc.GetTextExtent(text).cy;
    dc.RestoreFont();
    return height;
}

void DrawFaces(owl::TDC& dc) {
    int y = 10;
    for (const char* face : {"Arial", "Times New Roman", "Courier New"})
        y += Write(dc, 16, y, Description(face, 20), std::string(face) + " 20") + 2;
    for (const char* face : {"MS Sans Serif", "System"})
        y += Write(dc, 16, y, Description(face, 13), face) + 2;
    Write(dc, 16, y, Description("Tahoma", 11), "Tahoma 11");
}

void DrawStyles(owl::TDC& dc) {
    LOGFONT description = Description("Arial", 18);
    description.lfWeight = FW_BOLD;
    Write(dc, 250, 10, description, "bold");
    description.lfWeight = FW_NORMAL;
    description.lfItalic = TRUE;
    Write(dc, 250, 36, description, "italic");
    description.lfItalic = FALSE;
    description.lfUnderline = TRUE;
    Write(dc, 250, 62, description, "underlined");
    description.lfUnderline = FALSE;
    description.lfStrikeOut = TRUE;
    Write(dc, 250, 88, description, "struck out");
    description.lfStrikeOut = FALSE;
    description.lfHeight = -12;
    Write(dc, 250, 114, description, "small");
    description.lfHeight = -32;
    description.lfWidth = 8;
    Write(dc, 250, 130, description, "narrow");
}

void DrawFan(owl::TDC& dc) {
    dc.SetBkMode(TRANSPARENT);
    for (const int degrees : {0, 30, 60, 90}) {
        LOGFONT description = Description("Arial", 16);
        description.lfEscapement = description.lfOrientation = degrees * 10;
        Write(dc, 390, 130, description, "        turned " + std::to_string(degrees));
    }
    dc.SetBkMode(OPAQUE);
}

void DrawLine(owl::TDC& dc, int x, int y, int toX, int toY) {
    dc.MoveTo(x, y);
    dc.LineTo(toX, toY);
}

// The same point with the text placed around it.
void DrawAlignment(owl::TDC& dc) {
    const owl::TPen grey(owl::TColor::LtGray);
    dc.SelectObject(grey);
    for (const int x : {80, 220, 360})
        DrawLine(dc, x, 184, x, 236);
    for (const int y : {196, 222})
        DrawLine(dc, 16, y, 514, y);
    dc.RestorePen();
    dc.SetBkMode(TRANSPARENT);
    const LOGFONT plain = Description("Times New Roman", 16);
    dc.SetTextAlign(TA_LEFT | TA_BASELINE);
    Write(dc, 80, 196, plain, "left, base");
    dc.SetTextAlign(TA_CENTER | TA_BASELINE);
    Write(dc, 220, 196, plain, "centre, base");
    dc.SetTextAlign(TA_RIGHT | TA_BASELINE);
    Write(dc, 360, 196, plain, "right, base");
    dc.SetTextAlign(TA_LEFT | TA_TOP);
    Write(dc, 80, 222, plain, "left, top");
    dc.SetTextAlign(TA_CENTER | TA_BOTTOM);
    Write(dc, 220, 222, plain, "centre, bottom");
    dc.SetTextAlign(TA_LEFT | TA_TOP);
    dc.SetBkMode(OPAQUE);
    dc.SetTextColor(owl::TColor::White);
    dc.SetBkColor(owl::TColor::LtBlue);
    Write(dc, 361, 223, plain, " white on blue ");
}

void DrawFonts(owl::TDC& dc) {
    DrawFaces(dc);
    DrawStyles(dc);
    DrawFan(dc);
    DrawAlignment(dc);
}

}  // namespace

void ShowFonts() {
    ShowDrawing("Fonts", owl::TSize(530, 254), &DrawFonts);
}

}  // namespace gallery
