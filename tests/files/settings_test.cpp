#include "lvx/files/settings.h"

#include <gtest/gtest.h>

#include <climits>
#include <filesystem>
#include <locale>
#include <string>

#include "files/profile_folder.h"
#include "platform/program_folder.h"
#include "platform/system.h"
#include "support/drive_folder.h"

namespace {

using LVXUtilities::Settings;

class SettingsFile : public ::testing::Test {
protected:
    lvx_test::ProfileFolder m_profile;
    Settings m_settings{m_profile.Name(), false};
};

// A settings file beside the test program for the length of a scope.
class FileBesideProgram {
public:
    FileBesideProgram(const std::string& name, const std::string& content)
        : m_path(lvx_test::program_folder() / name) {
        lvx_test::write_file(m_path.string(), content);
    }
    FileBesideProgram(const FileBesideProgram&) = delete;
    FileBesideProgram& operator=(const FileBesideProgram&) = delete;
    ~FileBesideProgram() {
        std::error_code error;
        std::filesystem::remove(m_path, error);
    }

    std::string Content() const { return lvx_test::read_file(m_path.string()); }

private:
    std::filesystem::path m_path;
};

class FolderBesideProgram {
public:
    explicit FolderBesideProgram(const std::string& name) : m_path(lvx_test::program_folder() / name) {
        std::filesystem::create_directory(m_path);
    }
    FolderBesideProgram(const FolderBesideProgram&) = delete;
    FolderBesideProgram& operator=(const FolderBesideProgram&) = delete;
    ~FolderBesideProgram() {
        std::error_code error;
        std::filesystem::remove(m_path, error);
    }

private:
    std::filesystem::path m_path;
};

// Numbers as 1.234.567.
class Grouping : public std::numpunct<char> {
protected:
    std::string do_grouping() const override { return "\3"; }
    char do_thousands_sep() const override { return '.'; }
};

class GroupingLocale {
public:
    GroupingLocale() : m_before(std::locale::global(std::locale(std::locale::classic(), new Grouping))) {}
    GroupingLocale(const GroupingLocale&) = delete;
    GroupingLocale& operator=(const GroupingLocale&) = delete;
    ~GroupingLocale() { std::locale::global(m_before); }

private:
    std::locale m_before;
};

}  // namespace

TEST(SettingsName, a_suffix_is_replaced_in_the_simple_name) {
    EXPECT_EQ("Tool.INI", Settings("Tool.cfg", false).GetSimpleName());
    EXPECT_EQ("Tool.INI", Settings("Tool", true).GetSimpleName());
    EXPECT_EQ("a.b.INI", Settings("a.b.c", false).GetSimpleName());
    EXPECT_EQ(".INI", Settings("", false).GetSimpleName());
    EXPECT_EQ("d\\Tool.INI", Settings("d\\Tool.cfg", false).GetSimpleName());
    EXPECT_EQ("C:\\d.e\\Tool.INI", Settings("C:\\d.e\\Tool", false).GetSimpleName());
}

TEST_F(SettingsFile, without_a_file_beside_the_program_it_is_in_the_profile_directory) {
    m_settings.WriteStr("s", "k", "v");
    EXPECT_EQ("[s]\r\nk=v\r\n", m_profile.Content());
    EXPECT_EQ(m_profile.Name() + ".INI", m_settings.GetSimpleName());
}

TEST_F(SettingsFile, a_file_beside_the_program_wins) {
    m_profile.SetContent("[s]\r\nk=profile\r\n");
    const FileBesideProgram beside(m_profile.Name() + ".INI", "[s]\r\nk=beside\r\n");
    Settings settings(m_profile.Name(), false);
    EXPECT_EQ("beside", settings.GetStr("s", "k", ""));
    settings.WriteStr("s", "k", "new");
    EXPECT_EQ("[s]\r\nk=new\r\n", beside.Content());
    EXPECT_EQ("[s]\r\nk=profile\r\n", m_profile.Content());
}

TEST_F(SettingsFile, beside_the_program_it_has_the_whole_name_and_the_suffix_behind_it) {
    m_profile.SetContent("[s]\r\nk=profile\r\n");
    const FileBesideProgram beside(m_profile.Name() + ".cfg.INI", "[s]\r\nk=beside\r\n");
    EXPECT_EQ("beside", Settings(m_profile.Name() + ".cfg", false).GetStr("s", "k", ""));
    EXPECT_EQ(m_profile.Name() + ".INI", Settings(m_profile.Name() + ".cfg", false).GetSimpleName());
    EXPECT_EQ("profile", Settings(m_profile.Name(), false).GetStr("s", "k", ""));
}

TEST_F(SettingsFile, with_a_suffix_the_one_beside_the_program_that_has_it_replaced_is_not_taken) {
    m_profile.SetContent("[s]\r\nk=profile\r\n");
    const FileBesideProgram beside(m_profile.Name() + ".INI", "[s]\r\nk=beside\r\n");
    EXPECT_EQ("profile", Settings(m_profile.Name() + ".cfg", false).GetStr("s", "k", ""));
}

TEST_F(SettingsFile, which_file_it_is_is_decided_once) {
    m_profile.SetContent("[s]\r\nk=profile\r\n");
    const FileBesideProgram beside(m_profile.Name() + ".INI", "[s]\r\nk=beside\r\n");
    EXPECT_EQ("profile", m_settings.GetStr("s", "k", ""));
}

TEST_F(SettingsFile, a_relative_name_with_a_directory_counts_from_the_current_directory) {
    const lvx_test::TempFolder folder;
    const lvx_test::KeptDirectory kept;
    std::filesystem::create_directory(folder.File(m_profile.Name()));
    std::filesystem::current_path(folder.Path());
    Settings settings(m_profile.Name() + "\\Tool.cfg", false);
    settings.WriteStr("s", "k", "v");
    EXPECT_EQ("[s]\r\nk=v\r\n", lvx_test::read_file(folder.File(m_profile.Name() + "/Tool.INI")));
    EXPECT_EQ("v", settings.GetStr("s", "k", ""));
}

TEST_F(SettingsFile, a_name_with_a_directory_is_looked_for_below_the_folder_of_the_program_first) {
    const FolderBesideProgram folder(m_profile.Name());
    const FileBesideProgram beside(m_profile.Name() + "/Tool.cfg.INI", "[s]\r\nk=beside\r\n");
    EXPECT_EQ("beside", Settings(m_profile.Name() + "\\Tool.cfg", false).GetStr("s", "k", ""));
}

TEST_F(SettingsFile, a_missing_text_is_the_default) {
    EXPECT_EQ("D", m_settings.GetStr("s", "k", "D"));
    EXPECT_EQ("", m_settings.GetStr("s", "k", ""));
    m_profile.SetContent("[s]\r\nj\r\n");
    EXPECT_EQ("D", m_settings.GetStr("s", "k", "D"));
    EXPECT_EQ("D", m_settings.GetStr("s", "j", "D"));
    EXPECT_EQ("D", m_settings.GetStr("t", "k", "D"));
}

TEST_F(SettingsFile, an_empty_text_is_not_missing) {
    m_settings.WriteStr("s", "k", "");
    EXPECT_EQ("", m_settings.GetStr("s", "k", "D"));
}

TEST_F(SettingsFile, null_stands_for_the_empty_text) {
    const char* const none = nullptr;
    m_profile.SetContent("a=1\r\n[s]\r\n=2\r\n");
    EXPECT_EQ("", m_settings.GetStr("s", "k", none));
    EXPECT_EQ("1", m_settings.GetStr(none, "a", "D"));
    EXPECT_EQ("2", m_settings.GetStr("s", none, "D"));
    EXPECT_EQ("", m_settings.GetStr(none, none, none));
}

TEST_F(SettingsFile, texts_of_every_length_round_the_sizes_of_the_buffer_come_whole) {
    for (const std::size_t length :
         {1U, 1022U, 1023U, 1024U, 1534U, 1535U, 1536U, 2303U, 2304U, 3455U, 9000U}) {
        // A buffer that has not grown.
        Settings settings(m_profile.Name(), false);
        std::string value(length, 'v');
        value.front() = 'a';
        value.back() = 'z';
        settings.WriteStr("s", "k", value);
        EXPECT_TRUE(value == settings.GetStr("s", "k", "")) << length;
        // The buffer that has grown serves the next, shorter one.
        settings.WriteStr("s", "k", "v");
        EXPECT_EQ("v", settings.GetStr("s", "k", "")) << length;
    }
}

TEST_F(SettingsFile, a_long_default_comes_whole) {
    const std::string value(5000, 'd');
    EXPECT_TRUE(value == m_settings.GetStr("s", "k", value));
    EXPECT_TRUE(value == Settings(m_profile.Name(), false).GetStr("s", "k", value.c_str()));
}

TEST_F(SettingsFile, names_and_texts_end_at_a_nul) {
    const std::string zero(1, '\0');
    m_settings.WriteStr("s" + zero + "x", "k" + zero + "x", "v" + zero + "x");
    EXPECT_EQ("[s]\r\nk=v\r\n", m_profile.Content());
    EXPECT_EQ("v", m_settings.GetStr("s", "k", "D"));
    EXPECT_EQ("D", m_settings.GetStr("s", "j", "D" + zero + "x"));
}

TEST_F(SettingsFile, numbers_come_back) {
    for (const int value : {0, 1, -1, 1234567, INT_MAX, INT_MIN}) {
        m_settings.WriteInt("s", "k", value);
        EXPECT_EQ("[s]\r\nk=" + std::to_string(value) + "\r\n", m_profile.Content());
        EXPECT_EQ(value, m_settings.GetInt("s", "k", 7));
    }
}

// With its thousands parted, a number would come back as what stands in front of the first point.
TEST_F(SettingsFile, numbers_are_written_the_same_whatever_the_global_locale) {
    const GroupingLocale locale;
    m_settings.WriteInt("s", "k", -1234567);
    EXPECT_EQ("[s]\r\nk=-1234567\r\n", m_profile.Content());
    EXPECT_EQ(-1234567, m_settings.GetInt("s", "k", 7));
}

TEST_F(SettingsFile, a_missing_number_is_the_default) {
    EXPECT_EQ(7, m_settings.GetInt("s", "k", 7));
    EXPECT_EQ(-7, m_settings.GetInt("s", "k", -7));
    m_profile.SetContent("[s]\r\nk=\r\nj=abc\r\ni=12abc\r\nh=4294967295\r\n");
    EXPECT_EQ(7, m_settings.GetInt("s", "k", 7));
    EXPECT_EQ(0, m_settings.GetInt("s", "j", 7));
    EXPECT_EQ(12, m_settings.GetInt("s", "i", 7));
    EXPECT_EQ(-1, m_settings.GetInt("s", "h", 7));
}

TEST_F(SettingsFile, quotes_keep_blanks_and_are_lost_themselves) {
    m_settings.WriteStr("s", "k", "\" v \"");
    EXPECT_EQ(" v ", m_settings.GetStr("s", "k", ""));
    m_settings.WriteStr("s", "k", " v ");
    EXPECT_EQ("v", m_settings.GetStr("s", "k", ""));
}

TEST_F(SettingsFile, two_objects_see_each_others_writes_at_once) {
    Settings other(m_profile.Name(), true);
    for (const char* const value : {"1", "2", "3"}) {
        m_settings.WriteStr("s", "k", value);
        EXPECT_EQ(value, other.GetStr("s", "k", ""));
        other.WriteStr("s", "j", value);
        EXPECT_EQ(value, m_settings.GetStr("s", "j", ""));
    }
}

TEST_F(SettingsFile, what_another_program_writes_is_seen_at_once) {
    for (const char* const value : {"1", "2", "3"}) {
        m_profile.SetContent(std::string("[s]\r\nk=") + value + "\r\n");
        EXPECT_EQ(value, m_settings.GetStr("s", "k", ""));
    }
}

TEST_F(SettingsFile, a_file_that_cannot_be_written_goes_unnoticed) {
    std::filesystem::create_directory(m_profile.File());
    m_settings.WriteStr("s", "k", "v");
    m_settings.WriteInt("s", "k", 1);
    EXPECT_EQ("D", m_settings.GetStr("s", "k", "D"));
    EXPECT_EQ(7, m_settings.GetInt("s", "k", 7));
}
