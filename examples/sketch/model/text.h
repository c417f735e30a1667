// Words on the sheet, in one or more lines, in a font of their own. The line colour of the look is that of
// the letters, its fill the ground behind them.
#pragma once

#include <memory>
#include <string>

#include "lvx/drawing/my_font.h"
#include "sketch/model/figure.h"
#include "sketch/model/look.h"

namespace sketch {

class Text : public Figure {
public:
    static constexpr std::size_t most_letters = 10000;
    // In points.
    static constexpr double smallest = 1;
    static constexpr double largest = 1000;

    Text() = default;
    /// Its upper left corner at `place`. Lines end with "\n", with or without "\r" before it. Requires: no
    /// more than `most_letters`, and a size that may be.
    Text(const std::string& words, const myFont& font, const Look& look, const owl::TPoint& place);

    const std::string& Words() const { return m_words; }
    const myFont& Font() const { return m_font; }
    /// Says something else, or in another font; the upper left corner stays.
    void Write(const std::string& words, const myFont& font);

    void PutTo(ObjectStore& store) const override;
    void GetFrom(ObjectStore& store) override;
    std::shared_ptr<Figure> Clone() const override { return std::make_shared<Text>(*this); }
    void Draw(LVX::Port& port) const override;
    owl::TRect Bounds() const override { return {m_place, m_size}; }
    bool Contains(const owl::TPoint& point) const override { return Bounds().Contains(point); }
    std::vector<owl::TPoint> Outline() const override;
    std::vector<Handle> Handles() const override;
    std::string Describe() const override;
    void MoveBy(const owl::TSize& way) override;
    /// The letters become as large as the height that is pulled asks for.
    void Pull(std::size_t handle, const owl::TPoint& from, const owl::TPoint& to) override;
    using Figure::LookOf;
    Look* LookOf() override { return &m_look; }

private:
    void Measure();

    std::string m_words;
    myFont m_font;
    owl::TPoint m_place;
    Look m_look;
    // As the screen shows it; not stored, because another system has other fonts.
    owl::TSize m_size;
};

/// "Arial, 12 points, bold".
std::string DescribeFont(const myFont& font);

}  // namespace sketch
