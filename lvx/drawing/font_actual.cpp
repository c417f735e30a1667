// What a font is on a device: how it is asked for there, and what the device gives.
#include "lvx/drawing/font.h"
#include "lvx/drawing/font_resolution.h"
#include "lvx/drawing/font_size.h"
#include "owl/dc.h"
#include "owl/font.h"
#include "owl/memory_dc.h"
#include "owl/window_dc.h"

bool LVXFont::make(int height) const {
    m_font = MakeFont(height);
    return true;
}

std::unique_ptr<owl::TFont> LVXFont::MakeFont(int height) const {
    LOGFONTA description = m_description;
    description.lfHeight = height;
    description.lfWidth = 0;
    auto font = std::make_unique<owl::TFont>(description);
    m_description = description;
    return font;
}

void LVXFont::select(owl::TDC& dc) const {
    const int dpi = lvx::drawing::units_per_inch(dc.GetDeviceCaps(LOGPIXELSY), dc.GetMapMode());
    std::unique_ptr<owl::TFont> font = MakeFont(lvx::drawing::requested_height(m_pointSize, dpi));
    dc.SelectObject(*font);
    // The one before, which dc may have had, goes behind that.
    m_font.swap(font);
    TakeActual(dc, dpi);
}

void LVXFont::TakeActual(const owl::TDC& dc, int dpi) const {
    TEXTMETRICA metrics{};
    if (!dc.GetTextMetrics(metrics)) {
        return;
    }
    m_description.lfHeight = metrics.tmHeight;
    m_description.lfWidth = metrics.tmAveCharWidth;
    m_description.lfWeight = metrics.tmWeight;
    m_description.lfItalic = metrics.tmItalic;
    m_description.lfUnderline = metrics.tmUnderlined;
    m_description.lfStrikeOut = metrics.tmStruckOut;
    m_description.lfCharSet = metrics.tmCharSet;
    m_description.lfPitchAndFamily = metrics.tmPitchAndFamily;
    m_maxWidth = lvx::drawing::clamped<short>(metrics.tmMaxCharWidth);
    if (m_pointSize == 0) {
        m_pointSize = lvx::drawing::points_of(static_cast<int>(metrics.tmHeight), dpi);
    }
    dc.GetTextFace(m_description.lfFaceName, LF_FACESIZE - 1);
    m_face = m_description.lfFaceName;
    m_actualValid = true;
}

void LVXFont::getActual() const {
    const owl::TScreenDC screen;
    owl::TMemoryDC dc(screen);
    select(dc);
}

const LOGFONTA& LVXFont::Actual() const {
    if (!m_actualValid) {
        getActual();
    }
    return m_description;
}

const std::string& LVXFont::face() const {
    Actual();
    return m_face;
}

bool LVXFont::bold() const {
    return Actual().lfWeight > FW_NORMAL;
}

bool LVXFont::italic() const {
    return Actual().lfItalic != 0;
}

bool LVXFont::underline() const {
    return Actual().lfUnderline != 0;
}

bool LVXFont::strikeOut() const {
    return Actual().lfStrikeOut != 0;
}

int LVXFont::height() const {
    return static_cast<int>(Actual().lfHeight);
}

int LVXFont::width() const {
    return static_cast<int>(Actual().lfWidth);
}

short LVXFont::maxWidth() const {
    Actual();
    return m_maxWidth;
}

int LVXFont::pointSize() const {
    if (m_pointSize == 0) {
        getActual();
    }
    return m_pointSize;
}

LVXFont::operator owl::TFont&() {
    return static_cast<const LVXFont&>(*this);
}

LVXFont::operator owl::TFont&() const {
    if (m_font == nullptr) {
        getActual();
    }
    return *m_font;
}
