#include "lvx/exchange/dde.h"

#include <dde.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "lvx/exchange/dde_blocks.h"
#include "lvx/exchange/dde_handling.h"
#include "lvx/images/global_locker.h"
#include "lvx/runtime/atom.h"

namespace {

using lvx::exchange::accepted;

constexpr unsigned short timed_out = 1;

// A partner that asks anew whenever it is answered makes one wait begin within the other.
constexpr int most_waits = 16;

// The waits of this thread that are within each other; and the end of the program, should it be asked for
// meanwhile: the system hands that out whichever messages are looked for.
class Wait {
public:
    Wait() { ++s_depth; }
    ~Wait() {
        --s_depth;
        if (m_quit) {
            ::PostQuitMessage(m_exitCode);
        }
    }
    Wait(const Wait&) = delete;
    Wait& operator=(const Wait&) = delete;

    void HandleOne() {
        const bool all = s_depth <= most_waits;
        const UINT first = all ? WM_DDE_INITIATE : WM_DDE_ACK;
        const UINT last = all ? WM_DDE_EXECUTE : WM_DDE_ACK;
        MSG message{};
        if (!::PeekMessageA(&message, nullptr, first, last, PM_REMOVE)) {
            return;
        }
        if (message.message == WM_QUIT) {
            m_quit = true;
            m_exitCode = static_cast<int>(message.wParam);
            return;
        }
        ::DispatchMessageA(&message);
    }

private:
    static thread_local int s_depth;

    bool m_quit = false;
    int m_exitCode = 0;
};

thread_local int Wait::s_depth = 0;

}  // namespace

const owl::TResponseTableEntry<LVXDde> LVXDde::__entries[] = {
    EV_MESSAGE(WM_DDE_TERMINATE, EvWmDdeTerminate),
    EV_MESSAGE(WM_DDE_ACK, EvWmDdeAck),
    {},
};

bool LVXDde::Find(owl::TEventInfo& info) {
    return owl::SearchEntries<LVXDde>(*this, __entries, info) || owl::TWindow::Find(info);
}

LVXDde::LVXDde() {
    Init(nullptr, "DDE Window", nullptr);
    Attr.Style = WS_POPUP | WS_BORDER | WS_SYSMENU;
}

LVXDde::~LVXDde() {
    Handling::Forget(*this);
}

LVXDde& LVXDde::ackTime(unsigned short ms) {
    m_ackWait = ms;
    return *this;
}

bool LVXDde::disconnect() {
    if (m_partner == nullptr) {
        return false;
    }
    const Handling handling(*this);
    m_closing = true;
    const bool ended = sndTerminate(false) && yieldAck(m_ackWait);
    if (!handling.Gone()) {
        m_closing = false;
    }
    return ended;
}

void LVXDde::rcvTerminate() {
    const Handling handling(*this);
    if (m_closing) {
        yieldEnd(accepted);
        m_partner = nullptr;
        return;
    }
    // Sent, so that it is there before this window goes. A partner elsewhere outlives the window, and Wine's
    // DDE library looks for the answer in its queue alone, for ten seconds.
    sndTerminate(!lvx::exchange::is_of_another_process(m_partner));
    if (handling.Gone()) {
        return;
    }
    m_partner = nullptr;
    callback(DdeTerminate, nullptr, nullptr);
}

void LVXDde::rcvAck(HWND, unsigned short status, void* atom) {
    LVXAtom item(static_cast<unsigned short>(reinterpret_cast<std::uintptr_t>(atom)));
    yieldEnd(status);
    !item;
}

LRESULT LVXDde::EvWmDdeTerminate(WPARAM, LPARAM) {
    rcvTerminate();
    return 0;
}

LRESULT LVXDde::EvWmDdeAck(WPARAM window, LPARAM lParam) {
    const auto [status, atom] = lvx::exchange::take_acknowledgement(lParam);
    rcvAck(reinterpret_cast<HWND>(window), status, reinterpret_cast<void*>(std::uintptr_t{atom}));
    return 0;
}

// A partner that hangs must not hang this program: what is sent is waited for no longer than any answer.
bool LVXDde::Transmit(bool send, UINT message, LPARAM lParam) {
    const auto self = reinterpret_cast<WPARAM>(GetHandle());
    if (!send) {
        return ::PostMessageA(m_partner, message, self, lParam) != 0;
    }
    const UINT wait = std::max<UINT>(m_ackWait, 1);
    DWORD_PTR answer = 0;
    return ::SendMessageTimeoutA(m_partner, message, self, lParam, SMTO_NORMAL, wait, &answer) != 0;
}

bool LVXDde::sndTerminate(bool send) {
    return m_partner != nullptr && Transmit(send, WM_DDE_TERMINATE, 0);
}

bool LVXDde::sndAck(unsigned short status, unsigned short item, int send, unsigned answering, LPARAM lParam) {
    if (answering == WM_DDE_INITIATE) {
        return m_partner != nullptr && Transmit(send != 0, WM_DDE_ACK, MAKELPARAM(status, item));
    }
    if (m_partner == nullptr) {
        lvx::exchange::free_packed(answering, lParam);
        return false;
    }
    // `item` has room for half of a command's handle. To another process all of it goes: by that the system
    // finds the handle that the sender knows the command by.
    const bool isWhole = answering == WM_DDE_EXECUTE && lvx::exchange::is_of_another_process(m_partner);
    const UINT_PTR high = isWhole ? static_cast<UINT_PTR>(lParam) : item;
    LPARAM answer = lParam != 0 ? ::ReuseDDElParam(lParam, answering, WM_DDE_ACK, status, high) : 0;
    if (answer == 0) {
        answer = ::PackDDElParam(WM_DDE_ACK, status, high);
    }
    const bool reached = answer != 0 && Transmit(send != 0, WM_DDE_ACK, answer);
    if (!reached) {
        lvx::exchange::free_packed(WM_DDE_ACK, answer);
    }
    return reached;
}

HGLOBAL LVXDde::setData(unsigned short format, long size, const char* bytes) {
    // The partner sees all of the block: what nobody writes is to be nothing that lay there before.
    constexpr UINT flags = GMEM_DDESHARE | GMEM_MOVEABLE | GMEM_ZEROINIT;
    constexpr std::size_t header = sizeof(lvx::exchange::BlockHeader);
    constexpr std::size_t overhead = header + 2;
    m_data = nullptr;
    if (size < 0) {
        return nullptr;
    }
    m_data = ::GlobalAlloc(flags, static_cast<std::size_t>(size) + overhead);
    const LVXUtilities::GlobalLocker<char> block(m_data);
    if (block.get() == nullptr) {
        return m_data;
    }
    std::memcpy(block.get() + offsetof(lvx::exchange::BlockHeader, format), &format, sizeof format);
    if (bytes != nullptr) {
        std::memcpy(block.get() + header, bytes, static_cast<std::size_t>(size));
    }
    return m_data;
}

HGLOBAL LVXDde::strToHandle(const char* text) {
    constexpr std::size_t spare = 10;
    const std::size_t length = text != nullptr ? std::strlen(text) : 0;
    const HGLOBAL block = ::GlobalAlloc(GMEM_DDESHARE | GMEM_FIXED, length + spare);
    const LVXUtilities::GlobalLocker<char> bytes(block);
    if (bytes.get() != nullptr) {
        *std::copy_n(text, length, bytes.get()) = '\0';
    }
    return block;
}

bool LVXDde::callback(DdeEvent event, const char* item, void* data) {
    if (m_client == nullptr) {
        return true;
    }
    Handling handling(*this);
    m_eventItem = item;
    m_eventData = data;
    m_eventReason = event;
    handling.Ask();
    return m_client->ddeEvent(this);
}

bool LVXDde::yieldAck(unsigned long ms) {
    const Handling handling(*this);
    const DWORD start = ::GetTickCount();
    m_ackStatus = 0;
    m_waiting = true;
    Wait wait;
    do {
        wait.HandleOne();
        if (handling.Gone()) {
            return false;
        }
        if (!m_waiting) {
            return m_ackStatus == accepted;
        }
    } while (::GetTickCount() - start <= ms);
    yieldEnd(timed_out);
    return false;
}

void LVXDde::yieldEnd(unsigned short status) {
    m_waiting = false;
    m_ackStatus = status;
}
