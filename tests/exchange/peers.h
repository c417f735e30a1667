// The programs that take part in the tests of the clipboard as second processes. Windows only.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <thread>
#include <vector>

#include "support/peer_process.h"

namespace lvx_test {

/// As the owner of a clipboard does: the system asks it for what it makes of its formats, and others wait for
/// its answer. False if `event` does not come.
inline bool handles_messages_until(HANDLE event) {
    for (;;) {
        const DWORD reason = ::MsgWaitForMultipleObjects(1, &event, FALSE, long_time, QS_ALLINPUT);
        if (reason != WAIT_OBJECT_0 + 1) {
            return reason == WAIT_OBJECT_0;
        }
        MSG message{};
        while (::PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
            ::DispatchMessageA(&message);
        }
    }
}

/// An event that both processes know by its name.
class Signal {
public:
    explicit Signal(const std::string& name)
        : m_name(name + std::to_string(::GetCurrentProcessId()) + ' ' + std::to_string(++s_count)),
          m_event(::CreateEventA(nullptr, FALSE, FALSE, m_name.c_str())) {}
    Signal(const Signal&) = delete;
    Signal& operator=(const Signal&) = delete;
    ~Signal() { ::CloseHandle(m_event); }

    const std::string& Name() const { return m_name; }
    void Set() const { ::SetEvent(m_event); }
    /// Handles messages until it comes. False if it does not.
    bool Comes() const { return handles_messages_until(m_event); }

private:
    static inline int s_count = 0;

    std::string m_name;
    HANDLE m_event;
};

/// A peer that does something at once, then waits for its turn, and ends behind that.
class WaitingPeer {
public:
    /// `arguments` stand behind the names of the two signals.
    WaitingPeer(const std::string& program, const std::string& verb,
                const std::vector<std::string>& arguments = {})
        : m_process(program, With(verb, arguments)) {
        EXPECT_TRUE(m_ready.Comes()) << program << ' ' << verb;
    }

    /// Lets it go on; its exit code once it has ended. It owns the clipboard, or nobody waits for this
    /// process.
    int Finish() {
        m_go.Set();
        return m_process.Result();
    }
    /// Lets it go on and waits until it says that it is done.
    bool Round() {
        m_go.Set();
        return m_ready.Comes();
    }
    void Kill() { m_process.Kill(); }

private:
    std::vector<std::string> With(const std::string& verb, const std::vector<std::string>& arguments) const {
        std::vector<std::string> all{verb, m_ready.Name(), m_go.Name()};
        all.insert(all.end(), arguments.begin(), arguments.end());
        return all;
    }

    Signal m_ready{"lvx clipboard ready "};
    Signal m_go{"lvx clipboard go "};
    PeerProcess m_process;
};

inline const char* const plain_peer = "lvx_clipboard_peer.exe";
inline const char* const host_peer = "lvx_clipboard_host.exe";

/// Its exit code.
inline int run_peer(const std::string& program, const std::vector<std::string>& arguments) {
    PeerProcess peer(program, arguments);
    const Signal ended("lvx clipboard ended ");
    int result = -1;
    std::thread waiting([&] {
        result = peer.Result();
        ended.Set();
    });
    ended.Comes();
    waiting.join();
    return result;
}

}  // namespace lvx_test
