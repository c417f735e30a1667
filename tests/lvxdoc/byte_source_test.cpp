#include "tools/lvxdoc/byte_source.h"

#include <gtest/gtest.h>

#include "tests/lvxdoc/support.h"
#include "tools/lvxdoc/errors.h"

using namespace lvxdoc;

namespace {

std::string failure_of(const std::string& name) {
    try {
        open_file(name);
    } catch (const Failure& failure) {
        return failure.what();
    }
    return "opened";
}

}  // namespace

TEST(MemorySource, reads_at_any_place) {
    MemorySource source("abcdef");
    char two[2];
    source.ReadAt(3, two, 2);
    EXPECT_EQ("de", std::string(two, 2));
    EXPECT_EQ(6u, source.Size());
}

TEST(OpenFile, reads_every_byte_value_at_any_place) {
    const Folder folder;
    const auto source = open_file(folder.Write("x", std::string("\r\n\x1a\0z", 5)));
    EXPECT_EQ(5u, source->Size());
    char bytes[5];
    source->ReadAt(2, bytes, 3);
    source->ReadAt(0, bytes + 3, 2);
    EXPECT_EQ(std::string("\x1a\0z\r\n", 5), std::string(bytes, 5));
}

TEST(OpenFile, tells_the_name_of_a_file_that_is_missing) {
    const Folder folder;
    EXPECT_EQ(0u, failure_of(folder.File("none")).find("cannot open '" + folder.File("none") + "': "));
}

TEST(OpenFile, refuses_a_folder) {
    const Folder folder;
    EXPECT_EQ("cannot open '" + folder.File("") + "': it is not a file", failure_of(folder.File("")));
}

TEST(OpenFile, fails_when_the_file_got_shorter) {
    const Folder folder;
    const auto source = open_file(folder.Write("x", "abcdef"));
    std::filesystem::resize_file(folder.Path() / "x", 2);
    char bytes[6];
    EXPECT_THROW(source->ReadAt(0, bytes, 6), Failure);
}
