#include "lvx/images/drawable_block.h"

#include <gtest/gtest.h>

#include <memory>

#include "picture_bytes.h"

namespace {

using lvx::images::DrawableBlock;
using lvx_test::bytes;
using lvx_test::Info;
using lvx_test::make_block;

/// A block that is freed with the object.
class Block {
public:
    explicit Block(std::string_view content) : m_handle(make_block(content)) {}
    ~Block() { GlobalFree(m_handle); }
    Block(const Block&) = delete;
    Block& operator=(const Block&) = delete;
    operator HGLOBAL() const { return m_handle; }
    /// Where it lies.
    const unsigned char* Start() const {
        const LVXUtilities::GlobalLocker<const unsigned char> lock(m_handle);
        return lock.get();
    }

private:
    HGLOBAL m_handle;
};

std::string text(const unsigned char* start, std::size_t count) {
    return std::string(reinterpret_cast<const char*>(start), count);
}

TEST(DrawableBlock, that_is_whole_is_not_copied) {
    const Block block(Info{2, 1, 8}.Header() + std::string(1024, 'c') + "pixels!!");
    const DrawableBlock picture(block, 1024);
    ASSERT_TRUE(picture.IsGood());
    EXPECT_EQ(block.Start(), reinterpret_cast<const unsigned char*>(picture.Info()));
    EXPECT_EQ("pixels!!", text(picture.Pixels(), 8));
}

TEST(DrawableBlock, has_zeros_for_the_pixels_and_colours_that_it_lacks) {
    const Block short_of_pixels(Info{2, 2, 24}.Header() + "abcdefghij");
    const DrawableBlock picture(short_of_pixels, 0);
    ASSERT_TRUE(picture.IsGood());
    EXPECT_EQ("abcdefghij" + std::string(6, '\0'), text(picture.Pixels(), 16));
    const Block short_of_colours(Info{1, 1, 8}.Header() + "abcd");
    const DrawableBlock black(short_of_colours, 1024);
    ASSERT_TRUE(black.IsGood());
    const auto* const info = reinterpret_cast<const unsigned char*>(black.Info());
    EXPECT_EQ(info + 40 + 1024, black.Pixels());
    EXPECT_EQ("abcd" + std::string(1024, '\0'), text(info + 40, 1028));
}

// The masks lie behind the header whatever the colour table is said to have.
TEST(DrawableBlock, has_zeros_for_the_masks_that_it_lacks) {
    const Block block(Info{1, 1, 16, 3, 0, 1}.Header() + "abcdefg");
    const DrawableBlock picture(block, 4);
    ASSERT_TRUE(picture.IsGood());
    EXPECT_EQ("abcdefg" + std::string(5, '\0'),
              text(reinterpret_cast<const unsigned char*>(picture.Info()) + 40, 12));
}

TEST(DrawableBlock, with_a_core_header_has_its_pixels_behind_the_triples) {
    const Block block(lvx_test::core_header(8, 1, 1) + "tttttt" + "pix!");
    const DrawableBlock picture(block, 6);
    ASSERT_TRUE(picture.IsGood());
    EXPECT_EQ(block.Start(), reinterpret_cast<const unsigned char*>(picture.Info()));
    EXPECT_EQ("pix!", text(picture.Pixels(), 4));
}

TEST(DrawableBlock, of_run_lengths_has_as_many_codes_as_it_claims) {
    const Block block(Info{1000, 1000, 8, 1, 12, 1}.Header() + "cccc" + "codes");
    const DrawableBlock picture(block, 4);
    ASSERT_TRUE(picture.IsGood());
    EXPECT_EQ("codes" + std::string(7, '\0'), text(picture.Pixels(), 12));
}

TEST(DrawableBlock, that_is_none_or_of_an_unknown_kind_is_not_drawn) {
    EXPECT_FALSE(DrawableBlock(nullptr, 0).IsGood());
    EXPECT_EQ(nullptr, DrawableBlock(nullptr, 0).Pixels());
    EXPECT_EQ(nullptr, DrawableBlock(nullptr, 0).Info());
    for (const std::uint32_t size_word : {0u, 11u, 13u, 39u}) {
        const Block block(Info{1, 1, 24, 0, 0, 0, size_word}.Header() + "abcd");
        EXPECT_FALSE(DrawableBlock(block, 0).IsGood()) << size_word;
    }
    const Block stub("abc");
    EXPECT_FALSE(DrawableBlock(stub, 0).IsGood());
}

// Gigabytes for a few damaged bytes, and reading behind the block, are what this stands between.
TEST(DrawableBlock, that_claims_far_more_than_it_has_is_not_drawn) {
    const Info claims[] = {{0x7FFFFFFF, 0x7FFFFFFF, 32},
                           {30000, 30000, 32},
                           {1, 1, 24, 0, 0, 0, 0x7FFFFFFF},
                           {1, 1, 24, 0, 0, 0, 0xFFFFFFFF},
                           {1, 1, 8, 1, 0xFFFFFFFF, 1}};
    for (const Info& claim : claims) {
        const Block block(claim.Header() + "abcd");
        EXPECT_FALSE(DrawableBlock(block, 0).IsGood()) << claim.width << " " << claim.size_word;
    }
    const Block table(Info{1, 1, 8, 0, 0, 0xFFFFFFFF}.Header());
    EXPECT_FALSE(DrawableBlock(table, std::uint64_t{0xFFFFFFFF} * 4).IsGood());
}

// A header that reaches behind the block's end is known, but its pixels are all zeros.
TEST(DrawableBlock, with_a_header_beyond_its_end_is_zeros) {
    const Block block(Info{1, 1, 24, 0, 0, 0, 108}.Header());
    const DrawableBlock picture(block, 0);
    ASSERT_TRUE(picture.IsGood());
    EXPECT_EQ(std::string(4, '\0'), text(picture.Pixels(), 4));
}

}  // namespace
