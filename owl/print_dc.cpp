#include "owl/print_dc.h"

#include "owl/last_error.h"

namespace owl {

TPrintDC::TPrintDC(const char* driver, const char* device, const char* output, const DEVMODE* settings)
    : m_owner(true) {
    SetHandle(Require<TXGdi>("CreateDC", [&] { return ::CreateDC(driver, device, output, settings); }));
}

TPrintDC::TPrintDC(HDC handle, TAutoDelete autoDelete) : TDC(handle), m_owner(autoDelete == AutoDelete) {}

TPrintDC::~TPrintDC() {
    const HDC handle = ReleaseHandle();
    if (m_owner && handle)
        ::DeleteDC(handle);
}

int TPrintDC::StartDoc(const char* title, const char* output) {
    DOCINFO document{};
    document.cbSize = sizeof document;
    document.lpszDocName = title;
    document.lpszOutput = output;
    return ::StartDoc(GetHDC(), &document);
}

int TPrintDC::EndDoc() {
    return ::EndDoc(GetHDC());
}

int TPrintDC::AbortDoc() {
    return ::AbortDoc(GetHDC());
}

int TPrintDC::StartPage() {
    return ::StartPage(GetHDC());
}

int TPrintDC::EndPage() {
    return ::EndPage(GetHDC());
}

int TPrintDC::SetAbortProc(ABORTPROC procedure) {
    return ::SetAbortProc(GetHDC(), procedure);
}

TIC::TIC(const char* driver, const char* device, const char* output, const DEVMODE* settings) {
    SetHandle(Require<TXGdi>("CreateIC", [&] { return ::CreateIC(driver, device, output, settings); }));
}

TIC::~TIC() {
    if (const HDC handle = ReleaseHandle())
        ::DeleteDC(handle);
}

}  // namespace owl
