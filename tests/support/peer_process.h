// A second program that takes part in a test, from the folder of the test's own. Windows only.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "support/threads.h"

namespace lvx_test {

/// The folder that the programs of the tests lie in, with a backslash at its end.
inline std::string program_folder() {
    char name[MAX_PATH] = {};
    GetModuleFileNameA(nullptr, name, MAX_PATH);
    const std::string own(name);
    return own.substr(0, own.find_last_of("\\/") + 1);
}

/// The other program. Killed at the end if it still runs.
class PeerProcess {
public:
    /// Starts `program` with `arguments`, each in quotation marks.
    PeerProcess(const std::string& program, const std::vector<std::string>& arguments) {
        std::string line = '"' + program_folder() + program + '"';
        for (const std::string& argument : arguments) {
            line += " \"" + argument + '"';
        }
        STARTUPINFOA start{};
        start.cb = sizeof start;
        PROCESS_INFORMATION process{};
        if (CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                           &process) != 0) {
            CloseHandle(process.hThread);
            m_process = process.hProcess;
            m_id = process.dwProcessId;
        }
    }
    PeerProcess(const PeerProcess&) = delete;
    PeerProcess& operator=(const PeerProcess&) = delete;
    ~PeerProcess() {
        Kill();
        CloseHandle(m_process);
    }

    /// The number by which the system knows it; 0 if it could not be started.
    DWORD Id() const { return m_id; }

    void Kill() {
        TerminateProcess(m_process, 9);
        WaitForSingleObject(m_process, long_time);
    }

    /// Its exit code, once it has ended; -1 if it does not end.
    int Result() {
        DWORD code = 0;
        const bool ended = WaitForSingleObject(m_process, long_time) == WAIT_OBJECT_0;
        return ended && GetExitCodeProcess(m_process, &code) != 0 ? static_cast<int>(code) : -1;
    }

private:
    HANDLE m_process = nullptr;
    DWORD m_id = 0;
};

}  // namespace lvx_test
