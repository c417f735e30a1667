// Ten thousand messages and more: none is lost, none comes twice, and each comes in its turn.
#include <gtest/gtest.h>

#include <memory>
#include <thread>
#include <vector>

#include "tests/owl/desk.h"

namespace {

constexpr int many = 10000;
// The system keeps no more than ten thousand messages waiting for a thread.
constexpr int at_once = 2500;

class Counter : public owl::TWindow {
public:
    explicit Counter(owl::TWindow* parent) : TWindow(parent) {}

    LRESULT EvNumber(WPARAM number, LPARAM sender) {
        numbers.push_back(number);
        senders += sender;
        return static_cast<LRESULT>(number) * 2;
    }
    bool PreProcessMsg(MSG& msg) override {
        offered += msg.message == WM_USER + 1 ? 1 : 0;
        return TWindow::PreProcessMsg(msg);
    }

    std::vector<WPARAM> numbers;
    LPARAM senders = 0;
    int offered = 0;

    DECLARE_RESPONSE_TABLE(Counter);
};

DEFINE_RESPONSE_TABLE1(Counter, owl::TWindow)
    EV_MESSAGE(WM_USER + 1, EvNumber),
END_RESPONSE_TABLE;

std::vector<WPARAM> Counted(int count) {
    std::vector<WPARAM> numbers;
    for (int i = 0; i < count; ++i)
        numbers.push_back(static_cast<WPARAM>(i));
    return numbers;
}

struct MessageFlood : testing::Test {
    Counter* Make() {
        auto* const counter = new Counter(desk.frame);
        counter->Create();
        return counter;
    }
    void Pump() { desk.application.PumpWaitingMessages(); }

    desk::Desk desk;
};

TEST_F(MessageFlood, of_posted_messages_comes_whole_and_in_order) {
    Counter* const counter = Make();
    for (int i = 0; i < many; ++i) {
        ASSERT_TRUE(counter->PostMessage(WM_USER + 1, static_cast<WPARAM>(i)));
        if (i % at_once == at_once - 1)
            Pump();
    }
    EXPECT_EQ(Counted(many), counter->numbers);
    EXPECT_EQ(many, counter->offered);
}

TEST_F(MessageFlood, over_a_hundred_windows_reaches_each_with_its_own) {
    std::vector<Counter*> counters;
    for (int i = 0; i < 100; ++i)
        counters.push_back(Make());
    for (int i = 0; i < many; ++i) {
        Counter* const counter = counters[static_cast<std::size_t>(i) % counters.size()];
        ASSERT_TRUE(counter->PostMessage(WM_USER + 1, static_cast<WPARAM>(i / 100)));
        if (i % at_once == at_once - 1)
            Pump();
    }
    for (const Counter* counter : counters)
        EXPECT_EQ(Counted(100), counter->numbers);
}

TEST_F(MessageFlood, from_another_thread_wakes_the_loop_for_each) {
    Counter* const counter = Make();
    std::thread poster([window = counter->GetHandle()] {
        for (int i = 0; i < many; ++i) {
            while (!::PostMessageA(window, WM_USER + 1, static_cast<WPARAM>(i), 1))
                ::Sleep(1);
        }
    });
    EXPECT_TRUE(desk.application.RunUntil([&] { return counter->numbers.size() == many; }));
    poster.join();
    EXPECT_EQ(Counted(many), counter->numbers);
    EXPECT_EQ(many, counter->senders);
}

TEST_F(MessageFlood, of_messages_that_are_sent_is_answered_one_by_one) {
    Counter* const counter = Make();
    int right = 0;
    bool done = false;
    std::thread sender([&, window = counter->GetHandle()] {
        for (int i = 0; i < many; ++i)
            right += ::SendMessageA(window, WM_USER + 1, static_cast<WPARAM>(i), 1) == 2 * i ? 1 : 0;
        ::PostMessageA(window, WM_USER + 1, 0, 0);
        done = true;
    });
    EXPECT_TRUE(desk.application.RunUntil([&] { return counter->numbers.size() == many + 1U; }));
    sender.join();
    EXPECT_TRUE(done);
    EXPECT_EQ(many, right);
    EXPECT_EQ(many, counter->senders);
    // What is sent is not offered to anybody beforehand.
    EXPECT_EQ(1, counter->offered);
}

TEST_F(MessageFlood, goes_on_within_the_functions_that_it_calls) {
    // Each message that comes posts the next: nothing waits for the queue to be empty.
    class Chain : public Counter {
    public:
        using Counter::Counter;
        LRESULT WindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override {
            if (msg == WM_USER + 1 && wParam + 1 < many)
                PostMessage(WM_USER + 1, wParam + 1);
            return Counter::WindowProc(msg, wParam, lParam);
        }
    };
    auto* const chain = new Chain(desk.frame);
    chain->Create();
    chain->PostMessage(WM_USER + 1, 0);
    Pump();
    EXPECT_EQ(Counted(many), chain->numbers);
}

// A window that goes takes its own messages with it, and no others.
TEST_F(MessageFlood, loses_what_was_for_a_window_that_is_gone) {
    Counter* const stays = Make();
    const auto goes = std::make_unique<Counter>(desk.frame);
    goes->Create();
    for (int i = 0; i < 1000; ++i) {
        stays->PostMessage(WM_USER + 1, static_cast<WPARAM>(i));
        goes->PostMessage(WM_USER + 1, static_cast<WPARAM>(i));
    }
    goes->Destroy();
    Pump();
    EXPECT_EQ(Counted(1000), stays->numbers);
    EXPECT_EQ(0U, goes->numbers.size());
}

}  // namespace
