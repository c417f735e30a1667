// lvx/propdlg/tab_key.h
//
// Where Tab and Shift+Tab lead in a property dialog, where they cross from one of its three parts to another:
// the strip, the page, and the dialog's own controls. Within a part the system's dialog manager does the
// work. Values, no window in them. Private to the library.
#pragma once

namespace lvx::propdlg {

/// Whose control has the focus.
enum class KeyOwner { Other, Page, Dialog };

/// Where the focus is, and what the dialog manager would make of the key.
struct TabKeyPlace {
    KeyOwner owner = KeyOwner::Other;
    bool forward = true;
    /// In a dialog: whether it has a strip, whether that has the focus, and which tab stop comes next.
    bool hasStrip = false;
    bool onStrip = false;
    bool nextIsStrip = false;
    bool nextIsFocus = false;
    /// In a page: whether the focus is on its last tab stop, or, going backward, on its first.
    bool onEdge = false;
};

/// What the key does; Nothing leaves it to the dialog manager.
enum class TabKeyMove { Nothing, IntoPageFirst, IntoPageLast, ToStrip, BehindStrip };

TabKeyMove move_by_tab_key(const TabKeyPlace& place);

}  // namespace lvx::propdlg
