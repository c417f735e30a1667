// Descriptions of fonts, from fonts to draw with and to them.
#include "lvx/drawing/font.h"
#include "lvx/drawing/font_size.h"
#include "lvx/drawing/my_font.h"
#include "lvx/drawing/stock_tools.h"

myFont::myFont(const LVXFont& font)
    : m_face(font.face()),
      m_size(font.pointSize()),
      m_bold(font.bold()),
      m_italic(font.italic()),
      m_underline(font.underline()),
      m_strikeout(font.strikeOut()) {}

myFont::myFont(const LVXFont* font) : myFont(font != nullptr ? *font : *brushes_etc::GetSysFont()) {}

LVXFont* myFont::make_font() const {
    return new LVXFont(m_face, lvx::drawing::whole_points(m_size), m_bold, m_italic, m_underline,
                       m_strikeout);
}
