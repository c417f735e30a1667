#include "tools/lvxdoc/progress_bar.h"

#include <gtest/gtest.h>

#include "tools/lvxdoc/errors.h"

using namespace lvxdoc;

namespace {

struct Watch {
    std::chrono::milliseconds now{1000};
    ProgressBar::Clock Clock() {
        return [this] { return now; };
    }
};

std::string wiped() {
    return '\r' + std::string(47, ' ') + '\r';
}

class DeadTerminal : public Output {
public:
    void Write(std::string_view) override {
        ++writes;
        if (writes > 1) {
            throw Failure("gone");
        }
    }
    int writes = 0;
};

}  // namespace

TEST(ProgressBar, shows_nothing_for_short_work) {
    Watch watch;
    StringOutput terminal;
    {
        ProgressBar bar(terminal, true, 100, watch.Clock());
        watch.now += std::chrono::milliseconds(499);
        bar.Advance(100);
    }
    EXPECT_EQ("", terminal.Text());
}

TEST(ProgressBar, shows_the_share_and_wipes_it_away) {
    Watch watch;
    StringOutput terminal;
    {
        ProgressBar bar(terminal, true, 200, watch.Clock());
        watch.now += std::chrono::milliseconds(500);
        bar.Advance(50);
        EXPECT_EQ("\r[##########" + std::string(30, ' ') + "]  25%", terminal.Text());
    }
    EXPECT_EQ("\r[##########" + std::string(30, ' ') + "]  25%" + wiped(), terminal.Text());
}

TEST(ProgressBar, moves_at_most_ten_times_a_second) {
    Watch watch;
    StringOutput terminal;
    ProgressBar bar(terminal, true, 200, watch.Clock());
    watch.now += std::chrono::milliseconds(500);
    bar.Advance(1);
    const auto length = terminal.Text().size();
    watch.now += std::chrono::milliseconds(99);
    bar.Advance(1);
    EXPECT_EQ(length, terminal.Text().size());
    watch.now += std::chrono::milliseconds(1);
    bar.Advance(1);
    EXPECT_EQ(2 * length, terminal.Text().size());
}

TEST(ProgressBar, stays_at_100_when_more_is_done_than_was_said) {
    Watch watch;
    StringOutput terminal;
    ProgressBar bar(terminal, true, 10, watch.Clock());
    watch.now += std::chrono::milliseconds(500);
    bar.Advance(UINT64_MAX);
    EXPECT_EQ("\r[" + std::string(40, '#') + "] 100%", terminal.Text());
}

TEST(ProgressBar, is_silent_where_no_person_looks_and_without_work) {
    Watch watch;
    StringOutput terminal;
    ProgressBar hidden(terminal, false, 100, watch.Clock());
    ProgressBar idle(terminal, true, 0, watch.Clock());
    watch.now += std::chrono::seconds(10);
    hidden.Advance(50);
    idle.Advance(50);
    EXPECT_EQ("", terminal.Text());
}

TEST(ProgressBar, ends_quietly_on_a_terminal_that_went_away) {
    Watch watch;
    DeadTerminal terminal;
    {
        ProgressBar bar(terminal, true, 10, watch.Clock());
        watch.now += std::chrono::milliseconds(500);
        bar.Advance(5);
    }
    EXPECT_EQ(2, terminal.writes);
}

TEST(WatchedSource, moves_the_bar_by_what_is_read) {
    Watch watch;
    StringOutput terminal;
    ProgressBar bar(terminal, true, 4, watch.Clock());
    MemorySource memory("abcd");
    WatchedSource source(memory, bar);
    EXPECT_EQ(4u, source.Size());
    watch.now += std::chrono::milliseconds(500);
    char two[2];
    source.ReadAt(1, two, 2);
    EXPECT_EQ("bc", std::string(two, 2));
    EXPECT_NE(std::string::npos, terminal.Text().find(" 50%"));
}
