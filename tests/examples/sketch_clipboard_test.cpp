// The example host and the clipboard. This process is the other program: it looks at what was copied and puts
// there what is to be pasted, by the system's own calls.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "support/sketch_session.h"

namespace {

using namespace sketch_test;

constexpr const char* objects = "LVX Storable Object";

// The clipboard, held open. Its owner is a window of this process.
class HeldClipboard {
public:
    HeldClipboard()
        : m_window(::CreateWindowExA(0, "STATIC", "", 0, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr)) {
        EXPECT_TRUE(WaitUntil([&] { return ::OpenClipboard(m_window) != FALSE; }));
    }
    ~HeldClipboard() {
        ::CloseClipboard();
        ::DestroyWindow(m_window);
    }
    HeldClipboard(const HeldClipboard&) = delete;
    HeldClipboard& operator=(const HeldClipboard&) = delete;

    void Clear() const { ::EmptyClipboard(); }
    void Put(UINT format, const std::string& bytes) const {
        HGLOBAL block = ::GlobalAlloc(GMEM_MOVEABLE, bytes.size());
        std::memcpy(::GlobalLock(block), bytes.data(), bytes.size());
        ::GlobalUnlock(block);
        EXPECT_NE(nullptr, ::SetClipboardData(format, block));
    }
    std::string Get(UINT format) const {
        HGLOBAL block = ::GetClipboardData(format);
        if (block == nullptr)
            return "";
        std::string bytes(static_cast<const char*>(::GlobalLock(block)), ::GlobalSize(block));
        ::GlobalUnlock(block);
        return bytes;
    }

private:
    HWND m_window;
};

std::string OnClipboard(UINT format) {
    return HeldClipboard().Get(format);
}

UINT Objects() {
    return ::RegisterClipboardFormatA(objects);
}

unsigned NumberAt(const std::string& bytes, std::size_t offset) {
    unsigned number = 0;
    std::memcpy(&number, bytes.data() + offset, sizeof number);
    return number;
}

// A packed bitmap of 24 bits in one colour.
std::string PlainImage(int width, int height, COLORREF colour) {
    const BITMAPINFOHEADER header{sizeof header, width, height, 1, 24, BI_RGB, 0, 0, 0, 0, 0};
    std::string block(reinterpret_cast<const char*>(&header), sizeof header);
    for (int y = 0; y < height; ++y) {
        std::string row;
        for (int x = 0; x < width; ++x)
            row += {static_cast<char>(GetBValue(colour)), static_cast<char>(GetGValue(colour)),
                    static_cast<char>(GetRValue(colour))};
        block += row + std::string((4 - row.size() % 4) % 4, '\0');
    }
    return block;
}

std::string ObjectBlock(const std::string& stream) {
    const auto total = static_cast<unsigned>(stream.size() + 4);
    return std::string(reinterpret_cast<const char*>(&total), sizeof total) + stream;
}

class SketchClipboard : public Sketch {
protected:
    void SetUp() override { HeldClipboard().Clear(); }
    void Copy(WORD key = 'C') const {
        Press({VK_CONTROL, key});
        EXPECT_TRUE(WaitUntil([] { return ::IsClipboardFormatAvailable(CF_DIB) != FALSE; }));
    }
    // The text of the box that comes, which is closed.
    std::string TextOfBox() const {
        const HWND box = m_sketch->Dialog("Sketch");
        const std::string text = user::TextOf(::GetDlgItem(box, 0xFFFF));
        Press({VK_RETURN});
        EXPECT_TRUE(m_sketch->IsGone(box));
        return text;
    }
};

}  // namespace

TEST_F(SketchClipboard, gets_a_shape_as_an_object_and_as_a_picture) {
    StartInFront();
    DrawARectangle();
    Copy();
    EXPECT_TRUE(WaitUntil([] { return ::IsClipboardFormatAvailable(CF_DIB) != FALSE; }));
    const std::string object = OnClipboard(Objects());
    ASSERT_LT(24U, object.size());
    EXPECT_LE(NumberAt(object, 0), object.size());
    EXPECT_EQ("Bcsketch::Drawing\r\no", object.substr(4, 20));
    EXPECT_NE(std::string::npos, object.find("sketch::Rectangle"));
    // A line one pixel wide around 120 by 80, and a pixel of margin for it on each side.
    const std::string image = OnClipboard(CF_DIB);
    ASSERT_LE(40U + 122U * 82U * 4U, image.size());
    EXPECT_EQ(122U, NumberAt(image, 4));
    EXPECT_EQ(82U, NumberAt(image, 8));
    const auto pixel = [&](unsigned x, unsigned y) {
        return NumberAt(image, 40 + ((81 - y) * 122 + x) * 4) & 0xFFFFFFU;
    };
    EXPECT_EQ(0xFFFFFFU, pixel(0, 0));
    EXPECT_EQ(0U, pixel(1, 1));
    EXPECT_EQ(0U, pixel(120, 80));
    EXPECT_EQ(0xFFFFFFU, pixel(60, 40));
}

TEST_F(SketchClipboard, gives_a_copy_beside_what_was_copied) {
    StartInFront();
    DrawARectangle();
    Copy();
    Press({VK_CONTROL, 'V'});
    Press({VK_ESCAPE});
    EXPECT_TRUE(Shows(black, 130, 136));
    Press({VK_TAB});
    Press({VK_DELETE});
    EXPECT_TRUE(Shows(white, 130, 120));
    EXPECT_TRUE(Shows(black, 130, 136));
}

TEST_F(SketchClipboard, takes_what_is_cut_and_gives_it_back) {
    StartInFront();
    DrawARectangle();
    Copy('X');
    EXPECT_TRUE(Shows(white, 100, 120));
    Press({VK_CONTROL, 'V'});
    EXPECT_TRUE(m_sketch->ShowsStatus("Rectangle, 120 x 80"));
    Press({VK_CONTROL, 'Z'});
    Press({VK_CONTROL, 'Z'});
    EXPECT_TRUE(Shows(black, 100, 120));
}

TEST_F(SketchClipboard, carries_a_turned_picture_into_another_program) {
    StartInFront(Packed());
    Press({VK_TAB});
    Press({VK_CONTROL, VK_OEM_COMMA});
    ASSERT_TRUE(m_sketch->ShowsStatus("Picture \"test\", 127 x 64, turned by 15 degrees to the left"));
    Copy();
    m_sketch.reset();
    StartInFront();
    Press({VK_CONTROL, 'V'});
    // Turned still, from the pixels that it came with.
    EXPECT_TRUE(m_sketch->ShowsStatus("Picture \"test\", 127 x 64, turned by 15 degrees to the left"));
    Press({VK_CONTROL, '0'});
    EXPECT_TRUE(m_sketch->ShowsStatus("Picture \"test\", 127 x 64"));
    EXPECT_TRUE(m_sketch->ShowsTitle("Untitled* - Sketch"));
}

TEST_F(SketchClipboard, gives_a_picture_of_another_program) {
    StartInFront();
    {
        const HeldClipboard clipboard;
        clipboard.Clear();
        clipboard.Put(CF_DIB, PlainImage(61, 40, RGB(200, 100, 50)));
    }
    Press({VK_CONTROL, 'V'});
    EXPECT_TRUE(m_sketch->ShowsStatus("Picture, 61 x 40"));
    Press({VK_ESCAPE});
    EXPECT_EQ(61 * 40, StillPicture().Count(RGB(200, 100, 50)));
}

TEST_F(SketchClipboard, gives_a_bitmap_that_was_put_in_the_screens_form) {
    StartInFront();
    {
        const HeldClipboard clipboard;
        clipboard.Clear();
        const HDC screen = ::GetDC(nullptr);
        const HBITMAP bitmap = ::CreateCompatibleBitmap(screen, 30, 20);
        const HDC dc = ::CreateCompatibleDC(screen);
        const HGDIOBJ before = ::SelectObject(dc, bitmap);
        ::PatBlt(dc, 0, 0, 30, 20, BLACKNESS);
        ::SelectObject(dc, before);
        ::DeleteDC(dc);
        ::ReleaseDC(nullptr, screen);
        EXPECT_NE(nullptr, ::SetClipboardData(CF_BITMAP, bitmap));
    }
    Press({VK_CONTROL, 'V'});
    EXPECT_TRUE(m_sketch->ShowsStatus("Picture, 30 x 20"));
    Press({VK_ESCAPE});
    EXPECT_EQ(30 * 20, StillPicture().Count(black));
}

TEST_F(SketchClipboard, takes_the_words_of_a_text_and_gives_those_of_others) {
    StartInFront();
    {
        const HeldClipboard clipboard;
        clipboard.Clear();
        clipboard.Put(CF_TEXT, std::string("two\r\nlines\0", 11));
    }
    Press({VK_CONTROL, 'V'});
    EXPECT_TRUE(m_sketch->ShowsStatus("Text \"two...\", Arial, 18 points"));
    HeldClipboard().Clear();
    Copy();
    EXPECT_TRUE(WaitUntil([] { return ::IsClipboardFormatAvailable(CF_TEXT) != FALSE; }));
    EXPECT_EQ("two\r\nlines", std::string(OnClipboard(CF_TEXT).c_str()));
}

TEST_F(SketchClipboard, tells_when_another_program_holds_it) {
    StartInFront();
    DrawARectangle();
    {
        const HeldClipboard held;
        Press({VK_CONTROL, 'C'});
        EXPECT_EQ("The clipboard is in use by another program.", TextOfBox());
    }
    // What could not be copied is not cut either.
    {
        const HeldClipboard held;
        Press({VK_CONTROL, 'X'});
        EXPECT_EQ("The clipboard is in use by another program.", TextOfBox());
    }
    EXPECT_TRUE(m_sketch->ShowsStatus("Rectangle, 120 x 80"));
}

TEST_F(SketchClipboard, with_a_damaged_object_is_told_as_such) {
    StartInFront();
    {
        const HeldClipboard clipboard;
        clipboard.Clear();
        clipboard.Put(Objects(), ObjectBlock("Bcsketch::Drawing\r\no"));
    }
    Press({VK_CONTROL, 'V'});
    EXPECT_EQ("What is on the clipboard cannot be pasted.\n\nThere is nothing in it.", TextOfBox());
    EXPECT_TRUE(m_sketch->ShowsTitle("Untitled - Sketch"));
}

TEST_F(SketchClipboard, with_an_object_of_another_host_alone_tells_its_class) {
    StartInFront();
    {
        const HeldClipboard clipboard;
        clipboard.Clear();
        clipboard.Put(Objects(), ObjectBlock("Bcstar::Chart\r\no"));
    }
    Press({VK_CONTROL, 'V'});
    EXPECT_NE(std::string::npos, TextOfBox().find("star::Chart"));
}

TEST_F(SketchClipboard, gives_the_picture_beside_an_object_of_another_host) {
    StartInFront();
    {
        const HeldClipboard clipboard;
        clipboard.Clear();
        clipboard.Put(Objects(), ObjectBlock("Bcstar::Chart\r\no"));
        clipboard.Put(CF_DIB, PlainImage(20, 10, RGB(0, 0, 255)));
    }
    Press({VK_CONTROL, 'V'});
    EXPECT_TRUE(m_sketch->ShowsStatus("Picture, 20 x 10"));
}

TEST_F(SketchClipboard, with_a_torn_picture_is_told_as_such) {
    StartInFront();
    {
        const HeldClipboard clipboard;
        clipboard.Clear();
        clipboard.Put(CF_DIB, PlainImage(20, 10, RGB(0, 0, 255)).substr(0, 100));
    }
    Press({VK_CONTROL, 'V'});
    EXPECT_EQ(
        "What is on the clipboard cannot be pasted.\n\nA picture claims to be larger than what there is of "
        "it.",
        TextOfBox());
}
