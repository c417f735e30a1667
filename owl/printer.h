// owl/printer.h
//
// A printer: which one and how it is set up, and the way of a printout to it.
//
//     owl::TPrinter printer;
//     Drawing drawing("Sketch");               // a TPrintout
//     printer.Print(this, drawing, true);
//
// While a job is printed, its parent takes no input, and a small dialog shows the pages and can cancel; other
// windows get their messages. Owns the settings, and of a job the context; a printout is the caller's. Used
// on one thread.
#pragma once

#include <windows.h>

// Defines SetPrinter as a macro: with it here, the function below has one name wherever it is used.
#include <winspool.h>

#include <memory>
#include <string>

#include "owl/platform/export.h"
#include "owl/print_dialog.h"

namespace owl {

class PrintAbortDialog;
class TApplication;
class TPrintDC;
class TPrintout;

class OWL_EXPORT TPrinter {
public:
    /// The user's default printer, which is asked for when it is first needed. The name of `application`, if
    /// that is not null, is the caption of what ReportError shows.
    explicit TPrinter(TApplication* application = nullptr);
    virtual ~TPrinter();
    TPrinter(const TPrinter&) = delete;
    TPrinter& operator=(const TPrinter&) = delete;

    /// What the dialogs begin with, and what was chosen last. Copies are made here, page by page, not by the
    /// printer. With PD_PRINTTOFILE in the flags jobs go to the file GetOutputName names; "FILE:" asks the
    /// user for one.
    TPrintDialog::TData& GetSetup() { return m_setup; }
    const TPrintDialog::TData& GetSetup() const { return m_setup; }
    /// Another printer, with its own settings. Null texts are empty ones; without a device it is the default
    /// printer again.
    void SetPrinter(const char* driver, const char* device, const char* output);
    /// The default printer again.
    void ClearDevice();

    /// Lets the user choose a printer and set it up. False if it was cancelled. Throws TXCommonDialog, also
    /// if there is no printer.
    virtual bool Setup(TWindow* parent);

    /// Prints; with `prompt` asks the user first. Without it, or when the user asked for all: the pages from
    /// MinPage to MaxPage, or from page 1 on if those are 0; with PD_PAGENUMS in the flags from FromPage to
    /// ToPage; always as far as the printout has them. True if the job was handed over to the system, or if
    /// the printout had none of the pages. False if it was cancelled or failed; GetError then tells which,
    /// and of a failure ReportError is called after all is cleaned up. Throws what the printout or a handler
    /// throws, with the job given up; TXOwl if a job of this printer is under way.
    virtual bool Print(TWindow* parent, TPrintout& printout, bool prompt);

    /// Of the last job: 0, or SP_USERABORT if it was cancelled, or one of the other SP_ numbers, which are
    /// below 0, or a number of TXCommonDialog, which are above.
    int GetError() const { return m_error; }
    /// Why it failed, in words. Empty if it did not.
    const std::string& GetErrorText() const { return m_errorText; }
    /// Whether the job that is printed has been cancelled; a printout that takes long may ask.
    bool GetUserAbort() const { return m_userAbort; }
    /// Cancels the job that is printed, before its next page.
    void SetUserAbort(bool abort = true) { m_userAbort = abort; }

    /// Tells the user that `printout` was not printed, and why. By itself in a box.
    virtual void ReportError(TWindow* parent, TPrintout& printout);

protected:
    /// Shows the dialog for printing, or, with PD_PRINTSETUP in its flags, for setting up. Whether the user
    /// agreed.
    virtual bool ExecPrintDialog(TWindow* parent, TPrintDialog::TData& data);

private:
    struct Order;

    bool Prepare(TWindow* parent, TPrintout& printout, bool prompt, Order& order);
    bool AskUser(TWindow* parent, Order& order);
    void Keep(const TPrintDialog::TData& data);
    bool RunJob(TWindow* parent, TPrintout& printout, const Order& order);
    std::unique_ptr<TPrintDC> MakeContext(const TPrintDialog::TData& data);
    bool GoOn(PrintAbortDialog& dialog, int page);
    bool Fail(int error, const std::string& text);

    TApplication* m_application;
    TPrintDialog::TData m_setup;
    bool m_busy = false;
    bool m_userAbort = false;
    int m_error = 0;
    std::string m_errorText;
};

}  // namespace owl
