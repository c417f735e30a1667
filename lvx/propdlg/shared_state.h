// lvx/propdlg/shared_state.h
//
// What all property dialogs of the process share. For the thread of the dialogs; nothing is locked. Private
// to the library and its tests.
#pragma once

#include <windows.h>

#include <vector>

#include "lvx/platform/export.h"
#include "owl/array.h"

class LVXPropertyPage;
class TPropertyTab;

namespace lvx::propdlg {

/// A key as the keyboard hook gets it.
struct KeyEvent {
    WPARAM key = 0;
    LPARAM flags = 0;

    bool isUnderWay() const { return key != 0; }
    /// Whether the key goes down, or is held down, and not up.
    bool isPress() const { return (HIWORD(static_cast<DWORD>(flags)) & KF_UP) == 0; }
    /// Whether it has been down before.
    bool isHeld() const { return (HIWORD(static_cast<DWORD>(flags)) & KF_REPEAT) != 0; }
    bool operator==(const KeyEvent&) const = default;
};

/// A change of tab by a key, while it is under way.
struct Stepping {
    /// None has the number 0.
    KeyEvent key;
    /// Whether the system may bring that key once more.
    bool comesAgain = false;
    /// Steps that were asked for meanwhile; backward below 0.
    int waiting = 0;
};

struct SharedState {
    /// The strips of all dialogs that are set up.
    owl::TArrayAsVector<TPropertyTab*> PropertyTabs{4, 0, 5};
    /// The keyboard hook, while there is one.
    HHOOK HookHandle = nullptr;
    HINSTANCE HookInstance = nullptr;
    /// Whether the system draws dialogs in relief.
    bool ModernShell = false;
    /// Set by the first change of tab in the process, and never cleared.
    bool FirstChangeDone = false;
    Stepping Step;
    /// The key that changed the tab last, until another one comes: it is still on its way to a window.
    KeyEvent SteppedKey;
    /// The page that hands a command on to its dialog just now; null if none does.
    const LVXPropertyPage* ForwardingPage = nullptr;
    /// All strips that exist, set up or not: pumped messages may end one.
    std::vector<const TPropertyTab*> LiveTabs;
};

LVX_EXPORT SharedState& shared_state();

/// Takes a strip off the list of those set up. Nothing happens to one that is not on it.
void forget_strip(TPropertyTab* strip);

bool is_alive(const TPropertyTab* strip);

}  // namespace lvx::propdlg
