#include "lvx/platform/profile.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/profile_cases.h"
#include "platform/system.h"
#include "support/bytes.h"
#include "support/temp_folder.h"

namespace {

using namespace lvx_test;

// A new file for each case: the system may keep what it has read of one.
class Profile : public ::testing::Test {
protected:
    const std::string& Write(std::string_view bytes) {
        m_file = m_folder.File("case" + std::to_string(++m_count) + ".ini");
        if (bytes.data() != nullptr) {
            write_file(m_file, std::string(bytes));
        }
        return m_file;
    }

    std::string Get(const char* section, const char* key, const char* default_value, DWORD size = 256) const {
        std::string buffer(size + 1, '#');
        const DWORD count =
            GetPrivateProfileStringA(section, key, default_value, buffer.data(), size, m_file.c_str());
        EXPECT_EQ('#', buffer[size]) << "behind the buffer";
        if (size == 0) {
            return "";
        }
        const std::string text = buffer.c_str();
        EXPECT_EQ(text.size(), count);
        return text;
    }

    std::string After(const char* section, const char* key, const char* value) const {
        m_result = WritePrivateProfileStringA(section, key, value, m_file.c_str());
        // On Windows: away with what is kept in memory.
        WritePrivateProfileStringA(nullptr, nullptr, nullptr, m_file.c_str());
        return read_file(m_file);
    }

    TempFolder m_folder;
    std::string m_file;
    mutable BOOL m_result = 0;

private:
    int m_count = 0;
};

std::string shown(std::string_view bytes) {
    return ::testing::PrintToString(std::string(bytes));
}

}  // namespace

TEST_F(Profile, each_reading_case_gives_its_text) {
    for (const ProfileReadCase& each : profile_read_cases()) {
        SCOPED_TRACE(shown(each.bytes) + " [" + each.section + "] " + each.key);
        Write(each.bytes);
        EXPECT_EQ(each.expected, Get(each.section, each.key, each.default_value));
    }
}

TEST_F(Profile, text_beyond_ascii_comes_as_the_system_has_it) {
    for (const ProfileReadDifference& each : profile_read_differences()) {
        Write(each.bytes);
        EXPECT_EQ(by_system(each.on_windows, each.elsewhere), Get("s", "k", "D")) << shown(each.bytes);
    }
}

TEST_F(Profile, each_number_case_gives_its_number) {
    for (const ProfileNumberCase& each : profile_number_cases()) {
        Write("[s]\r\nk=" + std::string(each.text) + "\r\n");
        EXPECT_EQ(each.expected, GetPrivateProfileIntA("s", "k", 7, m_file.c_str())) << shown(each.text);
    }
}

TEST_F(Profile, a_missing_number_is_the_default_with_its_sign) {
    Write("[s]\r\nj\r\n");
    EXPECT_EQ(-3, static_cast<int>(GetPrivateProfileIntA("s", "k", -3, m_file.c_str())));
    EXPECT_EQ(-3, static_cast<int>(GetPrivateProfileIntA("s", "j", -3, m_file.c_str())));
    EXPECT_EQ(-3, static_cast<int>(GetPrivateProfileIntA("t", "k", -3, m_file.c_str())));
    Write(no_profile);
    EXPECT_EQ(-3, static_cast<int>(GetPrivateProfileIntA("s", "k", -3, m_file.c_str())));
}

TEST_F(Profile, each_writing_case_leaves_its_bytes) {
    for (const ProfileWriteCase& each : profile_write_cases()) {
        SCOPED_TRACE(shown(each.before) + " [" + each.section + "] " + each.key + "=" + each.value);
        Write(each.before);
        EXPECT_EQ(shown(each.after), shown(After(each.section, each.key, each.value)));
        EXPECT_NE(0, m_result);
    }
}

TEST_F(Profile, each_writing_difference_leaves_the_bytes_of_the_system) {
    for (const ProfileWriteDifference& each : profile_write_differences()) {
        SCOPED_TRACE(shown(each.before) + " [" + each.section + "] " + each.key + "=" + each.value);
        Write(each.before);
        const auto expected = by_system(each.on_windows, each.elsewhere);
        EXPECT_EQ(shown(expected), shown(After(each.section, each.key, each.value)));
        EXPECT_EQ(on_windows || each.elsewhere != each.before, m_result != 0);
    }
}

TEST_F(Profile, a_text_is_cut_to_the_buffer) {
    Write("[s]\nk=vwxyz\nq=\"vwxyz\"\nb=ab   cd\n");
    EXPECT_EQ("", Get("s", "k", "D", 0));
    EXPECT_EQ("", Get("s", "k", "D", 1));
    EXPECT_EQ("v", Get("s", "k", "D", 2));
    EXPECT_EQ("vwxy", Get("s", "k", "D", 5));
    EXPECT_EQ("vwxyz", Get("s", "k", "D", 6));
    EXPECT_EQ("vwxyz", Get("s", "k", "D", 7));
    EXPECT_EQ("vwxy", Get("s", "q", "D", 5));
    EXPECT_EQ("ab ", Get("s", "b", "D", 4));
}

TEST_F(Profile, a_default_is_cut_to_the_buffer_behind_its_blanks) {
    Write("[s]\n");
    EXPECT_EQ("", Get("s", "k", "DEFGH", 0));
    EXPECT_EQ("", Get("s", "k", "DEFGH", 1));
    EXPECT_EQ("DEFG", Get("s", "k", "DEFGH", 5));
    EXPECT_EQ("DEF", Get("s", "k", "DEF  ", 5));
}

// The system loses a character of a quoted text that fits the buffer exactly.
TEST_F(Profile, a_quoted_text_of_the_size_of_the_buffer) {
    Write("[s]\nq=\"vwxyz\"\n");
    EXPECT_EQ(by_system("vwxy", "vwxyz"), Get("s", "q", "D", 6));
    EXPECT_EQ("vwxyz", Get("s", "q", "D", 7));
}

TEST_F(Profile, lines_of_any_length_are_read) {
    const std::string name(3000, 'n');
    const std::string value(66000, 'v');
    Write("[s]\n" + value + "=1\nk=" + value + "\n[" + name + "]\n" + name + "=w\n");
    EXPECT_TRUE(value == Get("s", "k", "D", 70000));
    EXPECT_EQ("w", Get(name.c_str(), name.c_str(), "D"));
}

TEST_F(Profile, a_long_value_is_written_and_read_back) {
    const std::string value(30000, 'v');
    Write(no_profile);
    EXPECT_TRUE("[s]\r\nk=" + value + "\r\n" == After("s", "k", value.c_str()));
    EXPECT_TRUE(value == Get("s", "k", "D", 30001));
}

TEST_F(Profile, what_is_no_file_gives_the_default_and_is_not_written) {
    m_file = m_folder.Path();
    EXPECT_EQ("D", Get("s", "k", "D"));
    EXPECT_EQ(0, WritePrivateProfileStringA("s", "k", "v", m_file.c_str()));
    m_file = m_folder.File("none") + (on_windows ? "\\" : "/") + "s.ini";
    EXPECT_EQ("D", Get("s", "k", "D"));
    EXPECT_EQ(0, WritePrivateProfileStringA("s", "k", "v", m_file.c_str()));
}

TEST_F(Profile, what_another_program_wrote_with_the_same_size_is_seen_at_once) {
    Write("[s]\r\nk=1\r\n");
    for (const char* const value : {"1", "2", "3", "4"}) {
        write_file(m_file, std::string("[s]\r\nk=") + value + "\r\n");
        EXPECT_EQ(value, Get("s", "k", "D"));
    }
}

TEST_F(Profile, many_writes_leave_every_key) {
    Write(no_profile);
    std::string expected = "[s]\r\n";
    for (int i = 0; i < 40; ++i) {
        const std::string key = "key" + std::to_string(i);
        EXPECT_NE(0, WritePrivateProfileStringA("s", key.c_str(), "v", m_file.c_str()));
        expected += key + "=v\r\n";
    }
    EXPECT_EQ(expected, After("s", "key0", "v"));
}
