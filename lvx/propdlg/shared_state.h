// lvx/propdlg/shared_state.h
//
// What all property dialogs of the process share. For the thread of the dialogs; nothing is locked. Private
// to the library and its tests.
#pragma once

#include <windows.h>

#include <vector>

#include "lvx/platform/export.h"
#include "owl/array.h"

class TPropertyTab;

namespace lvx::propdlg {

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
    /// All strips that exist, set up or not: pumped messages may end one.
    std::vector<const TPropertyTab*> LiveTabs;
};

LVX_EXPORT SharedState& shared_state();

/// Takes a strip off the list of those set up. Nothing happens to one that is not on it.
void forget_strip(TPropertyTab* strip);

bool is_alive(const TPropertyTab* strip);

}  // namespace lvx::propdlg
