// lvx/images/gl_bitmap.h
//
// A picture for OpenGL: taken out of a DIBitmap once, as red, green and blue without padding, and scaled to
// powers of two of at most 128, so that it can be drawn or become a texture without more ado. Windows only.
//
//     const LVXUtilities::GLBitmap wood(picture, LVXUtilities::GLBitmap::TranslateSelf);
//     wood.TexImage2D();
//
// It owns its buffer, and keeps nothing of the picture. Making, scaling and drawing go to the OpenGL context
// that is current on this thread; without one a picture stays as large as it was. What OpenGL refuses is not
// told. For one thread.
// Does not: take over pictures of 1, 16 or 32 bits, compressed ones and those whose block is damaged, which
// come out black; keep transparency; make smaller levels of a texture.
#pragma once

#include <windows.h>

#include <GL/gl.h>

#include "lvx/platform/export.h"

namespace owl {
class TPalette;
}

namespace LVXUtilities {

class DIBitmap;

class LVX_EXPORT GLBitmap {
public:
    /// What becomes of the picture. Hosts pass the numbers; others than these mean TranslateSelf.
    enum TRANSLATEMETHOD : int {
        /// Its colours, in GL_RGB.
        TranslateSelf = 0,
        /// Nothing: all black, and transparent, in GL_RGBA.
        TranslateRGBA = 1,
        /// Nothing: all black, in GL_RGB.
        TranslateRGB = 2,
    };

    /// As Translate().
    GLBitmap(const DIBitmap& source, TRANSLATEMETHOD method);
    GLBitmap(const GLBitmap&) = delete;
    GLBitmap& operator=(const GLBitmap&) = delete;
    ~GLBitmap();

    /// Frees the buffer; width and height are 0 then. Format and method stay. May be called again.
    void CleanUp();

    /// Takes the picture over, in place of what there was, and scales it. Throws std::bad_alloc if the
    /// picture claims more memory than there is; there is none then.
    void Translate(const DIBitmap& source, TRANSLATEMETHOD method);

    /// Takes the colours of the picture over, in place of what there was, at its own size. The palette is not
    /// looked at: colours come from the picture's table. Without memory for them there is no buffer.
    void TranslateByYourself(const DIBitmap& source, const owl::TPalette& palette);

    /// Scales the picture to powers of two, each side by itself: the next one, at most 128 and what the
    /// context can. False, and nothing changed, without a context, memory or a size.
    bool TexMapScalePow2();

    /// Draws at the raster position. The context's way of reading rows does not matter and stays as it was.
    void DrawPixels() const;
    /// Makes it the texture that is bound to GL_TEXTURE_2D. The same, but that the context's alignment of
    /// rows is 1 afterwards.
    void TexImage2D() const;

    /// In pixels, of the buffer.
    int GetWidth() const { return m_width; }
    int GetHeight() const { return m_height; }
    /// The lowest row first. Null if there is no buffer; good until the next change.
    unsigned char* GetBitsPtr() const { return m_bits; }

private:
    LVX_HIDDEN void TakeColours(const DIBitmap& source);
    LVX_HIDDEN void Take(unsigned char* bits, int width, int height);

    int m_height = 0;
    int m_width = 0;
    unsigned char* m_bits = nullptr;
    GLenum m_format = GL_RGB;
    TRANSLATEMETHOD m_method = TranslateSelf;
};

}  // namespace LVXUtilities
