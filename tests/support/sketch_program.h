// The example host, sketch.exe, in a process of its own, and what its user does to it.
#pragma once

#include <stdexcept>
#include <string>

#include "examples/sketch/frame/sketch_ids.h"
#include "support/drag.h"
#include "support/other_program.h"
#include "support/user.h"

namespace user {

class SketchProgram {
public:
    /// Starts the program, with a document if `document` is not empty, and waits until it is in front. Throws
    /// std::runtime_error if it does not come.
    explicit SketchProgram(const std::string& program, const std::string& document = "")
        : m_program(program + (document.empty() ? "" : " \"" + document + "\"")) {
        WaitUntil([&] { return (m_frame = FindFrame()) != nullptr || m_program.Ended(); });
        m_view = m_frame == nullptr ? nullptr : ::GetDlgItem(m_frame, IDC_VIEW);
        if (m_view == nullptr)
            throw std::runtime_error("sketch.exe shows no window");
    }

    HWND Frame() const { return m_frame; }
    HWND View() const { return m_view; }
    const OtherProgram& Process() const { return m_program; }
    bool ComeToFront() const { return WaitUntilInFront(m_frame); }

    std::string Title() const { return TextOf(m_frame); }
    std::string Status() const { return TextOf(::GetDlgItem(m_frame, IDC_STATUS)); }
    bool ShowsTitle(const std::string& title) const {
        return WaitUntil([&] { return Title() == title; }, 5000);
    }
    bool ShowsStatus(const std::string& status) const {
        return WaitUntil([&] { return Status() == status; }, 5000);
    }

    /// A point of the view on the screen.
    POINT At(int x, int y) const {
        POINT point{x, y};
        ::ClientToScreen(m_view, &point);
        return point;
    }
    void Pull(POINT from, POINT to) const { Drag(At(from.x, from.y), At(to.x, to.y)); }
    void ClickAt(int x, int y) const {
        const POINT point = At(x, y);
        Click(point.x, point.y);
    }
    void DoubleClickAt(int x, int y) const {
        const POINT point = At(x, y);
        DoubleClick(point.x, point.y);
    }

    /// Waits for a dialog or box of the program. Throws if none comes.
    HWND Dialog(const char* title) const {
        const HWND dialog = WaitForShown(dialog_class, title);
        if (dialog == nullptr || !m_program.Owns(dialog) || !WaitUntilInFront(dialog))
            throw std::runtime_error(std::string("no dialog ") + title);
        return dialog;
    }
    bool IsGone(HWND dialog) const {
        return WaitUntil([&] { return !::IsWindow(dialog); }) && ComeToFront();
    }
    /// Types a file's name into the dialog of that title and leaves it by Enter.
    bool ChooseFile(const char* title, const std::string& file) const {
        const HWND dialog = Dialog(title);
        ::Sleep(200);
        Press({VK_CONTROL, 'A'});
        Type(file);
        Press({VK_RETURN});
        return IsGone(dialog);
    }
    bool SaveAs(const std::string& file) const {
        Press({VK_F12});
        return ChooseFile("Save As", file);
    }

private:
    HWND FindFrame() const {
        HWND window = nullptr;
        while ((window = ::FindWindowExA(nullptr, window, nullptr, nullptr)) != nullptr) {
            if (::IsWindowVisible(window) && m_program.Owns(window) &&
                ::GetDlgItem(window, IDC_VIEW) != nullptr)
                return window;
        }
        return nullptr;
    }

    OtherProgram m_program;
    HWND m_frame = nullptr;
    HWND m_view = nullptr;
};

}  // namespace user
