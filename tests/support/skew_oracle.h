// Skewing told a second time, step by step and pixel by pixel, with nothing taken out of the loops. Bytes
// that a block lacks are 0, and what would be written behind the end of one is not.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <utility>

namespace lvx_test {

/// The block of the skewed picture. `block` has a header of 40 bytes or more, with neither size negative.
class SkewOracle {
public:
    SkewOracle(std::string block, int corner, int dx, int dy, std::uint32_t background = 0x00FFFFFF)
        : m_source(std::move(block)), m_background(background), m_dx(dx), m_dy(dy) {
        m_width = Width();
        m_height = Height();
        PlaceX(corner, dx);
        PlaceY(corner, dy);
        PlaceCorners(corner, dx, dy);
        MakeBlock();
        MakeMap();
        for (int x = 0; x < m_width; ++x) {
            for (int y = 0; y < m_height; ++y) {
                Pixel(x, y);
            }
        }
    }

    const std::string& Block() const { return m_output; }

private:
    struct Point {
        int x;
        int y;
    };

    static bool IsLeft(int corner) { return corner == 5 || corner == 6; }
    static bool IsRight(int corner) { return corner == 9 || corner == 10; }
    static bool IsTop(int corner) { return corner == 5 || corner == 9; }

    // A field of a header; 0 if the block ends within it or before.
    static std::uint32_t Field(const std::string& block, std::size_t place, std::size_t count) {
        std::uint32_t number = 0;
        for (std::size_t i = 0; i < count && place + count <= block.size(); ++i) {
            number |= std::uint32_t{static_cast<unsigned char>(block[place + i])} << (8 * i);
        }
        return number;
    }
    void PutField(std::size_t place, std::size_t count, std::uint32_t number) {
        for (std::size_t i = 0; i < count; ++i) {
            m_output[place + i] = static_cast<char>(number >> (8 * i));
        }
    }
    int Width() const { return static_cast<int>(Field(m_source, 4, 4)); }
    int Height() const { return static_cast<int>(Field(m_source, 8, 4)); }
    int Depth() const { return static_cast<int>(Field(m_source, 14, 2)); }

    static std::size_t TableSize(const std::string& block) {
        const std::size_t used = Field(block, 32, 4);
        if (used != 0) {
            return used * 4;
        }
        switch (Field(block, 14, 2)) {
            case 1:
                return 8;
            case 4:
                return 64;
            case 8:
                return 1024;
            default:
                return Field(block, 16, 4) == 3 ? 12 : 0;
        }
    }

    void PlaceX(int corner, int move) {
        m_right = m_width;
        if (!IsLeft(corner) && !IsRight(corner)) {
            throw std::runtime_error("Invalid corner");
        }
        if (move < 0 && IsLeft(corner)) {
            m_left = -move;
            m_right = m_right - move;
            m_width = m_right;
            m_dx = m_left;
        } else {
            if (move >= 0 && IsRight(corner)) {
                m_width += move;
            }
            m_dx = 0;
        }
    }

    void PlaceY(int corner, int move) {
        m_bottom = m_height;
        if (move < 0 && IsTop(corner)) {
            m_top = -move;
            m_bottom = m_bottom - move;
            m_height = m_bottom;
            m_dy = m_top;
        } else {
            if (move >= 0 && !IsTop(corner)) {
                m_height += move;
            }
            m_dy = 0;
        }
    }

    void PlaceCorners(int corner, int mdx, int mdy) {
        const Point left_top{m_left, m_top};
        const Point left_bottom{m_left, m_bottom};
        const Point right_top{m_right, m_top};
        const Point right_bottom{m_right, m_bottom};
        if (corner == 5) {
            SetCorners(left_bottom, right_bottom, right_top, {m_left + mdx, m_top + mdy});
        } else if (corner == 6) {
            SetCorners(right_bottom, right_top, left_top, {m_left + mdx, m_bottom + mdy});
        } else if (corner == 9) {
            SetCorners(left_top, left_bottom, right_bottom, {m_right + mdx, m_top + mdy});
        } else {
            SetCorners(right_top, left_top, left_bottom, {m_right + mdx, m_bottom + mdy});
        }
    }

    void SetCorners(Point p0, Point p1, Point p2, Point p3) {
        m_p0 = p0;
        m_p1 = p1;
        m_p2 = p2;
        m_p3 = p3;
    }

    void MakeBlock() {
        const std::size_t first_word = Field(m_source, 0, 4);
        const std::size_t row = (static_cast<std::size_t>(m_width) * 32 + 31) >> 5 << 2;
        const std::size_t image = row * static_cast<std::size_t>(m_height);
        // Never too small for the header.
        m_output.assign(std::max<std::size_t>(first_word + TableSize(m_source) + image, 40), '\0');
        for (std::size_t place = 12; place < 40; place += 4) {
            PutField(place, 4, Field(m_source, place, 4));
        }
        PutField(12, 2, Field(m_source, 12, 2));
        PutField(0, 4, 40);
        PutField(4, 4, static_cast<std::uint32_t>(m_width));
        PutField(8, 4, static_cast<std::uint32_t>(m_height));
        PutField(14, 2, 32);
        PutField(20, 4, static_cast<std::uint32_t>(image));
        for (std::size_t i = 0; i < TableSize(m_source) * 4; ++i) {
            if (first_word + i < m_source.size() && 40 + i < m_output.size()) {
                m_output[40 + i] = m_source[first_word + i];
            }
        }
        m_pixels = first_word + TableSize(m_source);
        m_base = 40 + TableSize(m_output);
    }

    void MakeMap() {
        if (m_p0.x == m_p1.x || m_p1.y == m_p2.y) {
            std::swap(m_p0, m_p2);
        }
        const double d1 = static_cast<double>(m_p3.x - m_p2.x) * (m_p2.y - m_p1.y);
        if (std::fabs(d1) < 0.00001) {
            throw std::runtime_error("Divide by zero (1)");
        }
        m_m1 = (m_p3.y - m_p2.y) / d1;
        const double d2 = static_cast<double>(m_p3.y - m_p0.y) * (m_p0.x - m_p1.x);
        if (std::fabs(d2) < 0.00001) {
            throw std::runtime_error("Divide by zero (2)");
        }
        m_m2 = (m_p3.x - m_p0.x) / d2;
    }

    // The whole part; what has none in 32 bits is the number that processors make of it.
    static int Truncated(double number) {
        return std::fabs(number) < 2147483648.0 ? static_cast<int>(number) : INT32_MIN;
    }

    void Map(double x, double y, int& u, int& v) const {
        u = Truncated(x);
        v = Truncated(y);
        const double e1 = m_m1 * x + 1 - m_p2.x * m_m1;
        if (std::fabs(e1) < 0.00001) {
            return;
        }
        const double t = (m_p1.y * m_m1 * x + y - m_p1.y * m_m1 * m_p2.x) / e1;
        const double e2 = m_m2 * t + 1 - m_p0.y * m_m2;
        if (std::fabs(e2) < 0.00001) {
            return;
        }
        const double r = (t * m_m2 * m_p1.x + x - m_p1.x * m_m2 * m_p0.y) / e2;
        u = Truncated(r + 0.5);
        v = Truncated(t + 0.5);
    }

    std::uint32_t Sample(double x, double y) const {
        int u = 0;
        int v = 0;
        Map(x, y, u, v);
        const std::int64_t from_left = std::int64_t{u} - m_dx;
        const std::int64_t from_top = std::int64_t{v} - m_dy;
        if (from_left < 0 || from_left >= Width() || from_top < 0 || from_top >= Height()) {
            return m_background;
        }
        const std::int64_t stride = (std::int64_t{Width()} * Depth() + 31) >> 5 << 2;
        const std::int64_t offset = from_top * stride + from_left * Depth() / 8;
        std::uint32_t word = 0;
        for (std::size_t i = 0; i < 4; ++i) {
            const std::size_t place = m_pixels + static_cast<std::size_t>(offset) + i;
            if (place < m_source.size()) {
                word |= std::uint32_t{static_cast<unsigned char>(m_source[place])} << (8 * i);
            }
        }
        return word;
    }

    static std::uint32_t Mean(std::uint32_t mask, std::uint32_t a, std::uint32_t b, std::uint32_t c,
                              std::uint32_t d) {
        return ((a & mask) + (b & mask) + (c & mask) + (d & mask)) >> 2 & mask;
    }

    void Pixel(int x, int y) {
        const std::uint32_t a = Sample(x + 0.25, y + 0.65);
        const std::uint32_t b = Sample(x + 0.35, y + 0.25);
        const std::uint32_t c = Sample(x + 0.75, y + 0.35);
        const std::uint32_t d = Sample(x + 0.65, y + 0.75);
        const std::uint32_t pixel = Mean(0xFF0000, a, b, c, d) | Mean(0xFF00, a, b, c, d) |
                                    Mean(0xFF, a, b, c, d) | Mean(0xFF000000, a, b, c, d);
        const std::size_t place = m_base +
                                  static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) * 4 +
                                  static_cast<std::size_t>(x) * 4;
        for (std::size_t i = 0; i < 4 && place + i < m_output.size(); ++i) {
            m_output[place + i] = static_cast<char>(pixel >> (8 * i));
        }
    }

    std::string m_source;
    std::string m_output;
    std::uint32_t m_background;
    int m_dx;
    int m_dy;
    int m_width = 0;
    int m_height = 0;
    int m_left = 0;
    int m_right = 0;
    int m_top = 0;
    int m_bottom = 0;
    Point m_p0{};
    Point m_p1{};
    Point m_p2{};
    Point m_p3{};
    double m_m1 = 0;
    double m_m2 = 0;
    std::size_t m_pixels = 0;
    std::size_t m_base = 0;
};

}  // namespace lvx_test
