// owl/pattern_size.h
//
// How large a program a pattern can make, told from its text alone: what is too large is refused before any
// memory or time goes into it. Counted repetitions multiply, so "((a{100}){100}){100}" is a million steps.
#pragma once

#include <cstddef>
#include <string_view>

namespace owl {

/// A step is about what one byte or one optional part takes. The count is an upper bound, in time
/// proportional to the text, and stops growing at a large number. Of a pattern against the syntax it is any
/// number.
std::size_t pattern_size(std::string_view pattern);

}  // namespace owl
