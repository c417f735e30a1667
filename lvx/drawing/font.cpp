#include "lvx/drawing/font.h"

#include <cstring>

#include "lvx/drawing/delete_unless_null.h"
#include "lvx/drawing/face_traits.h"
#include "lvx/drawing/tool_life.h"
#include "owl/font.h"

using lvx::drawing::font_calls;

namespace {

std::string text_or_empty(const char* text) {
    return text != nullptr ? text : "";
}

int weight(bool bold) {
    return bold ? FW_BOLD : FW_NORMAL;
}

std::unique_ptr<owl::TFont> copy_of(const owl::TFont* font) {
    return font != nullptr ? std::make_unique<owl::TFont>(*font) : nullptr;
}

}  // namespace

LVXFont::LVXFont() : LVXFont(false) {}

LVXFont::LVXFont(bool fixed)
    : m_font(std::make_unique<owl::TFont>(
          static_cast<HFONT>(::GetStockObject(fixed ? SYSTEM_FIXED_FONT : SYSTEM_FONT)), owl::NoAutoDelete)),
      m_isStock(true) {
    m_font->GetObject(m_description);
}

LVXFont::LVXFont(const char* face, int pointSize, bool bold, bool italic, bool underline, bool strikeOut)
    : LVXFont(text_or_empty(face), pointSize, bold, italic, underline, strikeOut) {}

LVXFont::LVXFont(const std::string& face, int pointSize, bool bold, bool italic, bool underline,
                 bool strikeOut)
    : m_pointSize(pointSize), m_face(face) {
    m_description.lfWeight = weight(bold);
    m_description.lfItalic = italic;
    m_description.lfUnderline = underline;
    m_description.lfStrikeOut = strikeOut;
    m_description.lfOutPrecision = OUT_TT_PRECIS;
    copyFace(face);
}

LVXFont::LVXFont(const LVXFont& other)
    : m_font(copy_of(other.m_isStock ? other.m_font.get() : nullptr)),
      m_description(other.m_description),
      m_pointSize(other.m_pointSize),
      m_maxWidth(other.m_maxWidth),
      m_face(other.m_face),
      m_isStock(other.m_isStock) {}

LVXFont& LVXFont::operator=(const LVXFont& other) {
    std::unique_ptr<owl::TFont> font = copy_of(other.m_isStock ? other.m_font.get() : nullptr);
    std::string face = other.m_face;
    Change([&] {
        m_font.swap(font);
        m_description = other.m_description;
        m_actualValid = false;
        m_pointSize = other.m_pointSize;
        m_maxWidth = other.m_maxWidth;
        m_face.swap(face);
        m_isStock = other.m_isStock;
    });
    return *this;
}

LVXFont::~LVXFont() {
    lvx::drawing::leave_ports(m_ports, font_calls);
}

bool LVXFont::make() {
    lvx::drawing::change_tool(this, m_ports, font_calls, [this] { Forget(); });
    return true;
}

void LVXFont::bind(LVX::Port* port, bool add) {
    lvx::drawing::bind_port(m_ports, port, add);
}

void LVXFont::copyFace(const std::string& name) {
    // The field's last byte is the terminator, whatever it held.
    constexpr std::size_t most = LF_FACESIZE - 1;
    std::strncpy(m_description.lfFaceName, name.c_str(), most);
    m_description.lfFaceName[most] = '\0';
    const lvx::drawing::FaceTraits traits = lvx::drawing::face_traits(name);
    m_description.lfQuality = traits.quality;
    m_description.lfPitchAndFamily = traits.pitchAndFamily;
    m_description.lfCharSet = traits.charSet;
}

void LVXFont::free() {
    lvx::drawing::delete_unless_null(this);
}

// The system sees the new values only where the font is selected again, and may refuse them there.
template <class Setting>
void LVXFont::Change(const Setting& setting) {
    const LOGFONTA description = m_description;
    const int points = m_pointSize;
    const short maxWidth = m_maxWidth;
    std::string face = m_face;
    const bool isStock = m_isStock;
    try {
        lvx::drawing::change_tool(this, m_ports, font_calls, setting);
    } catch (...) {
        for (LVX::Port* const port : m_ports) {
            port->resetFont();
        }
        m_description = description;
        m_pointSize = points;
        m_maxWidth = maxWidth;
        m_face.swap(face);
        m_isStock = isStock;
        Forget();
        throw;
    }
}

template <class Setting>
void LVXFont::Set(const Setting& setting) {
    Change([&] {
        setting();
        Forget();
    });
}

void LVXFont::Forget() const {
    m_font.reset();
    m_actualValid = false;
}

void LVXFont::pointSize(int points) {
    Set([&] { m_pointSize = points; });
}

void LVXFont::orientation(int tenths) {
    Set([&] { m_description.lfEscapement = tenths; });
}

void LVXFont::bold(bool bold) {
    Set([&] { m_description.lfWeight = weight(bold); });
}

void LVXFont::italic(bool italic) {
    Set([&] { m_description.lfItalic = italic; });
}

void LVXFont::underline(bool underline) {
    Set([&] { m_description.lfUnderline = underline; });
}

void LVXFont::strikeOut(bool strikeOut) {
    Set([&] { m_description.lfStrikeOut = strikeOut; });
}

void LVXFont::face(const char* name) {
    face(text_or_empty(name));
}

void LVXFont::face(const std::string& name) {
    Set([&] {
        m_face = name;
        copyFace(m_face);
    });
}
