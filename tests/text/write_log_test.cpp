// Each process begins its log anew, so each of these tests logs in a process of its own: a death test in the
// thread-safe style starts the test program afresh and runs the statement there.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>

#include "lvx/text/report.h"

static_assert(requires(void (*function)(const char*, ...)) { function = &write_log; });
static_assert(requires(void (*function)(const char*, ...)) { function = &fatal_error; });
static_assert(requires(void (*function)(owl::TWindow*, const char*, ...)) { function = &report_error; });

namespace {

namespace fs = std::filesystem;

constexpr const char* log_name = "LOGFILE.LOG";

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

File open(const fs::path& path, const char* mode) {
    return File(std::fopen(path.string().c_str(), mode));
}

// As text: on Windows a line end is two bytes in the file.
void put(const fs::path& path, const std::string& text) {
    const File file = open(path, "w");
    ASSERT_TRUE(file);
    std::fwrite(text.data(), 1, text.size(), file.get());
}

std::string text_of(const fs::path& path) {
    const File file = open(path, "r");
    std::string text;
    for (int c = 0; file && (c = std::fgetc(file.get())) != EOF;) {
        text += static_cast<char>(c);
    }
    return text;
}

// Ends the process on the spot, without flushing anything: what is in the file then was closed before.
[[noreturn]] void crash() {
    std::_Exit(7);
}

class WriteLog : public testing::Test {
protected:
    // Runs in the process that logs too, where it makes the same folder anew.
    void SetUp() override {
        GTEST_FLAG_SET(death_test_style, "threadsafe");
        const auto* test = testing::UnitTest::GetInstance()->current_test_info();
        m_folder = fs::absolute(std::string("write_log_") + test->name());
        fs::remove_all(m_folder);
        fs::create_directories(other_folder());
    }
    void TearDown() override { fs::remove_all(m_folder); }

    const fs::path& folder() const { return m_folder; }
    fs::path other_folder() const { return m_folder / "other"; }
    fs::path log() const { return m_folder / log_name; }
    fs::path other_log() const { return other_folder() / log_name; }

    template <class Action>
    void in_a_fresh_process(Action action) {
        EXPECT_EXIT(
            {
                fs::current_path(folder());
                action();
                crash();
            },
            testing::ExitedWithCode(7), "");
    }

private:
    fs::path m_folder;
};

}  // namespace

using WriteLogDeathTest = WriteLog;

TEST_F(WriteLogDeathTest, the_first_record_throws_the_last_log_away_and_others_follow_it) {
    put(log(), "a log of yesterday, and a long one\n");
    in_a_fresh_process([] {
        write_log("a\n");
        write_log("b\n");
    });
    EXPECT_EQ("a\nb\n", text_of(log()));
}

TEST_F(WriteLogDeathTest, makes_the_file_if_there_is_none) {
    in_a_fresh_process([] { write_log("a\n"); });
    EXPECT_EQ("a\n", text_of(log()));
}

TEST_F(WriteLogDeathTest, a_process_that_logs_nothing_leaves_the_log_alone) {
    put(log(), "old\n");
    in_a_fresh_process([] {});
    EXPECT_EQ("old\n", text_of(log()));
}

TEST_F(WriteLogDeathTest, adds_nothing_to_the_text) {
    in_a_fresh_process([] {
        write_log("one");
        write_log("%s", "");
        write_log(" two%%");
    });
    EXPECT_EQ("one two%", text_of(log()));
}

TEST_F(WriteLogDeathTest, formats_its_arguments) {
    in_a_fresh_process([] {
        write_log("%s %d %5.2f|%-4s|%c\n", "pen", -7, 3.14159, "ab", 'x');
        write_log("%zu %lld %x\n", std::size_t{12}, -9000000000LL, 255u);
    });
    EXPECT_EQ("pen -7  3.14|ab  |x\n12 -9000000000 ff\n", text_of(log()));
}

TEST_F(WriteLogDeathTest, takes_a_text_of_any_length) {
    in_a_fresh_process([] { write_log("%s\n", std::string(100000, 'x').c_str()); });
    EXPECT_EQ(std::string(100000, 'x') + "\n", text_of(log()));
}

TEST_F(WriteLogDeathTest, goes_to_the_directory_that_is_current_at_the_call) {
    put(other_log(), "there before\n");
    in_a_fresh_process([this] {
        write_log("here\n");
        fs::current_path(other_folder());
        write_log("there\n");
        fs::current_path(folder());
        write_log("here again\n");
    });
    EXPECT_EQ("here\nhere again\n", text_of(log()));
    EXPECT_EQ("there before\nthere\n", text_of(other_log()));
}

TEST_F(WriteLogDeathTest, the_file_is_closed_between_records) {
    in_a_fresh_process([this] {
        write_log("moved\n");
        fs::rename(log(), other_log());
        write_log("new\n");
    });
    EXPECT_EQ("moved\n", text_of(other_log()));
    EXPECT_EQ("new\n", text_of(log()));
}

TEST_F(WriteLogDeathTest, a_record_that_finds_no_file_to_open_is_lost) {
    in_a_fresh_process([this] {
        write_log("kept\n");
        fs::rename(log(), other_log());
        fs::create_directory(log());
        write_log("lost\n");
        fs::remove(log());
        fs::rename(other_log(), log());
        write_log("kept too\n");
    });
    EXPECT_EQ("kept\nkept too\n", text_of(log()));
}

TEST_F(WriteLogDeathTest, a_first_record_that_is_lost_counts_as_the_first) {
    in_a_fresh_process([this] {
        fs::create_directory(log());
        write_log("lost\n");
        fs::remove(log());
        put(log(), "another's\n");
        write_log("kept\n");
    });
    EXPECT_EQ("another's\nkept\n", text_of(log()));
}
