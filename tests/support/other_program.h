// A program that runs beside the test, which is its user. It does not outlive the object.
#pragma once

#include <windows.h>

#include <string>

namespace user {

class OtherProgram {
public:
    /// Starts the program `file`. Ended() is true at once if there is none.
    explicit OtherProgram(std::string file) {
        STARTUPINFOA start{};
        start.cb = sizeof start;
        ::CreateProcessA(nullptr, file.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                         &m_process);
    }
    ~OtherProgram() {
        if (!Ended())
            ::TerminateProcess(m_process.hProcess, 1);
        ::WaitForSingleObject(m_process.hProcess, 10000);
        ::CloseHandle(m_process.hThread);
        ::CloseHandle(m_process.hProcess);
    }
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;

    bool Ended() const { return ::WaitForSingleObject(m_process.hProcess, 0) != WAIT_TIMEOUT; }
    /// Waits for the program's end and returns its exit code; -1 if it does not end.
    int WaitForEnd() const {
        DWORD code = 0;
        if (::WaitForSingleObject(m_process.hProcess, 10000) != WAIT_OBJECT_0)
            return -1;
        ::GetExitCodeProcess(m_process.hProcess, &code);
        return static_cast<int>(code);
    }
    /// Whether a window is one of this program's.
    bool Owns(HWND window) const {
        DWORD process = 0;
        ::GetWindowThreadProcessId(window, &process);
        return process == m_process.dwProcessId;
    }

private:
    PROCESS_INFORMATION m_process{};
};

}  // namespace user
