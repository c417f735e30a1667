// Another program that a scene shows: one of examples/, with its window in front and as small as a picture
// should be. It ends with the object.
#pragma once

#include <windows.h>

#include <stdexcept>
#include <string>

#include "support/other_program.h"
#include "support/user.h"

namespace gallery {

class ShownProgram {
public:
    /// Starts the program `file`, which lies beside this one, and waits for its window.
    ShownProgram(const std::string& file, const char* title)
        : m_file(file), m_program(BesideThisProgram(file)), m_frame(WaitFor(nullptr, title)) {
        user::WaitUntilInFront(m_frame);
        ::MoveWindow(m_frame, 100, 100, 360, 200, TRUE);
    }

    HWND Frame() const { return m_frame; }
    /// A window of the program; null as class or title is any. Throws if none comes.
    HWND WaitFor(const char* windowClass, const char* title) const {
        const HWND window = user::WaitForShown(windowClass, title);
        if (window == nullptr || !m_program.Owns(window))
            throw std::runtime_error(m_file + " does not show what it should");
        return window;
    }

private:
    static std::string BesideThisProgram(const std::string& file) {
        char program[MAX_PATH] = "";
        ::GetModuleFileNameA(nullptr, program, sizeof program);
        const std::string path = program;
        return path.substr(0, path.rfind('\\') + 1) + file;
    }

    std::string m_file;
    user::OtherProgram m_program;
    HWND m_frame;
};

}  // namespace gallery
