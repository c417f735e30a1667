#include "lvx/drawing/port.h"

#include "lvx/drawing/foreign_tools.h"
#include "owl/brush.h"
#include "owl/dc.h"
#include "owl/pen.h"

namespace LVX {
namespace {

/// Makes `wanted`, or the port's own tool if that is null, the current one.
template <class Tool>
void take_up(Port* port, Tool*& current, Tool& own, Tool* wanted) {
    Tool* const tool = wanted != nullptr ? wanted : &own;
    if (tool == current) {
        return;
    }
    tool->bind(port, true);
    if (current != nullptr) {
        current->bind(port, false);
    }
    current = tool;
}

/// Whether it is known that `dc` has the colour. Asking costs a tenth of setting, and this is done behind
/// every shape. A metafile answers with what it began with, whatever was recorded since.
bool has_colour(HDC dc, owl::TColor told, owl::TColor wanted) {
    return told == wanted && ::GetObjectType(dc) != OBJ_METADC;
}

int background_mode(bool enabled) {
    return enabled ? OPAQUE : TRANSPARENT;
}

}  // namespace

Port::Port(Device& device) : m_device(&device) {
    usePen(&m_ownPen);
    useBrush(&m_ownBrush);
    useFont(&m_ownFont);
}

Port::~Port() {
    Close();
#ifndef NDEBUG
    const std::string foreign =
        lvx::drawing::foreign_tools(m_pen != &m_ownPen, m_brush != &m_ownBrush, m_font != &m_ownFont);
    if (!foreign.empty()) {
        ::OutputDebugStringA(foreign.c_str());
    }
#endif
}

bool Port::Open() {
    if (IsOpen()) {
        return true;
    }
    m_dc = m_device->AcquireDC();
    if (!IsOpen()) {
        return false;
    }
    try {
        SelectTools();
    } catch (...) {
        Close();
        throw;
    }
    m_dc->SetROP2(m_rule);
    m_dc->SetBkMode(background_mode(m_background));
    return true;
}

void Port::Close() {
    if (!IsOpen()) {
        return;
    }
    resetPen();
    resetBrush();
    resetFont();
    m_device->ReleaseDC();
    m_dc = nullptr;
}

HDC Port::GetHDC() const {
    return IsOpen() ? m_dc->GetHDC() : nullptr;
}

bool Port::GetPixelsPerInch(int* x, int* y) const {
    if (!IsOpen()) {
        return false;
    }
    if (x != nullptr) {
        *x = m_dc->GetDeviceCaps(LOGPIXELSX);
    }
    if (y != nullptr) {
        *y = m_dc->GetDeviceCaps(LOGPIXELSY);
    }
    return true;
}

void Port::SelectTools() {
    usePen(m_pen);
    useBrush(m_brush);
    useFont(m_font);
}

bool Port::usePen(LVXPen* pen) {
    take_up(this, m_pen, m_ownPen, pen);
    if (IsOpen()) {
        m_dc->SelectObject(static_cast<const owl::TPen&>(*m_pen));
        if (!has_colour(*m_dc, m_dc->GetTextColor(), m_pen->colour())) {
            m_dc->SetTextColor(m_pen->colour());
        }
    }
    return true;
}

bool Port::useBrush(LVXBrush* brush) {
    take_up(this, m_brush, m_ownBrush, brush);
    if (IsOpen()) {
        m_dc->SelectObject(static_cast<const owl::TBrush&>(*m_brush));
        if (!has_colour(*m_dc, m_dc->GetBkColor(), m_brush->background())) {
            m_dc->SetBkColor(m_brush->background());
        }
    }
    return true;
}

bool Port::useFont(LVXFont* font) {
    take_up(this, m_font, m_ownFont, font);
    if (IsOpen()) {
        m_font->select(*m_dc);
    }
    return true;
}

void Port::resetPen() {
    if (IsOpen()) {
        m_dc->RestorePen();
    }
}

void Port::resetBrush() {
    if (IsOpen()) {
        m_dc->RestoreBrush();
    }
}

void Port::resetFont() {
    if (IsOpen()) {
        m_dc->RestoreFont();
    }
}

void Port::rule(RasterRule rule) {
    m_rule = rule;
    if (IsOpen()) {
        m_dc->SetROP2(m_rule);
    }
}

void Port::enableBkColour(bool enabled) {
    m_background = enabled;
    if (IsOpen()) {
        m_dc->SetBkMode(background_mode(m_background));
    }
}

}  // namespace LVX
