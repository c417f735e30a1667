// A DDE client out of plain system calls: a window that writes letters and keeps those that come. It keeps to
// the protocol unless it is told not to. Windows only.
#pragma once

#include <windows.h>

#include <dde.h>

#include <algorithm>
#include <cstring>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace dde_test {

constexpr WORD positive = 0x8000;
constexpr WORD response = 0x1000;
constexpr WORD release = 0x2000;
constexpr WORD deferred = 0x4000;
constexpr WORD wants_ack = 0x8000;

/// One message that came, taken apart.
struct Letter {
    UINT message = 0;
    HWND sender = nullptr;
    /// Of an acknowledgement.
    UINT_PTR status = 0;
    /// The atom's name, "" for none.
    std::string item;
    /// What stands in the high word or value.
    UINT_PTR high = 0;
    /// Of data: whether there was a block, its first words, the bytes behind them.
    bool hasBlock = false;
    WORD flags = 0;
    WORD format = 0;
    std::string bytes;

    /// The bytes as a text.
    std::string Text() const { return bytes.c_str(); }
};

inline std::string name_of(UINT_PTR atom) {
    char name[300] = {};
    return atom != 0 && GlobalGetAtomNameA(static_cast<ATOM>(atom), name, sizeof name) != 0 ? name : "";
}

/// A block with two words in front of `bytes`.
inline HGLOBAL new_block(WORD flags, WORD format, const std::string& bytes) {
    HGLOBAL block = GlobalAlloc(GMEM_DDESHARE | GMEM_MOVEABLE, 4 + bytes.size());
    auto* const begin = static_cast<char*>(GlobalLock(block));
    std::memcpy(begin, &flags, 2);
    std::memcpy(begin + 2, &format, 2);
    std::copy(bytes.begin(), bytes.end(), begin + 4);
    GlobalUnlock(block);
    return block;
}

/// A text with its terminator.
inline std::string with_end(const std::string& text) {
    return text + '\0';
}

class RawPartner {
public:
    RawPartner() {
        WNDCLASSA window_class{};
        window_class.lpfnWndProc = &Receive;
        window_class.hInstance = GetModuleHandleA(nullptr);
        window_class.lpszClassName = "lvx raw partner";
        RegisterClassA(&window_class);
        m_window = CreateWindowExA(0, window_class.lpszClassName, "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr,
                                   nullptr, nullptr);
        SetWindowLongPtrA(m_window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    }
    RawPartner(const RawPartner&) = delete;
    RawPartner& operator=(const RawPartner&) = delete;
    ~RawPartner() { Destroy(); }

    HWND Window() const { return m_window; }
    WPARAM Self() const { return reinterpret_cast<WPARAM>(m_window); }
    /// Who answered last to Initiate; null if nobody, or the conversation has ended.
    HWND Server() const { return m_server; }
    void SetServer(HWND server) { m_server = server; }
    void Destroy() {
        if (m_window != nullptr)
            DestroyWindow(std::exchange(m_window, nullptr));
    }

    /// An acknowledgement that comes now greets it: it has two atoms, in words.
    bool isConnecting = false;

    // What it does with letters that ask for an answer.
    bool answersTerminate = true;
    bool acknowledgesData = true;
    WORD acknowledgeWith = positive;
    /// Called for each letter before it is answered.
    std::function<void(const Letter&)> onLetter;

    std::vector<Letter> letters;

    /// The letters of one kind, in their order.
    std::vector<Letter> Of(UINT message) const {
        std::vector<Letter> found;
        std::copy_if(letters.begin(), letters.end(), std::back_inserter(found),
                     [message](const Letter& letter) { return letter.message == message; });
        return found;
    }
    std::size_t Count(UINT message) const { return Of(message).size(); }
    /// Handles messages until `count` letters of a kind came.
    bool Wait(UINT message, std::size_t count = 1) {
        return PumpUntil([&] { return Count(message) >= count; });
    }

    template <class Done>
    static bool PumpUntil(const Done& done, DWORD milliseconds = 10000) {
        const DWORD start = GetTickCount();
        while (!done() && GetTickCount() - start < milliseconds) {
            if (!PumpOne())
                MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
        }
        return done();
    }
    static bool PumpOne() {
        MSG message{};
        if (!PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
            return false;
        DispatchMessageA(&message);
        return true;
    }
    static void PumpAll() {
        while (PumpOne()) {
        }
    }

    /// Asks `whom` for a topic; null names are 0. True if somebody answered.
    bool Initiate(HWND whom, const char* application, const char* topic) {
        const ATOM first = application != nullptr ? GlobalAddAtomA(application) : static_cast<ATOM>(0);
        const ATOM second = topic != nullptr ? GlobalAddAtomA(topic) : static_cast<ATOM>(0);
        m_server = nullptr;
        isConnecting = true;
        lastResult = SendMessageA(whom, WM_DDE_INITIATE, Self(), MAKELPARAM(first, second));
        isConnecting = false;
        GlobalDeleteAtom(first);
        GlobalDeleteAtom(second);
        return m_server != nullptr;
    }
    /// What SendMessage gave.
    LRESULT lastResult = 0;

    bool Request(const char* item, WORD format = CF_TEXT) { return PostItem(WM_DDE_REQUEST, format, item); }
    bool Unadvise(const char* item, WORD format = CF_TEXT) { return PostItem(WM_DDE_UNADVISE, format, item); }
    bool Advise(const char* item, WORD flags = wants_ack, WORD format = CF_TEXT) {
        return PostBlock(WM_DDE_ADVISE, new_block(flags, format, ""), item);
    }
    bool Poke(const char* item, const std::string& bytes, WORD flags = release, WORD format = CF_TEXT) {
        return PostBlock(WM_DDE_POKE, new_block(flags, format, bytes), item);
    }
    bool Execute(const std::string& command) {
        HGLOBAL block = GlobalAlloc(GMEM_DDESHARE | GMEM_MOVEABLE, command.size() + 1);
        std::copy_n(command.c_str(), command.size() + 1, static_cast<char*>(GlobalLock(block)));
        GlobalUnlock(block);
        m_mine.push_back(block);
        return PostMessageA(m_server, WM_DDE_EXECUTE, Self(), reinterpret_cast<LPARAM>(block)) != 0;
    }
    bool Terminate() { return PostMessageA(m_server, WM_DDE_TERMINATE, Self(), 0) != 0; }
    /// Ends the conversation as the protocol asks; false if no answer came.
    bool End() {
        const std::size_t before = Count(WM_DDE_TERMINATE);
        m_ending = true;
        const bool ended = Terminate() && Wait(WM_DDE_TERMINATE, before + 1);
        m_ending = false;
        m_server = nullptr;
        FreeMine();
        return ended;
    }
    /// The system has handed copies of them over, or the server is done with them.
    void FreeMine() {
        for (HGLOBAL block : std::exchange(m_mine, {}))
            GlobalFree(block);
    }

    /// Whether it is the handle of a block that was posted and not freed yet.
    bool IsMine(UINT_PTR handle) const {
        return std::find(m_mine.begin(), m_mine.end(), reinterpret_cast<HGLOBAL>(handle)) != m_mine.end();
    }

    /// Posts a packed pair; the block is freed by FreeMine.
    bool PostBlock(UINT message, HGLOBAL block, const char* item) {
        const ATOM atom = GlobalAddAtomA(item);
        const LPARAM packed = PackDDElParam(message, reinterpret_cast<UINT_PTR>(block), atom);
        m_mine.push_back(block);
        if (PostMessageA(m_server, message, Self(), packed))
            return true;
        FreeDDElParam(message, packed);
        GlobalDeleteAtom(atom);
        return false;
    }

private:
    bool IsHalfOfMine(UINT_PTR word) const {
        return std::any_of(m_mine.begin(), m_mine.end(),
                           [&](HGLOBAL block) { return LOWORD(reinterpret_cast<UINT_PTR>(block)) == word; });
    }
    bool PostItem(UINT message, WORD low, const char* item) {
        const ATOM atom = GlobalAddAtomA(item);
        if (PostMessageA(m_server, message, Self(), MAKELPARAM(low, atom)))
            return true;
        GlobalDeleteAtom(atom);
        return false;
    }

    static LRESULT CALLBACK Receive(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        auto* const self = reinterpret_cast<RawPartner*>(GetWindowLongPtrA(window, GWLP_USERDATA));
        if (self == nullptr || message < WM_DDE_FIRST || message > WM_DDE_LAST)
            return DefWindowProcA(window, message, wParam, lParam);
        self->Take(message, reinterpret_cast<HWND>(wParam), lParam);
        return 0;
    }

    void Take(UINT message, HWND sender, LPARAM lParam) {
        Letter letter;
        letter.message = message;
        letter.sender = sender;
        switch (message) {
            case WM_DDE_ACK:
                return isConnecting ? TakeGreeting(letter, lParam) : TakeAcknowledgement(letter, lParam);
            case WM_DDE_DATA:
                return TakeData(letter, lParam);
            case WM_DDE_TERMINATE:
                Keep(letter);
                if (answersTerminate && !m_ending)
                    PostMessageA(sender, WM_DDE_TERMINATE, Self(), 0);
                return;
            default:
                Keep(letter);
        }
    }

    void Keep(const Letter& letter) {
        letters.push_back(letter);
        if (onLetter)
            onLetter(letter);
    }

    // The server deletes the atoms.
    void TakeGreeting(Letter& letter, LPARAM lParam) {
        m_server = letter.sender;
        letter.status = LOWORD(lParam);
        letter.high = HIWORD(lParam);
        letter.item = name_of(LOWORD(lParam)) + '|' + name_of(HIWORD(lParam));
        Keep(letter);
    }

    void TakeAcknowledgement(Letter& letter, LPARAM lParam) {
        UnpackDDElParam(WM_DDE_ACK, lParam, &letter.status, &letter.high);
        FreeDDElParam(WM_DDE_ACK, lParam);
        // The half of a command's handle may look like an atom, but is nobody's to delete.
        if (letter.high <= 0xFFFF && !IsHalfOfMine(letter.high)) {
            letter.item = name_of(letter.high);
            GlobalDeleteAtom(static_cast<ATOM>(letter.high));
        }
        Keep(letter);
    }

    void TakeData(Letter& letter, LPARAM lParam) {
        UINT_PTR low = 0;
        UnpackDDElParam(WM_DDE_DATA, lParam, &low, &letter.high);
        letter.item = name_of(letter.high);
        auto* const block = reinterpret_cast<HGLOBAL>(low);
        if (block != nullptr)
            ReadBlock(letter, block);
        const bool asked = (letter.flags & wants_ack) != 0;
        Keep(letter);
        if (asked && acknowledgesData) {
            const LPARAM answer =
                ReuseDDElParam(lParam, WM_DDE_DATA, WM_DDE_ACK, acknowledgeWith, letter.high);
            PostMessageA(letter.sender, WM_DDE_ACK, Self(), answer);
        } else {
            FreeDDElParam(WM_DDE_DATA, lParam);
            GlobalDeleteAtom(static_cast<ATOM>(letter.high));
        }
        if (block != nullptr)
            GlobalFree(block);
    }

    static void ReadBlock(Letter& letter, HGLOBAL block) {
        const std::size_t size = GlobalSize(block);
        const auto* const begin = static_cast<const char*>(GlobalLock(block));
        letter.hasBlock = true;
        std::memcpy(&letter.flags, begin, 2);
        std::memcpy(&letter.format, begin + 2, 2);
        letter.bytes.assign(begin + 4, size - 4);
        GlobalUnlock(block);
    }

    HWND m_window = nullptr;
    HWND m_server = nullptr;
    bool m_ending = false;
    std::vector<HGLOBAL> m_mine;
};

}  // namespace dde_test
