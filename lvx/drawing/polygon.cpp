#include "lvx/drawing/region.h"
#include "lvx/drawing/shape_region.h"
#include "owl/dc.h"

namespace {

const owl::TPoint* points_of(const LVXPointArray* array) {
    return array != nullptr ? array->getPoints() : nullptr;
}

int count_of(const LVXPointArray* array) {
    return array != nullptr ? array->getCount() : 0;
}

}  // namespace

LVXPolygon::LVXPolygon(LVXPointArray* points) : m_points(points) {}

LVXPolygon::~LVXPolygon() = default;

void LVXPolygon::MakeRegion() {
    m_region = lvx::drawing::region_or_null(points_of(m_points), count_of(m_points), ALTERNATE);
}

void LVXPolygon::Fill(owl::TDC& dc, const LVXPen& pen, const LVXBrush& brush, bool withFrame) {
    if (withFrame) {
        dc.Polygon(points_of(m_points), count_of(m_points));
    } else {
        LVXRegion::Fill(dc, pen, brush, false);
    }
}

void LVXPolygon::Frame(owl::TDC& dc, const LVXPen&) {
    dc.Polyline(points_of(m_points), count_of(m_points));
}
