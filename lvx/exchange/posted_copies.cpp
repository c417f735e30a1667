// Finds out what becomes of a block in a posted message: by posting one.
#include <dde.h>

#include <optional>

#include "lvx/exchange/dde_blocks.h"

namespace lvx::exchange {

namespace {

// A window that nobody else knows of.
class Letterbox {
public:
    Letterbox()
        : m_window(
              ::CreateWindowExA(0, "STATIC", "", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr)) {}
    Letterbox(const Letterbox&) = delete;
    Letterbox& operator=(const Letterbox&) = delete;
    ~Letterbox() { ::DestroyWindow(m_window); }

    bool Post(LPARAM packed) const {
        const auto sender = reinterpret_cast<WPARAM>(m_window);
        return m_window != nullptr && ::PostMessageA(m_window, WM_DDE_POKE, sender, packed);
    }
    /// What came; 0 if nothing did.
    LPARAM Take() const {
        MSG message{};
        if (!::PeekMessageA(&message, m_window, WM_DDE_POKE, WM_DDE_POKE, PM_REMOVE | PM_QS_POSTMESSAGE)) {
            return 0;
        }
        if (message.message == WM_QUIT) {
            ::PostQuitMessage(static_cast<int>(message.wParam));
            return 0;
        }
        return message.lParam;
    }

private:
    const HWND m_window;
};

// The block of a letter that came, which is unpacked.
HGLOBAL block_of(LPARAM packed) {
    UINT_PTR block = 0;
    UINT_PTR item = 0;
    if (packed == 0 || !::UnpackDDElParam(WM_DDE_POKE, packed, &block, &item)) {
        return nullptr;
    }
    ::FreeDDElParam(WM_DDE_POKE, packed);
    return reinterpret_cast<HGLOBAL>(block);
}

bool comes_as_another(HGLOBAL block) {
    // An atom that is a number takes no room in the table.
    const LPARAM packed = ::PackDDElParam(WM_DDE_POKE, reinterpret_cast<UINT_PTR>(block), 1);
    const Letterbox letterbox;
    if (!letterbox.Post(packed)) {
        ::FreeDDElParam(WM_DDE_POKE, packed);
        return false;
    }
    const HGLOBAL received = block_of(letterbox.Take());
    if (received == nullptr || received == block) {
        return false;
    }
    ::GlobalFree(received);
    return true;
}

bool find_out() {
    const HGLOBAL block =
        ::GlobalAlloc(GMEM_DDESHARE | GMEM_MOVEABLE | GMEM_ZEROINIT, sizeof(BlockHeader) + 2);
    if (block == nullptr) {
        return false;
    }
    const bool copies = comes_as_another(block);
    ::GlobalFree(block);
    return copies;
}

}  // namespace

bool posting_copies_blocks() {
    // Not made by an initialiser: whoever is called meanwhile may come here too.
    static std::optional<bool> copies;
    if (!copies) {
        copies = find_out();
    }
    return *copies;
}

}  // namespace lvx::exchange
