#include "sketch/model/look.h"

#include "lvx/drawing/port.h"
#include "lvx/drawing/region.h"
#include "sketch/model/coordinates.h"

namespace sketch {
namespace {

constexpr int highest_colour = 0xFFFFFF;

void WriteColour(ObjectStore& store, const owl::TColor& colour) {
    store << static_cast<int>(colour.Rgb().GetValue());
}

owl::TColor ReadColour(ObjectStore& store) {
    return {static_cast<COLORREF>(ReadNumber(store, 0, highest_colour, "colour of a shape"))};
}

}  // namespace

void Look::PutTo(ObjectStore& store) const {
    store << lineWidth << static_cast<int>(line);
    WriteColour(store, lineColour);
    store << filled << static_cast<int>(fill);
    WriteColour(store, fillColour);
}

void Look::GetFrom(ObjectStore& store) {
    lineWidth = ReadNumber(store, 0, widest, "width of a line");
    line = static_cast<LineType>(ReadNumber(store, LineSolid, LineInsideFrame, "style of a line"));
    lineColour = ReadColour(store);
    store >> filled;
    fill =
        static_cast<FillPattern>(ReadNumber(store, FillBackground, FillDiagonalCross, "pattern of a shape"));
    fillColour = ReadColour(store);
}

void Look::Draw(LVX::Port& port, LVXRegion& shape) const {
    LVXPen pen(lineWidth, line, lineColour);
    LVXBrush brush(fill, fillColour, LVX::White);
    port.usePen(&pen);
    port.useBrush(&brush);
    if (filled) {
        port.fillRegion(&shape, true);
    } else {
        port.frameRegion(&shape);
    }
}  // The tools end, and the port is left with its own.

}  // namespace sketch
