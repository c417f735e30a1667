// The drawing on paper.
#pragma once

#include "owl/printer.h"
#include "sketch/model/figure.h"

namespace sketch {

/// Prints `figures` on a page, in their own size, 96 pixels to the inch, or smaller if the page is; the
/// corner of the sheet is that of the page. Asks the user first, and tells what fails. `title` is for the
/// list of jobs.
void PrintFigures(owl::TWindow& parent, owl::TPrinter& printer, const std::string& title,
                  const Figures& figures);

/// Likewise on the user's default printer, without a word to the user. False if that fails.
bool PrintQuietly(owl::TWindow& parent, const std::string& title, const Figures& figures);

}  // namespace sketch
