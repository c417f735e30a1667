// Dialogs that open dialogs, three deep: keys go to the innermost, ends come from within outward, and neither
// a parent that is destroyed nor an exception leaves a window behind or a parent without input.
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <stdexcept>

#include "owl/dialog.h"
#include "tests/owl/desk.h"
#include "tests/owl/desk_user.h"
#include "tests/owl/resource_ids.h"

namespace {

using user::Press;
using user::WaitUntil;

// Opens the next one of its kind by its check box, down to the third; the innermost does what the test says.
class Level : public owl::TDialog {
public:
    struct Story {
        /// What each level returned, in the order in which they ended.
        std::vector<std::pair<int, int>> ends;
        /// What the third one does at a click.
        std::function<void(Level&)> innermost;
        /// Which level, if any, catches what comes out of the next.
        int catcher = 0;
        int caught = 0;
        int atSetup = 0;
    };

    Level(owl::TWindow* parent, Story& story, int number)
        : TDialog(parent, IDD_TEST_DIALOG), m_story(story), m_number(number) {}

    void SetupWindow() override {
        TDialog::SetupWindow();
        SetWindowText("level " + std::to_string(m_number));
        ++m_story.atSetup;
    }
    void CmCheck() {
        if (m_number == 3)
            m_story.innermost(*this);
        else if (m_number == m_story.catcher)
            OpenAndCatch();
        else
            Open(*this, m_story, m_number + 1);
    }
    static void Open(owl::TWindow& parent, Story& story, int number) {
        Level level(&parent, story, number);
        const int result = level.Execute();
        story.ends.emplace_back(number, result);
    }

private:
    void OpenAndCatch() {
        try {
            Open(*this, m_story, m_number + 1);
        } catch (const std::length_error&) {
            ++m_story.caught;
        }
    }

    Story& m_story;
    int m_number;

    DECLARE_RESPONSE_TABLE(Level);
};

DEFINE_RESPONSE_TABLE1(Level, owl::TDialog)
    EV_COMMAND(IDC_TEST_CHECK, CmCheck),
END_RESPONSE_TABLE;

class Frame : public owl::TFrameWindow {
public:
    explicit Frame(Level::Story& story) : TFrameWindow(nullptr, "nested"), m_story(story) {
        Attr.AccelTable = IDA_TEST_KEYS;
        desk::Place(*this);
    }
    void CmFirst() { Level::Open(*this, m_story, 1); }

private:
    Level::Story& m_story;

    DECLARE_RESPONSE_TABLE(Frame);
};

DEFINE_RESPONSE_TABLE1(Frame, owl::TFrameWindow)
    EV_COMMAND(CM_TEST_FIRST, CmFirst),
END_RESPONSE_TABLE;

using Ends = std::vector<std::pair<int, int>>;

class NestedDialogs : public testing::Test {
protected:
    NestedDialogs() : application("nested", nullptr, SW_SHOWNORMAL), frame(new Frame(story)) {
        MSG quit{};
        ::PeekMessageA(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
        application.SetMainWindow(frame);
    }

    // The user's part: all three levels by keys alone, each in front in its turn.
    void OpenAll() {
        window = user::WaitForShown(nullptr, "nested");
        ASSERT_TRUE(user::WaitUntilInFront(window));
        Press({VK_CONTROL, 'K'});
        for (int i = 0; i < 3; ++i) {
            level[i] = user::WaitForShown(nullptr, ("level " + std::to_string(i + 1)).c_str());
            ASSERT_TRUE(user::WaitUntilInFront(level[i]));
            if (i < 2)
                Press({VK_MENU, 'C'});
        }
    }
    bool IsGone(int i) const {
        return WaitUntil([&] { return !::IsWindow(level[i]); });
    }
    void CloseFrame() {
        ASSERT_TRUE(user::WaitUntilInFront(window));
        EXPECT_TRUE(::IsWindowEnabled(window));
        Press({VK_MENU, VK_F4});
    }

    Level::Story story;
    owl::TApplication application;
    Frame* frame;
    HWND window = nullptr;
    HWND level[3]{};
};

TEST_F(NestedDialogs, leave_only_the_innermost_enabled_and_end_one_by_one) {
    const desk::User user([&] {
        OpenAll();
        EXPECT_FALSE(::IsWindowEnabled(window));
        EXPECT_FALSE(::IsWindowEnabled(level[0]));
        EXPECT_FALSE(::IsWindowEnabled(level[1]));
        EXPECT_TRUE(::IsWindowEnabled(level[2]));
        Press({VK_RETURN});
        EXPECT_TRUE(IsGone(2));
        ASSERT_TRUE(user::WaitUntilInFront(level[1]));
        EXPECT_TRUE(::IsWindowEnabled(level[1]));
        EXPECT_FALSE(::IsWindowEnabled(level[0]));
        Press({VK_ESCAPE});
        EXPECT_TRUE(IsGone(1));
        ASSERT_TRUE(user::WaitUntilInFront(level[0]));
        EXPECT_FALSE(::IsWindowEnabled(window));
        Press({VK_RETURN});
        EXPECT_TRUE(IsGone(0));
        CloseFrame();
    });
    EXPECT_EQ(0, application.Run());
    EXPECT_EQ((Ends{{3, IDOK}, {2, IDCANCEL}, {1, IDOK}}), story.ends);
    EXPECT_EQ(3, story.atSetup);
}

TEST_F(NestedDialogs, end_all_when_the_window_below_them_is_destroyed) {
    story.innermost = [&](Level&) { ::DestroyWindow(frame->GetHandle()); };
    const desk::User user([&] {
        OpenAll();
        Press({VK_MENU, 'C'});
    });
    EXPECT_EQ(0, application.Run());
    EXPECT_EQ((Ends{{3, IDCANCEL}, {2, IDCANCEL}, {1, IDCANCEL}}), story.ends);
    EXPECT_FALSE(frame->IsWindow());
}

TEST_F(NestedDialogs, go_with_the_one_in_the_middle_and_leave_the_outer_one) {
    story.innermost = [](Level& third) { third.Parent->Destroy(7); };
    const desk::User user([&] {
        OpenAll();
        Press({VK_MENU, 'C'});
        EXPECT_TRUE(IsGone(1));
        EXPECT_TRUE(IsGone(2));
        ASSERT_TRUE(user::WaitUntilInFront(level[0]));
        EXPECT_TRUE(::IsWindowEnabled(level[0]));
        Press({VK_RETURN});
        EXPECT_TRUE(IsGone(0));
        CloseFrame();
    });
    EXPECT_EQ(0, application.Run());
    EXPECT_EQ((Ends{{3, IDCANCEL}, {2, 7}, {1, IDOK}}), story.ends);
}

// The outer dialog's end waits for the loops inside of its own.
TEST_F(NestedDialogs, that_are_ended_from_the_inside_outward_wait_for_the_inner_loops) {
    story.innermost = [](Level& third) { third.Parent->Parent->EndModal(11); };
    const desk::User user([&] {
        OpenAll();
        Press({VK_MENU, 'C'});
        Press({VK_RETURN});
        EXPECT_TRUE(IsGone(2));
        ASSERT_TRUE(user::WaitUntilInFront(level[1]));
        Press({VK_RETURN});
        EXPECT_TRUE(IsGone(1));
        EXPECT_TRUE(IsGone(0));
        CloseFrame();
    });
    EXPECT_EQ(0, application.Run());
    EXPECT_EQ((Ends{{3, IDOK}, {2, IDOK}, {1, 11}}), story.ends);
}

TEST_F(NestedDialogs, end_all_with_the_program) {
    story.innermost = [](Level&) { ::PostQuitMessage(42); };
    const desk::User user([&] {
        OpenAll();
        Press({VK_MENU, 'C'});
    });
    EXPECT_EQ(42, application.Run());
    EXPECT_EQ((Ends{{3, IDCANCEL}, {2, IDCANCEL}, {1, IDCANCEL}}), story.ends);
}

TEST_F(NestedDialogs, all_let_an_exception_through_that_nobody_catches) {
    story.innermost = [](Level&) { throw std::length_error("innermost"); };
    const int before = desk::CountWindows();
    const desk::User user([&] {
        OpenAll();
        Press({VK_MENU, 'C'});
        for (const int i : {0, 1, 2})
            EXPECT_TRUE(IsGone(i));
        CloseFrame();
    });
    try {
        application.Run();
        ADD_FAILURE() << "nothing came out";
    } catch (const std::length_error& error) {
        EXPECT_STREQ("innermost", error.what());
    }
    EXPECT_TRUE(frame->IsWindowEnabled());
    EXPECT_EQ(Ends(), story.ends);
    EXPECT_EQ(0, application.Run());
    EXPECT_EQ(before, desk::CountWindows());
}

TEST_F(NestedDialogs, let_an_exception_go_as_far_as_it_is_caught) {
    story.innermost = [](Level&) { throw std::length_error("innermost"); };
    story.catcher = 1;
    const desk::User user([&] {
        OpenAll();
        Press({VK_MENU, 'C'});
        EXPECT_TRUE(IsGone(2));
        EXPECT_TRUE(IsGone(1));
        ASSERT_TRUE(user::WaitUntilInFront(level[0]));
        EXPECT_TRUE(::IsWindowEnabled(level[0]));
        Press({VK_RETURN});
        EXPECT_TRUE(IsGone(0));
        CloseFrame();
    });
    EXPECT_EQ(0, application.Run());
    EXPECT_EQ(1, story.caught);
    EXPECT_EQ((Ends{{1, IDOK}}), story.ends);
}

}  // namespace
