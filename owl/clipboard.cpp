#include "owl/clipboard.h"

#include "owl/last_error.h"

namespace owl {

TClipboard::TClipboard(HWND window, bool mustOpen) : m_open(::OpenClipboard(window) != FALSE) {
    if (!m_open && mustOpen)
        ThrowLastError<TXWindow>("OpenClipboard");
}

TClipboard::~TClipboard() {
    CloseClipboard();
}

void TClipboard::CloseClipboard() {
    if (m_open)
        ::CloseClipboard();
    m_open = false;
}

void TClipboard::EmptyClipboard() {
    Require<TXWindow>("EmptyClipboard", [] { return ::EmptyClipboard(); });
}

bool TClipboard::IsClipboardFormatAvailable(unsigned int format) {
    return ::IsClipboardFormatAvailable(format) != FALSE;
}

HANDLE TClipboard::GetClipboardData(unsigned int format) const {
    return m_open ? ::GetClipboardData(format) : nullptr;
}

HANDLE TClipboard::RequireClipboardData(unsigned int format) const {
    return Require<TXWindow>("GetClipboardData", [&] { return GetClipboardData(format); });
}

void TClipboard::SetClipboardData(unsigned int format, HANDLE data) {
    // Asked in vain, some systems keep a bitmap all the same.
    if (!m_open)
        throw TXWindow(FailureText("SetClipboardData", ERROR_CLIPBOARD_NOT_OPEN), ERROR_CLIPBOARD_NOT_OPEN);
    Require<TXWindow>("SetClipboardData", [&] { return ::SetClipboardData(format, data); });
}

unsigned int TClipboard::RegisterClipboardFormat(const char* name) {
    return Require<TXWindow>("RegisterClipboardFormat", [&] { return ::RegisterClipboardFormat(name); });
}

}  // namespace owl
