// Which help control the tests get: one of their own under the name of the system's, or none.
#pragma once

#include <windows.h>

#include <string>

#include "runtime/help_control.h"
#include "support/peer_process.h"

namespace lvx_test {

/// How Wine loads the control, until the end of the object: from a file of ours, or nowhere if `order` is
/// empty. Every load asks for it anew.
class ControlOrder {
public:
    explicit ControlOrder(const std::string& order) {
        for (const char* const name : names) {
            ::RegSetKeyValueA(HKEY_CURRENT_USER, key, name, REG_SZ, order.c_str(),
                              static_cast<DWORD>(order.size() + 1));
        }
    }
    ControlOrder(const ControlOrder&) = delete;
    ControlOrder& operator=(const ControlOrder&) = delete;
    ~ControlOrder() { Forget(); }

    /// A run that was killed may have left it.
    static void Forget() {
        for (const char* const name : names) {
            ::RegDeleteKeyValueA(HKEY_CURRENT_USER, key, name);
        }
    }

private:
    static constexpr const char* key = "Software\\Wine\\DllOverrides";
    // By its plain name, and by a path.
    static constexpr const char* names[] = {"hhctrl.ocx", "*hhctrl.ocx"};
};

/// A control of our own, in the process under the name of the system's.
class HelpControl {
public:
    explicit HelpControl(const std::string& folder) {
        const ControlOrder order("native");
        m_module = ::LoadLibraryA((program_folder() + folder + "\\hhctrl.ocx").c_str());
        auto* const address = reinterpret_cast<void*>(::GetProcAddress(m_module, last_call_name));
        m_call = reinterpret_cast<const HelpCall* (*)()>(address)();
    }
    HelpControl(const HelpControl&) = delete;
    HelpControl& operator=(const HelpControl&) = delete;
    ~HelpControl() { ::FreeLibrary(m_module); }

    const HelpCall& Call() const { return *m_call; }

private:
    HMODULE m_module = nullptr;
    const HelpCall* m_call = nullptr;
};

}  // namespace lvx_test
