// lvx/drawing/region.h
//
// Shapes that a port fills, frames and inverts: rectangles, ellipses, polygons, and what a host derives from
// them. A shape holds its geometry; the system's region is made when it is needed, counted, and gone when the
// last user lets go, at the latest at the end of the operation.
//
//     LVXRectangle house(RectCorners, 10, 40, 60, 90);
//     LVXEllipse sun(RectCentre, 100, 20, 30, 30);
//     port.fillRegion(&house, true);
//     port.invertRegion(&sun);
//
// A host's own shape derives from LVXRegion and says in MakeRegion what its region is; the other operations
// have bodies that draw by the region alone. Drawing may leave other tools selected in the context: a port
// selects its own again, who draws without one has to see to it.
// For the thread that draws. Windows only. Shapes cannot be copied.
#pragma once

#include <windows.h>

#include <memory>

#include "lvx/drawing/point_array.h"
#include "lvx/platform/export.h"
#include "owl/geometry.h"

namespace owl {
class TDC;
class TRegion;
}  // namespace owl

class LVXBrush;
class LVXPen;

class LVX_EXPORT LVXRegion {
public:
    LVXRegion();
    LVXRegion(const LVXRegion&) = delete;
    LVXRegion& operator=(const LVXRegion&) = delete;
    virtual ~LVXRegion();

    /// Puts the system's region of the shape into m_region in place of what is there, or null if the system
    /// refuses it.
    virtual void MakeRegion() = 0;

    /// Fills the region with the brush that is selected in `dc`; if `withFrame`, frames the shape as well.
    virtual void Fill(owl::TDC& dc, const LVXPen& pen, const LVXBrush& brush, bool withFrame);

    /// Draws the border of the region, inside of it, as wide as `pen` and in its colour; nothing if that is 0
    /// wide. owl::TXGdi if the system refuses a brush of that colour.
    virtual void Frame(owl::TDC& dc, const LVXPen& pen);

    virtual void Invert(owl::TDC& dc);

    /// Counts one user more, and has the region made if there is none. What MakeRegion throws passes through,
    /// and nobody is counted.
    void GetRegion();
    /// Counts one user less, never below none; with the last one the region goes.
    void UngetRegion();
    /// The region while there is one; else null.
    operator HRGN() const;

protected:
    std::unique_ptr<owl::TRegion> m_region;

private:
    int m_useCount = 0;
};

/// What four numbers say of a rectangle. Others than these mean RectCorners.
enum RectOpts : int {
    /// Left, top, right, bottom. The right and the lower edge lie just outside of it.
    RectCorners = 0,
    /// The centre, the width and the height.
    RectCentre = 1,
    /// Left, top, width, height.
    RectSize = 2,
};

class LVX_EXPORT LVXRectangle : public LVXRegion {
public:
    /// Corners may be any two opposite ones, and a size of RectSize may be negative: the edges are sorted.
    /// With RectCentre they are not until the rectangle is drawn; halves are cut off towards zero. Edges
    /// beyond 32 bits wrap.
    LVXRectangle(RectOpts meaning, int a, int b, int c, int d);
    ~LVXRectangle() override;

    /// Tells the edges in any of the three ways, whichever the rectangle was made in, to those that are not
    /// null. The centre is cut off towards the origin.
    void get(RectOpts meaning, int* a, int* b, int* c, int* d) const;

    void MakeRegion() override;
    /// With its frame: by the pen and brush that are selected in `dc`. Without: `brush`, up to the edges.
    void Fill(owl::TDC& dc, const LVXPen& pen, const LVXBrush& brush, bool withFrame) override;
    /// By the pen that is selected in `dc`, where the system's hollow brush stays selected.
    void Frame(owl::TDC& dc, const LVXPen& pen) override;
    void Invert(owl::TDC& dc) override;

protected:
    owl::TRect m_rect;
};

/// The ellipse in a rectangle.
class LVX_EXPORT LVXEllipse : public LVXRectangle {
public:
    /// The rectangle, as LVXRectangle has it.
    LVXEllipse(RectOpts meaning, int a, int b, int c, int d);
    ~LVXEllipse() override;

    void MakeRegion() override;
    /// With its frame: by the pen and brush that are selected in `dc`. Without: the region, by that brush.
    void Fill(owl::TDC& dc, const LVXPen& pen, const LVXBrush& brush, bool withFrame) override;
    /// By the pen that is selected in `dc`, where the system's hollow brush stays selected.
    void Frame(owl::TDC& dc, const LVXPen& pen) override;
    void Invert(owl::TDC& dc) override;
};

/// The inside of a line through points. Where it crosses itself, every second part is outside.
class LVX_EXPORT LVXPolygon : public LVXRegion {
public:
    /// Does not own `points`, which live longer and may change meanwhile. With null, or with fewer than two
    /// points, nothing is drawn.
    explicit LVXPolygon(LVXPointArray* points);
    ~LVXPolygon() override;

    void MakeRegion() override;
    /// With its frame, which is closed: by the pen and brush that are selected in `dc`. Without: the region,
    /// by that brush.
    void Fill(owl::TDC& dc, const LVXPen& pen, const LVXBrush& brush, bool withFrame) override;
    /// The line through the points, by the pen that is selected in `dc`: closed only if the last point
    /// repeats the first.
    void Frame(owl::TDC& dc, const LVXPen& pen) override;

private:
    LVXPointArray* m_points;
};
