// lvx/text/report.h
//
// How a host tells of failures: an error box, the log file, and the fatal stop. The three take a printf
// format and its arguments, and stand at global scope. The library reports by exception and calls none of
// them on its own account. Do not: lock anything, add the time, a level or a line end to a text, or report
// failures of their own.
#pragma once

#include "lvx/platform/export.h"
#include "lvx/platform/printf_format.h"

namespace owl {
class TWindow;
}

/// Shows the text in an error box and waits for the user, on the thread of the main window. With a null
/// `window` the box has no owner and the caption "Error". Otherwise the main window comes to the front, the
/// box belongs to `window` and bears the name of its application's module, and when it closes, the foreground
/// window of before returns to the front if it is still there. A window that was not created owns no box; an
/// application without a main window brings none to the front; without an application the caption is "Error".
/// The text is cut behind 4095 bytes. What ends while the box is open, `window` among it, is not touched any
/// more. Requires: a format. Stands in the Windows library only.
LVX_EXPORT void report_error(owl::TWindow* window, const char* format, ...) LVX_PRINTF_FORMAT(2, 3);

/// Appends the text, as it is, to the file "LOGFILE.LOG" in the current directory of the moment, and closes
/// the file, so that the record survives a crash. The first call of a process throws away what the file held.
/// If the file cannot be opened the text is lost in silence; when that happens to the first call, later ones
/// append to the file that they find. Requires: a format.
LVX_EXPORT void write_log(const char* format, ...) LVX_PRINTF_FORMAT(1, 2);

/// Shows the text, below a line "FATAL ERROR!", as report_error() does without a window, and ends the process
/// through abort(). Asks for no memory of its own: that may be what ran out. Requires: a format. Stands in
/// the Windows library only.
[[noreturn]] LVX_EXPORT void fatal_error(const char* format, ...) LVX_PRINTF_FORMAT(1, 2);
