#include "owl/window_table.h"

#include <mutex>
#include <unordered_map>

namespace owl {

namespace {

struct WindowTable {
    std::mutex mutex;
    std::unordered_map<HWND, TWindow*> windows;
};

// Lives to the end of the process: windows of static objects end after most static objects.
WindowTable& Table() {
    static auto* table = new WindowTable;
    return *table;
}

bool IsOfThisThread(HWND handle) {
    return ::GetWindowThreadProcessId(handle, nullptr) == ::GetCurrentThreadId();
}

}  // namespace

void RememberWindow(HWND handle, TWindow* window) {
    const std::lock_guard lock(Table().mutex);
    Table().windows[handle] = window;
}

void ForgetWindow(HWND handle, const TWindow* window) {
    const std::lock_guard lock(Table().mutex);
    const auto found = Table().windows.find(handle);
    if (found != Table().windows.end() && found->second == window)
        Table().windows.erase(found);
}

TWindow* FindWindowObject(HWND handle) {
    const std::lock_guard lock(Table().mutex);
    const auto found = Table().windows.find(handle);
    return found == Table().windows.end() ? nullptr : found->second;
}

std::vector<HWND> WindowsOfThisThread() {
    const std::lock_guard lock(Table().mutex);
    std::vector<HWND> windows;
    for (const auto& [handle, window] : Table().windows) {
        if (IsOfThisThread(handle))
            windows.push_back(handle);
    }
    return windows;
}

}  // namespace owl
