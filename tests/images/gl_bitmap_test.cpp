#include "lvx/images/gl_bitmap.h"

#include <GL/glu.h>
#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <vector>

#include "letter_bitmaps.h"
#include "owl/palette.h"
#include "tests/owl/message_window.h"

namespace {

using lvx_test::bytes;
using lvx_test::DIBitmap;
using lvx_test::Info;
using lvx_test::letter_bitmap;
using lvx_test::Letters;
using lvx_test::make_block;
using LVXUtilities::GLBitmap;

/// An OpenGL context on a window of 160 by 160, current as long as it lives.
class Context {
public:
    Context() : m_window(WS_POPUP, 160, 160), m_dc(::GetDC(m_window)) {
        m_window.Show();
        PIXELFORMATDESCRIPTOR format{};
        format.nSize = sizeof format;
        format.nVersion = 1;
        format.dwFlags = PFD_DRAW_TO_WINDOW | PFD_SUPPORT_OPENGL;
        format.iPixelType = PFD_TYPE_RGBA;
        format.cColorBits = 24;
        ::SetPixelFormat(m_dc, ::ChoosePixelFormat(m_dc, &format), &format);
        m_context = ::wglCreateContext(m_dc);
        ::wglMakeCurrent(m_dc, m_context);
    }
    ~Context() {
        ::wglMakeCurrent(nullptr, nullptr);
        ::wglDeleteContext(m_context);
        ::ReleaseDC(m_window, m_dc);
    }
    Context(const Context&) = delete;
    Context& operator=(const Context&) = delete;

    bool IsCurrent() const { return m_context != nullptr && ::wglGetCurrentContext() == m_context; }

private:
    owl_test::MessageWindow m_window;
    HDC m_dc;
    HGLRC m_context = nullptr;
};

class GlBitmap : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(context.IsCurrent()); }
    Context context;
};

/// Red, green and blue of all pixels, the lowest row first.
std::string buffer_of(const GLBitmap& bitmap) {
    const auto* const start = reinterpret_cast<const char*>(bitmap.GetBitsPtr());
    return std::string(start, static_cast<std::size_t>(bitmap.GetWidth()) *
                                  static_cast<std::size_t>(bitmap.GetHeight()) * 3);
}

/// A picture of 24 bits whose pixels are all different.
DIBitmap shaded(int width, int height) {
    const std::size_t stride = (static_cast<std::size_t>(width) * 24 + 31) / 32 * 4;
    std::string block = Info{width, height, 24}.Header();
    for (std::size_t i = 0; i < stride * static_cast<std::size_t>(height); ++i) {
        block += static_cast<char>(i * 7 % 251);
    }
    return DIBitmap(make_block(block), DIBitmap::Adopt);
}

/// Its pixels as red, green and blue without padding.
std::string tight(int width, int height) {
    const std::size_t stride = (static_cast<std::size_t>(width) * 24 + 31) / 32 * 4;
    std::string pixels;
    for (std::size_t y = 0; y < static_cast<std::size_t>(height); ++y) {
        for (std::size_t x = 0; x < static_cast<std::size_t>(width); ++x) {
            for (const std::size_t component : {2u, 1u, 0u}) {
                pixels += static_cast<char>((y * stride + x * 3 + component) * 7 % 251);
            }
        }
    }
    return pixels;
}

/// What GLU makes of tight pixels when it is told that they are.
std::string scaled(const std::string& pixels, int width, int height, int to_width, int to_height) {
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    std::string result(static_cast<std::size_t>(to_width) * static_cast<std::size_t>(to_height) * 3, '\0');
    EXPECT_EQ(0, gluScaleImage(GL_RGB, width, height, GL_UNSIGNED_BYTE, pixels.data(), to_width, to_height,
                               GL_UNSIGNED_BYTE, result.data()));
    glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
    glPixelStorei(GL_PACK_ALIGNMENT, 4);
    return result;
}

TEST_F(GlBitmap, has_powers_of_two_for_sides) {
    const int cases[][4] = {{100, 100, 128, 128}, {64, 64, 64, 64}, {1, 1, 1, 1},     {200, 300, 128, 128},
                            {3, 1, 4, 1},         {1, 3, 1, 4},     {2, 129, 2, 128}, {65, 33, 128, 64}};
    for (const auto& one : cases) {
        const GLBitmap bitmap(shaded(one[0], one[1]), GLBitmap::TranslateSelf);
        EXPECT_EQ(one[2], bitmap.GetWidth()) << one[0];
        EXPECT_EQ(one[3], bitmap.GetHeight()) << one[1];
    }
}

TEST_F(GlBitmap, that_needs_no_scaling_keeps_its_colours) {
    EXPECT_EQ(tight(64, 64), buffer_of(GLBitmap(shaded(64, 64), GLBitmap::TranslateSelf)));
    EXPECT_EQ(bytes("0E0700"), buffer_of(GLBitmap(shaded(1, 1), GLBitmap::TranslateSelf)));
}

// GLU goes by the alignment that the context has, as a rule 4. Rows of other lengths would come out askew,
// and the last ones be read and written behind the ends of the buffers.
TEST_F(GlBitmap, is_scaled_as_rows_without_padding) {
    for (const auto& size :
         {std::pair(3, 3), std::pair(100, 100), std::pair(1, 5), std::pair(2, 7), std::pair(129, 2)}) {
        const GLBitmap bitmap(shaded(size.first, size.second), GLBitmap::TranslateSelf);
        EXPECT_EQ(scaled(tight(size.first, size.second), size.first, size.second, bitmap.GetWidth(),
                         bitmap.GetHeight()),
                  buffer_of(bitmap))
            << size.first;
    }
}

TEST_F(GlBitmap, is_scaled_whatever_the_host_does_with_its_own_rows) {
    const std::string plain = buffer_of(GLBitmap(shaded(5, 3), GLBitmap::TranslateSelf));
    const GLenum modes[] = {GL_UNPACK_ROW_LENGTH, GL_UNPACK_SKIP_ROWS, GL_UNPACK_SKIP_PIXELS,
                            GL_PACK_ROW_LENGTH,   GL_PACK_SKIP_ROWS,   GL_PACK_SKIP_PIXELS};
    for (const GLenum mode : modes) {
        glPixelStorei(mode, 1000);
    }
    glPixelStorei(GL_UNPACK_ALIGNMENT, 8);
    const GLBitmap bitmap(shaded(5, 3), GLBitmap::TranslateSelf);
    EXPECT_EQ(plain, buffer_of(bitmap));
    for (const GLenum mode : modes) {
        GLint found = 0;
        glGetIntegerv(mode, &found);
        EXPECT_EQ(1000, found) << mode;
    }
    GLint alignment = 0;
    glGetIntegerv(GL_UNPACK_ALIGNMENT, &alignment);
    EXPECT_EQ(8, alignment);
    EXPECT_EQ(GLenum{GL_NO_ERROR}, glGetError());
}

// Red, green, blue and yellow, lowest row first.
TEST_F(GlBitmap, takes_the_colours_of_4_8_and_24_bits) {
    const std::string expected = bytes("0000FF FFFF00 FF0000 00FF00");
    for (const bool upper_row_first : {false, true}) {
        for (const int depth : {4, 8, 24}) {
            const GLBitmap bitmap(letter_bitmap({"RG", "BY"}, depth, upper_row_first),
                                  GLBitmap::TranslateSelf);
            EXPECT_EQ(expected, buffer_of(bitmap)) << depth << upper_row_first;
        }
    }
}

TEST_F(GlBitmap, of_another_depth_or_of_run_lengths_is_black) {
    for (const int depth : {1, 16, 32}) {
        const Letters letters = depth == 1 ? Letters{"..", ".."} : Letters{"RG", "BY"};
        const GLBitmap bitmap(letter_bitmap(letters, depth), GLBitmap::TranslateSelf);
        EXPECT_EQ(2, bitmap.GetWidth()) << depth;
        EXPECT_EQ(std::string(12, '\0'), buffer_of(bitmap)) << depth;
    }
    const std::string runs = Info{2, 2, 8, 1, 4, 1}.Header() + bytes("FFFFFF00 02000001");
    const GLBitmap bitmap(DIBitmap(make_block(runs), DIBitmap::Adopt), GLBitmap::TranslateSelf);
    EXPECT_EQ(std::string(12, '\0'), buffer_of(bitmap));
}

TEST_F(GlBitmap, of_an_empty_or_damaged_picture_has_no_buffer) {
    const DIBitmap pictures[] = {
        DIBitmap(nullptr, DIBitmap::Copy),
        DIBitmap(make_block("abc"), DIBitmap::Adopt),
        DIBitmap(make_block(Info{0, 5, 24}.Header()), DIBitmap::Adopt),
        DIBitmap(make_block(Info{-5, 5, 24}.Header()), DIBitmap::Adopt),
        DIBitmap(make_block(Info{0x7FFFFFFF, 0x7FFFFFFF, 8, 1, 4, 1}.Header() + "abcdefgh"), DIBitmap::Adopt),
        DIBitmap(make_block(Info{30000, 30000, 24}.Header()), DIBitmap::Adopt)};
    for (const DIBitmap& picture : pictures) {
        GLBitmap bitmap(picture, GLBitmap::TranslateSelf);
        EXPECT_EQ(nullptr, bitmap.GetBitsPtr());
        EXPECT_EQ(0, bitmap.GetWidth());
        EXPECT_FALSE(bitmap.TexMapScalePow2());
        bitmap.DrawPixels();
        bitmap.TexImage2D();
    }
}

TEST_F(GlBitmap, of_a_block_that_ends_early_is_black_there) {
    const std::string block = Info{2, 2, 24}.Header() + bytes("0000FF 00FF00 0000 FF");
    const GLBitmap bitmap(DIBitmap(make_block(block), DIBitmap::Adopt), GLBitmap::TranslateSelf);
    EXPECT_EQ(bytes("FF0000 00FF00 0000FF 000000"), buffer_of(bitmap));
}

// There is no buffer to scale, and GLU reads at address 0 when it is asked to.
TEST_F(GlBitmap, whose_picture_is_not_translated_is_black_and_has_its_size) {
    for (const auto method : {GLBitmap::TranslateRGBA, GLBitmap::TranslateRGB}) {
        const GLBitmap bitmap(shaded(100, 30), method);
        EXPECT_EQ(128, bitmap.GetWidth());
        EXPECT_EQ(32, bitmap.GetHeight());
        ASSERT_NE(nullptr, bitmap.GetBitsPtr());
        EXPECT_EQ(std::string(128 * 32 * 3, '\0'), buffer_of(bitmap));
        // Four bytes a pixel are read of the one kind.
        bitmap.DrawPixels();
        bitmap.TexImage2D();
        EXPECT_EQ(GLenum{GL_NO_ERROR}, glGetError());
    }
}

TEST_F(GlBitmap, by_any_other_method_takes_its_own_colours) {
    const auto unknown = static_cast<GLBitmap::TRANSLATEMETHOD>(17);
    EXPECT_EQ(tight(4, 4), buffer_of(GLBitmap(shaded(4, 4), unknown)));
}

TEST_F(GlBitmap, takes_another_picture_in_place_of_the_first) {
    GLBitmap bitmap(shaded(4, 4), GLBitmap::TranslateSelf);
    bitmap.Translate(shaded(8, 2), GLBitmap::TranslateSelf);
    EXPECT_EQ(8, bitmap.GetWidth());
    EXPECT_EQ(tight(8, 2), buffer_of(bitmap));
    bitmap.Translate(shaded(2, 2), GLBitmap::TranslateRGB);
    EXPECT_EQ(std::string(12, '\0'), buffer_of(bitmap));
}

TEST_F(GlBitmap, takes_colours_at_their_own_size_and_scales_them_when_told) {
    const PALETTEENTRY grey = {128, 128, 128, 0};
    const owl::TPalette palette(&grey, 1);
    GLBitmap bitmap(shaded(1, 1), GLBitmap::TranslateSelf);
    bitmap.TranslateByYourself(shaded(5, 3), palette);
    EXPECT_EQ(5, bitmap.GetWidth());
    EXPECT_EQ(3, bitmap.GetHeight());
    EXPECT_EQ(tight(5, 3), buffer_of(bitmap));
    EXPECT_TRUE(bitmap.TexMapScalePow2());
    EXPECT_EQ(8, bitmap.GetWidth());
    EXPECT_EQ(scaled(tight(5, 3), 5, 3, 8, 4), buffer_of(bitmap));
}

TEST_F(GlBitmap, is_cleaned_up_twice_without_harm) {
    GLBitmap bitmap(shaded(4, 4), GLBitmap::TranslateSelf);
    for (int i = 0; i < 2; ++i) {
        bitmap.CleanUp();
        EXPECT_EQ(nullptr, bitmap.GetBitsPtr());
        EXPECT_EQ(0, bitmap.GetWidth());
        EXPECT_EQ(0, bitmap.GetHeight());
    }
}

/// The pixels that OpenGL shows, from the lower left on.
std::string shown(int width, int height) {
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    std::string pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 3, '?');
    glReadPixels(0, 0, width, height, GL_RGB, GL_UNSIGNED_BYTE, pixels.data());
    return pixels;
}

void begin_scene() {
    glViewport(0, 0, 160, 160);
    glClearColor(1, 1, 1, 1);
    glClear(GL_COLOR_BUFFER_BIT);
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glOrtho(0, 160, 0, 160, -1, 1);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
}

TEST_F(GlBitmap, is_drawn_and_leaves_the_alignment_as_it_was) {
    begin_scene();
    glPixelStorei(GL_UNPACK_ALIGNMENT, 8);
    glRasterPos2i(0, 0);
    // Two pixels a row: 6 bytes, that any larger alignment would take for more.
    GLBitmap(shaded(2, 4), GLBitmap::TranslateSelf).DrawPixels();
    GLint alignment = 0;
    glGetIntegerv(GL_UNPACK_ALIGNMENT, &alignment);
    EXPECT_EQ(8, alignment);
    EXPECT_EQ(tight(2, 4), shown(2, 4));
    EXPECT_EQ(std::string(3, '\xFF'), shown(3, 1).substr(6));
    EXPECT_EQ(GLenum{GL_NO_ERROR}, glGetError());
}

TEST_F(GlBitmap, that_is_cleaned_up_draws_nothing) {
    begin_scene();
    glRasterPos2i(0, 0);
    GLBitmap bitmap(shaded(2, 4), GLBitmap::TranslateSelf);
    bitmap.CleanUp();
    bitmap.DrawPixels();
    EXPECT_EQ(std::string(3, '\xFF'), shown(1, 1));
}

TEST_F(GlBitmap, becomes_a_texture_and_leaves_the_alignment_at_1) {
    GLBitmap(shaded(2, 4), GLBitmap::TranslateSelf).TexImage2D();
    GLint alignment = 0, width = 0, height = 0;
    glGetIntegerv(GL_UNPACK_ALIGNMENT, &alignment);
    EXPECT_EQ(1, alignment);
    glGetTexLevelParameteriv(GL_TEXTURE_2D, 0, GL_TEXTURE_WIDTH, &width);
    glGetTexLevelParameteriv(GL_TEXTURE_2D, 0, GL_TEXTURE_HEIGHT, &height);
    EXPECT_EQ(2, width);
    EXPECT_EQ(4, height);
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    std::string texels(2 * 4 * 3, '?');
    glGetTexImage(GL_TEXTURE_2D, 0, GL_RGB, GL_UNSIGNED_BYTE, texels.data());
    EXPECT_EQ(tight(2, 4), texels);
}

TEST_F(GlBitmap, is_seen_as_a_texture) {
    begin_scene();
    GLBitmap(letter_bitmap({"RG", "BY"}, 8), GLBitmap::TranslateSelf).TexImage2D();
    glEnable(GL_TEXTURE_2D);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_REPLACE);
    glBegin(GL_QUADS);
    for (const auto& corner : {std::pair(0, 0), std::pair(1, 0), std::pair(1, 1), std::pair(0, 1)}) {
        glTexCoord2i(corner.first, corner.second);
        glVertex2i(corner.first * 4, corner.second * 4);
    }
    glEnd();
    // Blue, blue, yellow, yellow twice, and above them red, red, green, green.
    const std::string lower = bytes("0000FF 0000FF FFFF00 FFFF00");
    const std::string upper = bytes("FF0000 FF0000 00FF00 00FF00");
    EXPECT_EQ(lower + lower + upper + upper, shown(4, 4));
}

// With such rows OpenGL reads far behind the buffer.
TEST_F(GlBitmap, is_drawn_and_becomes_a_texture_whatever_the_host_does_with_its_own_rows) {
    begin_scene();
    glRasterPos2i(0, 0);
    const GLBitmap bitmap(shaded(2, 4), GLBitmap::TranslateSelf);
    const GLenum modes[] = {GL_UNPACK_ROW_LENGTH, GL_UNPACK_SKIP_ROWS, GL_UNPACK_SKIP_PIXELS};
    for (const GLenum mode : modes) {
        glPixelStorei(mode, 3);
    }
    bitmap.DrawPixels();
    EXPECT_EQ(tight(2, 4), shown(2, 4));
    bitmap.TexImage2D();
    std::string texels(2 * 4 * 3, '?');
    glGetTexImage(GL_TEXTURE_2D, 0, GL_RGB, GL_UNSIGNED_BYTE, texels.data());
    EXPECT_EQ(tight(2, 4), texels);
    for (const GLenum mode : modes) {
        GLint found = 0;
        glGetIntegerv(mode, &found);
        EXPECT_EQ(3, found) << mode;
    }
}

// An error of the host's own, or of a call that is refused here, is taken and kept from nobody's picture.
TEST_F(GlBitmap, takes_the_errors_of_opengl) {
    glBegin(static_cast<GLenum>(0x7777));
    const GLBitmap bitmap(shaded(4, 4), GLBitmap::TranslateSelf);
    EXPECT_EQ(tight(4, 4), buffer_of(bitmap));
    EXPECT_EQ(GLenum{GL_NO_ERROR}, glGetError());
}

TEST(GlBitmapWithoutContext, keeps_the_size_of_the_picture) {
    GLBitmap bitmap(shaded(5, 3), GLBitmap::TranslateSelf);
    EXPECT_EQ(5, bitmap.GetWidth());
    EXPECT_EQ(tight(5, 3), buffer_of(bitmap));
    EXPECT_FALSE(bitmap.TexMapScalePow2());
    const GLBitmap untranslated(shaded(5, 3), GLBitmap::TranslateRGBA);
    EXPECT_EQ(nullptr, untranslated.GetBitsPtr());
    EXPECT_EQ(5, untranslated.GetWidth());
}

TEST(GlBitmapWithoutContext, is_not_copied) {
    EXPECT_FALSE(std::is_copy_constructible_v<GLBitmap>);
    EXPECT_FALSE(std::is_copy_assignable_v<GLBitmap>);
}

}  // namespace
