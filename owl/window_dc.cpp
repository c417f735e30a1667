#include "owl/window_dc.h"

#include "owl/last_error.h"

namespace owl {
namespace {

/// The same as GetDC, but without taking a null window for the screen.
HDC ContextOf(HWND window, const char* call, HDC (*get)(HWND)) {
    if (!window)
        throw TXGdi(FailureText(call, ERROR_INVALID_WINDOW_HANDLE), ERROR_INVALID_WINDOW_HANDLE);
    return Require<TXGdi>(call, [&] { return get(window); });
}

HDC WindowContext(HWND window) {
    return ::GetWindowDC(window);
}

HDC ClientContext(HWND window) {
    return ::GetDC(window);
}

}  // namespace

TWindowDC::TWindowDC(HWND window) : TWindowDC(window, ContextOf(window, "GetWindowDC", WindowContext)) {}

TWindowDC::TWindowDC(HWND window, HDC handle) : m_window(window) {
    SetHandle(handle);
}

TWindowDC::~TWindowDC() {
    if (const HDC handle = ReleaseHandle())
        ::ReleaseDC(m_window, handle);
}

TClientDC::TClientDC(HWND window) : TWindowDC(window, ContextOf(window, "GetDC", ClientContext)) {}

TClientDC::~TClientDC() = default;

TScreenDC::TScreenDC() : TWindowDC(nullptr, Require<TXGdi>("GetDC", [] { return ::GetDC(nullptr); })) {}

TScreenDC::~TScreenDC() = default;

TPaintDC::TPaintDC(HWND window) : m_window(window), m_paint() {
    SetHandle(Require<TXGdi>("BeginPaint", [&] { return ::BeginPaint(window, &m_paint); }));
}

TPaintDC::~TPaintDC() {
    if (ReleaseHandle())
        ::EndPaint(m_window, &m_paint);
}

}  // namespace owl
