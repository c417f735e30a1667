// A closed figure of any number of corners.
#pragma once

#include "sketch/model/figure.h"
#include "sketch/model/look.h"

namespace sketch {

class Polygon : public Figure {
public:
    static constexpr int most_corners = 10000;

    Polygon() = default;
    Polygon(std::vector<owl::TPoint> corners, const Look& look)
        : m_corners(std::move(corners)), m_look(look) {}

    void PutTo(ObjectStore& store) const override;
    void GetFrom(ObjectStore& store) override;
    std::shared_ptr<Figure> Clone() const override { return std::make_shared<Polygon>(*this); }
    void Draw(LVX::Port& port) const override;
    owl::TRect Bounds() const override;
    bool Contains(const owl::TPoint& point) const override;
    std::vector<owl::TPoint> Outline() const override { return m_corners; }
    std::vector<Handle> Handles() const override;
    std::string Describe() const override;
    void MoveBy(const owl::TSize& way) override;
    void Pull(std::size_t handle, const owl::TPoint& from, const owl::TPoint& to) override;
    Look* LookOf() override { return &m_look; }

private:
    std::vector<owl::TPoint> m_corners;
    Look m_look;
};

}  // namespace sketch
