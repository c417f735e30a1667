// The programs that take part in the tests of the clipboard as second processes. Windows only.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

#include "support/peer_process.h"

namespace lvx_test {

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
    bool Comes() const { return ::WaitForSingleObject(m_event, long_time) == WAIT_OBJECT_0; }

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

    /// Lets it go on; its exit code once it has ended.
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
    return PeerProcess(program, arguments).Result();
}

}  // namespace lvx_test
