// Each call is a process of its own, so that what was copied comes from a program that is gone.
#include <windows.h>

#include "examples/example_run.h"
#include "exchange/temporary_files.h"
#include "owl/clipboard.h"
#include "owl/message_window.h"
#include "support/threads.h"

namespace {

class CopyPaste : public lvx_test::ExampleRun {
protected:
    CopyPaste() {
        const owl_test::MessageWindow window;
        lvx_test::comes_true([&] { return owl::TClipboard(window, false).IsOpen(); });
        owl::TClipboard(window).EmptyClipboard();
    }

    lvx_test::TemporaryFiles files;
};

}  // namespace

TEST_F(CopyPaste, spot_is_pasted_by_another_process) {
    EXPECT_TRUE(Run("copy_paste copy 3 4 \"a spot\"")) << m_output;
    EXPECT_EQ("", m_output);
    EXPECT_TRUE(Run("copy_paste paste")) << m_output;
    EXPECT_EQ("the spot a spot at 3, 4\n", m_output);
}

TEST_F(CopyPaste, bytes_are_those_of_the_page) {
    EXPECT_TRUE(Run("copy_paste copy 3 4 \"a spot\"")) << m_output;
    EXPECT_TRUE(Run("copy_paste dump")) << m_output;
    EXPECT_EQ(lvx_test::output_in_page("clipboard.md", "copy_paste"), m_output);
}

TEST_F(CopyPaste, text_is_pasted_where_there_is_no_spot) {
    ASSERT_TRUE(Run("copy_paste copy 3 4 spot")) << m_output;
    std::string text;
    {
        const owl_test::MessageWindow window;
        owl::TClipboard clipboard(window);
        text = static_cast<const char*>(::GlobalLock(clipboard.RequireClipboardData(CF_TEXT)));
        ::GlobalUnlock(clipboard.RequireClipboardData(CF_TEXT));
        clipboard.EmptyClipboard();
        const HGLOBAL block = ::GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, text.size() + 1);
        text.copy(static_cast<char*>(::GlobalLock(block)), text.size());
        ::GlobalUnlock(block);
        clipboard.SetClipboardData(CF_TEXT, block);
    }
    EXPECT_EQ("spot at 3, 4", text);
    EXPECT_TRUE(Run("copy_paste paste")) << m_output;
    EXPECT_EQ("the text spot at 3, 4\n", m_output);
}

TEST_F(CopyPaste, nothing_is_told_where_there_is_nothing) {
    EXPECT_FALSE(Run("copy_paste paste"));
    EXPECT_EQ("there is nothing to paste, or the clipboard is busy\n", m_output);
    EXPECT_FALSE(Run("copy_paste"));
    EXPECT_EQ("usage: copy_paste copy X Y NAME | paste | dump\n", m_output);
}
