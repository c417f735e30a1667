// Reads the message box that a call is about to show, on a thread of its own, and closes it by a key as a
// user does. Windows only.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <thread>

#include "support/threads.h"

namespace lvx_test {

/// What a box shows.
struct BoxContents {
    bool found = false;
    std::string caption;
    std::string text;
    HICON icon = nullptr;
    HWND owner = nullptr;
    /// Whether the key has closed it.
    bool closed = false;
};

class BoxReader {
public:
    using Action = std::function<void()>;

    /// Waits for the next box of the process with this id. Runs `meanwhile` when it has read it, on the
    /// thread of the reader, and then presses `key`.
    explicit BoxReader(DWORD process = GetCurrentProcessId(), Action meanwhile = {}, WORD key = VK_RETURN)
        : m_process(process), m_key(key), m_meanwhile(std::move(meanwhile)), m_thread([this] { Run(); }) {}
    BoxReader(const BoxReader&) = delete;
    BoxReader& operator=(const BoxReader&) = delete;
    ~BoxReader() { Join(); }

    /// What there was to be read; waits for the box to go.
    const BoxContents& Contents() {
        Join();
        return m_contents;
    }

private:
    // The id that the system gives to the text of a box.
    static constexpr int text_id = 0xFFFF;

    void Run() {
        HWND box = nullptr;
        if (!comes_true([&] { return (box = FindBox()) != nullptr; })) {
            return;
        }
        Read(box);
        if (m_meanwhile) {
            m_meanwhile();
        }
        m_contents.closed = PressUntilGone(box);
        if (!m_contents.closed) {
            PostMessageA(box, WM_CLOSE, 0, 0);
        }
    }

    void Join() {
        if (m_thread.joinable()) {
            m_thread.join();
        }
    }

    static BOOL CALLBACK IsTheBox(HWND window, LPARAM parameter) {
        auto* const self = reinterpret_cast<BoxReader*>(parameter);
        DWORD process = 0;
        GetWindowThreadProcessId(window, &process);
        char name[16] = {};
        GetClassNameA(window, name, sizeof name);
        if (process != self->m_process || std::string(name) != "#32770" || !IsWindowVisible(window)) {
            return TRUE;
        }
        self->m_box = window;
        return FALSE;
    }

    HWND FindBox() {
        m_box = nullptr;
        EnumWindows(&IsTheBox, reinterpret_cast<LPARAM>(this));
        return m_box;
    }

    static std::string TextOf(HWND window) {
        std::string text(static_cast<std::size_t>(SendMessageA(window, WM_GETTEXTLENGTH, 0, 0)) + 1, '\0');
        const LRESULT length =
            SendMessageA(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
        text.resize(static_cast<std::size_t>(length));
        return text;
    }

    static BOOL CALLBACK TakeIcon(HWND part, LPARAM parameter) {
        auto* const self = reinterpret_cast<BoxReader*>(parameter);
        const LRESULT icon = SendMessageA(part, STM_GETICON, 0, 0);
        if (icon != 0) {
            self->m_contents.icon = reinterpret_cast<HICON>(icon);
        }
        return TRUE;
    }

    void Read(HWND box) {
        m_contents.found = true;
        m_contents.caption = TextOf(box);
        m_contents.text = TextOf(GetDlgItem(box, text_id));
        EnumChildWindows(box, &TakeIcon, reinterpret_cast<LPARAM>(this));
        m_contents.owner = GetWindow(box, GW_OWNER);
    }

    bool PressUntilGone(HWND box) const {
        for (int tries = 0; tries < 50 && IsWindow(box); ++tries) {
            // A key must reach nothing else.
            if (GetForegroundWindow() == box) {
                Press();
            } else {
                SetForegroundWindow(box);
            }
            comes_true_soon([&] { return !IsWindow(box); });
        }
        return !IsWindow(box);
    }

    void Press() const {
        INPUT inputs[2]{};
        inputs[0].type = INPUT_KEYBOARD;
        inputs[0].ki.wVk = m_key;
        inputs[1] = inputs[0];
        inputs[1].ki.dwFlags = KEYEVENTF_KEYUP;
        SendInput(2, inputs, sizeof(INPUT));
    }

    template <class Condition>
    static void comes_true_soon(Condition is_true) {
        for (int i = 0; i < 20 && !is_true(); ++i) {
            sleep_for(10);
        }
    }

    const DWORD m_process;
    const WORD m_key;
    const Action m_meanwhile;
    HWND m_box = nullptr;
    BoxContents m_contents;
    // Last: it uses all of the above.
    std::thread m_thread;
};

}  // namespace lvx_test
