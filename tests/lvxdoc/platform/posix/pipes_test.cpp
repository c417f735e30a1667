// What only this system can put at the other end of the output, and how a process may end.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>
#include <memory>

#include "tests/lvxdoc/platform/posix/process.h"
#include "tests/lvxdoc/support.h"
#include "tools/lvxdoc/pending_file.h"

using testing::IsEmpty;

namespace {

// Long enough that it does not stay in a buffer to the end.
std::string many_values() {
    return std::string(400'000, '\1');
}

struct Outcome {
    int status;
    std::string err;
};

Outcome run_on(const Folder& folder, const std::vector<std::string>& words, int out) {
    const int err = open(folder.File("err").c_str(), O_CREAT | O_TRUNC | O_WRONLY, 0600);
    const int status = run_with_descriptors(words, out, err);
    close(err);
    return {status, read_file(folder.Path() / "err")};
}

}  // namespace

TEST(FullDisk, ends_long_and_short_output_with_1_and_a_message) {
    const Folder folder;
    const std::string schema = folder.Write("s", "top\n int(*) x\n");
    const std::string text = "lvxdoc: cannot write the output: No space left on device\n";
    for (const std::string& file :
         {folder.Write("short", int_bytes(1)), folder.Write("long", many_values())}) {
        const int full = open("/dev/full", O_WRONLY);
        for (const std::vector<std::string>& words : {std::vector<std::string>{"dump", "-s", schema, file},
                                                      {"dump", "--json", "-s", schema, file},
                                                      {"list", file},
                                                      {"--help"},
                                                      {"--version"}}) {
            const Outcome outcome = run_on(folder, words, full);
            EXPECT_EQ(1, outcome.status) << words[0];
            EXPECT_EQ(text, outcome.err) << words[0];
        }
        close(full);
    }
}

TEST(BrokenPipe, ends_quietly_with_141) {
    const Folder folder;
    const std::string schema = folder.Write("s", "top\n int(*) x\n");
    for (const std::string& file :
         {folder.Write("short", int_bytes(1)), folder.Write("long", many_values())}) {
        int ends[2];
        ASSERT_EQ(0, pipe(ends));
        close(ends[0]);
        const Outcome outcome = run_on(folder, {"dump", "-s", schema, file}, ends[1]);
        close(ends[1]);
        EXPECT_EQ(141, outcome.status);
        EXPECT_EQ("", outcome.err);
    }
}

TEST(ProcessEnd, removes_a_pending_file_when_the_process_exits_meanwhile) {
    const Folder folder;
    const auto leave = [&folder] {
        lvxdoc::PendingFile file(folder.Path() / "x");
        file.OnProcessEnd([] { std::fputs("released\n", stderr); });
        std::exit(1);
    };
    EXPECT_EXIT(leave(), testing::ExitedWithCode(1), "released");
    EXPECT_THAT(folder.Names(), IsEmpty());
}

TEST(ProcessEnd, removes_a_pending_file_on_an_interrupt) {
    const Folder folder;
    const auto leave = [&folder](int signal) {
        lvxdoc::PendingFile file(folder.Path() / "x");
        std::raise(signal);
    };
    EXPECT_EXIT(leave(SIGINT), testing::ExitedWithCode(130), "");
    EXPECT_EXIT(leave(SIGTERM), testing::ExitedWithCode(130), "");
    EXPECT_THAT(folder.Names(), IsEmpty());
}

TEST(ProcessEnd, removes_the_later_of_two_pending_files_when_the_earlier_is_gone) {
    const Folder folder;
    const auto leave = [&folder] {
        auto earlier = std::make_unique<lvxdoc::PendingFile>(folder.Path() / "x");
        lvxdoc::PendingFile later(folder.Path() / "y");
        earlier.reset();
        std::raise(SIGINT);
    };
    EXPECT_EXIT(leave(), testing::ExitedWithCode(130), "");
    EXPECT_THAT(folder.Names(), IsEmpty());
}

TEST(Extract, does_not_follow_a_link_that_lies_in_its_way) {
    const Folder folder;
    const std::string document = folder.Write("x", small_picture);
    std::filesystem::create_directory(folder.Path() / "out");
    folder.Write("precious", "old");
    std::filesystem::create_symlink(folder.Path() / "precious", folder.Path() / "out" / "picture.bmp");
    EXPECT_EQ(1, run({"extract", document, "-o", folder.File("out")}).status);
    EXPECT_EQ(0, run({"extract", document, "-o", folder.File("out"), "--force"}).status);
    EXPECT_EQ("old", read_file(folder.Path() / "precious"));
    EXPECT_FALSE(std::filesystem::is_symlink(folder.Path() / "out" / "picture.bmp"));
}
