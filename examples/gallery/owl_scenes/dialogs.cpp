#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>

#include "gallery.h"
#include "owl/application.h"
#include "owl/choose_font_dialog.h"
#include "owl/frame_window.h"
#include "owl/open_save_dialog.h"
#include "owl/printer.h"
#include "owl/printout.h"
#include "scenes.h"
#include "support/user.h"
#include "tests/owl/test_printer.h"

namespace gallery {

namespace {

// Poses the window of that title when it is in front, and cancels it. Another thread: the windows of this one
// are painted meanwhile.
class PosedInFront {
public:
    explicit PosedInFront(const char* title) : m_thread([title] { Show(title); }) {}
    ~PosedInFront() { m_thread.join(); }
    PosedInFront(const PosedInFront&) = delete;
    PosedInFront& operator=(const PosedInFront&) = delete;

private:
    // A dialog that did not come would be waited for without end.
    static void Show(const char* title) {
        const HWND window = user::WaitForShown(nullptr, title);
        if (window == nullptr || !user::WaitUntilInFront(window))
            std::_Exit(1);
        Pose(PlaceOf(window));
        ::PostMessageA(window, WM_CLOSE, 0, 0);
    }

    std::thread m_thread;
};

// A program with its main window.
struct Program {
    Program() : application("gallery"), frame(new owl::TFrameWindow(nullptr, "Sketch")) {
        application.SetMainWindow(frame);
        application.InitInstance();
    }

    owl::TApplication application;
    owl::TFrameWindow* frame;
};

// A folder of drawings, for as long as it is looked at.
class Drawings {
public:
    Drawings() {
        std::filesystem::create_directory(m_folder);
        for (const char* name : {"bridge.drw", "garden.drw", "house.drw"})
            std::ofstream(m_folder / name) << "drawing";
    }
    ~Drawings() { std::filesystem::remove_all(m_folder); }
    Drawings(const Drawings&) = delete;
    Drawings& operator=(const Drawings&) = delete;

    std::string Path() const { return m_folder.string(); }

private:
    const std::filesystem::path m_folder = "C:\\drawings";
};

// The default printer, for as long as it is looked at.
struct InstalledPrinter {
    explicit InstalledPrinter(const std::string& port) : printer(port) {}

    owl_test::TestPrinter printer;
    owl_test::DefaultPrinter isDefault{owl_test::TestPrinter::name};
};

// Prints one page for as long as nobody cancels.
class Endless : public owl::TPrintout {
public:
    Endless(owl::TPrinter& printer, owl::TApplication& application)
        : TPrintout("garden.drw"), m_printer(printer), m_application(application) {}

    void PrintPage(int, owl::TRect&, unsigned) override {
        while (!m_printer.GetUserAbort()) {
            ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 100, QS_ALLINPUT);
            m_application.PumpWaitingMessages();
        }
    }

private:
    owl::TPrinter& m_printer;
    owl::TApplication& m_application;
};

}  // namespace

void ShowOpenDialog() {
    const Drawings drawings;
    Program program;
    owl::TOpenSaveDialog::TData data(OFN_EXPLORER | OFN_ENABLESIZING | OFN_HIDEREADONLY | OFN_NOCHANGEDIR,
                                     "Drawings (*.drw)|*.drw|All files|*.*");
    data.InitialDir = drawings.Path();
    data.FileName = "garden.drw";
    const PosedInFront posed("Open a drawing");
    owl::TFileOpenDialog(program.frame, data, owl::TResId(), "Open a drawing").Execute();
}

void ShowFontDialog() {
    Program program;
    owl::TChooseFontDialog::TData data;
    data.Flags = CF_SCREENFONTS | CF_EFFECTS | CF_INITTOLOGFONTSTRUCT;
    std::strcpy(data.LogFont.lfFaceName, "Times New Roman");
    data.LogFont.lfHeight = -24;
    data.LogFont.lfItalic = TRUE;
    const PosedInFront posed("Font");
    owl::TChooseFontDialog(program.frame, data).Execute();
}

void ShowPrintDialog() {
    const InstalledPrinter installed("FILE:");
    Program program;
    owl::TPrintDialog::TData data;
    data.Flags = PD_NOSELECTION;
    data.MinPage = data.FromPage = 1;
    data.MaxPage = data.ToPage = 12;
    const PosedInFront posed("Print");
    owl::TPrintDialog(program.frame, data).Execute();
}

void ShowPrinting() {
    const InstalledPrinter installed("/dev/null");
    Program program;
    owl::TPrinter printer;
    Endless printout(printer, program.application);
    const PosedInFront posed("Printing");
    printer.Print(program.frame, printout, false);
}

}  // namespace gallery
