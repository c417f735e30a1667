// lvx/propdlg/pressed_key.h
//
// Keys as the user knows them: by their letters, in upper case. Private to the library.
#pragma once

#include <string_view>

namespace lvx::propdlg {

/// A letter in upper case, by the user's code page; other characters as they are.
char upper_case(char character);

/// The hot key of a caption; 0 if it has none.
char hot_key_of(std::string_view caption);

/// The key that is held down just now, Alt aside; 0 if none that is has a character.
char pressed_key();

}  // namespace lvx::propdlg
