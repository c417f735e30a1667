// The example host as its user sees it: the settings that a wizard asks for.
#include <gtest/gtest.h>

#include "support/child_windows.h"
#include "support/sketch_session.h"

namespace {

using namespace sketch_test;

class SketchSettings : public Sketch {
protected:
    void SetUp() override { ::DeleteFileA(SettingsFile().c_str()); }
    void TearDown() override { ::DeleteFileA(SettingsFile().c_str()); }

    static std::string SettingsFile() {
        char folder[MAX_PATH] = "";
        ::GetWindowsDirectoryA(folder, sizeof folder);
        return std::string(folder) + "\\Sketch.INI";
    }
    static std::string Setting(const char* section, const char* key) {
        char text[100] = "";
        ::GetPrivateProfileStringA(section, key, "", text, sizeof text, "Sketch.INI");
        return text;
    }
    HWND Open() const {
        Press({VK_CONTROL, 'G'});
        return m_sketch->Dialog("Settings, step 1 of 4: lines of new shapes");
    }
    static bool Shows(HWND wizard, const std::string& caption) {
        return WaitUntil([&] { return user::TextOf(wizard) == caption; }, 3000);
    }
    static void ClickOn(HWND wizard, int button) { user::Click(::GetDlgItem(wizard, button)); }
    // The only page's field that is to be seen gets a text.
    static void Enter(HWND wizard, const char* text) {
        const HWND field = user::FindShownChild(wizard, [](HWND window) {
            char name[20] = "";
            ::GetClassNameA(window, name, sizeof name);
            return ::lstrcmpiA(name, "edit") == 0;
        });
        ASSERT_NE(nullptr, field);
        user::TypeAnew(field, text);
    }
};

constexpr const char* second = "Settings, step 2 of 4: fills of new shapes";
constexpr const char* third = "Settings, step 3 of 4: font of new texts";
constexpr const char* last = "Settings, step 4 of 4: arrow keys";

}  // namespace

TEST_F(SketchSettings, are_asked_for_step_by_step_and_kept_for_the_next_run) {
    StartInFront();
    const HWND wizard = Open();
    EXPECT_FALSE(::IsWindowEnabled(::GetDlgItem(wizard, IDC_BACK)));
    Enter(wizard, "5");
    ClickOn(wizard, IDC_NEXT);
    EXPECT_TRUE(Shows(wizard, second));
    ClickOn(wizard, IDC_NEXT);
    EXPECT_TRUE(Shows(wizard, third));
    ClickOn(wizard, IDC_BACK);
    EXPECT_TRUE(Shows(wizard, second));
    ClickOn(wizard, IDC_NEXT);
    EXPECT_TRUE(Shows(wizard, third));
    ClickOn(wizard, IDC_NEXT);
    EXPECT_TRUE(Shows(wizard, last));
    EXPECT_FALSE(::IsWindowEnabled(::GetDlgItem(wizard, IDC_NEXT)));
    Enter(wizard, "20");
    ClickOn(wizard, IDOK);
    EXPECT_TRUE(m_sketch->IsGone(wizard));
    EXPECT_EQ("5", Setting("Shapes", "LineWidth"));
    EXPECT_EQ("20", Setting("Keys", "Step"));
    EXPECT_EQ("Arial", Setting("Texts", "Face"));
    m_sketch.reset();

    StartInFront();
    DrawARectangle();
    Press({VK_RIGHT});
    Press({VK_ESCAPE});
    EXPECT_TRUE(Sketch::Shows(black, 118, 160));
    EXPECT_TRUE(Sketch::Shows(black, 122, 160));
    EXPECT_TRUE(Sketch::Shows(white, 117, 160));
}

TEST_F(SketchSettings, stay_as_they_were_when_the_wizard_is_cancelled) {
    StartInFront();
    const HWND wizard = Open();
    Enter(wizard, "5");
    Press({VK_ESCAPE});
    EXPECT_TRUE(m_sketch->IsGone(wizard));
    EXPECT_EQ("", Setting("Shapes", "LineWidth"));
    DrawARectangle();
    Press({VK_ESCAPE});
    EXPECT_TRUE(Sketch::Shows(white, 98, 160));
}

TEST_F(SketchSettings, that_cannot_be_are_those_of_a_new_program) {
    ::WritePrivateProfileStringA("Shapes", "LineWidth", "65000", "Sketch.INI");
    ::WritePrivateProfileStringA("Shapes", "LineColour", "reddish", "Sketch.INI");
    ::WritePrivateProfileStringA("Texts", "TenthsOfPoints", "-3", "Sketch.INI");
    ::WritePrivateProfileStringA("Keys", "Step", "0", "Sketch.INI");
    StartInFront();
    DrawARectangle();
    Press({VK_RIGHT});
    Press({VK_ESCAPE});
    EXPECT_TRUE(Sketch::Shows(black, 108, 120));
    EXPECT_TRUE(Sketch::Shows(white, 107, 120));
}
