#include "tests/lvxdoc/platform/run_program.h"

#include <windows.h>

namespace {

HANDLE create_inherited(const std::string& name) {
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    return CreateFileA(name.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherited, CREATE_ALWAYS,
                       FILE_ATTRIBUTE_NORMAL, nullptr);
}

std::string program_path() {
    char name[MAX_PATH] = {};
    GetModuleFileNameA(nullptr, name, MAX_PATH);
    const std::string own(name);
    return own.substr(0, own.find_last_of("\\/") + 1) + LVXDOC_PROGRAM;
}

int run(std::string command_line, HANDLE out, HANDLE err) {
    STARTUPINFOA start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = out;
    start.hStdError = err;
    PROCESS_INFORMATION process{};
    if (CreateProcessA(nullptr, command_line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start,
                       &process) == 0) {
        return -1;
    }
    WaitForSingleObject(process.hProcess, INFINITE);
    DWORD status = 0;
    GetExitCodeProcess(process.hProcess, &status);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return static_cast<int>(status);
}

}  // namespace

Result run_process(const Folder& folder, const std::vector<std::string>& words) {
    std::string command_line = '"' + program_path() + '"';
    for (const std::string& word : words) {
        command_line += " \"" + word + '"';
    }
    const HANDLE out = create_inherited(folder.File("stdout"));
    const HANDLE err = create_inherited(folder.File("stderr"));
    const int status = run(command_line, out, err);
    CloseHandle(out);
    CloseHandle(err);
    return {status, read_file(folder.Path() / "stdout"), read_file(folder.Path() / "stderr")};
}
