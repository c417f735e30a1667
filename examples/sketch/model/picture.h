// A picture on the sheet. It keeps the pixels that it came with and how they were turned and skewed, so that
// turning back and forth loses nothing; what is drawn is made of them at each change. Only when a second
// corner is pulled does the skewed picture become the new one to start from. Copies share their pixels, in
// memory and in documents.
#pragma once

#include "sketch/model/figure.h"
#include "sketch/model/picture_making.h"

namespace sketch {

class Picture : public Figure {
public:
    Picture() = default;
    /// Its upper left corner at `place`. Throws DocumentError if `bitmap` cannot be drawn.
    Picture(Bitmap bitmap, std::string name, const owl::TPoint& place);

    void PutTo(ObjectStore& store) const override;
    void GetFrom(ObjectStore& store) override;
    std::shared_ptr<Figure> Clone() const override { return std::make_shared<Picture>(*this); }
    void Draw(LVX::Port& port) const override;
    owl::TRect Bounds() const override;
    bool Contains(const owl::TPoint& point) const override;
    std::vector<owl::TPoint> Outline() const override { return m_frame.Corners(); }
    /// The four corners, which skew, and the knob, which turns.
    std::vector<Handle> Handles() const override;
    std::string Describe() const override;
    void MoveBy(const owl::TSize& way) override;
    void Pull(std::size_t handle, const owl::TPoint& from, const owl::TPoint& to) override;

    /// Turns on by `angle` radians, against the clock. False, and nothing changed, if the system cannot.
    bool Turn(double angle);
    /// Pulls a corner on by a way in the picture's own coordinates. False, and nothing changed, where a
    /// corner cannot be pulled to.
    bool SkewBy(SeenCorner corner, const owl::TSize& way);
    /// Undoes all turning, and the skewing since another corner was pulled.
    void Straighten();

    const std::string& Name() const { return m_name; }
    void Rename(const std::string& name) { m_name = name; }
    const PictureFrame& Frame() const { return m_frame; }

private:
    bool Change(const PictureFrame& frame);
    void Settle();
    void MakeShown();
    void DrawPixels(owl::TDC& dc, const owl::TPoint& place) const;

    Bitmap m_bitmap;
    std::string m_name;
    PictureFrame m_frame;
    // Skewed, not turned yet.
    Bitmap m_skewed;
    std::shared_ptr<owl::TBitmap> m_shown;
};

}  // namespace sketch
