#include "owl/command_enabler.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>

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

// Who calls through the table of virtual functions finds them by their places.
TEST(CommandEnabler, has_its_functions_in_the_order_of_its_interface) {
    const auto place = [](auto function) {
        std::intptr_t word = 0;
        std::memcpy(&word, &function, sizeof(word));
        return (word - 1) / static_cast<std::intptr_t>(sizeof(void*));
    };
    EXPECT_EQ(0, place(&owl::TCommandEnabler::Enable));
    EXPECT_EQ(1, place(&owl::TCommandEnabler::SetText));
    EXPECT_EQ(2, place(&owl::TCommandEnabler::SetCheck));
}

}  // namespace
