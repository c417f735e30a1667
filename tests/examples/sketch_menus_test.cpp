// The example host as its user sees it: menus that change while it runs, and where dialogs open. What a menu
// of another process holds is seen by what its keys do.
#include <gtest/gtest.h>

#include "support/sketch_session.h"

namespace {

using namespace sketch_test;

class SketchMenus : public Sketch {
protected:
    // Recent files lie in the system's folder, for all runs of the program.
    void SetUp() override { ::DeleteFileA(SettingsFile().c_str()); }
    void TearDown() override { ::DeleteFileA(SettingsFile().c_str()); }

    static std::string SettingsFile() {
        char folder[MAX_PATH] = "";
        ::GetWindowsDirectoryA(folder, sizeof folder);
        return std::string(folder) + "\\Sketch.INI";
    }
    static std::string RecentFile(const char* number) {
        char name[MAX_PATH] = "";
        ::GetPrivateProfileStringA("MRU", number, "", name, sizeof name, "Sketch.INI");
        return name;
    }
    static bool IsMenuGone() {
        return WaitUntil([] { return user::FindShown(user::drop_down_class, nullptr) == nullptr; }, 2000);
    }
    // Opens the drop-down of that letter and presses the key of an item. False if that does not close it:
    // there is no such item.
    static bool Choose(WORD menu, WORD item) {
        Press({VK_MENU, menu});
        EXPECT_NE(nullptr, user::WaitForShown(user::drop_down_class, nullptr));
        Press({item});
        if (IsMenuGone())
            return true;
        Press({VK_ESCAPE});
        Press({VK_ESCAPE});
        EXPECT_TRUE(IsMenuGone());
        return false;
    }
    std::string Saved(const char* name) {
        const std::string file = m_folder.File(name);
        EXPECT_TRUE(m_sketch->SaveAs(file));
        EXPECT_TRUE(m_sketch->ShowsTitle(std::string(name) + " - Sketch"));
        return file;
    }
};

}  // namespace

TEST_F(SketchMenus, list_the_files_that_were_used_last_also_in_the_next_run) {
    StartInFront();
    EXPECT_FALSE(Choose('F', '1'));
    DrawARectangle();
    const std::string first = Saved("first.lvx");
    const std::string second = Saved("second.lvx");
    EXPECT_EQ(second, RecentFile("1"));
    EXPECT_EQ(first, RecentFile("2"));
    EXPECT_TRUE(Choose('F', '2'));
    EXPECT_TRUE(m_sketch->ShowsTitle("first.lvx - Sketch"));
    Press({VK_MENU, VK_F4});
    EXPECT_EQ(0, m_sketch->Process().WaitForEnd());
    m_sketch.reset();

    StartInFront();
    EXPECT_TRUE(Choose('F', '2'));
    EXPECT_TRUE(m_sketch->ShowsTitle("second.lvx - Sketch"));
    EXPECT_TRUE(Choose('F', '2'));
    EXPECT_TRUE(m_sketch->ShowsTitle("first.lvx - Sketch"));
    EXPECT_FALSE(Choose('F', '3'));
}

TEST_F(SketchMenus, lose_a_recent_file_that_does_not_open_any_more) {
    StartInFront();
    DrawARectangle();
    const std::string file = Saved("gone.lvx");
    ::DeleteFileA(file.c_str());
    EXPECT_TRUE(Choose('F', '1'));
    const HWND box = m_sketch->Dialog("Sketch");
    Press({VK_RETURN});
    EXPECT_TRUE(m_sketch->IsGone(box));
    EXPECT_FALSE(Choose('F', '1'));
    EXPECT_EQ("", RecentFile("1"));
    // The document that was open stays.
    EXPECT_TRUE(m_sketch->ShowsTitle("gone.lvx - Sketch"));
}

TEST_F(SketchMenus, ask_before_a_recent_file_replaces_changes) {
    StartInFront();
    DrawARectangle();
    Saved("first.lvx");
    Press({VK_DELETE});
    EXPECT_TRUE(m_sketch->ShowsTitle("first.lvx* - Sketch"));
    EXPECT_TRUE(Choose('F', '1'));
    Answer(VK_ESCAPE);
    EXPECT_TRUE(m_sketch->ShowsTitle("first.lvx* - Sketch"));
}

TEST_F(SketchMenus, select_the_shapes_that_they_list) {
    StartInFront();
    EXPECT_FALSE(Choose('S', '1'));
    Press({VK_F3});
    Press({VK_RETURN});
    Press({VK_F4});
    Press({VK_RETURN});
    EXPECT_TRUE(m_sketch->ShowsStatus("Ellipse, 120 x 80"));
    EXPECT_TRUE(Choose('S', '2'));
    EXPECT_TRUE(m_sketch->ShowsStatus("Rectangle, 120 x 80"));
    Press({VK_DELETE});
    EXPECT_FALSE(Choose('S', '2'));
    EXPECT_TRUE(Choose('S', '1'));
    EXPECT_TRUE(m_sketch->ShowsStatus("Ellipse, 120 x 80"));
}

TEST_F(SketchMenus, open_dialogs_in_the_middle_of_the_window) {
    StartInFront();
    Press({VK_CONTROL, 'L'});
    const HWND dialog = m_sketch->Dialog("Line and Fill");
    RECT inner{};
    RECT outer{};
    ::GetWindowRect(dialog, &inner);
    ::GetWindowRect(m_sketch->View(), &outer);
    EXPECT_NEAR((outer.left + outer.right) / 2, (inner.left + inner.right) / 2, 1);
    EXPECT_NEAR((outer.top + outer.bottom) / 2, (inner.top + inner.bottom) / 2, 1);
    Press({VK_ESCAPE});
    EXPECT_TRUE(m_sketch->IsGone(dialog));
}
