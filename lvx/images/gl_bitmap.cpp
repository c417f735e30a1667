#include "lvx/images/gl_bitmap.h"

#include <GL/glu.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>

#include "lvx/images/block_layout.h"
#include "lvx/images/dibitmap.h"
#include "lvx/images/dibitmap_strategy.h"
#include "lvx/images/drawable_block.h"
#include "lvx/images/texture_pixels.h"
#include "lvx/images/texture_size.h"
#include "owl/palette.h"

namespace LVXUtilities {
namespace {

using lvx::images::BlockLayout;
using lvx::images::DrawableBlock;
using lvx::images::TextureSource;

// Takes the error that the last calls left, in words for who looks with a debugger.
void check() {
    const GLenum code = glGetError();
    if (code == GL_NO_ERROR) {
        return;
    }
    const auto* const reason = reinterpret_cast<const char*>(gluErrorString(code));
    char text[2000];
    std::snprintf(text, sizeof text, "error: #(%d) %s\r\n", static_cast<int>(code),
                  reason != nullptr ? reason : "");
}

// Rows without padding, one after the other, whatever the host has the context do with its own pictures.
class TightRows {
public:
    TightRows() {
        for (std::size_t i = 0; i < modes.size(); ++i) {
            glGetIntegerv(modes[i].name, &m_before[i]);
            glPixelStorei(modes[i].name, modes[i].value);
        }
        check();
    }
    ~TightRows() {
        for (std::size_t i = 0; i < modes.size(); ++i) {
            glPixelStorei(modes[i].name, m_before[i]);
        }
        check();
    }
    TightRows(const TightRows&) = delete;
    TightRows& operator=(const TightRows&) = delete;

private:
    struct Mode {
        GLenum name;
        GLint value;
    };
    static constexpr std::array<Mode, 12> modes = {{{GL_UNPACK_SWAP_BYTES, 0},
                                                    {GL_UNPACK_LSB_FIRST, 0},
                                                    {GL_UNPACK_ROW_LENGTH, 0},
                                                    {GL_UNPACK_SKIP_ROWS, 0},
                                                    {GL_UNPACK_SKIP_PIXELS, 0},
                                                    {GL_UNPACK_ALIGNMENT, 1},
                                                    {GL_PACK_SWAP_BYTES, 0},
                                                    {GL_PACK_LSB_FIRST, 0},
                                                    {GL_PACK_ROW_LENGTH, 0},
                                                    {GL_PACK_SKIP_ROWS, 0},
                                                    {GL_PACK_SKIP_PIXELS, 0},
                                                    {GL_PACK_ALIGNMENT, 1}}};
    std::array<GLint, 12> m_before{};
};

int device_limit() {
    GLint limit = 0;
    glGetIntegerv(GL_MAX_TEXTURE_SIZE, &limit);
    check();
    return limit;
}

// All black. As many bytes as the format reads, which for GL_RGBA are more than there are colours. Null if
// there is no room.
unsigned char* new_bits(int width, int height, GLenum format) {
    const std::size_t pixel_size = format == GL_RGBA ? 4 : lvx::images::texture_pixel_size;
    const std::uint64_t pixels = static_cast<std::uint64_t>(width) * static_cast<std::uint64_t>(height);
    if (pixels > std::numeric_limits<std::size_t>::max()) {
        return nullptr;
    }
    return static_cast<unsigned char*>(std::calloc(static_cast<std::size_t>(pixels), pixel_size));
}

TextureSource texture_source(const BlockLayout& layout, const DrawableBlock& picture, std::uint32_t entries) {
    const bool is_core = layout.table_at == sizeof(BITMAPCOREHEADER);
    const bool is_compressed = layout.header.biCompression != BI_RGB;
    return {picture.Pixels(),
            static_cast<std::size_t>(layout.stride),
            static_cast<int>(layout.width),
            static_cast<int>(layout.rows),
            is_compressed ? 0u : layout.header.biBitCount,
            layout.header.biHeight < 0,
            reinterpret_cast<const unsigned char*>(picture.Info()) + layout.table_at,
            entries,
            is_core ? sizeof(RGBTRIPLE) : sizeof(RGBQUAD)};
}

}  // namespace

GLBitmap::GLBitmap(const DIBitmap& source, TRANSLATEMETHOD method) {
    Translate(source, method);
}

GLBitmap::~GLBitmap() {
    CleanUp();
}

void GLBitmap::CleanUp() {
    Take(nullptr, 0, 0);
}

// The one place where a buffer is freed.
void GLBitmap::Take(unsigned char* bits, int width, int height) {
    std::free(m_bits);
    m_bits = bits;
    m_width = width;
    m_height = height;
}

void GLBitmap::Translate(const DIBitmap& source, TRANSLATEMETHOD method) {
    CleanUp();
    m_method = method;
    m_format = method == TranslateRGBA ? GL_RGBA : GL_RGB;
    if (method == TranslateRGBA || method == TranslateRGB) {
        const BlockLayout layout = lvx::images::layout_of(source.m_block, 0);
        m_width = static_cast<int>(layout.width);
        m_height = static_cast<int>(layout.rows);
    } else {
        TakeColours(source);
    }
    TexMapScalePow2();
}

void GLBitmap::TranslateByYourself(const DIBitmap& source, const owl::TPalette&) {
    TakeColours(source);
}

void GLBitmap::TakeColours(const DIBitmap& source) {
    CleanUp();
    const HGLOBAL block = source.m_block;
    const BlockLayout layout = lvx::images::layout_of(block, source.m_strategy->GetClrTabSize(block));
    const DrawableBlock picture(block, layout.table_size);
    if (!picture.IsGood() || !layout.IsCredible() || layout.width == 0 || layout.rows == 0) {
        return;
    }
    const TextureSource texture = texture_source(layout, picture, source.m_strategy->GetClrTabEntries(block));
    unsigned char* const bits = new_bits(texture.width, texture.height, m_format);
    if (bits != nullptr) {
        lvx::images::write_texture(texture, bits);
    }
    Take(bits, texture.width, texture.height);
}

bool GLBitmap::TexMapScalePow2() {
    if (m_width < 1 || m_height < 1 || wglGetCurrentContext() == nullptr) {
        return false;
    }
    const int limit = lvx::images::texture_limit(device_limit());
    const int width = lvx::images::texture_side(m_width, limit);
    const int height = lvx::images::texture_side(m_height, limit);
    unsigned char* const scaled = new_bits(width, height, m_format);
    if (scaled == nullptr) {
        return false;
    }
    // From no buffer there is nothing to scale; asked to, GLU reads at address 0.
    if (m_bits != nullptr) {
        const TightRows rows;
        gluScaleImage(GL_RGB, m_width, m_height, GL_UNSIGNED_BYTE, m_bits, width, height, GL_UNSIGNED_BYTE,
                      scaled);
        check();
    }
    Take(scaled, width, height);
    return true;
}

void GLBitmap::DrawPixels() const {
    if (m_bits == nullptr) {
        return;
    }
    const TightRows rows;
    glDrawPixels(m_width, m_height, m_format, GL_UNSIGNED_BYTE, m_bits);
    check();
}

void GLBitmap::TexImage2D() const {
    constexpr GLint components = 3;
    {
        const TightRows rows;
        glTexImage2D(GL_TEXTURE_2D, 0, components, m_width, m_height, 0, m_format, GL_UNSIGNED_BYTE, m_bits);
        check();
    }
    // Hosts upload more of their own behind it.
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    check();
}

}  // namespace LVXUtilities
