// lvx/propdlg/hot_key.h
//
// Hot keys of captions: the letters that stand underlined, behind an ampersand. Private to the library.
#pragma once

#include <string>
#include <string_view>

namespace lvx::propdlg {

/// The letter behind the first ampersand of `caption` that is not one of a pair, as it stands there: the case
/// of letters is a matter of the user's code page. 0 if there is none.
char marked_letter(std::string_view caption);

/// `caption` as it is shown: without the marks of hot keys, on one line.
std::string shown_text(std::string_view caption);

}  // namespace lvx::propdlg
