#include <cstddef>
#include <string>

#include "examples/example_run.h"
#include "lvx/images/dibitmap.h"

using LVXUtilities::DIBitmap;

namespace {

class House : public lvx_test::ExampleRun {
protected:
    /// The colour that is saved there, as 0xRRGGBB.
    static int At(const DIBitmap& picture, int x, int y) {
        const auto pixels = picture.GetBitsAddress();
        const std::ptrdiff_t row = picture.GetHeight() - 1 - y;
        const unsigned char* const pixel = pixels.get() + row * picture.GetStorageWidth() + x * 3;
        return pixel[2] << 16 | pixel[1] << 8 | pixel[0];
    }
};

}  // namespace

TEST_F(House, is_drawn_and_saved) {
    const std::string file = m_folder.File("house.bmp");
    ASSERT_TRUE(Run("house " + file)) << m_output;
    EXPECT_EQ("", m_output);
    const DIBitmap picture(file, DIBitmap::DIB);
    ASSERT_EQ(320, picture.GetWidth());
    ASSERT_EQ(240, picture.GetHeight());
    ASSERT_EQ(24, picture.GetBitsPerPixel());
    EXPECT_EQ(0xBEDCFF, At(picture, 5, 5)) << "sky";
    EXPECT_EQ(0xFFFF00, At(picture, 270, 45)) << "sun";
    EXPECT_EQ(0xFF0000, At(picture, 270, 20)) << "its rim";
    EXPECT_EQ(0xC85A3C, At(picture, 70, 120)) << "wall";
    EXPECT_EQ(0x000000, At(picture, 60, 150)) << "its outline";
    EXPECT_EQ(0x404040, At(picture, 130, 80)) << "roof";
    EXPECT_EQ(0xFFFFFF, At(picture, 165, 150)) << "window";
    EXPECT_EQ(0x000000, At(picture, 145, 150)) << "its frame";
    EXPECT_EQ(0x37A5C3, At(picture, 90, 170)) << "door";
}

TEST_F(House, tells_a_place_that_cannot_be_written) {
    EXPECT_FALSE(Run("house " + m_folder.File("missing/house.bmp")));
    EXPECT_NE(std::string::npos, m_output.find("Cannot open file.")) << m_output;
    EXPECT_FALSE(Run("house"));
    EXPECT_EQ("usage: house FILE\n", m_output);
}
