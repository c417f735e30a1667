#include "lvx/platform/open_file.h"

#include <gtest/gtest.h>

#include <memory>

#include "support/bytes.h"
#include "support/temp_folder.h"

namespace {

struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

std::unique_ptr<std::FILE, Closer> open(const std::string& name) {
    return std::unique_ptr<std::FILE, Closer>(std::fopen(name.c_str(), "rb"));
}

}  // namespace

TEST(OpenFile, has_the_length_behind_its_position) {
    const lvx_test::TempFolder folder;
    lvx_test::write_file(folder.File("ten"), "0123456789");
    const auto file = open(folder.File("ten"));
    EXPECT_EQ(10u, *lvx::platform::remaining_length(file.get()));
    std::fseek(file.get(), 4, SEEK_SET);
    EXPECT_EQ(6u, *lvx::platform::remaining_length(file.get()));
    std::fseek(file.get(), 40, SEEK_SET);
    EXPECT_EQ(0u, *lvx::platform::remaining_length(file.get()));
}

TEST(OpenFile, is_read_in_pieces_that_move_its_position) {
    const lvx_test::TempFolder folder;
    lvx_test::write_file(folder.File("ten"), std::string("01\r\n4\x1A") + "6789");
    const auto file = open(folder.File("ten"));
    char data[16] = {};
    EXPECT_EQ(4u, lvx::platform::read_available(file.get(), data, 4));
    EXPECT_STREQ("01\r\n", data);
    EXPECT_EQ(6u, *lvx::platform::remaining_length(file.get()));
    EXPECT_EQ(6u, lvx::platform::read_available(file.get(), data, sizeof data));
    EXPECT_EQ(0u, lvx::platform::read_available(file.get(), data, sizeof data));
}

TEST(OpenFile, is_no_directory) {
    const lvx_test::TempFolder folder;
    lvx_test::write_file(folder.File("file"), "");
    EXPECT_FALSE(lvx::platform::is_directory(open(folder.File("file")).get()));
}

TEST(OpenFile, a_directory_is_told_or_not_opened) {
    const lvx_test::TempFolder folder;
    const auto file = open(folder.Path());
    EXPECT_TRUE(file == nullptr || lvx::platform::is_directory(file.get()));
}
