#include "sketch/model/picture.h"

#include <cmath>
#include <new>
#include <numbers>
#include <stdexcept>

#include "lvx/drawing/port.h"
#include "owl/dc.h"
#include "owl/region.h"
#include "sketch/model/coordinates.h"
#include "sketch/model/corners.h"
#include "sketch/model/picture_check.h"
#include "sketch/model/reading.h"

namespace sketch {
namespace {

constexpr int knob = 4;

owl::TSize SizeOf(const LVXUtilities::DIBitmap& bitmap) {
    return {bitmap.GetWidth(), std::abs(bitmap.GetHeight())};
}

// From -pi to pi, and 0 for whole turns.
double Reduced(double angle) {
    return std::remainder(angle, 2 * std::numbers::pi);
}

std::string AngleText(double angle) {
    return std::to_string(std::lround(std::abs(angle) * 180 / std::numbers::pi)) + " degrees " +
           (angle > 0 ? "to the left" : "to the right");
}

// What lies beside a turned picture in its block is not of the picture. Regions are in the device's units.
void ClipTo(owl::TDC& dc, std::vector<owl::TPoint> corners) {
    const auto count = static_cast<int>(corners.size());
    dc.LPtoDP(corners.data(), count);
    const owl::TRegion region(corners.data(), count, ALTERNATE);
    ::ExtSelectClipRgn(dc, region, RGN_AND);
}

double ReadReal(ObjectStore& store, double limit) {
    double number = 0;
    store >> number;
    if (!(std::abs(number) <= limit)) {
        throw DocumentError("A picture lies where none can be.");
    }
    return number;
}

}  // namespace

Picture::Picture(Bitmap bitmap, std::string name, const owl::TPoint& place)
    : m_bitmap(std::move(bitmap)), m_name(std::move(name)) {
    CheckPicture(*m_bitmap);
    const owl::TSize size = SizeOf(*m_bitmap);
    m_frame = {size, {place.x + size.cx / 2.0, place.y + size.cy / 2.0}, 0, {}};
    m_skewed = m_bitmap;
    MakeShown();
}

void Picture::PutTo(ObjectStore& store) const {
    store << *m_bitmap << m_name << m_frame.middle.x << m_frame.middle.y << m_frame.angle
          << static_cast<int>(m_frame.skew.corner) << m_frame.skew.dx << m_frame.skew.dy;
}

void Picture::GetFrom(ObjectStore& store) {
    m_bitmap = Reading::Read<LVXUtilities::DIBitmap>(store);
    CheckPicture(*m_bitmap);
    store >> m_name;
    m_frame.size = SizeOf(*m_bitmap);
    m_frame.middle.x = ReadReal(store, farthest);
    m_frame.middle.y = ReadReal(store, farthest);
    m_frame.angle = ReadReal(store, 2 * std::numbers::pi);
    m_frame.skew.corner =
        static_cast<SeenCorner>(ReadNumber(store, UpperLeft, LowerLeft, "corner of a picture"));
    m_frame.skew.dx = ReadNumber(store, -farthest, farthest, "skew of a picture");
    m_frame.skew.dy = ReadNumber(store, -farthest, farthest, "skew of a picture");
    m_skewed = Skewed(m_bitmap, m_frame.skew);
    MakeShown();
}

void Picture::MakeShown() {
    m_shown = ForScreen(*Turned(m_skewed, m_frame.angle));
}

void Picture::Draw(LVX::Port& port) const {
    owl::TDC* const dc = port.GetDC();
    if (dc == nullptr) {
        return;
    }
    const Place middle = m_frame.SkewedMiddle();
    const owl::TPoint place(static_cast<int>(std::lround(middle.x - m_shown->Width() / 2.0)),
                            static_cast<int>(std::lround(middle.y - m_shown->Height() / 2.0)));
    const int saved = dc->SaveDC();
    if (m_frame.angle != 0 || !m_frame.skew.IsNone()) {
        ClipTo(*dc, m_frame.Corners());
    }
    if (dc->GetDeviceCaps(TECHNOLOGY) == DT_RASDISPLAY) {
        port.drawBitMap(m_shown.get(), place.x, place.y);
    } else {
        DrawPixels(*dc, place);
    }
    dc->RestoreDC(saved);
}

// The screen's own bitmaps are for the screen. Anything else, a printer say, is given the pixels, in its own
// fineness.
void Picture::DrawPixels(owl::TDC& dc, const owl::TPoint& place) const {
    const Bitmap pixels = Turned(m_skewed, m_frame.angle);
    const owl::TSize size = SizeOf(*pixels);
    pixels->StretchDIBits(dc, owl::TRect(place, size), owl::TRect(owl::TPoint(), size), SRCCOPY, nullptr);
}

owl::TRect Picture::Bounds() const {
    return BoundsOf(m_frame.Corners());
}

bool Picture::Contains(const owl::TPoint& point) const {
    return IsInside(m_frame.Corners(), point);
}

std::vector<Handle> Picture::Handles() const {
    std::vector<Handle> handles = CornerHandles(m_frame.Corners());
    handles.push_back({m_frame.Knob(), Handle::Knob});
    return handles;
}

std::string Picture::Describe() const {
    std::string text = m_name.empty() ? "Picture" : "Picture \"" + m_name + "\"";
    text += ", " + std::to_string(m_frame.size.cx) + " x " + std::to_string(m_frame.size.cy);
    if (m_frame.angle != 0) {
        text += ", turned by " + AngleText(m_frame.angle);
    }
    if (!m_frame.skew.IsNone()) {
        text += ", skewed by " + std::to_string(m_frame.skew.dx) + ", " + std::to_string(m_frame.skew.dy);
    }
    return text;
}

void Picture::MoveBy(const owl::TSize& way) {
    const owl::TRect bounds = Bounds();
    if (IsNear(owl::TRect(bounds.TopLeft() + way, bounds.Size()))) {
        m_frame.middle.x += way.cx;
        m_frame.middle.y += way.cy;
    }
}

void Picture::Pull(std::size_t handle, const owl::TPoint& from, const owl::TPoint& to) {
    if (handle == knob) {
        Turn(m_frame.AngleBetween(from, to));
    } else {
        SkewBy(static_cast<SeenCorner>(handle), m_frame.WayToOwn(to - from));
    }
}

bool Picture::Turn(double angle) {
    PictureFrame frame = m_frame;
    frame.angle = Reduced(frame.angle + angle);
    // Degrees that add up to a whole turn miss it by a rounding error.
    if (std::abs(frame.angle) < 1e-9) {
        frame.angle = 0;
    }
    return Change(frame);
}

bool Picture::SkewBy(SeenCorner corner, const owl::TSize& way) {
    const Picture before = *this;
    if (corner != m_frame.skew.corner && !m_frame.skew.IsNone()) {
        Settle();
    }
    PictureFrame frame = m_frame;
    frame.skew = {corner, m_frame.skew.dx + way.cx, m_frame.skew.dy + way.cy};
    if (Change(frame)) {
        return true;
    }
    *this = before;
    return false;
}

void Picture::Straighten() {
    PictureFrame frame = m_frame;
    frame.angle = 0;
    frame.skew = {};
    Change(frame);
}

// The skewed picture becomes the one to start from, where it lies.
void Picture::Settle() {
    const owl::TSize size = m_frame.SkewedRect().Size();
    m_frame = {size, m_frame.SkewedMiddle(), m_frame.angle, {}};
    m_bitmap = m_skewed;
}

bool Picture::Change(const PictureFrame& frame) {
    const Picture before = *this;
    try {
        if (frame.skew != m_frame.skew) {
            m_skewed = Skewed(m_bitmap, frame.skew);
        }
        m_frame = frame;
        MakeShown();
        return true;
    } catch (const std::runtime_error&) {  // a corner across another, a picture too large
    } catch (const std::bad_alloc&) {
    }
    *this = before;
    return false;
}

}  // namespace sketch
