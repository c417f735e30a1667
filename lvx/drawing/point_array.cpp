#include "lvx/drawing/point_array.h"

#include <algorithm>
#include <cstddef>

#include "lvx/drawing/point_growth.h"

LVXPointArray::LVXPointArray(int capacity) {
    if (capacity > 0) {
        m_points = new owl::TPoint[static_cast<std::size_t>(capacity)];
        m_capacity = capacity;
    }
}

LVXPointArray::~LVXPointArray() {
    delete[] m_points;
}

void LVXPointArray::add(int x, int y) {
    if (m_count >= m_capacity) {
        Grow();
    }
    m_points[m_count] = owl::TPoint(x, y);
    ++m_count;
}

void LVXPointArray::Grow() {
    const int capacity = lvx::drawing::grown(m_capacity);
    auto* const points = new owl::TPoint[static_cast<std::size_t>(capacity)];
    // The first point stays behind: hosts repeat it, and old drawings would change.
    if (m_count > 1) {
        std::copy(m_points + 1, m_points + m_count, points + 1);
    }
    delete[] m_points;
    m_points = points;
    m_capacity = capacity;
}
