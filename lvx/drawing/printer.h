// lvx/drawing/printer.h
//
// A printer as a device: a document of pages that the host draws one by one, when it is called for them.
//
//     struct Report : LVXPrintCallbackInterface {
//         explicit Report(LVXPrinter& thePrinter) : printer(thePrinter) {}
//         void PrintPage(int page) override {
//             LVX::Port port(printer);
//             port.Open();
//             …                                // draws the page, in the printer's pixels
//         }
//         LVXPrinter& printer;
//     };
//     owl::TPrinter chosen;
//     LVXPrinter printer("Report", &chosen);
//     Report report(printer);
//     printer.setCallback(&report);
//     printer.print(window, true, 3);          // asks the user, then prints up to three pages
//
// The job owns the context: there is one from the first page that is called for to the end of the last one,
// and each page begins with the first modes and tools, so ports are opened and closed within the call.
// Neither the owl::TPrinter nor the callback is this object's; both outlive its use. For the thread that
// draws. Windows only.
#pragma once

#include <windows.h>

#include "lvx/drawing/device.h"
#include "lvx/platform/export.h"
#include "owl/geometry.h"
#include "owl/printout.h"

namespace owl {
class TPrinter;
class TWindow;
}  // namespace owl

/// Draws the pages.
class LVX_EXPORT LVXPrintCallbackInterface {
public:
    /// Page `page`, which counts from 1, is to be drawn now. What this throws ends the job and comes out of
    /// LVXPrinter::print.
    virtual void PrintPage(int page) = 0;

protected:
    LVXPrintCallbackInterface() = default;
    LVXPrintCallbackInterface(const LVXPrintCallbackInterface&) = default;
    LVXPrintCallbackInterface& operator=(const LVXPrintCallbackInterface&) = default;
    ~LVXPrintCallbackInterface() = default;
};

class LVX_EXPORT LVXPrinter : public owl::TPrintout, public LVX::Device {
public:
    /// A document of one page, without a callback. `title` is what the system's list of jobs shows; null is
    /// none. With a null `printer` each job goes to the user's default printer.
    LVXPrinter(const char* title, owl::TPrinter* printer);
    ~LVXPrinter() override;

    /// Who draws the pages from now on; null leaves them empty.
    void setCallback(LVXPrintCallbackInterface* callback);

    /// The job's context; null when none is under way.
    owl::TDC* AcquireDC() override;
    void ReleaseDC() override;

    /// How wide and high a page is, in the printer's pixels and to those that are not null; of the last job
    /// when none is under way, 0 by 0 before the first.
    void sizeOfImage(int* width, int* height);

    /// Has the callback draw the page. For TPrinter to call.
    void PrintPage(int page, owl::TRect& rect, unsigned flags) override;
    bool HasPage(int page) override;

    /// Prints `pages` pages once, or, with `prompt`, what the user chooses of them, as often as the user
    /// says; `parent` is the window that waits for it, null for none. True if the job was handed over to the
    /// system. False if it was cancelled, or failed, which the user is told in a box: the printer knows more,
    /// see TPrinter::Print. Not to be called by a callback.
    bool print(owl::TWindow* parent, bool prompt, int pages);

    /// A context to ask what the printer of now can, which the caller ends by DeleteDC; of the default one if
    /// none was chosen yet. Null if there is no such printer, or none was given to the constructor.
    HDC CreateICA() const;

private:
    owl::TPrinter* m_printer;
    int m_pageCount = 1;
    LVXPrintCallbackInterface* m_callback = nullptr;
};
