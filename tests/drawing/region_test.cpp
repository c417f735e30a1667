#include "lvx/drawing/region.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <vector>

#include "drawing/sheet.h"
#include "owl/region.h"

using lvx_test::OpenPort;
using lvx_test::rows;
using owl::TColor;

namespace {

/// An L of three squares, drawn by its region alone, that writes down what it is asked.
class Corner : public LVXRegion {
public:
    void MakeRegion() override {
        ++made;
        if (isRefused) {
            m_region.reset();
            return;
        }
        m_region = std::make_unique<owl::TRegion>(owl::TRect(1, 1, 3, 5));
        *m_region |= owl::TRegion(owl::TRect(3, 3, 5, 5));
    }
    void Frame(owl::TDC& dc, const LVXPen& pen) override {
        ++framed;
        hadRegionInFrame = static_cast<HRGN>(*this) != nullptr;
        LVXRegion::Frame(dc, pen);
    }

    int made = 0;
    int framed = 0;
    bool isRefused = false;
    bool hadRegionInFrame = false;
};

class Failing : public LVXRegion {
public:
    void MakeRegion() override {
        if (isFailing) {
            throw std::runtime_error("no region");
        }
        m_region = std::make_unique<owl::TRegion>(owl::TRect(0, 0, 2, 2));
    }

    bool isFailing = true;
};

HRGN handle(const LVXRegion& shape) {
    return shape;
}

struct Drawn : OpenPort {
    Drawn() : OpenPort(6, 6) {
        port.usePen(&pen);
        port.useBrush(&brush);
    }
    ~Drawn() {
        port.usePen(nullptr);
        port.useBrush(nullptr);
    }

    LVXPen pen{TColor::LtRed};
    LVXBrush brush{FillForeground, TColor::LtGreen, TColor::LtYellow};
};

}  // namespace

TEST(Region, has_none_of_the_system_at_rest) {
    const Corner corner;
    EXPECT_EQ(nullptr, handle(corner));
    EXPECT_EQ(0, corner.made);
}

TEST(Region, is_made_for_the_first_user_and_goes_with_the_last) {
    Corner corner;
    corner.GetRegion();
    const HRGN region = handle(corner);
    EXPECT_NE(nullptr, region);
    corner.GetRegion();
    EXPECT_EQ(region, handle(corner));
    corner.UngetRegion();
    EXPECT_EQ(region, handle(corner));
    corner.UngetRegion();
    EXPECT_EQ(nullptr, handle(corner));
    EXPECT_EQ(0u, ::GetObjectType(region));
    EXPECT_EQ(1, corner.made);
}

TEST(Region, given_back_too_often_still_counts_right) {
    Corner corner;
    corner.UngetRegion();
    corner.UngetRegion();
    corner.GetRegion();
    corner.GetRegion();
    corner.UngetRegion();
    EXPECT_NE(nullptr, handle(corner));
    corner.UngetRegion();
    EXPECT_EQ(nullptr, handle(corner));
}

TEST(Region, made_again_replaces_the_first) {
    Corner corner;
    corner.GetRegion();
    const HRGN region = handle(corner);
    corner.MakeRegion();
    EXPECT_NE(region, handle(corner));
    EXPECT_EQ(0u, ::GetObjectType(region));
    corner.UngetRegion();
}

TEST(Region, that_goes_takes_the_systems_along) {
    HRGN region = nullptr;
    {
        Corner corner;
        corner.GetRegion();
        region = handle(corner);
    }
    EXPECT_EQ(0u, ::GetObjectType(region));
}

TEST(Region, is_filled_with_the_brush) {
    Drawn drawn;
    Corner corner;
    drawn.port.fillRegion(&corner, false);
    EXPECT_EQ("......\n.GG...\n.GG...\n.GGGG.\n.GGGG.\n......\n", drawn.Picture());
    EXPECT_EQ(0, corner.framed);
    EXPECT_EQ(nullptr, handle(corner));
}

TEST(Region, is_filled_and_framed_in_one_use) {
    Drawn drawn;
    Corner corner;
    drawn.port.fillRegion(&corner, true);
    // The pixel in the bend touches the outside with a tip alone.
    EXPECT_EQ("......\n.RR...\n.RR...\n.RGRR.\n.RRRR.\n......\n", drawn.Picture());
    EXPECT_EQ(1, corner.made);
    EXPECT_EQ(1, corner.framed);
    EXPECT_TRUE(corner.hadRegionInFrame);
    EXPECT_EQ(nullptr, handle(corner));
}

TEST(Region, is_framed_inside_as_wide_as_the_pen) {
    Drawn drawn;
    class Square : public LVXRegion {
    public:
        void MakeRegion() override { m_region = std::make_unique<owl::TRegion>(owl::TRect(0, 0, 6, 6)); }
    } square;
    drawn.port.frameRegion(&square);
    EXPECT_EQ("RRRRRR\nR....R\nR....R\nR....R\nR....R\nRRRRRR\n", drawn.Picture());
    drawn.pen.width(2);
    drawn.port.frameRegion(&square);
    EXPECT_EQ("RRRRRR\nRRRRRR\nRR..RR\nRR..RR\nRRRRRR\nRRRRRR\n", drawn.Picture());
}

TEST(Region, is_not_framed_by_a_pen_without_a_width) {
    Drawn drawn;
    Corner corner;
    drawn.pen.width(0);
    drawn.port.frameRegion(&corner);
    EXPECT_EQ(rows(6, "......"), drawn.Picture());
}

TEST(Region, is_inverted) {
    Drawn drawn;
    Corner corner;
    drawn.port.invertRegion(&corner);
    EXPECT_EQ("......\n.##...\n.##...\n.####.\n.####.\n......\n", drawn.Picture());
    drawn.port.invertRegion(&corner);
    EXPECT_EQ(rows(6, "......"), drawn.Picture());
    EXPECT_EQ(nullptr, handle(corner));
}

TEST(Region, that_is_refused_draws_nothing_and_counts_right) {
    Drawn drawn;
    Corner corner;
    corner.isRefused = true;
    drawn.port.fillRegion(&corner, true);
    drawn.port.fillRegion(&corner, false);
    drawn.port.frameRegion(&corner);
    drawn.port.invertRegion(&corner);
    EXPECT_EQ(rows(6, "......"), drawn.Picture());
    corner.isRefused = false;
    corner.GetRegion();
    EXPECT_NE(nullptr, handle(corner));
    corner.UngetRegion();
    EXPECT_EQ(nullptr, handle(corner));
}

TEST(Region, that_throws_when_it_is_made_has_no_user) {
    Drawn drawn;
    Failing failing;
    EXPECT_THROW(failing.GetRegion(), std::runtime_error);
    EXPECT_THROW(drawn.port.fillRegion(&failing, true), std::runtime_error);
    EXPECT_THROW(drawn.port.invertRegion(&failing), std::runtime_error);
    failing.isFailing = false;
    failing.GetRegion();
    failing.UngetRegion();
    EXPECT_EQ(nullptr, handle(failing));
}

TEST(Region, has_its_operations_in_this_order) {
    // The order is what a host's compiled shape relies on: each is reached here through the base alone.
    class Order : public LVXRegion {
    public:
        void MakeRegion() override { calls += 'm'; }
        void Fill(owl::TDC&, const LVXPen&, const LVXBrush&, bool) override { calls += 'f'; }
        void Frame(owl::TDC&, const LVXPen&) override { calls += 'r'; }
        void Invert(owl::TDC&) override { calls += 'i'; }
        std::string calls;
    } order;
    OpenPort open;
    open.port.fillRegion(&order, true);
    open.port.frameRegion(&order);
    open.port.invertRegion(&order);
    open.port.eraseRegion(&order);
    order.GetRegion();
    EXPECT_EQ("frifm", order.calls);
}
