// A user of the test's own program: a thread that presses keys, clicks and looks, while the test's thread
// handles messages as a program does. What the windows show is asked by messages, never by their objects.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <functional>
#include <thread>

#include "owl/application.h"
#include "support/user.h"

namespace desk {

/// While it lives `use` runs on a thread of its own, and the program is to run on this one. If `use` is
/// through and the program does not end by itself, the program is ended from here and the test has failed.
class User {
public:
    explicit User(const std::function<void()>& use)
        : m_ended(::CreateEventA(nullptr, TRUE, FALSE, nullptr)),
          m_thread([this, use, program = ::GetCurrentThreadId()] {
              use();
              if (::WaitForSingleObject(m_ended, 10000) == WAIT_OBJECT_0)
                  return;
              ADD_FAILURE() << "the program did not end";
              ::PostThreadMessageA(program, WM_QUIT, 99, 0);
          }) {}
    ~User() {
        ::SetEvent(m_ended);
        m_thread.join();
        ::CloseHandle(m_ended);
    }
    User(const User&) = delete;
    User& operator=(const User&) = delete;

private:
    HANDLE m_ended;
    std::thread m_thread;
};

}  // namespace desk
