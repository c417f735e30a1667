#include "owl/command_enabler.h"

#include <gtest/gtest.h>

namespace {

class Enabler : public owl::TCommandEnabler {
public:
    using TCommandEnabler::TCommandEnabler;
    void SetText(const char*) override {}
    void SetCheck(int) override {}
};

// Handles are compared, never used.
HWND Handle(UINT_PTR value) {
    return reinterpret_cast<HWND>(value);
}

TEST(CommandEnabler, knows_its_command) {
    EXPECT_EQ(77U, Enabler(77).GetId());
}

TEST(CommandEnabler, is_answered_by_enabling_or_disabling) {
    Enabler enabler(1);
    EXPECT_FALSE(enabler.GetHandled());
    enabler.Enable(false);
    EXPECT_TRUE(enabler.GetHandled());
}

TEST(CommandEnabler, is_not_answered_by_a_check_or_a_text) {
    Enabler enabler(1);
    enabler.SetCheck(Enabler::Checked);
    enabler.SetText("text");
    EXPECT_FALSE(enabler.GetHandled());
}

TEST(CommandEnabler, has_one_receiver) {
    Enabler enabler(1, Handle(5));
    EXPECT_TRUE(enabler.IsReceiver(Handle(5)));
    enabler.SetReceiver(Handle(6));
    EXPECT_FALSE(enabler.IsReceiver(Handle(5)));
    EXPECT_TRUE(enabler.IsReceiver(Handle(6)));
}

TEST(CommandEnabler, has_no_receiver_unless_told) {
    EXPECT_FALSE(Enabler(1).IsReceiver(nullptr));
}

}  // namespace
