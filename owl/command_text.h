// owl/command_text.h
//
// What is said about a command: the string resource of its number has a sentence for the hint, and behind a
// line end a word or two for the tip:
//
//     CM_SAVE "Writes the drawing to its file\nSave"
//
// Private to the framework.
#pragma once

#include <windows.h>

#include <string>

namespace owl {

class TModule;

/// The text in front of the line end, or all of it if there is none. Empty without a module or a resource.
std::string HintText(const TModule* module, UINT command);

/// The text behind the first line end. Empty if there is none.
std::string TipText(const TModule* module, UINT command);

}  // namespace owl
