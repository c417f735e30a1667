// The programs of examples/ that show bars and dialogs, as their users see them.
#include <filesystem>
#include <fstream>

#include "gallery.h"
#include "scenes.h"
#include "shown_program.h"
#include "support/user.h"

namespace gallery {

namespace {

class AlignedText : public ShownProgram {
public:
    AlignedText() : ShownProgram("aligned_text.exe", "Aligned text") {}

    /// A point of the bar, on the screen.
    POINT At(int x) const {
        POINT point{x, 14};
        ::ClientToScreen(Frame(), &point);
        return point;
    }
    void Pose() const { gallery::Pose(PlaceOf(Frame())); }
};

/// The program of dialogs, and one of its dialogs above it.
class Dialogs : public ShownProgram {
public:
    Dialogs() : ShownProgram("dialogs.exe", "Dialogs") { ::MoveWindow(Frame(), 150, 150, 460, 340, TRUE); }

    /// Opens the dialog by its letter in the menu.
    HWND Open(WORD letter, const char* title) const {
        user::Press({VK_MENU, 'D'});
        user::WaitForShown(user::drop_down_class, nullptr);
        user::Press({letter});
        const HWND dialog = WaitFor(user::dialog_class, title);
        user::WaitUntilInFront(dialog);
        return dialog;
    }
    static void Close(HWND dialog) {
        user::Press({VK_ESCAPE});
        user::WaitUntil([&] { return !::IsWindow(dialog); });
    }
    void PoseAbove(WORD letter, const char* title) const {
        const HWND dialog = Open(letter, title);
        Pose(PlaceOf(Frame()));
        Close(dialog);
    }
    /// Where the system puts it is no affair of the program's.
    void PoseAlone(WORD letter, const char* title) const {
        const HWND dialog = Open(letter, title);
        Pose(PlaceOf(dialog));
        Close(dialog);
    }
};

// A folder of texts that programs begin in, for as long as it is looked at.
class Texts {
public:
    Texts() : m_former(std::filesystem::current_path()) {
        std::filesystem::create_directory(m_folder);
        for (const char* name : {"bridge.txt", "garden.txt", "house.txt"})
            std::ofstream(m_folder / name) << "text";
        std::filesystem::current_path(m_folder);
    }
    ~Texts() {
        std::filesystem::current_path(m_former);
        std::filesystem::remove_all(m_folder);
    }
    Texts(const Texts&) = delete;
    Texts& operator=(const Texts&) = delete;

private:
    const std::filesystem::path m_former;
    const std::filesystem::path m_folder = "C:\\texts";
};

// The frame's bar begins at 2; buttons are 22 wide and the gaps 6.
constexpr int centre_button = 2 + 22 + 11;
constexpr int frame_button = 2 + 3 * 22 + 6 + 11;

}  // namespace

void ShowAlignedText() {
    const AlignedText program;
    user::Click(program.At(centre_button).x, program.At(centre_button).y);
    ::Sleep(300);
    user::Click(program.At(frame_button).x, program.At(frame_button).y);
    ::Sleep(300);
    user::MoveTo(0, 0);
    program.Pose();
}

void ShowAlignedTextTip() {
    const AlignedText program;
    user::MoveTo(program.At(frame_button).x - 1, program.At(frame_button).y);
    ::Sleep(100);
    user::MoveTo(program.At(frame_button).x, program.At(frame_button).y);
    program.WaitFor("tooltips_class32", nullptr);
    program.Pose();
}

void ShowSettings() {
    Dialogs().PoseAbove('S', "Settings");
}

void ShowQuestion() {
    Dialogs().PoseAlone('D', "Dialogs");
}

void ShowFontParts() {
    Dialogs().PoseAbove('F', "Font");
}

void ShowOpenText() {
    const Texts texts;
    Dialogs().PoseAlone('O', "Open a text");
}

}  // namespace gallery
