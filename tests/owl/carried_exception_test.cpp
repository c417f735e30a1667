#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/owl/desk.h"

namespace {

class Thrower : public owl::TWindow {
public:
    explicit Thrower(owl::TWindow* parent) : TWindow(parent) {}

    LRESULT Throw(WPARAM number, LPARAM) { throw std::out_of_range(std::to_string(number)); }
    // Sends itself a message whose handler throws, and goes on.
    LRESULT SendThenCount(WPARAM, LPARAM) {
        SendMessage(WM_USER + 1, 5);
        return ++counted;
    }

    int counted = 0;

    DECLARE_RESPONSE_TABLE(Thrower);
};

DEFINE_RESPONSE_TABLE1(Thrower, owl::TWindow)
    EV_MESSAGE(WM_USER + 1, Throw), EV_MESSAGE(WM_USER + 2, SendThenCount),
END_RESPONSE_TABLE;

struct CarriedException : testing::Test {
    CarriedException() : window(new Thrower(desk.frame)) { window->Create(); }

    std::string Pump() {
        try {
            desk.application.PumpWaitingMessages();
            return "nothing";
        } catch (const std::out_of_range& error) {
            return error.what();
        }
    }

    desk::Desk desk;
    Thrower* window;
};

TEST_F(CarriedException, leaves_the_loop_that_dispatched_the_message) {
    window->PostMessage(WM_USER + 1, 3);
    EXPECT_EQ("3", Pump());
    EXPECT_EQ("nothing", Pump());
}

TEST_F(CarriedException, does_not_cross_a_message_that_the_system_delivers) {
    EXPECT_EQ(0, window->SendMessage(WM_USER + 1, 4));
    EXPECT_EQ("4", Pump());
}

TEST_F(CarriedException, lets_a_handler_that_sent_the_message_finish) {
    window->PostMessage(WM_USER + 2);
    EXPECT_EQ("5", Pump());
    EXPECT_EQ(1, window->counted);
}

TEST_F(CarriedException, is_the_first_of_several) {
    window->SendMessage(WM_USER + 1, 6);
    window->SendMessage(WM_USER + 1, 7);
    EXPECT_EQ("6", Pump());
    EXPECT_EQ("nothing", Pump());
}

TEST_F(CarriedException, leaves_the_messages_behind_it_in_the_queue) {
    window->PostMessage(WM_USER + 1, 8);
    window->PostMessage(WM_USER + 1, 9);
    EXPECT_EQ("8", Pump());
    EXPECT_EQ("9", Pump());
}

TEST_F(CarriedException, is_thrown_before_a_quit_ends_the_loop) {
    window->SendMessage(WM_USER + 1, 2);
    ::PostQuitMessage(1);
    EXPECT_EQ("2", Pump());
    EXPECT_EQ(1, desk.application.MessageLoop());
}

TEST_F(CarriedException, is_thrown_at_once_by_a_message_that_does_not_cross_the_system) {
    EXPECT_THROW(window->HandleMessage(WM_USER + 1, 1), std::out_of_range);
    EXPECT_EQ("nothing", Pump());
}

TEST_F(CarriedException, comes_out_of_ten_thousand_messages_as_often_as_it_was_thrown) {
    int thrown = 0;
    for (int i = 0; i < 10000; ++i) {
        window->PostMessage(i % 100 == 0 ? WM_USER + 1 : WM_USER + 3, 1);
        if (Pump() == "1")
            ++thrown;
    }
    EXPECT_EQ(100, thrown);
}

}  // namespace
