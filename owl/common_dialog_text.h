// owl/common_dialog_text.h
//
// Why the system did not show one of its dialogs, in words. Private to the framework.
#pragma once

#include <string>

namespace owl {

/// The reason behind a number of CommDlgExtendedError; "error " and the number in hexadecimal digits for one
/// that is not known.
std::string CommonDialogText(unsigned long code);

}  // namespace owl
