// The program of the framework's tutorial, as its user sees it.
#include <stdexcept>
#include <string>

#include "gallery.h"
#include "support/other_program.h"
#include "support/user.h"

namespace {

std::string FileBesideThisProgram(const char* name) {
    char file[MAX_PATH] = "";
    ::GetModuleFileNameA(nullptr, file, sizeof file);
    const std::string program = file;
    return program.substr(0, program.rfind('\\') + 1) + name;
}

// The program, with its window in front and as small as a picture should be.
class Hello {
public:
    Hello() : m_program(FileBesideThisProgram("hello.exe")), m_frame(WaitFor(nullptr, "Hello")) {
        user::WaitUntilInFront(m_frame);
        ::MoveWindow(m_frame, 100, 100, 360, 200, TRUE);
    }

    HWND Frame() const { return m_frame; }
    HWND OpenDialog() const {
        user::Press({VK_CONTROL, 'G'});
        const HWND dialog = WaitFor(user::dialog_class, "Greet");
        user::WaitUntilInFront(dialog);
        return dialog;
    }
    HWND WaitFor(const char* windowClass, const char* title) const {
        const HWND window = user::WaitForShown(windowClass, title);
        if (window == nullptr || !m_program.Owns(window))
            throw std::runtime_error("hello.exe does not show what it should");
        return window;
    }

private:
    user::OtherProgram m_program;
    HWND m_frame;
};

void ShowMenu() {
    const Hello hello;
    user::Press({VK_MENU, 'H'});
    hello.WaitFor(user::drop_down_class, nullptr);
    gallery::Pose(gallery::PlaceOf(hello.Frame()));
}

void ShowDialog() {
    const Hello hello;
    gallery::Pose(gallery::PlaceOf(hello.OpenDialog()));
}

void ShowGreeting() {
    const Hello hello;
    const HWND dialog = hello.OpenDialog();
    user::Press({VK_MENU, 'L'});
    user::Press({VK_RETURN});
    user::WaitUntil([&] { return !::IsWindow(dialog); });
    user::WaitUntilInFront(hello.Frame());
    gallery::Pose(gallery::PlaceOf(hello.Frame()));
}

}  // namespace

int main(int argc, char** argv) {
    return gallery::Run(
        argc, argv,
        {
            {"hello-menu", "The tutorial's program, its menu open", &ShowMenu},
            {"hello-dialog", "Its dialog, with a default button and the focus in the field", &ShowDialog},
            {"hello-greeting", "What it says then", &ShowGreeting},
        });
}
