#include "owl/printer_blocks.h"

#include <commdlg.h>

#include <gtest/gtest.h>

#include <cstring>

#include "owl/error.h"

namespace {

using Bytes = std::vector<std::byte>;

Bytes BytesOf(const std::string& text) {
    const auto* const first = reinterpret_cast<const std::byte*>(text.data());
    return Bytes(first, first + text.size());
}

// Four words of offsets and a flag, then the texts.
TEST(PrinterBlocks, names_lie_behind_their_offsets) {
    const std::string expected =
        std::string("\x08\0\x0B\0\x11\0\0\0", 8) + std::string("dr\0laser\0LPT1:\0", 15);
    EXPECT_EQ(BytesOf(expected), owl::DevNamesBytes({"dr", "laser", "LPT1:"}));
}

TEST(PrinterBlocks, names_come_out_as_they_went_in) {
    const owl::PrinterNames names = owl::NamesInDevNames(owl::DevNamesBytes({"winspool", "A printer", ""}));
    EXPECT_EQ("winspool", names.driver);
    EXPECT_EQ("A printer", names.device);
    EXPECT_EQ("", names.output);
}

TEST(PrinterBlocks, names_that_lie_outside_are_empty) {
    const std::string bytes = std::string("\x08\0\xFF\xFF\x0A\0\0\0", 8) + "dr";
    const owl::PrinterNames names = owl::NamesInDevNames(BytesOf(bytes));
    EXPECT_EQ("dr", names.driver);
    EXPECT_EQ("", names.device);
    EXPECT_EQ("", names.output);
    EXPECT_EQ("", owl::NamesInDevNames(BytesOf("short")).driver);
    EXPECT_EQ("", owl::NamesInDevNames({}).driver);
}

TEST(PrinterBlocks, names_too_long_for_their_offsets_throw) {
    const std::string longest(65535 - 8 - 1 - 2, 'x');
    EXPECT_EQ(longest, owl::NamesInDevNames(owl::DevNamesBytes({"", longest, ""})).device);
    EXPECT_THROW(owl::DevNamesBytes({"", longest + "xx", "y"}), owl::TXOwl);
    EXPECT_THROW(owl::DevNamesBytes({std::string(70000, 'x'), "", ""}), owl::TXOwl);
}

TEST(PrinterBlocks, settings_bring_what_the_driver_keeps_behind_them) {
    struct {
        DEVMODEA mode{};
        char extra[4] = {'a', 'b', 'c', 'd'};
    } own;
    own.mode.dmSize = sizeof(DEVMODEA);
    own.mode.dmDriverExtra = sizeof own.extra;
    const Bytes bytes = owl::DevModeBytes(&own.mode);
    ASSERT_EQ(sizeof own, bytes.size());
    EXPECT_EQ(0, std::memcmp(&own, bytes.data(), sizeof own));
    EXPECT_EQ(Bytes{}, owl::DevModeBytes(nullptr));
}

TEST(PrinterBlocks, settings_lose_what_lies_behind_them_in_their_block) {
    DEVMODEA mode{};
    mode.dmSize = sizeof mode;
    Bytes bytes = owl::DevModeBytes(&mode);
    const Bytes whole = bytes;
    bytes.resize(bytes.size() + 37);
    EXPECT_EQ(whole, owl::WholeDevMode(bytes));
}

TEST(PrinterBlocks, settings_of_an_older_driver_are_shorter) {
    DEVMODEA mode{};
    mode.dmSize = 124;
    EXPECT_EQ(std::size_t{124}, owl::WholeDevMode(owl::DevModeBytes(&mode)).size());
}

TEST(PrinterBlocks, settings_that_claim_more_than_there_is_are_none) {
    DEVMODEA mode{};
    mode.dmSize = sizeof mode;
    Bytes bytes = owl::DevModeBytes(&mode);
    bytes.pop_back();
    EXPECT_EQ(Bytes{}, owl::WholeDevMode(bytes));
    mode.dmDriverExtra = 1;
    EXPECT_EQ(Bytes{}, owl::WholeDevMode(BytesOf(std::string(reinterpret_cast<char*>(&mode), sizeof mode))));
    mode.dmDriverExtra = 0;
    mode.dmSize = 4;
    EXPECT_EQ(Bytes{}, owl::WholeDevMode(BytesOf(std::string(reinterpret_cast<char*>(&mode), sizeof mode))));
    EXPECT_EQ(Bytes{}, owl::WholeDevMode({}));
}

TEST(PrinterBlocks, a_block_holds_the_bytes_that_it_was_made_of) {
    const Bytes bytes = BytesOf("some bytes");
    const HGLOBAL block = owl::MakeBlock(bytes);
    ASSERT_NE(nullptr, block);
    Bytes read = owl::BlockBytes(block);
    read.resize(bytes.size());
    EXPECT_EQ(bytes, read);
    EXPECT_EQ(nullptr, ::GlobalFree(block));
}

TEST(PrinterBlocks, no_bytes_are_no_block) {
    EXPECT_EQ(nullptr, owl::MakeBlock({}));
    EXPECT_EQ(Bytes{}, owl::BlockBytes(nullptr));
}

}  // namespace
