#include "owl/message_thread.h"

#include <limits>

#include "owl/carried_exception.h"
#include "owl/condemned.h"
#include "owl/message_chain.h"
#include "owl/window.h"
#include "owl/window_table.h"

namespace owl {

namespace {

// Also for one that somebody has looked at and left in the queue: to the plain call that is an old one.
void WaitForMessage() {
    ::MsgWaitForMultipleObjectsEx(0, nullptr, INFINITE, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
}

}  // namespace

TMsgThread::TMsgThread() = default;

TMsgThread::~TMsgThread() = default;

int TMsgThread::MessageLoop() {
    RunUntil([] { return false; });
    MSG quit{};
    ::PeekMessageA(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
    return static_cast<int>(quit.wParam);
}

bool TMsgThread::RunUntil(const std::function<bool()>& done) {
    const LoopScope loop;
    long idleCount = 0;
    while (!done()) {
        loop.DeleteCondemned();
        MSG msg{};
        if (::PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE)) {
            idleCount = 0;
            if (!TakeMessage(msg))
                return false;
            continue;
        }
        // What was sent from other threads has been handled meanwhile.
        ThrowCarriedException();
        const bool more = IdleAction(idleCount);
        ThrowCarriedException();
        if (!more) {
            if (!done())
                WaitForMessage();
            idleCount = 0;
        } else if (idleCount < std::numeric_limits<long>::max()) {
            ++idleCount;
        }
    }
    return true;
}

bool TMsgThread::PumpWaitingMessages() {
    const LoopScope loop;
    MSG msg{};
    while (::PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE)) {
        if (!TakeMessage(msg))
            return false;
        loop.DeleteCondemned();
    }
    ThrowCarriedException();
    return true;
}

bool TMsgThread::TakeMessage(MSG& msg) {
    if (msg.message == WM_QUIT) {
        ::PostQuitMessage(static_cast<int>(msg.wParam));
        ThrowCarriedException();
        return false;
    }
    Process(msg);
    return true;
}

void TMsgThread::Process(MSG& msg) {
    if (!ProcessAppMsg(msg)) {
        ::TranslateMessage(&msg);
        ::DispatchMessageA(&msg);
    }
    ThrowCarriedException();
}

bool TMsgThread::IdleAction(long idleCount) {
    static_cast<void>(idleCount);
    return false;
}

bool TMsgThread::ProcessAppMsg(MSG& msg) {
    for (HWND handle = msg.hwnd; handle != nullptr; handle = AboveForMessages(handle)) {
        TWindow* const window = FindWindowObject(handle);
        if (window != nullptr && window->PreProcessMsg(msg))
            return true;
        // The window may have gone with what it did.
        if (!::IsWindow(handle))
            return false;
    }
    return false;
}

}  // namespace owl
