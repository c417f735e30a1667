// lvx/propdlg/strip_lines.h
//
// Lines and surfaces of one colour. The tools are made and released at once: colours may change between any
// two of them. Private to the library.
#pragma once

#include <initializer_list>

#include "owl/brush.h"
#include "owl/dc.h"
#include "owl/pen.h"
#include "owl/region.h"

namespace lvx::propdlg {

/// From point to point, without the last one's pixel.
inline void draw_line(owl::TDC& dc, owl::TColor color, std::initializer_list<owl::TPoint> points) {
    const owl::TPen pen(color);
    dc.SelectObject(pen);
    dc.Polyline(points.begin(), static_cast<int>(points.size()));
    dc.RestorePen();
}

inline void fill_rect(owl::TDC& dc, owl::TColor color, const owl::TRect& rect) {
    if (!rect.IsEmpty())
        dc.FillRect(rect, owl::TBrush(color));
}

inline void fill_polygon(owl::TDC& dc, owl::TColor color, std::initializer_list<owl::TPoint> points) {
    const owl::TRegion region(points.begin(), static_cast<int>(points.size()), WINDING);
    dc.FillRgn(region, owl::TBrush(color));
}

}  // namespace lvx::propdlg
