// The example host, as its user sees it.
#include <stdexcept>
#include <string>

#include "gallery.h"
#include "support/peer_process.h"
#include "support/sketch_program.h"

namespace {

using user::Press;
using user::SketchProgram;

std::string SamplePicture(const std::string& name) {
    std::string file = std::string(LVX_SAMPLE_PICTURES) + "/" + name;
    for (char& letter : file) {
        if (letter == '/') {
            letter = '\\';
        }
    }
    return "Z:" + file;
}

// The program with a drawing that shows what it can.
class Sketch {
public:
    Sketch() : m_sketch(lvx_test::program_folder() + "sketch.exe") {
        m_sketch.ComeToFront();
        ::MoveWindow(m_sketch.Frame(), 60, 60, 680, 530, TRUE);
        DrawShapes();
        AddRose();
    }

    const SketchProgram& Program() const { return m_sketch; }
    void Show(const char* title, WORD key) const {
        Press({VK_CONTROL, key});
        m_sketch.Dialog(title);
        gallery::Pose(gallery::PlaceOf(m_sketch.Frame()));
    }

private:
    void DrawShapes() const {
        Press({VK_F3});
        m_sketch.Pull({60, 250}, {200, 380});
        SetColour("y", 1);
        Press({VK_F4});
        m_sketch.Pull({140, 290}, {300, 400});
        SetColour("s", 1);
        Press({VK_F5});
        m_sketch.ClickAt(500, 60);
        m_sketch.ClickAt(610, 120);
        m_sketch.ClickAt(580, 210);
        m_sketch.DoubleClickAt(470, 160);
        SetColour("o", 3);
    }
    void SetColour(const char* letter, int width) const {
        Press({VK_CONTROL, 'L'});
        const HWND dialog = m_sketch.Dialog("Line and Fill");
        user::Type(std::to_string(width));
        ::CheckDlgButton(dialog, IDC_FILLED, BST_CHECKED);
        Press({VK_MENU, 'O'});
        user::Type(letter);
        Press({VK_RETURN});
        m_sketch.IsGone(dialog);
    }
    // Twice: turned, and skewed by a corner.
    void AddRose() const {
        Press({VK_CONTROL, 'P'});
        m_sketch.ChooseFile("Add a Picture", SamplePicture("testorig.jpg"));
        const POINT middle = Middle();
        m_sketch.Pull(middle, {180, 140});
        Press({VK_CONTROL, 'D'});
        m_sketch.Pull({196, 156}, {430, 300});
        m_sketch.Pull({543, 225}, {613, 245});
        Press({VK_SHIFT, VK_TAB});
        Press({VK_CONTROL, VK_OEM_COMMA});
    }
    POINT Middle() const {
        RECT rect{};
        ::GetClientRect(m_sketch.View(), &rect);
        return {rect.right / 2, rect.bottom / 2};
    }

    SketchProgram m_sketch;
};

void ShowDrawing() {
    const Sketch sketch;
    gallery::Pose(gallery::PlaceOf(sketch.Program().Frame()));
}

void ShowMenu() {
    const Sketch sketch;
    Press({VK_MENU, 'D'});
    if (user::WaitForShown(user::drop_down_class, nullptr) == nullptr) {
        throw std::runtime_error("the menu does not open");
    }
    gallery::Pose(gallery::PlaceOf(sketch.Program().Frame()));
}

void ShowSkew() {
    const Sketch sketch;
    sketch.Show("Skew", 'K');
}

void ShowText() {
    const Sketch sketch;
    Press({VK_F6});
    sketch.Program().ClickAt(330, 200);
    sketch.Program().Dialog("Text");
    user::Type("Roses, one of them skewed");
    gallery::Pose(gallery::PlaceOf(sketch.Program().Frame()));
}

void ShowTurn() {
    const Sketch sketch;
    sketch.Show("Turn", 'T');
}

void ShowShapes() {
    const Sketch sketch;
    Press({VK_MENU, 'S'});
    if (user::WaitForShown(user::drop_down_class, nullptr) == nullptr) {
        throw std::runtime_error("the menu does not open");
    }
    gallery::Pose(gallery::PlaceOf(sketch.Program().Frame()));
}

// The dialog with tabs for the polygon, its page for fills; `opened` does something there.
template <class Opened>
void ShowFillPage(const Opened& opened) {
    const Sketch sketch;
    Press({VK_ESCAPE});
    sketch.Program().ClickAt(550, 150);
    Press({VK_MENU, VK_RETURN});
    const HWND dialog = sketch.Program().Dialog("Properties");
    const HWND strip = ::FindWindowExA(dialog, nullptr, "tbProperty", nullptr);
    user::ClickIn(strip, 160, 10);
    ::Sleep(300);
    opened(sketch.Program());
    gallery::Pose(gallery::PlaceOf(sketch.Program().Frame()));
}

void ShowProperties() {
    ShowFillPage([](const SketchProgram&) {});
}

void ShowColour() {
    ShowFillPage([](const SketchProgram& program) {
        Press({VK_MENU, 'R'});
        program.Dialog("Colour");
    });
}

void ShowSettings() {
    const Sketch sketch;
    sketch.Show("Settings, step 1 of 4: lines of new shapes", 'G');
}

void ShowLook() {
    const Sketch sketch;
    sketch.Show("Line and Fill", 'L');
}

}  // namespace

int main(int argc, char** argv) {
    return gallery::Run(argc, argv,
                        {
                            {"sketch", "The example host, a turned picture selected", &ShowDrawing},
                            {"sketch-menu", "Its menu of tools", &ShowMenu},
                            {"sketch-skew", "Its dialog to skew a picture", &ShowSkew},
                            {"sketch-look", "Its dialog for lines and fills", &ShowLook},
                            {"sketch-properties", "Its properties, with tabs", &ShowProperties},
                            {"sketch-colour", "A colour of one's own", &ShowColour},
                            {"sketch-settings", "Its settings, step by step", &ShowSettings},
                            {"sketch-text", "Its dialog for words", &ShowText},
                            {"sketch-turn", "Its dialog to turn a picture", &ShowTurn},
                            {"sketch-shapes", "Its menu of the shapes that there are", &ShowShapes},
                        });
}
