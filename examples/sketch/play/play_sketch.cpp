// Uses sketch.exe as a person does, by keys and mouse, for ./dev run where nobody sits at the screen: opens a
// document of pictures, turns, skews, draws, writes, copies, shows its dialogs, saves, and opens what was
// saved.
//
// usage: play_sketch DOCUMENT SAVED     reads DOCUMENT, writes SAVED
//
// At each picture worth taking prints "shoot NAME LEFT TOP RIGHT BOTTOM" and waits for a line. Exits with 1
// if something does not go as it should, with a line on standard error.
#include <iostream>
#include <stdexcept>
#include <string>

#include "support/peer_process.h"
#include "support/sketch_program.h"

namespace {

using user::Press;

void Check(bool isRight, const std::string& what) {
    if (!isRight) {
        throw std::runtime_error(what);
    }
}

void Shoot(const std::string& name, HWND window) {
    // What was asked to be painted is painted.
    ::Sleep(400);
    RECT place{};
    ::GetWindowRect(window, &place);
    std::cout << "shoot " << name << ' ' << place.left << ' ' << place.top << ' ' << place.right << ' '
              << place.bottom << std::endl;
    std::string line;
    std::getline(std::cin, line);
}

class Play {
public:
    Play(const std::string& document, std::string saved)
        : m_sketch(lvx_test::program_folder() + "sketch.exe", document), m_saved(std::move(saved)) {
        Check(m_sketch.ComeToFront(), "sketch.exe does not come to the front");
        ::MoveWindow(m_sketch.Frame(), 20, 20, 900, 640, TRUE);
    }

    void Run() {
        Shoot("1-opened", m_sketch.Frame());
        TurnAPicture();
        SkewAPicture();
        Shoot("4-menu", OpenMenu());
        CloseMenu();
        DrawShapes();
        Write();
        CopyAShape();
        ShowTheLookOfShapes();
        ShowProperties();
        ShowSettings();
        Save();
        Reopen();
        Leave();
    }

private:
    // The second of three pictures that lie side by side.
    void TurnAPicture() {
        Press({VK_TAB});
        Press({VK_TAB});
        Press({VK_CONTROL, 'T'});
        const HWND dialog = m_sketch.Dialog("Turn");
        Shoot("2-turn", m_sketch.Frame());
        Press({VK_RETURN});
        Check(m_sketch.IsGone(dialog), "the dialog does not close");
        Check(m_sketch.ShowsStatus("Picture \"testorig\", 227 x 149, turned by 30 degrees to the left"),
              "nothing was turned: " + m_sketch.Status());
        // Out of the third one's way.
        m_sketch.Pull({280, 100}, {250, 130});
    }

    // The third: its upper right corner is pulled.
    void SkewAPicture() {
        Press({VK_TAB});
        m_sketch.Pull({653, 24}, {733, 64});
        Check(m_sketch.ShowsStatus("Picture \"testimgint\", 227 x 149, skewed by 80, 40"),
              "nothing was skewed: " + m_sketch.Status());
        Shoot("3-skewed", m_sketch.Frame());
    }

    void DrawShapes() {
        Press({VK_F3});
        m_sketch.Pull({60, 260}, {220, 360});
        SetLook("Yellow");
        Press({VK_F4});
        m_sketch.Pull({180, 300}, {330, 430});
        SetLook("Sky");
        Press({VK_F5});
        m_sketch.ClickAt(420, 280);
        m_sketch.ClickAt(560, 330);
        m_sketch.ClickAt(500, 450);
        m_sketch.DoubleClickAt(400, 400);
        Check(m_sketch.ShowsStatus("Polygon of 4 corners"), "there is no polygon: " + m_sketch.Status());
    }

    void Write() {
        Press({VK_F6});
        m_sketch.ClickAt(620, 300);
        const HWND dialog = m_sketch.Dialog("Text");
        user::Type("Good day");
        Shoot("5-words", m_sketch.Frame());
        Press({VK_RETURN});
        Check(m_sketch.IsGone(dialog), "the dialog does not close");
        Check(m_sketch.ShowsStatus("Text \"Good day\", Arial, 18 points"),
              "nothing was written: " + m_sketch.Status());
    }

    // Through the clipboard.
    void CopyAShape() {
        Press({VK_SHIFT, VK_TAB});
        Press({VK_CONTROL, 'C'});
        Press({VK_CONTROL, 'V'});
        m_sketch.Pull({500, 370}, {700, 390});
        Check(m_sketch.ShowsStatus("Polygon of 4 corners"), "nothing was pasted: " + m_sketch.Status());
    }

    void ShowProperties() { ShowDialog({VK_MENU, VK_RETURN}, "Properties", "7-properties"); }
    void ShowSettings() {
        ShowDialog({VK_CONTROL, 'G'}, "Settings, step 1 of 4: lines of new shapes", "8-settings");
    }

    void SetLook(const char* colour) {
        Press({VK_CONTROL, 'L'});
        const HWND dialog = m_sketch.Dialog("Line and Fill");
        ::CheckDlgButton(dialog, IDC_FILLED, BST_CHECKED);
        ::SetFocus(dialog);
        Press({VK_MENU, 'O'});
        user::Type(std::string(1, colour[0]));
        if (std::string(colour) == "Sky") {
            Press({VK_END});
        }
        Press({VK_RETURN});
        Check(m_sketch.IsGone(dialog), "the dialog does not close");
    }

    HWND OpenMenu() const {
        Press({VK_MENU, 'P'});
        Check(user::WaitForShown(user::drop_down_class, nullptr) != nullptr, "the menu does not open");
        return m_sketch.Frame();
    }
    void CloseMenu() const {
        Press({VK_ESCAPE});
        Press({VK_ESCAPE});
        Check(user::WaitUntil([] { return user::FindShown(user::drop_down_class, nullptr) == nullptr; }),
              "the menu does not close");
    }

    void ShowTheLookOfShapes() { ShowDialog({VK_CONTROL, 'L'}, "Line and Fill", "6-line-and-fill"); }
    void ShowDialog(std::initializer_list<WORD> keys, const char* title, const char* picture) {
        Press(keys);
        const HWND dialog = m_sketch.Dialog(title);
        Shoot(picture, m_sketch.Frame());
        Press({VK_ESCAPE});
        Check(m_sketch.IsGone(dialog), "the dialog does not close");
    }

    void Save() {
        Check(m_sketch.SaveAs(m_saved), "the dialog does not close");
        Check(m_sketch.ShowsTitle(Name() + " - Sketch"), "it is not saved: " + m_sketch.Title());
    }

    void Reopen() {
        Press({VK_CONTROL, 'N'});
        Check(m_sketch.ShowsTitle("Untitled - Sketch"), "it is not a new one: " + m_sketch.Title());
        Press({VK_CONTROL, 'O'});
        Check(m_sketch.ChooseFile("Open", m_saved), "the dialog does not close");
        Check(m_sketch.ShowsTitle(Name() + " - Sketch"), "it is not opened: " + m_sketch.Title());
        Shoot("9-reopened", m_sketch.Frame());
    }

    void Leave() {
        Press({VK_MENU, VK_F4});
        Check(m_sketch.Process().WaitForEnd() == 0, "sketch.exe does not end well");
    }

    std::string Name() const { return m_saved.substr(m_saved.find_last_of('\\') + 1); }

    user::SketchProgram m_sketch;
    std::string m_saved;
};

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: play_sketch DOCUMENT SAVED\n";
        return 2;
    }
    try {
        Play(argv[1], argv[2]).Run();
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "play_sketch: " << error.what() << '\n';
        return 1;
    }
}
