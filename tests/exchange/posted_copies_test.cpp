#include <dde.h>
#include <gtest/gtest.h>

#include "lvx/exchange/dde_blocks.h"
#include "raw_partner.h"

namespace {

// What the window got; by another road than the library's.
HGLOBAL g_received = nullptr;

LRESULT CALLBACK receive(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_DDE_ADVISE)
        return ::DefWindowProcA(window, message, wParam, lParam);
    UINT_PTR block = 0;
    UINT_PTR item = 0;
    ::UnpackDDElParam(message, lParam, &block, &item);
    ::FreeDDElParam(message, lParam);
    g_received = reinterpret_cast<HGLOBAL>(block);
    return 0;
}

}  // namespace

TEST(PostedCopies, are_known_to_be_made_or_not) {
    const HWND window =
        ::CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    ::SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&receive));
    const HGLOBAL block = dde_test::new_block(0, 1, "");
    const LPARAM packed = ::PackDDElParam(WM_DDE_ADVISE, reinterpret_cast<UINT_PTR>(block), 1);
    ASSERT_TRUE(::PostMessageA(window, WM_DDE_ADVISE, reinterpret_cast<WPARAM>(window), packed));
    ASSERT_TRUE(dde_test::RawPartner::PumpUntil([] { return g_received != nullptr; }));
    EXPECT_EQ(g_received != block, lvx::exchange::posting_copies_blocks());
    if (g_received != block)
        ::GlobalFree(g_received);
    ::GlobalFree(block);
    ::DestroyWindow(window);
}

TEST(PostedCopies, are_looked_for_without_a_trace) {
    ::PostQuitMessage(5);
    EXPECT_EQ(lvx::exchange::posting_copies_blocks(), lvx::exchange::posting_copies_blocks());
    MSG message{};
    ASSERT_TRUE(::PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(WM_QUIT, static_cast<int>(message.message));
}
