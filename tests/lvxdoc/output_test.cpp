#include "tools/lvxdoc/output.h"

#include <gtest/gtest.h>

#include "tests/lvxdoc/support.h"
#include "tools/lvxdoc/errors.h"

using namespace lvxdoc;

TEST(Output, ends_a_line) {
    StringOutput output;
    output.Line("one");
    output.Write("two");
    EXPECT_EQ("one\ntwo", output.Text());
}

TEST(FileOutput, hands_everything_on_with_flush) {
    const Folder folder;
    std::FILE* const file = std::fopen(folder.File("x").c_str(), "wb");
    ASSERT_NE(nullptr, file);
    FileOutput output(file);
    output.Write("");
    output.Line("one");
    output.Flush();
    EXPECT_EQ("one\n", read_file(folder.Path() / "x"));
    std::fclose(file);
}

TEST(FileOutput, fails_with_the_cause_on_a_file_that_takes_nothing) {
    const Folder folder;
    folder.Write("x", "");
    std::FILE* const file = std::fopen(folder.File("x").c_str(), "rb");
    ASSERT_NE(nullptr, file);
    FileOutput output(file);
    try {
        output.Write("one");
        output.Flush();
        FAIL() << "no failure";
    } catch (const Failure& failure) {
        EXPECT_EQ(0u, std::string(failure.what()).find("cannot write the output: "));
    }
    std::fclose(file);
}
