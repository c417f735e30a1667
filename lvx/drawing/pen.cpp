#include "lvx/drawing/pen.h"

#include "lvx/drawing/delete_unless_null.h"
#include "lvx/drawing/tool_life.h"
#include "owl/pen.h"

using lvx::drawing::pen_calls;

LVXPen::LVXPen() : LVXPen(LVX::Black) {}

LVXPen::LVXPen(owl::TColor colour) : LVXPen(1, LineSolid, colour) {}

LVXPen::LVXPen(int width, LineType pattern, owl::TColor colour)
    : m_pen(std::make_unique<owl::TPen>(colour, width, pattern)),
      m_width(width),
      m_colour(colour),
      m_pattern(pattern) {}

LVXPen::LVXPen(const LVXPen& other) : LVXPen(other.m_width, other.m_pattern, other.m_colour) {}

LVXPen& LVXPen::operator=(const LVXPen& other) {
    Change(other.m_width, other.m_colour, other.m_pattern);
    return *this;
}

LVXPen::~LVXPen() {
    lvx::drawing::leave_ports(m_ports, pen_calls);
}

bool LVXPen::make() {
    Change(m_width, m_colour, m_pattern);
    return true;
}

void LVXPen::bind(LVX::Port* port, bool add) {
    lvx::drawing::bind_port(m_ports, port, add);
}

void LVXPen::free() {
    lvx::drawing::delete_unless_null(this);
}

void LVXPen::width(int width) {
    if (width != m_width) {
        Change(width, m_colour, m_pattern);
    }
}

void LVXPen::colour(owl::TColor colour) {
    if (colour != m_colour) {
        Change(m_width, colour, m_pattern);
    }
}

void LVXPen::pattern(LineType pattern) {
    if (pattern != m_pattern) {
        Change(m_width, m_colour, pattern);
    }
}

void LVXPen::Change(int width, owl::TColor colour, LineType pattern) {
    lvx::drawing::change_tool(this, m_ports, pen_calls, [&] {
        m_pen = std::make_unique<owl::TPen>(colour, width, pattern);
        m_width = width;
        m_colour = colour;
        m_pattern = pattern;
    });
}
