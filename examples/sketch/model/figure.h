// Whatever lies on the sheet: shapes, pictures. A figure knows how it is stored (Storable), how it is drawn
// and what the user can do to it. Figures in a document do not change: an edit makes a copy by Clone, changes
// that and puts it in the other one's place, so that undoing is a matter of keeping the old ones.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "lvx/store/storable.h"
#include "owl/geometry.h"

namespace LVX {
class Port;
}

namespace sketch {

struct Look;

/// A place where a figure can be taken hold of.
struct Handle {
    enum Kind {
        /// Makes the figure larger or smaller, or moves one of its corners alone.
        Corner,
        /// Turns the figure.
        Knob,
    };
    owl::TPoint place;
    Kind kind = Corner;
};

class Figure : public Storable {
public:
    virtual std::shared_ptr<Figure> Clone() const = 0;

    virtual void Draw(LVX::Port& port) const = 0;
    virtual owl::TRect Bounds() const = 0;
    /// Whether a click at `point` means this figure.
    virtual bool Contains(const owl::TPoint& point) const = 0;
    /// What to draw around the figure while it is selected; closed by the line to the first point.
    virtual std::vector<owl::TPoint> Outline() const = 0;
    virtual std::vector<Handle> Handles() const = 0;
    /// What the figure is, for the status line.
    virtual std::string Describe() const = 0;

    virtual void MoveBy(const owl::TSize& way) = 0;
    /// The handle of this number was pulled from one point to another. A figure that cannot follow stays as
    /// it is.
    virtual void Pull(std::size_t handle, const owl::TPoint& from, const owl::TPoint& to) = 0;

    /// The pen and brush that it is drawn with; null if it is not.
    virtual Look* LookOf() { return nullptr; }
    const Look* LookOf() const { return const_cast<Figure*>(this)->LookOf(); }
};

using FigurePointer = std::shared_ptr<const Figure>;
/// From the lowest to the topmost.
using Figures = std::vector<FigurePointer>;

}  // namespace sketch
