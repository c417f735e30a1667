// A program whose menus change, as its user sees it.
#include <fstream>
#include <string>

#include "gallery.h"
#include "lvx/platform/profile_directory.h"
#include "shown_program.h"
#include "support/user.h"

namespace {

// The texts that the program shows, and settings without recent files.
class Desk {
public:
    Desk() {
        ::DeleteFileA((lvx::profile_directory() + "\\gallery-pages.INI").c_str());
        ::CreateDirectoryA("C:\\texts", nullptr);
        for (const char* const name : {"moon", "r&d", "stars"})
            Write(name);
    }
    /// How the program is called.
    static std::string Command() {
        return "pages.exe gallery-pages C:\\texts\\r&d.txt C:\\texts\\moon.txt C:\\texts\\stars.txt";
    }

private:
    static void Write(const std::string& name) {
        std::ofstream("C:\\texts\\" + name + ".txt") << "What is to be told of " << name << ".";
    }
};

class Pages : private Desk, public gallery::ShownProgram {
public:
    Pages() : ShownProgram(Command(), "Pages") {
        ::MoveWindow(Frame(), 100, 100, 420, 300, TRUE);
        ::SendMessageA(Client(), WM_MDICASCADE, 0, 0);
    }
    void Maximise() const {
        OpenMenu('P');
        user::Press({'M'});
        user::WaitUntil([this] {
            const auto active = reinterpret_cast<HWND>(::SendMessageA(Client(), WM_MDIGETACTIVE, 0, 0));
            return ::IsZoomed(active) != 0 && user::FindShown(user::drop_down_class, nullptr) == nullptr;
        });
    }
    void OpenMenu(WORD mnemonic) const {
        user::Press({VK_MENU, mnemonic});
        WaitFor(user::drop_down_class, nullptr);
    }
    void Pose() const { gallery::Pose(gallery::PlaceOf(Frame())); }

private:
    HWND Client() const { return ::FindWindowExA(Frame(), nullptr, "MDICLIENT", nullptr); }
};

void ShowRecent() {
    const Pages pages;
    pages.OpenMenu('F');
    pages.Pose();
}

void ShowMenu() {
    const Pages pages;
    pages.OpenMenu('P');
    pages.Pose();
}

void ShowMaximised() {
    const Pages pages;
    pages.Maximise();
    pages.OpenMenu('P');
    pages.Pose();
}

}  // namespace

int main(int argc, char** argv) {
    return gallery::Run(
        argc, argv,
        {
            {"pages-recent", "Recent files in a menu; an ampersand in a name is not doubled", &ShowRecent},
            {"pages-menu", "A menu of the pages that are open", &ShowMenu},
            {"pages-maximised", "The same behind the icon and in front of the buttons of a maximised page",
             &ShowMaximised},
        });
}
