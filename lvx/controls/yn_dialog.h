// lvx/controls/yn_dialog.h
//
// A question to the user that is answered by yes, no or, if that is allowed, cancel.
//
//     if (ynDialog::dialog(this, false, yesNoCancel::no, "Delete %d figures?", count) == yesNoCancel::yes)
//         Delete();
//
// The box is the system's, with an exclamation mark, and waits for the user on the caller's thread while the
// program handles messages. Windows only.
#pragma once

#include <windows.h>

#include "lvx/platform/export.h"
#include "lvx/platform/printf_format.h"

namespace owl {
class TWindow;
}

/// The answers; their values are those of the system's buttons.
enum class yesNoCancel { cancel = IDCANCEL, yes = IDYES, no = IDNO };

class LVX_EXPORT ynDialog {
public:
    ynDialog() = delete;

    /// Asks the question that the printf `format` and its arguments make; it is cut behind 399 bytes. The
    /// box belongs to `parent`, or to nobody if that is null or has no window, and its caption is the name of
    /// the application, or without one that of the program.
    ///
    /// `defaultAnswer` is what the Enter key gives; with yesNoCancel::cancel there is a Cancel button
    /// whatever `allowCancel` says. Cancel is also the answer when the box cannot be shown. Requires: a
    /// format.
    static yesNoCancel dialog(owl::TWindow* parent, bool allowCancel, yesNoCancel defaultAnswer,
                              const char* format, ...) LVX_PRINTF_FORMAT(4, 5);
};
