// A thousand colour dialogs, opened and closed in each way.
#include <stdexcept>

#include "controls/colour_desk.h"
#include "tests/owl/driven_dialog.h"
#include "tests/owl/leaks.h"

namespace {

struct ColourDialogs {
    static constexpr const char* name = "colour_dialogs";
    static constexpr int rounds = 334;

    explicit ColourDialogs(owl::TFrameWindow& frame) : desk(frame) {}

    void Round() {
        owl::TColor colour(192, 64, 32);
        std::string text = "name";
        desk::Driven<lvx_test::ColourDialog> agreed(&desk, colour, &text);
        agreed.action = [&] {
            agreed.Scroll(IDC_COLOUR_RED_BAR, SB_LINEDOWN);
            agreed.Sample->UpdateWindow();
            agreed.PostMessage(WM_COMMAND, IDOK);
        };
        EXPECT_EQ(IDOK, agreed.Execute());
        desk::Driven<lvx_test::ColourDialog> cancelled(&desk, colour, nullptr);
        cancelled.action = [&] { cancelled.CmCancel(); };
        EXPECT_EQ(IDCANCEL, cancelled.Execute());
        desk::Driven<lvx_test::ColourDialog> failed(&desk, colour, nullptr);
        failed.setup = [] { throw std::domain_error("in SetupWindow"); };
        EXPECT_THROW(failed.Execute(), std::domain_error);
    }

    owl::TFrameWindow& desk;
};

}  // namespace

namespace owl_test {

INSTANTIATE_TYPED_TEST_SUITE_P(Colours, Leaks, ColourDialogs, KindName);

}  // namespace owl_test
