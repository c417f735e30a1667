// Figures that are told by two corners: rectangles and ellipses.
#pragma once

#include "sketch/model/figure.h"
#include "sketch/model/look.h"

namespace sketch {

class Box : public Figure {
public:
    void PutTo(ObjectStore& store) const override;
    void GetFrom(ObjectStore& store) override;
    owl::TRect Bounds() const override { return m_rect; }
    std::vector<owl::TPoint> Outline() const override;
    std::vector<Handle> Handles() const override;
    void MoveBy(const owl::TSize& way) override;
    void Pull(std::size_t handle, const owl::TPoint& from, const owl::TPoint& to) override;
    Look* LookOf() override { return &m_look; }

protected:
    Box() = default;
    Box(const owl::TRect& rect, const Look& look) : m_rect(rect.Normalized()), m_look(look) {}

    owl::TRect m_rect;
    Look m_look;
};

class Rectangle : public Box {
public:
    Rectangle() = default;
    Rectangle(const owl::TRect& rect, const Look& look) : Box(rect, look) {}

    std::shared_ptr<Figure> Clone() const override { return std::make_shared<Rectangle>(*this); }
    void Draw(LVX::Port& port) const override;
    bool Contains(const owl::TPoint& point) const override;
    std::string Describe() const override;
};

class Ellipse : public Box {
public:
    Ellipse() = default;
    Ellipse(const owl::TRect& rect, const Look& look) : Box(rect, look) {}

    std::shared_ptr<Figure> Clone() const override { return std::make_shared<Ellipse>(*this); }
    void Draw(LVX::Port& port) const override;
    bool Contains(const owl::TPoint& point) const override;
    std::string Describe() const override;
};

}  // namespace sketch
