// owl/clipboard.h
//
// The system's clipboard, open from the construction of this object to its end: no other program can use it
// meanwhile, so the object should live shortly. Windows only.
#pragma once

#include <windows.h>

#include "owl/platform/export.h"

namespace owl {

class OWL_EXPORT TClipboard {
public:
    /// Opens the clipboard for `window`, which may be null if nothing is to be put on it. If another program
    /// has it open: throws TXWindow, or, unless `mustOpen`, leaves this object closed.
    explicit TClipboard(HWND window, bool mustOpen = true);
    /// Closes it.
    ~TClipboard();
    TClipboard(const TClipboard&) = delete;
    TClipboard& operator=(const TClipboard&) = delete;

    bool IsOpen() const { return m_open; }
    /// Closes the clipboard before the object ends. Nothing happens if it is not open.
    void CloseClipboard();

    /// Takes everything off and makes the window the owner. Throws TXWindow if the clipboard is not open.
    void EmptyClipboard();
    /// Whether something lies there in that format, or can be made of it. The clipboard need not be open.
    static bool IsClipboardFormatAvailable(unsigned int format);
    /// What lies there; it stays the clipboard's, and is good until that is closed. Null if there is nothing.
    HANDLE GetClipboardData(unsigned int format) const;
    /// The same; throws TXWindow if there is nothing.
    HANDLE RequireClipboardData(unsigned int format) const;
    /// Hands `data`, which is not null, over. Throws TXWindow if the clipboard refuses it; `data` is then
    /// still the caller's.
    void SetClipboardData(unsigned int format, HANDLE data);

    /// The number of a format by its name, the same for all programs that ask. Throws TXWindow if `name` is
    /// empty.
    static unsigned int RegisterClipboardFormat(const char* name);

private:
    bool m_open;
};

}  // namespace owl
