#include <gtest/gtest.h>

#include <cstring>
#include <fstream>
#include <string>
#include <vector>

#include "message_window.h"
#include "owl/clipboard.h"
#include "owl/dib.h"
#include "owl/error.h"

namespace {

using owl::TClipboard;
using owl::TColor;
using owl::TDib;
using owl::TSize;

HINSTANCE Module() {
    return ::GetModuleHandleA(nullptr);
}

/// A file that is gone when the test ends.
class TempFile {
public:
    explicit TempFile(const std::string& contents) {
        char folder[MAX_PATH];
        ::GetTempPathA(sizeof folder, folder);
        ::GetTempFileNameA(folder, "lvx", 0, m_name);
        std::ofstream(m_name, std::ios::binary) << contents;
    }
    ~TempFile() { ::DeleteFileA(m_name); }
    TempFile(const TempFile&) = delete;
    TempFile& operator=(const TempFile&) = delete;
    const char* Name() const { return m_name; }

private:
    char m_name[MAX_PATH];
};

/// A bitmap file of one pixel, in 24 bits.
std::string OnePixel(unsigned char red, unsigned char green, unsigned char blue) {
    std::string file("BM\x3A\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\1\0\0\0\1\0\0\0\1\0\x18\0", 30);
    file.resize(54);
    for (const unsigned char byte : {blue, green, red})
        file += static_cast<char>(byte);
    return file + '\0';
}

HGLOBAL Block(const std::string& bytes) {
    const HGLOBAL block = ::GlobalAlloc(GMEM_MOVEABLE, bytes.size());
    std::memcpy(::GlobalLock(block), bytes.data(), bytes.size());
    ::GlobalUnlock(block);
    return block;
}

TEST(DibSources, a_resource_is_found_by_number_or_name) {
    const owl::TResId names[] = {7, "GREYS"};
    for (const owl::TResId& name : names) {
        const TDib dib(Module(), name);
        EXPECT_EQ(TSize(4, 2), dib.Size());
        EXPECT_EQ(4, dib.BitsPixel());
        EXPECT_EQ(TColor::LtBlue, dib.GetPixel(2, 1));
    }
}

TEST(DibSources, a_resource_that_is_missing_or_damaged_throws) {
    EXPECT_THROW(TDib(Module(), "NOSUCH"), owl::TXGdi);
    EXPECT_THROW(TDib(Module(), owl::TResId()), owl::TXGdi);
    EXPECT_THROW(TDib(Module(), "BROKEN"), owl::TXGdi);
}

TEST(DibSources, a_file_is_read) {
    const TempFile file(OnePixel(1, 2, 3));
    const TDib dib(file.Name());
    EXPECT_EQ(TSize(1, 1), dib.Size());
    EXPECT_EQ(TColor(1, 2, 3), dib.GetPixel(0, 0));
}

TEST(DibSources, a_file_that_is_missing_throws_with_the_systems_reason) {
    try {
        const TDib dib("no such file.bmp");
        FAIL() << "nothing was thrown";
    } catch (const owl::TXGdi& error) {
        EXPECT_EQ(ERROR_FILE_NOT_FOUND, static_cast<int>(error.GetCode()));
        EXPECT_NE(std::string::npos, std::string(error.what()).find("ile not found")) << error.what();
    }
    EXPECT_THROW(TDib(static_cast<const char*>(nullptr)), owl::TXGdi);
}

TEST(DibSources, a_file_that_is_damaged_throws) {
    const std::string whole = OnePixel(1, 2, 3);
    for (const std::string& contents :
         {std::string(), whole.substr(0, 20), whole.substr(0, 57), "X" + whole}) {
        const TempFile file(contents);
        EXPECT_THROW(TDib(file.Name()), owl::TXGdi) << contents.size();
    }
}

// Of a file of 4 GiB and a little the little alone was read.
TEST(DibSources, a_file_of_more_than_2_gib_is_too_large) {
    const TempFile file(OnePixel(1, 2, 3));
    const HANDLE handle =
        ::CreateFileA(file.Name(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    LARGE_INTEGER size;
    size.QuadPart = 0x100000000 + 58;
    const bool made = ::SetFilePointerEx(handle, size, nullptr, FILE_BEGIN) && ::SetEndOfFile(handle);
    ::CloseHandle(handle);
    ASSERT_TRUE(made);
    try {
        const TDib dib(file.Name());
        FAIL() << "nothing was thrown";
    } catch (const owl::TXGdi& error) {
        EXPECT_EQ(ERROR_FILE_TOO_LARGE, static_cast<int>(error.GetCode()));
    }
}

TEST(DibSources, a_block_is_copied_and_stays_the_callers) {
    const HGLOBAL block = Block(OnePixel(1, 2, 3).substr(14));
    const TDib dib(block);
    EXPECT_EQ(nullptr, ::GlobalFree(block));
    EXPECT_EQ(TColor(1, 2, 3), dib.GetPixel(0, 0));
}

TEST(DibSources, a_block_that_is_none_or_damaged_throws) {
    EXPECT_THROW(TDib(HGLOBAL(nullptr)), owl::TXGdi);
    const HGLOBAL block = Block("short");
    EXPECT_THROW(TDib{block}, owl::TXGdi);
    EXPECT_EQ(nullptr, ::GlobalFree(block));
}

TEST(DibSources, a_picture_goes_over_the_clipboard) {
    const owl_test::MessageWindow window;
    {
        TClipboard clipboard(window);
        clipboard.EmptyClipboard();
        EXPECT_THROW(TDib{clipboard}, owl::TXWindow);
        TDib(Module(), "GREYS").ToClipboard(clipboard);
    }
    TClipboard* clipboard = new TClipboard(window);
    const TDib dib(*clipboard);
    clipboard->EmptyClipboard();
    delete clipboard;
    EXPECT_EQ(TSize(4, 2), dib.Size());
    EXPECT_EQ(TColor::Gray, dib.GetPixel(1, 0));
    EXPECT_EQ(TColor::LtYellow, dib.GetPixel(3, 1));
}

TEST(DibSources, what_another_put_on_the_clipboard_is_read) {
    const owl_test::MessageWindow window;
    TClipboard clipboard(window);
    clipboard.EmptyClipboard();
    clipboard.SetClipboardData(CF_DIB, Block(OnePixel(9, 8, 7).substr(14)));
    EXPECT_EQ(TColor(9, 8, 7), TDib(clipboard).GetPixel(0, 0));
}

TEST(DibSources, a_clipboard_that_is_closed_refuses) {
    const owl_test::MessageWindow window;
    TClipboard clipboard(window);
    clipboard.CloseClipboard();
    EXPECT_THROW(TDib(1, 1, 24).ToClipboard(clipboard), owl::TXWindow);
}

TEST(DibSources, a_picture_of_run_lengths_or_masks_goes_over_the_clipboard_as_it_is) {
    std::string runs("\x28\0\0\0\3\0\0\0\1\0\0\0\1\0\x08\0\1\0\0\0\4\0\0\0\0\0\0\0\0\0\0\0\1\0\0\0\0\0\0\0",
                     40);
    runs += std::string("\1\2\3\0\3\0\0\1", 8);
    std::string masks("\x28\0\0\0\1\0\0\0\1\0\0\0\1\0\x10\0\3\0\0\0\4\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0",
                      40);
    masks += std::string("\0\xF8\0\0\xE0\7\0\0\x1F\0\0\0\xE0\7\0\0", 16);
    const owl_test::MessageWindow window;
    for (const std::string& packed : {runs, masks}) {
        const HGLOBAL block = Block(packed);
        TClipboard clipboard(window);
        clipboard.EmptyClipboard();
        TDib(block).ToClipboard(clipboard);
        ::GlobalFree(block);
        const HANDLE found = clipboard.GetClipboardData(CF_DIB);
        ASSERT_EQ(packed.size(), ::GlobalSize(found));
        EXPECT_EQ(packed, std::string(static_cast<const char*>(::GlobalLock(found)), packed.size()));
        ::GlobalUnlock(found);
        EXPECT_EQ(packed[14] == 8 ? TColor(CLR_INVALID) : TColor::LtGreen, TDib(clipboard).GetPixel(0, 0));
    }
}

}  // namespace
