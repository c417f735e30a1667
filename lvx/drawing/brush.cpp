#include "lvx/drawing/brush.h"

#include "lvx/drawing/delete_unless_null.h"
#include "lvx/drawing/tool_life.h"
#include "owl/brush.h"

using lvx::drawing::brush_calls;

namespace {

std::unique_ptr<owl::TBrush> solid(owl::TColor colour) {
    return std::make_unique<owl::TBrush>(colour, true);
}

FillPattern known(FillPattern pattern) {
    return FillBackground <= pattern && pattern <= FillDiagonalCross ? pattern : FillForeground;
}

std::unique_ptr<owl::TBrush> make_brush(FillPattern pattern, owl::TColor foreground, owl::TColor background) {
    switch (pattern) {
        case FillBackground:
            return solid(background);
        case FillForeground:
            return solid(foreground);
        case FillDarkGrey:
            return solid(owl::TColor(64, 64, 64));
        case FillLightGrey:
            return solid(owl::TColor::LtGray);
        case FillGrey:
            return solid(owl::TColor::Gray);
        default:
            return std::make_unique<owl::TBrush>(foreground, pattern - FillHorizontal + HS_HORIZONTAL);
    }
}

}  // namespace

LVXBrush::LVXBrush() : LVXBrush(owl::TColor::Black) {}

LVXBrush::LVXBrush(owl::TColor colour) : LVXBrush(FillForeground, colour, owl::TColor::White) {}

LVXBrush::LVXBrush(FillPattern pattern, owl::TColor foreground, owl::TColor background)
    : m_brush(make_brush(known(pattern), foreground, background)),
      m_foreground(foreground),
      m_background(background),
      m_pattern(known(pattern)) {}

LVXBrush::LVXBrush(const LVXBrush& other)
    : LVXBrush(other.m_pattern, other.m_foreground, other.m_background) {}

LVXBrush& LVXBrush::operator=(const LVXBrush& other) {
    if (this != &other) {
        Change(other.m_foreground, other.m_background, other.m_pattern);
    }
    return *this;
}

LVXBrush::~LVXBrush() {
    lvx::drawing::leave_ports(m_ports, brush_calls);
}

bool LVXBrush::make() {
    Change(m_foreground, m_background, m_pattern);
    return true;
}

void LVXBrush::bind(LVX::Port* port, bool add) {
    lvx::drawing::bind_port(m_ports, port, add);
}

void LVXBrush::free() {
    lvx::drawing::delete_unless_null(this);
}

void LVXBrush::foreground(owl::TColor colour) {
    if (colour != m_foreground) {
        Change(colour, m_background, m_pattern);
    }
}

void LVXBrush::background(owl::TColor colour) {
    if (colour != m_background) {
        Change(m_foreground, colour, m_pattern);
    }
}

void LVXBrush::pattern(FillPattern pattern) {
    if (pattern != m_pattern) {
        Change(m_foreground, m_background, pattern);
    }
}

HBRUSH LVXBrush::getHndl() const {
    return *m_brush;
}

void LVXBrush::Change(owl::TColor foreground, owl::TColor background, FillPattern pattern) {
    lvx::drawing::change_tool(this, m_ports, brush_calls, [&] {
        m_brush = make_brush(known(pattern), foreground, background);
        m_foreground = foreground;
        m_background = background;
        m_pattern = known(pattern);
    });
}
