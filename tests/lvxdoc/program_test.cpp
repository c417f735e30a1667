#include "tools/lvxdoc/program.h"

#include <gtest/gtest.h>

#include "tests/lvxdoc/support.h"
#include "tools/lvxdoc/errors.h"

namespace {

class BrokenOutput : public lvxdoc::Output {
public:
    explicit BrokenOutput(bool gone) : m_gone(gone) {}
    void Write(std::string_view) override {
        if (m_gone) {
            throw lvxdoc::OutputGone();
        }
        throw lvxdoc::Failure("cannot write the output: no room");
    }

private:
    bool m_gone;
};

}  // namespace

TEST(Program, explains_itself) {
    const Result result = run({"--help"});
    EXPECT_EQ(0, result.status);
    for (const char* command : {"pack OUT PICTURE...", "list FILE", "dump FILE [STREAM...]",
                                "extract FILE [STREAM...]", "check FILE...", "Exit status: 0 good"}) {
        EXPECT_NE(std::string::npos, result.out.find(command)) << command;
    }
    EXPECT_EQ(result.out, run({"-h"}).out);
    EXPECT_EQ(result.out, run({"help"}).out);
}

TEST(Program, explains_each_command) {
    for (const char* command : {"pack", "list", "dump", "extract", "check"}) {
        const Result result = run({command, "--help"});
        EXPECT_EQ(0, result.status);
        EXPECT_EQ(0u, result.out.find(std::string("Usage: lvxdoc ") + command + " [OPTION...] "));
        EXPECT_EQ(result.out, run({"help", command}).out);
    }
}

TEST(Program, tells_its_version) {
    const Result result = run({"--version"});
    EXPECT_EQ(0, result.status);
    EXPECT_EQ(0u, result.out.find("lvxdoc 0."));
}

TEST(Program, ends_with_2_on_a_wrong_command_line) {
    EXPECT_EQ(2, run({}).status);
    EXPECT_EQ("lvxdoc: a command is missing\nTry 'lvxdoc --help'.\n", run({}).err);
    EXPECT_EQ("lvxdoc: there is no command 'paint'\nTry 'lvxdoc --help'.\n", run({"paint"}).err);
    EXPECT_EQ(2, run({"list"}).status);
    EXPECT_EQ(2, run({"list", "--json", "x"}).status);
    EXPECT_EQ(2, run({"pack", "x"}).status);
}

TEST(Program, ends_with_2_on_a_wrong_schema) {
    const Folder folder;
    const std::string schema = folder.Write("s", "class A\n lnog x\n");
    const Result result = run({"dump", "-s", schema, folder.Write("x", fonts)});
    EXPECT_EQ(2, result.status);
    EXPECT_EQ("lvxdoc: " + schema + ":2: unknown type 'lnog'\nTry 'lvxdoc --help'.\n", result.err);
}

TEST(Program, ends_with_1_when_a_file_is_missing_or_damaged) {
    const Folder folder;
    EXPECT_EQ(1, run({"list", folder.File("none")}).status);
    const Result damaged = run({"list", folder.Write("x", bytes_of("d0cf11e0a1b11ae1"))});
    EXPECT_EQ(1, damaged.status);
    EXPECT_EQ("lvxdoc: damaged: offset 8 (0x00000008): the file ends within the header of a compound file\n",
              damaged.err);
}

TEST(Program, ends_with_1_and_a_message_when_the_output_takes_no_more) {
    const Folder folder;
    BrokenOutput out(false);
    lvxdoc::StringOutput err;
    lvxdoc::Console console{out, err};
    EXPECT_EQ(1, lvxdoc::run_program({"check", folder.Write("x", fonts)}, console));
    EXPECT_EQ("lvxdoc: cannot write the output: no room\n", err.Text());
}

TEST(Program, ends_with_141_and_no_word_when_nobody_reads) {
    const Folder folder;
    BrokenOutput out(true);
    lvxdoc::StringOutput err;
    lvxdoc::Console console{out, err};
    EXPECT_EQ(141, lvxdoc::run_program({"check", folder.Write("x", fonts)}, console));
    EXPECT_EQ(141, lvxdoc::run_program({"dump", folder.File("x")}, console));
    EXPECT_EQ("", err.Text());
}

TEST(Program, survives_when_messages_go_nowhere) {
    BrokenOutput out(false);
    lvxdoc::Console console{out, out};
    EXPECT_EQ(2, lvxdoc::run_program({"paint"}, console));
}
