// The values of pen and brush that a shape is drawn with. A plain value; the tools themselves are made while
// it is drawn.
#pragma once

#include "lvx/drawing/brush.h"
#include "lvx/drawing/pen.h"

class LVXRegion;
class ObjectStore;

namespace LVX {
class Port;
}

namespace sketch {

struct Look {
    static constexpr int widest = 64;

    int lineWidth = 1;
    LineType line = LineSolid;
    owl::TColor lineColour = LVX::Black;
    bool filled = false;
    FillPattern fill = FillForeground;
    owl::TColor fillColour = LVX::White;

    void PutTo(ObjectStore& store) const;
    /// Throws DocumentError for what no pen or brush can be.
    void GetFrom(ObjectStore& store);

    /// The port ends up with its own tools.
    void Draw(LVX::Port& port, LVXRegion& shape) const;

    friend bool operator==(const Look&, const Look&) = default;
};

}  // namespace sketch
