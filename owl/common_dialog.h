// owl/common_dialog.h
//
// A dialog that the system brings: for files, fonts, printers. The system makes its window and runs it; the
// object stands for that window as for any other dialog: SetupWindow is called when the controls are there,
// messages come through the response tables, and control objects take over controls by their ids.
//
// It is run by Execute and not otherwise. What is different from dialogs of one's own, because the loop is
// the system's: nothing is idle and PreProcessMsg is not asked meanwhile, Paint is not called, EndModal does
// nothing. When a handler of the dialog or of a control throws, the tables are asked no more, the dialog is
// cancelled, and Execute throws on; what handlers of other windows throw meanwhile waits for the end of the
// dialog.
//
// What a function of the tables answers, the system's dialog does not see, unless the function calls
// DefaultProcessing.
#pragma once

#include <windows.h>

#include <cderr.h>
#include <commdlg.h>

#include <functional>

#include "owl/dialog.h"
#include "owl/error.h"

namespace owl {

/// The system could not show its dialog. GetCode tells its number for the reason: CDERR_, FNERR_, PDERR_.
class OWL_EXPORT TXCommonDialog : public TXWindow {
public:
    TXCommonDialog(const char* call, unsigned long code);
    TXCommonDialog(const TXCommonDialog&) = default;
    TXCommonDialog& operator=(const TXCommonDialog&) = default;
    ~TXCommonDialog() override;
};

class OWL_EXPORT TCommonDialog : public TDialog {
public:
    /// A null or empty `title` leaves the system's. `module` is where templates come from.
    explicit TCommonDialog(TWindow* parent, const char* title = nullptr, TModule* module = nullptr);
    ~TCommonDialog() override;

    /// Throws TXWindow: there is no such dialog without a mode.
    bool Create() override;
    /// With IDOK presses the dialog's OK button if CanClose agrees, having read the controls into the
    /// transfer buffer; the dialog stays open if the system is not content. With anything else presses Cancel
    /// if CanClose agrees.
    void CloseWindow(int retVal = IDCANCEL) override;
    /// Presses Cancel, whatever `retVal` is.
    void Destroy(int retVal = 0) override;

    /// What the OK button does: CloseWindow(IDOK). In a dialog for files it comes as well when the system is
    /// about to open a folder only.
    void CmOk();
    /// What the Cancel button, the Escape key and the close box do: Destroy().
    void CmCancel();
    /// The system paints its dialogs.
    void EvPaint();

    LRESULT WindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override;

protected:
    /// Runs `show`, which makes the one `call` that shows the dialog, with HookProcedure or a hook that calls
    /// TakeOver. IDOK or IDCANCEL. Throws what a handler threw, or TXCommonDialog; `error` is then its code,
    /// else 0.
    int RunDialog(const char* call, DWORD& error, const std::function<bool()>& show);
    /// The hook for dialogs whose first message is WM_INITDIALOG.
    static UINT_PTR CALLBACK HookProcedure(HWND dialog, UINT msg, WPARAM wParam, LPARAM lParam);
    /// The dialog that the innermost RunDialog of this thread waits for; null when its window is known.
    static TCommonDialog* Awaited();
    /// Stands behind `dialog` from now on and sets itself up. True lets the system set the focus.
    bool TakeOver(HWND dialog, WPARAM focus, LPARAM lParam);
    /// Calls no more handlers and cancels the dialog.
    void ExceptionCarried() override;
    bool HasGivenUp() const { return m_givenUp; }
    /// The window of the parent, or null.
    HWND GetOwnerHandle() const;

    void PerformCreate() override;

private:
    void Press(int id);

    bool m_givenUp = false;

    DECLARE_RESPONSE_TABLE(TCommonDialog);
};

}  // namespace owl
