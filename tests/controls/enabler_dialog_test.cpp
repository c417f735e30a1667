#include "lvx/controls/enabler_dialog.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "controls/dialog_ids.h"
#include "owl/application.h"
#include "owl/control_bar.h"
#include "owl/tooltip.h"
#include "support/vtable_slot.h"
#include "tests/owl/gadget_probe.h"
#include "tests/owl/mouse.h"

namespace {

using owl::TCommandEnabler;

/// The application's window. It answers questions about tips, unless it is told not to.
class Frame : public owl::TFrameWindow {
public:
    Frame() : TFrameWindow(nullptr, "frame") { desk::Place(*this); }

    void EvCommandEnable(TCommandEnabler& enabler) override {
        ++asked;
        receives = enabler.IsReceiver(GetHandle());
        if (answers) {
            enabler.Enable();
            enabler.SetText("Of the frame");
        }
    }

    bool answers = true;
    bool receives = false;
    int asked = 0;
};

class Dialog : public LVXEnablerDialog {
public:
    explicit Dialog(owl::TWindow* parent) : LVXEnablerDialog(parent, IDD_NORMAL, nullptr) {}

    void CeTipped(TCommandEnabler& enabler) {
        ++asked;
        enabler.Enable(false);
        enabler.SetText("Of the dialog");
    }

    int asked = 0;

    DECLARE_RESPONSE_TABLE(Dialog);
};

DEFINE_RESPONSE_TABLE1(Dialog, LVXEnablerDialog)
    EV_COMMAND_ENABLE(CM_TIPPED, CeTipped),
END_RESPONSE_TABLE;

/// A question about a tip's text, as a tooltip asks it.
struct Tip {
    explicit Tip(owl::TWindow& window) : enabler((text.hdr.idFrom = CM_TIPPED, text), window) {}

    owl::TTooltipText text{};
    owl::TTooltipEnabler enabler;
};

class PlainQuestion : public TCommandEnabler {
public:
    using TCommandEnabler::TCommandEnabler;
    void SetText(const char* theText) override { text = theText; }
    void SetCheck(int) override {}

    std::string text;
};

struct EnablerDialog : testing::Test {
    EnablerDialog() : program("enabler"), frame(new Frame) {
        program.SetMainWindow(frame);
        frame->Create();
        dialog = std::make_unique<Dialog>(frame);
        dialog->Create();
    }

    owl::TApplication program;
    Frame* frame;
    std::unique_ptr<Dialog> dialog;
};

}  // namespace

TEST_F(EnablerDialog, has_the_application_window_name_its_tips) {
    Tip tip(*dialog);
    dialog->AskWhetherEnabled(tip.enabler);
    EXPECT_STREQ("Of the frame", tip.text.lpszText);
    EXPECT_TRUE(frame->receives);
    EXPECT_EQ(1, frame->asked);
    EXPECT_EQ(0, dialog->asked);
}

TEST_F(EnablerDialog, names_the_tips_that_the_application_window_does_not_know) {
    frame->answers = false;
    Tip tip(*dialog);
    dialog->AskWhetherEnabled(tip.enabler);
    EXPECT_STREQ("Of the dialog", tip.text.lpszText);
    EXPECT_EQ(1, frame->asked);
    EXPECT_EQ(1, dialog->asked);
    EXPECT_TRUE(tip.enabler.IsReceiver(frame->GetHandle()));
}

TEST_F(EnablerDialog, names_its_tips_without_a_parent) {
    Dialog alone(nullptr);
    alone.Create();
    Tip tip(alone);
    alone.AskWhetherEnabled(tip.enabler);
    EXPECT_STREQ("Of the dialog", tip.text.lpszText);
    EXPECT_EQ(1, alone.asked);
}

// It is on its way up from a child then, which has been asked already.
TEST_F(EnablerDialog, names_the_tips_of_other_receivers_itself) {
    Tip tip(*dialog);
    tip.enabler.SetReceiver(frame->GetHandle());
    dialog->AskWhetherEnabled(tip.enabler);
    EXPECT_STREQ("Of the dialog", tip.text.lpszText);
    EXPECT_EQ(0, frame->asked);
}

TEST_F(EnablerDialog, answers_other_questions_itself) {
    PlainQuestion question(CM_TIPPED, dialog->GetHandle());
    dialog->AskWhetherEnabled(question);
    EXPECT_TRUE(question.GetHandled());
    EXPECT_EQ("Of the dialog", question.text);
    EXPECT_EQ(0, frame->asked);
    PlainQuestion ok(IDOK, dialog->GetHandle());
    dialog->AskWhetherEnabled(ok);
    EXPECT_TRUE(ok.GetHandled());
}

TEST_F(EnablerDialog, shows_the_frames_text_where_the_mouse_rests_on_a_gadget) {
    dialog->Destroy();
    mouse::MoveAway();
    auto* const bar = new owl::TControlBar(dialog.get());
    bar->Attr.W = 100;
    bar->Insert(*new gadgets::Probe(CM_TIPPED));
    dialog->Create();
    bar->GetTooltip()->SetDelay(owl::TTooltip::Initial, 50);
    dialog->SetWindowPos(HWND_TOPMOST, 200, 200, 0, 0, SWP_NOSIZE);
    ASSERT_TRUE(desk::Activate(*dialog));
    mouse::MoveTo(*bar, {9, 9});
    desk::PumpUntil([] { return false; }, 50);
    mouse::MoveTo(*bar, {10, 9});
    EXPECT_TRUE(desk::PumpUntil([&] { return bar->GetTooltip()->IsWindowVisible(); }));
    EXPECT_EQ("Of the frame", bar->GetTooltip()->GetWindowText());
    EXPECT_EQ(0, dialog->asked);
    mouse::MoveAway();
}

TEST_F(EnablerDialog, passes_idle_moments_to_its_children) {
    dialog->Destroy();
    auto* const bar = new owl::TGadgetWindow(dialog.get());
    auto* const gadget = new gadgets::Probe(CM_TIPPED);
    bar->Insert(*gadget);
    dialog->Create();
    gadget->Take();
    dialog->IdleAction(0);
    EXPECT_EQ(gadgets::Calls{"enable?"}, gadget->Take());
}

TEST(EnablerDialogLayout, has_its_virtual_operations_in_order) {
    const auto idle = lvx_test::slot_of(&LVXEnablerDialog::IdleAction);
    EXPECT_EQ(idle + 1, lvx_test::slot_of(&LVXEnablerDialog::SetupWindow));
    EXPECT_EQ(idle + 2, lvx_test::slot_of(&LVXEnablerDialog::EvCommandEnable));
}
