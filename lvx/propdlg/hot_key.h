// lvx/propdlg/hot_key.h
//
// Hot keys: the letters that a text marks with an ampersand, and the key that is held down. Private to the
// library.
#pragma once

#include <windows.h>

#include <string>

namespace lvx::propdlg {

/// The character behind the first ampersand of `text` that is not one of a pair, in upper case; 0 if there is
/// none.
char hot_key_of(const std::string& text);

/// `text` as it is shown: without the marks of hot keys, on one line.
std::string shown_text(const std::string& text);

/// The character of a key that is held down just now, Alt aside, in upper case; 0 if no such key has one.
char pressed_key();

/// The text of a control, at most 100 characters of it.
std::string text_of_control(HWND control);

/// Whether the dialog manager has something to do for Alt and `key` in `window`: one of its controls, which
/// is enabled and no field to type in, has that hot key.
bool has_control_with_key(HWND window, char key);

}  // namespace lvx::propdlg
