#include "owl/scroll_bar.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/owl/desk.h"

namespace {

// Reads the position when it is told of a move.
class Reader : public owl::TWindow {
public:
    explicit Reader(owl::TWindow* parent) : TWindow(parent) {
        Attr.W = 200;
        Attr.H = 100;
        bar = new owl::TScrollBar(this, 5, 0, 0, 150, 0, true);
    }
    void SetupWindow() override {
        TWindow::SetupWindow();
        bar->SetRange(0, 100);
        bar->SetPosition(50);
    }
    void Scrolled(UINT) { positions.push_back(bar->GetPosition()); }

    owl::TScrollBar* bar;
    std::vector<int> positions;

    DECLARE_RESPONSE_TABLE(Reader);
};

DEFINE_RESPONSE_TABLE1(Reader, owl::TWindow)
    EV_CHILD_NOTIFY_ALL_CODES(5, Scrolled),
END_RESPONSE_TABLE;

struct ScrollBar : testing::Test {
    ScrollBar() : reader(new Reader(desk.frame)), bar(reader->bar) { reader->Create(); }

    void Say(UINT code) {
        reader->SendMessage(WM_HSCROLL, MAKEWPARAM(code, 0), reinterpret_cast<LPARAM>(bar->GetHandle()));
    }

    desk::Desk desk;
    Reader* reader;
    owl::TScrollBar* bar;
};

TEST_F(ScrollBar, moves_before_its_parent_is_told) {
    for (const UINT code : {SB_LINEUP, SB_LINEDOWN, SB_PAGEUP, SB_PAGEDOWN, SB_TOP, SB_BOTTOM})
        Say(code);
    EXPECT_EQ((std::vector<int>{49, 50, 40, 50, 0, 100}), reader->positions);
}

TEST_F(ScrollBar, tells_its_parent_of_the_end_without_moving) {
    Say(SB_ENDSCROLL);
    EXPECT_EQ(std::vector<int>{50}, reader->positions);
}

TEST_F(ScrollBar, stays_in_its_range) {
    int low = 5;
    int high = 5;
    bar->GetRange(low, high);
    EXPECT_EQ(0, low);
    EXPECT_EQ(100, high);
    bar->SetPosition(101);
    EXPECT_EQ(100, bar->GetPosition());
    bar->SetPosition(-1);
    EXPECT_EQ(0, bar->GetPosition());
    EXPECT_EQ(100, bar->DeltaPos(std::numeric_limits<int>::max()));
    EXPECT_EQ(0, bar->DeltaPos(std::numeric_limits<int>::min()));
}

TEST_F(ScrollBar, moves_by_its_magnitudes) {
    bar->LineMagnitude = 3;
    bar->PageMagnitude = 25;
    Say(SB_LINEDOWN);
    Say(SB_PAGEUP);
    EXPECT_EQ((std::vector<int>{53, 28}), reader->positions);
}

TEST_F(ScrollBar, is_as_thick_as_the_systems) {
    EXPECT_EQ(::GetSystemMetrics(SM_CYHSCROLL), bar->GetWindowRect().Height());
    const owl::TScrollBar upright(reader, 6, 0, 0, 0, 50, false);
    EXPECT_EQ(::GetSystemMetrics(SM_CXVSCROLL), upright.Attr.W);
}

TEST_F(ScrollBar, is_moved_by_keys) {
    ASSERT_TRUE(desk::Activate(*desk.frame));
    bar->SetFocus();
    desk::Press({VK_RIGHT});
    EXPECT_TRUE(desk::PumpUntil([&] { return bar->GetPosition() == 51; }));
    EXPECT_FALSE(reader->positions.empty());
}

TEST_F(ScrollBar, transfers_its_range_and_position) {
    const owl::TScrollBarData data{10, 20, 15};
    owl::TScrollBarData buffer = data;
    EXPECT_EQ(sizeof(data), bar->Transfer(&buffer, owl::tdSetData));
    EXPECT_EQ(15, bar->GetPosition());
    bar->SetPosition(18);
    bar->Transfer(&buffer, owl::tdGetData);
    EXPECT_EQ(10, buffer.LowValue);
    EXPECT_EQ(20, buffer.HighValue);
    EXPECT_EQ(18, buffer.Position);
}

}  // namespace
