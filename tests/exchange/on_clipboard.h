// What the tests of the clipboard share: a window that may own it, a clipboard that is empty at first, and
// what lies there, put and read by the system's own calls.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <cstring>
#include <string>
#include <string_view>

#include "exchange/temporary_files.h"
#include "lvx/exchange/clipboard.h"
#include "owl/clipboard.h"
#include "owl/message_window.h"
#include "support/threads.h"

namespace lvx_test {

class OnClipboard : public testing::Test {
protected:
    OnClipboard() { Empty(); }

    void Empty() const { Open().EmptyClipboard(); }
    /// Puts `bytes` there as they are.
    void Put(unsigned format, std::string_view bytes) const {
        const HGLOBAL block = ::GlobalAlloc(GMEM_MOVEABLE, bytes.size());
        if (!bytes.empty()) {
            std::memcpy(::GlobalLock(block), bytes.data(), bytes.size());
            ::GlobalUnlock(block);
        }
        Open().SetClipboardData(format, block);
    }
    /// The whole block that lies there; "nothing" if none does.
    std::string Block(unsigned format) const {
        const owl::TClipboard opened = Open();
        const HANDLE block = opened.GetClipboardData(format);
        if (block == nullptr) {
            return "nothing";
        }
        const auto* const start = static_cast<const char*>(::GlobalLock(block));
        std::string bytes(start, ::GlobalSize(block));
        ::GlobalUnlock(block);
        return bytes;
    }
    static bool Has(unsigned format) { return owl::TClipboard::IsClipboardFormatAvailable(format); }
    /// Whether another window can open the clipboard.
    static bool IsFree() {
        const owl_test::MessageWindow other;
        return owl::TClipboard(other, false).IsOpen();
    }

    TemporaryFiles files;
    owl_test::MessageWindow window;
    LVXClipboard clipboard{static_cast<HWND>(window)};

private:
    /// The user's other programs may look into the clipboard for a moment.
    owl::TClipboard Open() const {
        comes_true([&] { return owl::TClipboard(window, false).IsOpen(); });
        return owl::TClipboard(window);
    }
};

}  // namespace lvx_test
