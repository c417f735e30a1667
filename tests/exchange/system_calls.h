// The calls of the system that the clipboard makes, in their order, any of which can be made to fail. Of
// blocks of memory, who is to free them.
#pragma once

#include <gtest/gtest.h>
#include <io.h>
#include <windows.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "support/import_hook.h"

namespace lvx_test {

/// While it lives, the library's calls pass through it. One at a time.
class SystemCalls {
public:
    static constexpr int none = -1;

    /// The `failing`-th call that can fail does, counted from 0. Locks on memory are no such calls unless
    /// `locksFail`.
    explicit SystemCalls(int failing = none, bool locksFail = true)
        : m_failing(failing), m_locksFail(locksFail) {
        s_current = this;
        // The framework opens and closes.
        for (const char* module : {"lvx.dll", "owl.dll"}) {
            Hook(module, "OpenClipboard", &Open);
            Hook(module, "CloseClipboard", &Close);
            Hook(module, "EmptyClipboard", &Empty);
            Hook(module, "SetClipboardData", &Set);
            Hook(module, "GetClipboardData", &Get);
            Hook(module, "GlobalAlloc", &Alloc);
            Hook(module, "GlobalFree", &Free);
            Hook(module, "GlobalLock", &Lock);
            Hook(module, "GlobalUnlock", &Unlock);
        }
        Hook("lvx.dll", "RegisterClipboardFormatA", &Register);
        Hook("lvx.dll", "GetTempPathA", &TempPath);
        Hook("lvx.dll", "GetTempFileNameA", &TempFileName);
        Hook("lvx.dll", "_lopen", &FileOpen);
        Hook("lvx.dll", "_llseek", &FileSeek);
        Hook("lvx.dll", "_lread", &FileRead);
        Hook("lvx.dll", "_lwrite", &FileWrite);
        Hook("lvx.dll", "_lclose", &FileClose);
        Hook("lvx.dll", "_unlink", &Unlink);
    }
    SystemCalls(const SystemCalls&) = delete;
    SystemCalls& operator=(const SystemCalls&) = delete;
    ~SystemCalls() { s_current = nullptr; }

    /// What was called, one a line, with the numbers that matter.
    const std::vector<std::string>& Log() const { return m_log; }
    /// The call that failed; empty if there were not so many.
    const std::string& Failed() const { return m_failed; }
    /// How many blocks were made that nobody has freed and the clipboard does not own.
    std::size_t LostBlocks() const { return m_blocks.size(); }
    /// How many locks were taken and not given back.
    int Locks() const { return m_locks; }
    /// How many files are open.
    int OpenFiles() const { return m_openFiles; }

private:
    template <class Function>
    void Hook(const char* module, const char* function, Function* replacement) {
        m_hooks.push_back(std::make_unique<ImportHook>(module, function, replacement));
    }

    static void Called(const std::string& call) { s_current->m_log.push_back(call); }
    static bool Fails(const std::string& call) {
        Called(call);
        if (s_current->m_count++ != s_current->m_failing) {
            return false;
        }
        s_current->m_failed = call;
        ::SetLastError(ERROR_GEN_FAILURE);
        return true;
    }
    template <class Number>
    static std::string With(const char* call, Number number) {
        return std::string(call) + ' ' + std::to_string(number);
    }

    static BOOL WINAPI Open(HWND window) { return !Fails("OpenClipboard") && ::OpenClipboard(window); }
    static BOOL WINAPI Close() {
        Called("CloseClipboard");
        return ::CloseClipboard();
    }
    static BOOL WINAPI Empty() {
        Called("EmptyClipboard");
        return ::EmptyClipboard();
    }
    static HANDLE WINAPI Set(UINT format, HANDLE data) {
        if (Fails("SetClipboardData")) {
            return nullptr;
        }
        const HANDLE result = ::SetClipboardData(format, data);
        if (result != nullptr) {
            s_current->m_blocks.erase(data);
        }
        return result;
    }
    static HANDLE WINAPI Get(UINT format) {
        return Fails("GetClipboardData") ? nullptr : ::GetClipboardData(format);
    }
    static HGLOBAL WINAPI Alloc(UINT flags, SIZE_T size) {
        if (Fails(With("GlobalAlloc", flags) + ' ' + std::to_string(size))) {
            return nullptr;
        }
        const HGLOBAL block = ::GlobalAlloc(flags, size);
        s_current->m_blocks.insert(block);
        return block;
    }
    static HGLOBAL WINAPI Free(HGLOBAL block) {
        Called("GlobalFree");
        EXPECT_EQ(1u, s_current->m_blocks.erase(block)) << "another's block is freed";
        return ::GlobalFree(block);
    }
    static LPVOID WINAPI Lock(HGLOBAL block) {
        if (!s_current->m_locksFail) {
            Called("GlobalLock");
        } else if (Fails("GlobalLock")) {
            return nullptr;
        }
        LPVOID const address = ::GlobalLock(block);
        s_current->m_locks += address != nullptr ? 1 : 0;
        return address;
    }
    static BOOL WINAPI Unlock(HGLOBAL block) {
        Called("GlobalUnlock");
        // One that was not locked is unlocked too, which does nothing.
        s_current->m_locks -= s_current->m_locks > 0 ? 1 : 0;
        return ::GlobalUnlock(block);
    }
    static UINT WINAPI Register(LPCSTR name) {
        return Fails("RegisterClipboardFormatA " + std::string(name)) ? 0 : ::RegisterClipboardFormatA(name);
    }
    static DWORD WINAPI TempPath(DWORD size, LPSTR path) {
        return Fails(With("GetTempPathA", size)) ? 0 : ::GetTempPathA(size, path);
    }
    static UINT WINAPI TempFileName(LPCSTR path, LPCSTR prefix, UINT unique, LPSTR name) {
        return Fails(With((std::string("GetTempFileNameA ") + prefix).c_str(), unique))
                   ? 0
                   : ::GetTempFileNameA(path, prefix, unique, name);
    }
    static HFILE WINAPI FileOpen(LPCSTR name, int mode) {
        if (Fails(With("_lopen", mode))) {
            return HFILE_ERROR;
        }
        const HFILE file = ::_lopen(name, mode);
        s_current->m_openFiles += file != HFILE_ERROR ? 1 : 0;
        return file;
    }
    static LONG WINAPI FileSeek(HFILE file, LONG offset, int origin) {
        return Fails(With("_llseek", offset) + ' ' + std::to_string(origin))
                   ? HFILE_ERROR
                   : ::_llseek(file, offset, origin);
    }
    static UINT WINAPI FileRead(HFILE file, LPVOID place, UINT size) {
        return Fails(With("_lread", size)) ? static_cast<UINT>(HFILE_ERROR) : ::_lread(file, place, size);
    }
    static UINT WINAPI FileWrite(HFILE file, LPCSTR bytes, UINT size) {
        return Fails(With("_lwrite", size)) ? static_cast<UINT>(HFILE_ERROR) : ::_lwrite(file, bytes, size);
    }
    static HFILE WINAPI FileClose(HFILE file) {
        Called("_lclose");
        --s_current->m_openFiles;
        return ::_lclose(file);
    }
    static int __cdecl Unlink(const char* name) {
        Called("_unlink");
        return ::_unlink(name);
    }

    static inline SystemCalls* s_current = nullptr;

    int m_failing;
    bool m_locksFail;
    int m_count = 0;
    int m_locks = 0;
    int m_openFiles = 0;
    std::string m_failed;
    std::vector<std::string> m_log;
    std::set<HGLOBAL> m_blocks;
    std::vector<std::unique_ptr<ImportHook>> m_hooks;
};

}  // namespace lvx_test
