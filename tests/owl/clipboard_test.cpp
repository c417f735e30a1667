#include "owl/clipboard.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "message_window.h"
#include "owl/error.h"

namespace {

using owl::TClipboard;
using owl_test::MessageWindow;

HGLOBAL Text(const char* text) {
    const HGLOBAL block = ::GlobalAlloc(GMEM_MOVEABLE, std::strlen(text) + 1);
    std::strcpy(static_cast<char*>(::GlobalLock(block)), text);
    ::GlobalUnlock(block);
    return block;
}

TEST(Clipboard, keeps_what_is_put_on_it_for_the_next_who_opens_it) {
    const MessageWindow window;
    {
        TClipboard clipboard(window);
        EXPECT_TRUE(clipboard.IsOpen());
        clipboard.EmptyClipboard();
        EXPECT_FALSE(TClipboard::IsClipboardFormatAvailable(CF_TEXT));
        clipboard.SetClipboardData(CF_TEXT, Text("some text"));
    }
    EXPECT_TRUE(TClipboard::IsClipboardFormatAvailable(CF_TEXT));
    const TClipboard clipboard(window);
    const HANDLE block = clipboard.GetClipboardData(CF_TEXT);
    ASSERT_NE(nullptr, block);
    EXPECT_STREQ("some text", static_cast<const char*>(::GlobalLock(block)));
    ::GlobalUnlock(block);
}

TEST(Clipboard, has_nothing_once_it_is_emptied) {
    const MessageWindow window;
    TClipboard clipboard(window);
    clipboard.EmptyClipboard();
    EXPECT_EQ(nullptr, clipboard.GetClipboardData(CF_TEXT));
    EXPECT_THROW(clipboard.RequireClipboardData(CF_TEXT), owl::TXWindow);
}

TEST(Clipboard, is_closed_early_and_then_takes_and_gives_nothing) {
    const MessageWindow window;
    TClipboard clipboard(window);
    clipboard.EmptyClipboard();
    clipboard.SetClipboardData(CF_TEXT, Text("x"));
    clipboard.CloseClipboard();
    EXPECT_FALSE(clipboard.IsOpen());
    EXPECT_EQ(nullptr, clipboard.GetClipboardData(CF_TEXT));
    EXPECT_THROW(clipboard.EmptyClipboard(), owl::TXWindow);
    const HGLOBAL block = Text("y");
    EXPECT_THROW(clipboard.SetClipboardData(CF_TEXT, block), owl::TXWindow);
    EXPECT_EQ(nullptr, ::GlobalFree(block));
    clipboard.CloseClipboard();
}

TEST(Clipboard, that_another_has_open_is_told_or_throws) {
    const MessageWindow first, second;
    const TClipboard holder(first);
    const TClipboard other(second, false);
    EXPECT_FALSE(other.IsOpen());
    EXPECT_THROW(TClipboard(second, true), owl::TXWindow);
    EXPECT_TRUE(holder.IsOpen());
}

TEST(Clipboard, is_free_again_when_the_object_ends) {
    const MessageWindow first, second;
    { const TClipboard holder(first); }
    EXPECT_TRUE(TClipboard(second).IsOpen());
}

TEST(Clipboard, formats_have_one_number_for_each_name) {
    const unsigned int one = TClipboard::RegisterClipboardFormat("lvx test format one");
    EXPECT_EQ(one, TClipboard::RegisterClipboardFormat("lvx test format one"));
    EXPECT_NE(one, TClipboard::RegisterClipboardFormat("lvx test format two"));
    EXPECT_GE(one, 0xC000u);
    EXPECT_THROW(TClipboard::RegisterClipboardFormat(""), owl::TXWindow);
}

}  // namespace
