// The program of docs/menus.md, used by keys and mouse in processes of its own, one after the other. What its
// menus had is told by what they do, and by the settings that a run leaves to the next.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "files/profile_folder.h"
#include "support/bytes.h"
#include "support/other_program.h"
#include "support/temp_folder.h"
#include "support/user.h"

namespace {

using user::Press;
using user::WaitUntil;
using Titles = std::vector<std::string>;

class Pages : public ::testing::Test {
protected:
    Pages() {
        for (const char* const name : {"a.txt", "b.txt", "c.txt"}) {
            lvx_test::write_file(File(name), std::string("Text of ") + name);
        }
    }

    std::string File(const std::string& name) const { return m_folder.File(name); }

    void Start(const std::string& files = "") {
        m_program = std::make_unique<user::OtherProgram>(LVX_TEST_PROGRAM_PREFIX "pages.exe " +
                                                         m_profile.Name() + " " + files);
        m_frame = user::WaitForShown(nullptr, "Pages");
        ASSERT_NE(nullptr, m_frame);
        ASSERT_TRUE(m_program->Owns(m_frame));
        ASSERT_TRUE(user::WaitUntilInFront(m_frame));
        m_client = ::FindWindowExA(m_frame, nullptr, "MDICLIENT", nullptr);
    }
    /// Ends it by its menu.
    void End() {
        Choose('F', {'X'});
        EXPECT_EQ(0, m_program->WaitForEnd());
    }
    /// Opens a menu, then presses the keys in it.
    static void Choose(WORD mnemonic, std::initializer_list<WORD> keys) {
        Press({VK_MENU, mnemonic});
        EXPECT_NE(nullptr, user::WaitForShown(user::drop_down_class, nullptr));
        for (const WORD key : keys) {
            Press({key});
        }
        EXPECT_TRUE(WaitUntil([] { return user::FindShown(user::drop_down_class, nullptr) == nullptr; }));
    }

    /// The titles of the pages, sorted.
    Titles Open() const {
        Titles titles;
        HWND page = nullptr;
        while ((page = ::FindWindowExA(m_client, page, "OwlMdiChild", nullptr)) != nullptr) {
            titles.push_back(user::TextOf(page));
        }
        std::sort(titles.begin(), titles.end());
        return titles;
    }
    bool HasOpen(const Titles& titles) const {
        return WaitUntil([&] { return Open() == titles; });
    }
    HWND Active() const { return reinterpret_cast<HWND>(::SendMessageA(m_client, WM_MDIGETACTIVE, 0, 0)); }
    bool IsActive(const std::string& title) const {
        return WaitUntil([&] { return user::TextOf(Active()) == title; });
    }
    bool BecomesMaximised(bool maximised) const {
        return WaitUntil([&] { return (::IsZoomed(Active()) != 0) == maximised; });
    }
    /// What the settings have, the newest first.
    std::string Recent(const Titles& files) const {
        std::string content = "[MRU]\r\n";
        for (std::size_t i = 0; i < files.size(); ++i) {
            content += std::to_string(i + 1) + "=" + files[i] + "\r\n";
        }
        return content;
    }

    lvx_test::TempFolder m_folder;
    lvx_test::ProfileFolder m_profile;
    std::unique_ptr<user::OtherProgram> m_program;
    HWND m_frame = nullptr;
    HWND m_client = nullptr;
};

}  // namespace

TEST_F(Pages, offers_in_its_second_run_what_was_opened_in_its_first) {
    Start(File("a.txt") + " " + File("b.txt"));
    EXPECT_TRUE(HasOpen({File("a.txt"), File("b.txt")}));
    End();
    EXPECT_EQ(Recent({File("b.txt"), File("a.txt")}), m_profile.Content());

    Start();
    EXPECT_EQ(Titles{}, Open());
    Choose('F', {'2'});
    EXPECT_TRUE(HasOpen({File("a.txt")}));
    End();
    EXPECT_EQ(Recent({File("a.txt"), File("b.txt")}), m_profile.Content());
}

TEST_F(Pages, offers_them_with_a_maximised_page_too) {
    Start(File("a.txt") + " " + File("b.txt"));
    Choose('P', {'M'});
    EXPECT_TRUE(BecomesMaximised(true));
    Choose('F', {'2'});
    EXPECT_TRUE(HasOpen({File("a.txt"), File("a.txt"), File("b.txt")}));
    End();
    EXPECT_EQ(Recent({File("a.txt"), File("b.txt")}), m_profile.Content());

    Start(File("c.txt"));
    Choose('P', {'M'});
    EXPECT_TRUE(BecomesMaximised(true));
    Choose('F', {'3'});
    EXPECT_TRUE(HasOpen({File("b.txt"), File("c.txt")}));
    Choose('P', {'M'});
    EXPECT_TRUE(BecomesMaximised(true));
    Choose('P', {'M'});
    EXPECT_TRUE(BecomesMaximised(false));
    Choose('F', {'1'});
    EXPECT_TRUE(HasOpen({File("b.txt"), File("b.txt"), File("c.txt")}));
    End();
    EXPECT_EQ(Recent({File("b.txt"), File("c.txt"), File("a.txt")}), m_profile.Content());
}

TEST_F(Pages, drops_a_recent_file_that_cannot_be_read) {
    Start(File("a.txt") + " " + File("b.txt"));
    End();
    ::DeleteFileA(File("a.txt").c_str());
    Start();
    Choose('F', {'2'});
    const HWND box = user::WaitForShown(user::dialog_class, "Pages");
    ASSERT_NE(nullptr, box);
    ASSERT_TRUE(user::WaitUntilInFront(box));
    Press({VK_RETURN});
    ASSERT_TRUE(user::WaitUntilInFront(m_frame));
    EXPECT_EQ(Titles{}, Open());
    End();
    EXPECT_EQ("[MRU]\r\n1=" + File("b.txt") + "\r\n2=\r\n", m_profile.Content());
}

TEST_F(Pages, lists_its_pages_in_a_menu_of_their_own) {
    Start(File("a.txt") + " " + File("b.txt") + " " + File("c.txt"));
    EXPECT_TRUE(IsActive(File("c.txt")));
    Choose('P', {'1'});
    EXPECT_TRUE(IsActive(File("a.txt")));
    Choose('P', {'3'});
    EXPECT_TRUE(IsActive(File("c.txt")));
    End();
}

TEST_F(Pages, takes_a_page_that_was_closed_out_of_its_menu) {
    Start(File("a.txt") + " " + File("b.txt"));
    EXPECT_TRUE(IsActive(File("b.txt")));
    Press({VK_CONTROL, VK_F4});
    EXPECT_TRUE(HasOpen({File("a.txt")}));
    // Nobody has the mnemonic any more, and the menu stays open.
    Press({VK_MENU, 'P'});
    EXPECT_NE(nullptr, user::WaitForShown(user::drop_down_class, nullptr));
    Press({'2'});
    ::Sleep(200);
    EXPECT_NE(nullptr, user::FindShown(user::drop_down_class, nullptr));
    Press({VK_ESCAPE});
    Press({VK_ESCAPE});
    EXPECT_TRUE(WaitUntil([] { return user::FindShown(user::drop_down_class, nullptr) == nullptr; }));
    Press({VK_CONTROL, 'N'});
    EXPECT_TRUE(HasOpen({File("a.txt"), "New"}));
    Choose('P', {'1'});
    EXPECT_TRUE(IsActive(File("a.txt")));
    End();
}

TEST_F(Pages, closes_all_of_them_and_then_has_nothing_to_close) {
    Start(File("a.txt") + " " + File("b.txt"));
    Choose('P', {'M'});
    EXPECT_TRUE(BecomesMaximised(true));
    Choose('P', {'C'});
    EXPECT_TRUE(HasOpen({}));
    // Both of its commands are disabled now.
    Choose('P', {'C', VK_ESCAPE, VK_ESCAPE});
    Choose('P', {'M', VK_ESCAPE, VK_ESCAPE});
    End();
}

TEST_F(Pages, ends_with_pages_open_and_maximised) {
    Start(File("a.txt") + " " + File("b.txt"));
    Choose('P', {'M'});
    EXPECT_TRUE(BecomesMaximised(true));
    Press({VK_MENU, VK_F4});
    EXPECT_EQ(0, m_program->WaitForEnd());
}
