// lvx/drawing/point_array.h
//
// The corners of a polygon, one behind the other. Owns its points. One thread at a time.
// A deliberate oddity: whenever the array grows, its first point is lost and becomes (0, 0). Documents and
// hosts have drawn by that for ever; so give the array its capacity, or set `getPoints()[0]` behind the last
// point. Does not: forget single points, or copy itself.
#pragma once

#include "lvx/platform/export.h"
#include "owl/geometry.h"

class LVX_EXPORT LVXPointArray {
public:
    /// An empty array with room for `capacity` points; 0, and less, is no room. Throws std::bad_alloc.
    explicit LVXPointArray(int capacity);
    LVXPointArray(const LVXPointArray&) = delete;
    LVXPointArray& operator=(const LVXPointArray&) = delete;
    ~LVXPointArray();

    /// Appends a point. A full array grows to twice its capacity and two more, and loses its first point.
    /// Throws std::bad_alloc, unchanged.
    void add(int x, int y);

    /// The points, which may be changed in their place, until the array grows; null without capacity.
    owl::TPoint* getPoints() const { return m_points; }
    int getCount() const { return m_count; }

private:
    LVX_HIDDEN void Grow();

    owl::TPoint* m_points = nullptr;
    int m_capacity = 0;
    int m_count = 0;
};
