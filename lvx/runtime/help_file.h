// lvx/runtime/help_file.h
//
// A file of compiled help (.chm), shown by the system's help control, HHCTRL.OCX. Owns the loaded control and
// borrows the window, which has to live longer than the last call. For the thread of that window.
//
//     LVXHelpFile help(this, "Sketch.chm");
//     help.DisplayContents("pens.htm");
//
// The object has to live as long as help windows may be open: the control goes with it, and their code is
// part of the control. Does not: open the file, or tell whether the control found what it was asked for; the
// control tells the user. Windows only.
#pragma once

#include <windows.h>

#include <string>

#include "lvx/platform/export.h"

namespace owl {
class TWindow;
}

class LVX_EXPORT LVXHelpFile {
public:
    /// Loads the control. `window` is the owner of the help windows; null and one without a window of the
    /// system mean none. A null `fileName` is an empty one. Throws lvx::runtime_error "Failed to load
    /// HHCTRL.OCX.", with the system's code and text in further lines, if there is no control. One that lacks
    /// its function is no error: ask Valid.
    LVXHelpFile(owl::TWindow* window, const char* fileName);
    LVXHelpFile(const LVXHelpFile&) = delete;
    LVXHelpFile& operator=(const LVXHelpFile&) = delete;
    /// Lets go of the control.
    ~LVXHelpFile();

    /// Whether help can be shown. If not, the operations below do nothing.
    bool Valid() const { return m_htmlHelp != nullptr; }

    /// Shows the page `topic` of the file in a help window; null shows the page that the file opens with.
    void DisplayContents(const char* topic);

    /// Shows the help text of `window`, a control, in a box beside it. `stream` names the file of texts
    /// within the help file, such as "controls.txt"; null is an empty name. `idPairs` are the id of a control
    /// and that of its text in turn, and two zeros at the end.
    void DisplayTextPopup(HWND window, const char* stream, unsigned long* idPairs);

private:
    using HelpFunction = HWND(WINAPI*)(HWND caller, const char* file, UINT command, DWORD_PTR data);

    owl::TWindow* m_window;
    std::string m_fileName;
    HMODULE m_module = nullptr;
    HelpFunction m_htmlHelp = nullptr;
};
