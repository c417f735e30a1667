// owl/print_dc.h
//
// The contexts of printers: TPrintDC to print on, TIC to ask for what a device can. Windows only.
#pragma once

#include "owl/auto_delete.h"
#include "owl/dc.h"

namespace owl {

class OWL_EXPORT TPrintDC : public TDC {
public:
    /// By the names of its driver and device as the system lists them, such as "winspool" and "Laser";
    /// `output` and `settings` may be null. Throws TXGdi if there is no such printer.
    TPrintDC(const char* driver, const char* device, const char* output, const DEVMODE* settings);
    /// On a context that exists, such as the print dialog's. Throws TXGdi if it is null.
    explicit TPrintDC(HDC handle, TAutoDelete autoDelete);
    ~TPrintDC() override;

    /// Begins a document of that title, printed to a file if `output` is not null. Its number; 0 or less if
    /// that failed.
    int StartDoc(const char* title, const char* output = nullptr);
    /// Ends the document and lets it be printed. 0 or less if that failed, as do those that follow.
    int EndDoc();
    /// Gives the document up.
    int AbortDoc();
    /// Begins a page; all modes are then the first ones again.
    int StartPage();
    int EndPage();
    /// Sets who is asked from time to time whether to go on.
    int SetAbortProc(ABORTPROC procedure);

private:
    bool m_owner;
};

/// A context to ask, not to draw on. The names are as above.
class OWL_EXPORT TIC : public TDC {
public:
    TIC(const char* driver, const char* device, const char* output, const DEVMODE* settings);
    ~TIC() override;
};

}  // namespace owl
