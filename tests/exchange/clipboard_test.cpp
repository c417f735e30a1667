#include "lvx/exchange/clipboard.h"

#include <gmock/gmock.h>

#include <array>
#include <cstring>
#include <string>
#include <thread>
#include <type_traits>

#include "exchange/on_clipboard.h"
#include "lvx/images/dibitmap.h"
#include "lvx/text/ownership.h"
#include "owl/bitmap.h"
#include "owl/desk.h"
#include "owl/dib.h"
#include "owl/memory_dc.h"
#include "owl/surface.h"
#include "support/bytes.h"

using lvx_test::bytes;
using LVXUtilities::DIBitmap;

namespace {

class Clipboard : public lvx_test::OnClipboard {};

/// A picture of 2 by 1 pixels, red and blue, in 24 bits.
const std::string red_and_blue = bytes(
    "28000000 02000000 01000000 0100 1800 00000000 00000000 00000000 00000000 00000000 00000000"
    "0000FF FF0000 0000");

/// The letters of a bitmap's pixels.
std::string letters(const owl::TBitmap& bitmap) {
    owl::TMemoryDC dc;
    dc.SelectObject(bitmap);
    std::string text;
    for (int y = 0; y < bitmap.Height(); ++y) {
        for (int x = 0; x < bitmap.Width(); ++x) {
            text += owl_test::Surface::Letter(dc.GetPixel(owl::TPoint(x, y)));
        }
        text += '\n';
    }
    return text;
}

/// All the bytes of a picture that has them in a row of 8.
std::string block_of(const DIBitmap& picture) {
    const auto pixels = picture.GetBitsAddress();
    const auto* const start = reinterpret_cast<const char*>(pixels.get()) - 40;
    return std::string(start, 48);
}

struct Overridden : LVXClipboard {
    explicit Overridden(HWND window, bool& isGone) : LVXClipboard(window), m_isGone(isGone) {}
    ~Overridden() override { m_isGone = true; }
    bool& m_isGone;
};

}  // namespace

// The format, and what the object is

TEST_F(Clipboard, format_of_objects_is_registered_once) {
    const unsigned format = LVXClipboard::storableFormat();
    EXPECT_EQ(::RegisterClipboardFormatA("LVX Storable Object"), format);
    EXPECT_EQ(format, LVXClipboard::CF_STORABLE);
    const LVXClipboard second(static_cast<HWND>(window));
    EXPECT_EQ(format, LVXClipboard::CF_STORABLE);
}

TEST_F(Clipboard, asks_the_system_for_the_format_while_its_number_is_1) {
    const unsigned format = LVXClipboard::storableFormat();
    LVXClipboard::CF_STORABLE = 1;
    const LVXClipboard second(static_cast<HWND>(window));
    EXPECT_EQ(format, LVXClipboard::CF_STORABLE);
    // What is no 1 is believed.
    LVXClipboard::CF_STORABLE = 4711;
    EXPECT_EQ(4711u, LVXClipboard::storableFormat());
    const LVXClipboard third(static_cast<HWND>(window));
    EXPECT_EQ(4711u, LVXClipboard::CF_STORABLE);
    LVXClipboard::CF_STORABLE = format;
}

TEST_F(Clipboard, is_a_window_behind_a_virtual_destructor) {
    EXPECT_EQ(2 * sizeof(void*), sizeof(LVXClipboard));
    EXPECT_TRUE(std::has_virtual_destructor_v<LVXClipboard>);
    HWND field = nullptr;
    std::memcpy(&field, reinterpret_cast<const char*>(&clipboard) + sizeof(void*), sizeof field);
    EXPECT_EQ(static_cast<HWND>(window), field);
    bool isGone = false;
    LVXClipboard* const derived = new Overridden(window, isGone);
    delete derived;
    EXPECT_TRUE(isGone);
}

TEST_F(Clipboard, of_a_window_object_is_owned_by_that_window) {
    const desk::Desk desk;
    LVXClipboard other(desk.frame);
    EXPECT_TRUE(other.clear());
    EXPECT_EQ(desk.frame->GetHandle(), ::GetClipboardOwner());
    EXPECT_TRUE(clipboard.clear());
    EXPECT_EQ(static_cast<HWND>(window), ::GetClipboardOwner());
}

TEST_F(Clipboard, of_no_window_can_be_read) {
    Put(CF_TEXT, std::string("text\0", 5));
    std::string text;
    EXPECT_TRUE(LVXClipboard(static_cast<HWND>(nullptr)).get(text, CF_TEXT));
    EXPECT_EQ("text", text);
    EXPECT_TRUE(LVXClipboard(static_cast<owl::TWindow*>(nullptr)).get(text, CF_TEXT));
    const desk::Desk desk;
    owl::TFrameWindow uncreated(nullptr, "not created");
    EXPECT_TRUE(LVXClipboard(&uncreated).get(text, CF_TEXT));
}

TEST_F(Clipboard, of_a_window_that_is_gone_makes_every_operation_false) {
    clipboard.put("text", CF_TEXT);
    Put(CF_DIB, red_and_blue);
    HWND gone = nullptr;
    {
        const owl_test::MessageWindow closed;
        gone = closed;
    }
    LVXClipboard other(gone);
    EXPECT_FALSE(other.clear());
    EXPECT_FALSE(other.put("other", CF_TEXT));
    std::string text = "before";
    EXPECT_FALSE(other.get(text, CF_TEXT));
    EXPECT_EQ("before", text);
    DIBitmap empty(nullptr, DIBitmap::Adopt);
    EXPECT_FALSE(other.put(&empty));
    EXPECT_THAT(files.Names(), testing::IsEmpty());
    lvx::auto_ptr<DIBitmap> picture;
    EXPECT_FALSE(other.get(picture));
    EXPECT_TRUE(IsFree());
    EXPECT_TRUE(clipboard.get(text, CF_TEXT));
    EXPECT_EQ("text", text);
}

// Texts

TEST_F(Clipboard, text_comes_back) {
    EXPECT_TRUE(clipboard.put(std::string("some text"), CF_TEXT));
    std::string text = "before";
    EXPECT_TRUE(clipboard.get(text, CF_TEXT));
    EXPECT_EQ("some text", text);
    EXPECT_TRUE(IsFree());
}

TEST_F(Clipboard, text_of_either_kind_is_put) {
    EXPECT_TRUE(clipboard.put("as characters", CF_TEXT));
    EXPECT_EQ(std::string("as characters\0", 14), Block(CF_TEXT));
    EXPECT_TRUE(clipboard.put(std::string("as a string"), CF_TEXT));
    EXPECT_EQ(std::string("as a string\0", 12), Block(CF_TEXT));
}

TEST_F(Clipboard, text_without_characters_is_a_block_of_one_zero) {
    EXPECT_TRUE(clipboard.put("", CF_DSPTEXT));
    EXPECT_EQ(std::string(1, '\0'), Block(CF_DSPTEXT));
    std::string text = "before";
    EXPECT_TRUE(clipboard.get(text, CF_DSPTEXT));
    EXPECT_EQ("", text);
}

TEST_F(Clipboard, text_ends_at_its_first_zero_and_nothing_of_the_rest_is_told) {
    EXPECT_TRUE(clipboard.put(std::string("ab\0secret", 9), CF_DSPTEXT));
    EXPECT_EQ(std::string("ab\0\0\0\0\0\0\0\0", 10), Block(CF_DSPTEXT));
    std::string text;
    EXPECT_TRUE(clipboard.get(text, CF_DSPTEXT));
    EXPECT_EQ("ab", text);
}

TEST_F(Clipboard, text_of_all_bytes_comes_back) {
    std::string all;
    for (int c = 255; c > 0; --c) {
        all += static_cast<char>(c);
    }
    EXPECT_TRUE(clipboard.put(all, CF_DSPTEXT));
    std::string text;
    EXPECT_TRUE(clipboard.get(text, CF_DSPTEXT));
    EXPECT_EQ(all, text);
}

TEST_F(Clipboard, text_of_megabytes_comes_back) {
    const std::string large(5'000'000, 'x');
    EXPECT_TRUE(clipboard.put(large, CF_TEXT));
    std::string text;
    EXPECT_TRUE(clipboard.get(text, CF_TEXT));
    EXPECT_EQ(large, text);
}

TEST_F(Clipboard, text_that_is_null_is_put_nowhere) {
    Put(CF_TEXT, std::string("text\0", 5));
    EXPECT_FALSE(clipboard.put(static_cast<const char*>(nullptr), CF_TEXT));
    EXPECT_EQ(std::string("text\0", 5), Block(CF_TEXT));
}

// Of some of these sizes there is no zero behind the block by chance.
TEST_F(Clipboard, text_that_nothing_ends_ends_with_its_block) {
    for (std::size_t size = 1; size <= 200; ++size) {
        const std::string all(size, 'x');
        Put(CF_DSPTEXT, all);
        std::string text;
        EXPECT_TRUE(clipboard.get(text, CF_DSPTEXT));
        EXPECT_EQ(all, text);
    }
}

TEST_F(Clipboard, text_that_is_not_there_is_false_and_nothing_changes) {
    std::string text = "before";
    EXPECT_FALSE(clipboard.get(text, CF_TEXT));
    EXPECT_FALSE(clipboard.get(text, 0));
    EXPECT_FALSE(clipboard.get(text, 0xFFFFFFFF));
    EXPECT_EQ("before", text);
    EXPECT_TRUE(IsFree());
}

TEST_F(Clipboard, text_lies_there_in_the_formats_that_the_system_makes_of_it) {
    EXPECT_TRUE(clipboard.put("ab", CF_TEXT));
    EXPECT_EQ(std::string("a\0b\0\0\0", 6), Block(CF_UNICODETEXT));
}

TEST_F(Clipboard, text_is_put_in_no_format_behind_which_are_handles) {
    for (const unsigned format :
         {CF_BITMAP, CF_DSPBITMAP, CF_METAFILEPICT, CF_DSPMETAFILEPICT, CF_ENHMETAFILE, CF_DSPENHMETAFILE,
          CF_PALETTE, CF_OWNERDISPLAY, CF_GDIOBJFIRST, CF_GDIOBJLAST}) {
        EXPECT_FALSE(clipboard.put("a text of twenty-odd bytes", format)) << format;
        EXPECT_FALSE(Has(format)) << format;
    }
    EXPECT_FALSE(clipboard.put("text", 0));
    EXPECT_TRUE(IsFree());
}

TEST_F(Clipboard, text_is_got_in_no_format_behind_which_are_handles) {
    Put(CF_DIB, red_and_blue);
    ASSERT_TRUE(Has(CF_BITMAP));
    std::string text = "before";
    EXPECT_FALSE(clipboard.get(text, CF_BITMAP));
    EXPECT_EQ("before", text);
}

TEST_F(Clipboard, texts_in_several_formats_lie_side_by_side) {
    const unsigned own = ::RegisterClipboardFormatA("lvx test format");
    EXPECT_TRUE(clipboard.put("plain", CF_TEXT));
    EXPECT_TRUE(clipboard.put("own", own));
    std::string text;
    EXPECT_TRUE(clipboard.get(text, CF_TEXT));
    EXPECT_EQ("plain", text);
    EXPECT_TRUE(clipboard.get(text, own));
    EXPECT_EQ("own", text);
}

TEST_F(Clipboard, text_replaces_the_one_of_its_format) {
    EXPECT_TRUE(clipboard.put("first", CF_TEXT));
    EXPECT_TRUE(clipboard.put("second", CF_TEXT));
    std::string text;
    EXPECT_TRUE(clipboard.get(text, CF_TEXT));
    EXPECT_EQ("second", text);
}

TEST_F(Clipboard, is_empty_once_it_is_cleared) {
    clipboard.put("text", CF_TEXT);
    EXPECT_TRUE(clipboard.clear());
    EXPECT_FALSE(Has(CF_TEXT));
    EXPECT_EQ(0, ::CountClipboardFormats());
    EXPECT_TRUE(clipboard.clear()) << "empty already";
    EXPECT_TRUE(IsFree());
}

// Pictures

TEST_F(Clipboard, picture_is_a_copy_of_the_block) {
    Put(CF_DIB, red_and_blue);
    lvx::auto_ptr<DIBitmap> picture;
    ASSERT_TRUE(clipboard.get(picture));
    EXPECT_TRUE(IsFree());
    Empty();
    EXPECT_EQ(owl::TSize(2, 1), picture->GetSize());
    EXPECT_EQ(24, picture->GetBitsPerPixel());
    EXPECT_EQ(red_and_blue, block_of(*picture));
    // Its own: what is done to it stays with it.
    Put(CF_DIB, red_and_blue);
    ASSERT_TRUE(clipboard.get(picture));
    picture->GetBitsAddress()[0] = 0x77;
    EXPECT_EQ(red_and_blue, Block(CF_DIB));
}

TEST_F(Clipboard, picture_replaces_what_the_pointer_held) {
    Put(CF_DIB, red_and_blue);
    lvx::auto_ptr<DIBitmap> picture(new DIBitmap(nullptr, DIBitmap::Adopt));
    EXPECT_TRUE(clipboard.get(picture));
    EXPECT_EQ(2, picture->GetWidth());
}

TEST_F(Clipboard, picture_that_is_not_there_leaves_null) {
    lvx::auto_ptr<DIBitmap> picture(new DIBitmap(nullptr, DIBitmap::Adopt));
    EXPECT_FALSE(clipboard.get(picture));
    EXPECT_EQ(nullptr, picture.get());
    lvx::auto_ptr<owl::TDib> dib(new owl::TDib(2, 2, 8));
    EXPECT_FALSE(clipboard.get(dib));
    EXPECT_EQ(nullptr, dib.get());
    lvx::auto_ptr<owl::TBitmap> bitmap(new owl::TBitmap(2, 2, 1, 1, nullptr));
    EXPECT_FALSE(clipboard.get(bitmap));
    EXPECT_EQ(nullptr, bitmap.get());
    EXPECT_TRUE(IsFree());
}

TEST_F(Clipboard, picture_is_got_beside_other_formats_alone) {
    clipboard.put("text", CF_TEXT);
    lvx::auto_ptr<DIBitmap> picture;
    EXPECT_FALSE(clipboard.get(picture));
    Put(CF_DIB, red_and_blue);
    EXPECT_TRUE(clipboard.get(picture));
    std::string text;
    EXPECT_TRUE(clipboard.get(text, CF_TEXT));
    EXPECT_EQ("text", text);
}

TEST_F(Clipboard, dib_is_read) {
    Put(CF_DIB, red_and_blue);
    lvx::auto_ptr<owl::TDib> dib(new owl::TDib(5, 5, 8));
    ASSERT_TRUE(clipboard.get(dib));
    Empty();
    EXPECT_EQ(owl::TSize(2, 1), dib->Size());
    EXPECT_TRUE(IsFree());
}

TEST_F(Clipboard, bitmap_is_made_of_a_picture) {
    Put(CF_DIB, red_and_blue);
    lvx::auto_ptr<owl::TBitmap> bitmap;
    ASSERT_TRUE(clipboard.get(bitmap));
    EXPECT_TRUE(IsFree());
    Empty();
    EXPECT_EQ("RB\n", letters(*bitmap));
}

TEST_F(Clipboard, picture_is_made_of_a_bitmap) {
    const std::array<unsigned char, 8> pixels{0, 0, 255, 0, 255, 0, 0, 0};
    HBITMAP made = ::CreateBitmap(2, 1, 1, 32, pixels.data());
    {
        owl::TClipboard opened(window);
        opened.SetClipboardData(CF_BITMAP, made);
    }
    lvx::auto_ptr<owl::TBitmap> bitmap;
    ASSERT_TRUE(clipboard.get(bitmap));
    EXPECT_EQ("RB\n", letters(*bitmap));
    EXPECT_NE(made, static_cast<HBITMAP>(*bitmap));
    lvx::auto_ptr<DIBitmap> picture;
    ASSERT_TRUE(clipboard.get(picture));
    EXPECT_EQ(owl::TSize(2, 1), picture->GetSize());
    lvx::auto_ptr<owl::TDib> dib;
    ASSERT_TRUE(clipboard.get(dib));
    EXPECT_EQ(owl::TSize(2, 1), dib->Size());
}

TEST_F(Clipboard, damaged_picture_is_no_dib) {
    for (std::size_t size = 1; size < red_and_blue.size(); size += 3) {
        Put(CF_DIB, red_and_blue.substr(0, size));
        lvx::auto_ptr<owl::TDib> dib(new owl::TDib(5, 5, 8));
        EXPECT_FALSE(clipboard.get(dib)) << size;
        EXPECT_EQ(nullptr, dib.get()) << size;
        EXPECT_TRUE(IsFree()) << size;
    }
}

TEST_F(Clipboard, damaged_picture_is_taken_as_it_is) {
    Put(CF_DIB, red_and_blue.substr(0, 8));
    lvx::auto_ptr<DIBitmap> picture;
    ASSERT_TRUE(clipboard.get(picture));
    EXPECT_EQ(2, picture->GetWidth());
    EXPECT_EQ(0, picture->GetHeight());
}

// Busy

TEST_F(Clipboard, that_another_thread_has_open_makes_every_operation_false) {
    clipboard.put("text", CF_TEXT);
    Put(CF_DIB, red_and_blue);
    std::string text = "before";
    lvx::auto_ptr<DIBitmap> picture(new DIBitmap(nullptr, DIBitmap::Adopt));
    lvx::auto_ptr<owl::TDib> dib(new owl::TDib(5, 5, 8));
    lvx::auto_ptr<owl::TBitmap> bitmap(new owl::TBitmap(2, 2, 1, 1, nullptr));
    const HANDLE taken = ::CreateEventA(nullptr, TRUE, FALSE, nullptr);
    const HANDLE done = ::CreateEventA(nullptr, TRUE, FALSE, nullptr);
    std::thread other([&] {
        const owl::TClipboard held(nullptr);
        ::SetEvent(taken);
        ::WaitForSingleObject(done, lvx_test::long_time);
    });
    ::WaitForSingleObject(taken, lvx_test::long_time);
    EXPECT_FALSE(clipboard.clear());
    EXPECT_FALSE(clipboard.put("other", CF_TEXT));
    EXPECT_FALSE(clipboard.get(text, CF_TEXT));
    EXPECT_FALSE(clipboard.get(picture));
    EXPECT_FALSE(clipboard.get(dib));
    EXPECT_FALSE(clipboard.get(bitmap));
    ::SetEvent(done);
    other.join();
    ::CloseHandle(taken);
    ::CloseHandle(done);
    EXPECT_EQ("before", text);
    EXPECT_EQ(nullptr, picture.get());
    EXPECT_EQ(nullptr, dib.get());
    EXPECT_EQ(nullptr, bitmap.get());
    EXPECT_TRUE(clipboard.get(text, CF_TEXT));
    EXPECT_EQ("text", text);
}
