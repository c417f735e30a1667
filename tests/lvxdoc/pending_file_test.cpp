#include "tools/lvxdoc/pending_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/lvxdoc/support.h"
#include "tools/lvxdoc/errors.h"

using namespace lvxdoc;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

TEST(PendingFile, stands_under_its_name_only_after_commit) {
    const Folder folder;
    PendingFile file(folder.Path() / "x");
    file.Write("abc", 3);
    EXPECT_FALSE(std::filesystem::exists(folder.Path() / "x"));
    file.Commit(false);
    EXPECT_THAT(folder.Names(), ElementsAre("x"));
    EXPECT_EQ("abc", read_file(folder.Path() / "x"));
}

TEST(PendingFile, leaves_nothing_without_commit) {
    const Folder folder;
    {
        PendingFile file(folder.Path() / "x");
        file.Write("abc", 3);
        EXPECT_THAT(folder.Names(), SizeIs(1));
    }
    EXPECT_THAT(folder.Names(), IsEmpty());
}

TEST(PendingFile, replaces_only_when_told) {
    const Folder folder;
    folder.Write("x", "old");
    {
        PendingFile file(folder.Path() / "x");
        file.Write("new", 3);
        EXPECT_THROW(file.Commit(false), Failure);
    }
    EXPECT_EQ("old", read_file(folder.Path() / "x"));
    PendingFile file(folder.Path() / "x");
    file.Write("new", 3);
    file.Commit(true);
    EXPECT_EQ("new", read_file(folder.Path() / "x"));
    EXPECT_THAT(folder.Names(), ElementsAre("x"));
}

TEST(PendingFile, lets_two_be_filled_beside_each_other) {
    const Folder folder;
    PendingFile one(folder.Path() / "x");
    PendingFile two(folder.Path() / "x");
    EXPECT_NE(one.Place(), two.Place());
}

TEST(PendingFile, tells_the_name_and_the_cause_when_the_folder_is_missing) {
    const Folder folder;
    try {
        PendingFile file(folder.Path() / "none" / "x");
        FAIL() << "no failure";
    } catch (const Failure& failure) {
        EXPECT_EQ(0u, std::string(failure.what()).find("cannot write '" + folder.File("none")));
    }
}

TEST(PendingFile, leaves_no_half_file_where_a_folder_stands_in_its_way) {
    const Folder folder;
    std::filesystem::create_directories(folder.Path() / "x" / "y");
    {
        PendingFile file(folder.Path() / "x");
        EXPECT_THROW(file.Commit(true), Failure);
    }
    EXPECT_THAT(folder.Names(), ElementsAre("x"));
}
