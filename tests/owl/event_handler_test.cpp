#include "owl/event_handler.h"

#include <gtest/gtest.h>

#include "owl/response_table.h"

namespace {

class Recorder : public owl::TEventHandler {
public:
    LRESULT Answer(WPARAM wParam, LPARAM lParam) {
        first = wParam;
        second = lParam;
        return 7;
    }

    WPARAM first = 0;
    LPARAM second = 0;

    DECLARE_RESPONSE_TABLE(Recorder);
};

DEFINE_RESPONSE_TABLE(Recorder)
    EV_MESSAGE(WM_USER + 1, Answer),
END_RESPONSE_TABLE;

TEST(EventHandler, finds_nothing_without_a_table) {
    owl::TEventHandler handler;
    owl::TEventInfo info(WM_USER + 1);
    EXPECT_FALSE(handler.Find(info));
    EXPECT_FALSE(info.IsFound());
}

TEST(EventHandler, finds_what_its_table_names) {
    Recorder recorder;
    owl::TEventInfo info(WM_USER + 1);
    EXPECT_TRUE(recorder.Find(info));
    EXPECT_TRUE(info.IsFound());
}

TEST(EventHandler, finds_nothing_for_another_message) {
    Recorder recorder;
    owl::TEventInfo info(WM_USER + 2);
    EXPECT_FALSE(recorder.Find(info));
    EXPECT_FALSE(info.IsFound());
}

TEST(EventInfo, hands_the_event_to_the_function_and_its_answer_back) {
    Recorder recorder;
    owl::TEventInfo info(WM_USER + 1);
    ASSERT_TRUE(recorder.Find(info));
    EXPECT_EQ(7, info.Dispatch({WM_USER + 1, 11, -12, 0, 0}));
    EXPECT_EQ(11U, recorder.first);
    EXPECT_EQ(-12, recorder.second);
}

TEST(EventInfo, keeps_what_it_was_made_with) {
    const owl::TEventInfo info(WM_COMMAND, 5, 6);
    EXPECT_EQ(static_cast<UINT>(WM_COMMAND), info.Msg);
    EXPECT_EQ(5U, info.Id);
    EXPECT_EQ(6U, info.NotifyCode);
}

}  // namespace
