#include "lvx/platform/posix/native_path.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "lvx/platform/drives.h"
#include "lvx/platform/posix/drive_table.h"
#include "support/drive_folder.h"
#include "support/temp_folder.h"

namespace {

using lvx::platform::current_directory_of;
using lvx::platform::current_place;
using lvx::platform::drive_path;
using lvx::platform::DrivePlace;
using lvx::platform::DriveSet;
using lvx::platform::DriveTable;
using lvx::platform::named_place;
using lvx::platform::native_path;

using Text = std::optional<std::string>;

constexpr auto nothing = std::nullopt;

/// A folder as drive D:, with the process outside of it.
class NativePath : public ::testing::Test {
protected:
    NativePath() {
        EXPECT_TRUE(lvx::map_drive('D', m_folder.Path()));
        std::filesystem::current_path("/usr");
    }
    ~NativePath() override { lvx::unmap_drive('D'); }

    lvx_test::KeptDirectory m_kept;
    lvx_test::TempFolder m_folder;
    std::string m_root = std::filesystem::canonical(m_folder.Path()).string();
};

}  // namespace

TEST_F(NativePath, a_drive_leads_to_its_folder) {
    EXPECT_EQ(Text("/"), native_path("C:\\"));
    EXPECT_EQ(Text("/a/b"), native_path("c:\\a\\b"));
    EXPECT_EQ(m_root + "/a", native_path("D:\\a"));
    EXPECT_EQ(m_root + "/", native_path("d:\\"));
    EXPECT_EQ(nothing, native_path("E:\\a"));
    EXPECT_EQ(nothing, native_path("1:\\a"));
    EXPECT_EQ(nothing, native_path("::"));
}

TEST_F(NativePath, both_separators_are_one_and_doubled_ones_too) {
    EXPECT_EQ(Text("/a/b/c"), native_path("C:/a\\b/c"));
    EXPECT_EQ(Text("/a/b"), native_path("C:\\\\a\\/b"));
}

TEST_F(NativePath, a_separator_at_the_end_stays) {
    EXPECT_EQ(Text("/a/"), native_path("C:\\a\\"));
    EXPECT_EQ(Text("./a/"), native_path("a/"));
    EXPECT_EQ(Text("/"), native_path("\\"));
}

TEST_F(NativePath, dots_are_taken_out_and_never_lead_above_the_root) {
    EXPECT_EQ(m_root + "/b", native_path("D:\\a\\..\\b"));
    EXPECT_EQ(m_root + "/b", native_path("D:\\.\\b\\."));
    EXPECT_EQ(m_root + "/b", native_path("D:\\..\\..\\b"));
    EXPECT_EQ(m_root + "/etc", native_path("D:\\a\\..\\..\\..\\etc"));
    EXPECT_EQ(m_root + "/etc", native_path("D:..\\etc"));
    EXPECT_EQ(m_root + "/...", native_path("D:\\..."));
    EXPECT_EQ(m_root + "/", native_path("D:\\a\\.."));
}

TEST_F(NativePath, relative_paths_stay_relative_where_that_is_enough) {
    EXPECT_EQ(Text("./a/b"), native_path("a\\b"));
    EXPECT_EQ(Text("./b"), native_path("a\\..\\b"));
    EXPECT_EQ(Text("./"), native_path("."));
    EXPECT_EQ(Text("/b"), native_path("..\\b"));
    EXPECT_EQ(Text("/b"), native_path("..\\..\\b"));
    std::filesystem::current_path(m_folder.Path());
    EXPECT_EQ(m_root + "/b", native_path("..\\b")) << "not above the drive";
}

TEST_F(NativePath, a_path_without_a_drive_is_the_current_drives) {
    EXPECT_EQ(Text("/a"), native_path("\\a"));
    std::filesystem::current_path(m_folder.Path());
    EXPECT_EQ(m_root + "/a", native_path("\\a"));
}

TEST_F(NativePath, a_drive_without_a_root_starts_at_its_directory) {
    EXPECT_EQ(Text("/usr/a"), native_path("C:a"));
    EXPECT_EQ(Text("/usr"), native_path("C:"));
    EXPECT_EQ(Text("/a"), native_path("C:..\\a"));
    EXPECT_EQ(m_root + "/a", native_path("D:a"));
    DriveTable::Process().Remember({'D', "sub"}, m_root);
    EXPECT_EQ(m_root + "/sub/a", native_path("D:a"));
    EXPECT_EQ(m_root + "/a", native_path("D:..\\a"));
}

TEST_F(NativePath, no_path_and_servers_are_nowhere) {
    EXPECT_EQ(nothing, native_path(""));
    EXPECT_EQ(nothing, native_path("\\\\server\\share"));
    EXPECT_EQ(nothing, native_path("//etc"));
}

TEST_F(NativePath, outside_of_all_drives_only_relative_paths_lead_somewhere) {
    std::filesystem::current_path("/");
    ASSERT_TRUE(lvx::map_drive('C', m_folder.Path()));
    EXPECT_EQ(Text("./a"), native_path("a"));
    EXPECT_EQ(nothing, native_path("\\a"));
    EXPECT_EQ(nothing, native_path("..\\a"));
    EXPECT_EQ(m_root + "/a", native_path("C:\\a"));
    EXPECT_EQ(nothing, current_place(DriveTable::Process().Now()));
    ASSERT_TRUE(lvx::map_drive('C', "/"));
}

TEST_F(NativePath, a_name_with_a_backslash_cannot_be_told) {
    EXPECT_EQ(nothing, drive_path("/a\\b"));
    std::filesystem::create_directory(m_folder.File("a\\b"));
    std::filesystem::current_path(m_folder.File("a\\b"));
    EXPECT_EQ(nothing, current_place(DriveTable::Process().Now()));
    EXPECT_EQ(Text("./c"), native_path("c"));
    EXPECT_EQ(nothing, native_path("..\\c"));
}

TEST_F(NativePath, an_absolute_path_is_told_with_its_drive) {
    EXPECT_EQ(Text("C:\\usr\\Bin"), drive_path("/usr/Bin"));
    EXPECT_EQ(Text("C:\\"), drive_path("/"));
    EXPECT_EQ(Text("D:\\x"), drive_path(m_root + "/x"));
    EXPECT_EQ(Text("D:\\"), drive_path(m_root));
    EXPECT_EQ(nothing, drive_path("usr"));
    EXPECT_EQ(nothing, drive_path(""));
}

// Once each question went to the table of the moment, and the answers did not fit together.
TEST_F(NativePath, a_path_goes_by_the_drives_that_it_is_asked_with) {
    std::filesystem::create_directory(m_folder.File("sub"));
    std::filesystem::current_path(m_folder.File("sub"));
    const DriveSet drives = DriveTable::Process().Now();
    const lvx_test::TempFolder other;
    ASSERT_TRUE(lvx::map_drive('D', other.Path()));
    EXPECT_EQ(m_root + "/f", native_path("\\f", drives));
    EXPECT_EQ(m_root + "/f", native_path("..\\f", drives));
    EXPECT_EQ(m_root + "/sub/f", native_path("D:f", drives));
    EXPECT_EQ((DrivePlace{'D', "sub/f"}), named_place("d:f", drives));
    EXPECT_EQ((DrivePlace{'D', "sub"}), current_place(drives));
    EXPECT_EQ("sub", current_directory_of('d', drives));
    EXPECT_EQ(Text("/f"), native_path("\\f"));
    EXPECT_EQ("", current_directory_of('D', DriveTable::Process().Now()));
}

TEST_F(NativePath, only_a_drive_that_is_there_names_a_place) {
    const DriveSet drives;
    EXPECT_EQ((DrivePlace{'C', "a/b"}), named_place("c:\\a\\.\\b\\", drives));
    EXPECT_EQ(std::nullopt, named_place("D:\\a", drives));
    EXPECT_EQ(std::nullopt, named_place("1:\\a", drives));
    EXPECT_EQ(std::nullopt, named_place("\\a", drives));
    EXPECT_EQ(std::nullopt, named_place("", drives));
}
