#include "lvx/controls/etched_static.h"

#include <gtest/gtest.h>

#include "tests/owl/desk.h"

namespace {

using lvx::controls::etch_static;
using lvx::controls::etched_style;

class Control {
public:
    explicit Control(HWND handle) : m_handle(handle) {}

    DWORD Etched() const {
        etch_static(m_handle);
        return static_cast<DWORD>(::GetWindowLongA(m_handle, GWL_STYLE));
    }
    /// Relative to its parent.
    owl::TRect Place() const {
        owl::TRect place;
        ::GetWindowRect(m_handle, &place);
        ::MapWindowPoints(nullptr, ::GetParent(m_handle), reinterpret_cast<POINT*>(&place), 2);
        return place;
    }
    DWORD ExtendedStyle() const { return static_cast<DWORD>(::GetWindowLongA(m_handle, GWL_EXSTYLE)); }

private:
    HWND m_handle;
};

struct EtchStatic : testing::Test {
    Control Make(const char* windowClass, DWORD style, int width = 20, int height = 10) {
        return Control(::CreateWindowExA(0, windowClass, "", WS_CHILD | style, 0, 0, width, height,
                                         desk.frame->GetHandle(), nullptr, nullptr, nullptr));
    }

    desk::Desk desk;
};

}  // namespace

TEST(EtchedStyle, takes_the_place_of_rectangles_and_frames) {
    struct Kind {
        DWORD old;
        DWORD wide;
        DWORD high;
    };
    static constexpr Kind kinds[] = {
        {4, 0x10, 0x11},     {5, 0x12, 0x12}, {6, 0x12, 0x12},
        {7, 0x1012, 0x1012}, {8, 0x12, 0x12}, {9, 0x12, 0x12},
    };
    for (const Kind& kind : kinds) {
        EXPECT_EQ(kind.wide, etched_style(kind.old, true)) << kind.old;
        EXPECT_EQ(kind.high, etched_style(kind.old, false)) << kind.old;
    }
}

TEST(EtchedStyle, of_all_other_kinds_is_what_it_was) {
    for (DWORD kind = 0; kind < 32; ++kind) {
        if (kind < 4 || kind > 9) {
            EXPECT_EQ(kind, etched_style(kind, true));
            EXPECT_EQ(kind, etched_style(kind, false));
        }
    }
}

TEST(EtchedStyle, leaves_the_other_bits_alone) {
    EXPECT_EQ(0xFFFFEFF2u, etched_style(0xFFFFEFE5, false));
    EXPECT_EQ(0xFFFFFFF2u, etched_style(0xFFFFEFE7, false));
    EXPECT_EQ(0xFFFFFFE1u, etched_style(0xFFFFFFE1, true));
}

TEST_F(EtchStatic, changes_statics_by_their_shape) {
    EXPECT_EQ(static_cast<DWORD>(WS_CHILD | SS_ETCHEDHORZ), Make("Static", SS_BLACKRECT, 20, 10).Etched());
    EXPECT_EQ(static_cast<DWORD>(WS_CHILD | SS_ETCHEDVERT), Make("STATIC", SS_BLACKRECT, 10, 20).Etched());
    EXPECT_EQ(static_cast<DWORD>(WS_CHILD | SS_ETCHEDVERT), Make("static", SS_BLACKRECT, 10, 10).Etched());
    EXPECT_EQ(static_cast<DWORD>(WS_CHILD | SS_ETCHEDFRAME | SS_SUNKEN),
              Make("Static", SS_BLACKFRAME).Etched());
}

// As the system creates them: otherwise there is nothing to be seen.
TEST_F(EtchStatic, gives_lines_the_shape_of_lines) {
    const Control wide = Make("Static", SS_BLACKRECT, 40, 6);
    wide.Etched();
    const Control born = Make("Static", SS_ETCHEDHORZ, 38, 6);
    EXPECT_EQ(owl::TRect(0, 0, 40, 2), wide.Place());
    EXPECT_EQ(born.Place(), wide.Place());
    EXPECT_EQ(born.ExtendedStyle(), wide.ExtendedStyle());
    const Control high = Make("Static", SS_BLACKRECT, 6, 40);
    high.Etched();
    EXPECT_EQ(owl::TRect(0, 0, 2, 40), high.Place());
    const Control frame = Make("Static", SS_GRAYFRAME, 30, 20);
    frame.Etched();
    EXPECT_EQ(owl::TRect(0, 0, 30, 20), frame.Place());
    EXPECT_EQ(0u, frame.ExtendedStyle() & WS_EX_STATICEDGE);
}

// The same bits mean a radio button there.
TEST_F(EtchStatic, leaves_other_controls_alone) {
    EXPECT_EQ(static_cast<DWORD>(WS_CHILD | BS_RADIOBUTTON), Make("Button", BS_RADIOBUTTON).Etched());
    EXPECT_EQ(static_cast<DWORD>(WS_CHILD | SS_LEFT), Make("Static", SS_LEFT).Etched());
}

TEST_F(EtchStatic, does_nothing_to_what_is_no_window) {
    etch_static(nullptr);
}
