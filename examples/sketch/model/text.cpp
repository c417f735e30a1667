#include "sketch/model/text.h"

#include <algorithm>
#include <cmath>
#include <sstream>
#include <string_view>

#include "lvx/drawing/bitmap.h"
#include "lvx/drawing/font.h"
#include "lvx/drawing/port.h"
#include "lvx/drawing/region.h"
#include "owl/dc.h"
#include "owl/font.h"
#include "sketch/model/coordinates.h"
#include "sketch/model/corners.h"
#include "sketch/model/line_ends.h"

namespace sketch {
namespace {

constexpr double pixels_of_an_inch = 96;
constexpr double points_of_an_inch = 72;
constexpr std::size_t most_letters_told = 30;

// A font is chosen in the pixels of the sheet, whatever the device: on a printer those are the units of the
// map, while a font that the port selects would be made for the printer's own.
class FontInUse {
public:
    FontInUse(LVX::Port& port, const myFont& font) : m_port(port), m_font(font.make_font()) {
        m_font->make(-static_cast<int>(std::lround(font.Size() * pixels_of_an_inch / points_of_an_inch)));
        port.GetDC()->SelectObject(static_cast<const owl::TFont&>(static_cast<const LVXFont&>(*m_font)));
    }
    ~FontInUse() { m_port.useFont(m_port.currentFont()); }
    FontInUse(const FontInUse&) = delete;
    FontInUse& operator=(const FontInUse&) = delete;

private:
    struct Free {
        void operator()(LVXFont* font) const { font->free(); }
    };

    LVX::Port& m_port;
    std::unique_ptr<LVXFont, Free> m_font;
};

template <class Work>
void ForEachLine(const std::string& words, const Work& work) {
    std::size_t start = 0;
    while (start <= words.size()) {
        const std::size_t end = std::min(words.find('\n', start), words.size());
        work(std::string_view(words).substr(start, end - start));
        start = end + 1;
    }
}

int CountOf(std::string_view line) {
    return static_cast<int>(line.size());
}

double ReadSize(const myFont& font) {
    if (!(font.Size() >= Text::smallest && font.Size() <= Text::largest)) {
        throw DocumentError("The letters of a text are of a size that cannot be.");
    }
    return font.Size();
}

std::string NumberText(double number) {
    std::ostringstream text;
    text << number;
    return text.str();
}

}  // namespace

Text::Text(const std::string& words, const myFont& font, const Look& look, const owl::TPoint& place)
    : m_words(WithPlainLineEnds(words)), m_font(font), m_place(place), m_look(look) {
    Measure();
}

void Text::Write(const std::string& words, const myFont& font) {
    m_words = WithPlainLineEnds(words);
    m_font = font;
    Measure();
}

void Text::PutTo(ObjectStore& store) const {
    WritePoint(store, m_place);
    store << m_words;
    m_font.PutTo(store);
    m_look.PutTo(store);
}

void Text::GetFrom(ObjectStore& store) {
    m_place = ReadPoint(store);
    store >> m_words;
    if (m_words.size() > most_letters) {
        throw DocumentError("A text is longer than any can be.");
    }
    m_font.GetFrom(store);
    ReadSize(m_font);
    m_look.GetFrom(store);
    Measure();
}

void Text::Measure() {
    LVXBitmap device(1, 1, true);
    LVX::Port port(device);
    port.Open();
    const FontInUse font(port, m_font);
    const int lineSpace = port.textLineSpace();
    m_size = {1, 0};
    ForEachLine(m_words, [&](std::string_view line) {
        int width = 0;
        port.textSize(line.data(), CountOf(line), &width, nullptr);
        m_size = {std::max<LONG>(m_size.cx, width), m_size.cy + lineSpace};
    });
    m_size.cy = std::max<LONG>(m_size.cy, 1);
}

void Text::Draw(LVX::Port& port) const {
    if (!port.IsOpen()) {
        return;
    }
    LVXPen pen(1, LineSolid, m_look.lineColour);
    LVXBrush brush(m_look.fill, m_look.fillColour, LVX::White);
    port.usePen(&pen);
    port.useBrush(&brush);
    if (m_look.filled) {
        const owl::TRect rect = Bounds();
        LVXRectangle ground(RectCorners, rect.left, rect.top, rect.right, rect.bottom);
        port.fillRegion(&ground, false);
    }
    const FontInUse font(port, m_font);
    int y = m_place.y;
    ForEachLine(m_words, [&](std::string_view line) {
        port.wrtText(line.data(), CountOf(line), m_place.x, y);
        y += port.textLineSpace();
    });
}

std::vector<owl::TPoint> Text::Outline() const {
    return CornersOf(Bounds());
}

std::vector<Handle> Text::Handles() const {
    return CornerHandles(Outline());
}

std::string Text::Describe() const {
    const std::size_t end = m_words.find('\n');
    std::string told = m_words.substr(0, std::min(end, most_letters_told));
    if (told.size() < m_words.size()) {
        told += "...";
    }
    return "Text \"" + told + "\", " + DescribeFont(m_font);
}

void Text::MoveBy(const owl::TSize& way) {
    if (IsNear(owl::TRect(m_place + way, m_size))) {
        m_place = m_place + way;
    }
}

void Text::Pull(std::size_t handle, const owl::TPoint& from, const owl::TPoint& to) {
    const std::vector<owl::TPoint> corners = Outline();
    // The opposite corner stays.
    const owl::TPoint fixed = corners[(handle + 2) % 4];
    const double height = std::abs(corners[handle % 4].y + (to - from).cy - fixed.y);
    Text pulled = *this;
    // In half points: nobody pulls more finely.
    const double size = std::round(m_font.Size() * height / m_size.cy * 2) / 2;
    pulled.m_font.Size(std::clamp(size, smallest, largest));
    pulled.Measure();
    const owl::TPoint moved = pulled.Outline()[(handle + 2) % 4];
    pulled.m_place = pulled.m_place + (fixed - moved);
    if (IsNear(pulled.Bounds())) {
        *this = pulled;
    }
}

std::string DescribeFont(const myFont& font) {
    std::string text =
        font.Face() + ", " + NumberText(font.Size()) + (font.Size() == 1 ? " point" : " points");
    text += font.Bold() ? ", bold" : "";
    text += font.Italic() ? ", italic" : "";
    text += font.Underline() ? ", underlined" : "";
    text += font.Strikeout() ? ", struck out" : "";
    return text;
}

}  // namespace sketch
