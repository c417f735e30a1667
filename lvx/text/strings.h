// lvx/text/strings.h
//
// Free functions over texts: letter case, numbers as text, brackets and quotes, escapes, blanks, and the
// checks of typed numbers. They keep no state and may run on any thread. Letter classes are those of the
// global std::locale unless an argument gives another; numbers are written and read with a '.' everywhere.
// A char may have any value: those above 127 are ordinary characters, and each function tells what it does
// with a NUL inside a std::string.
// Throw nothing of their own: std::bad_alloc, and what a locale without the facets raises.
// Do not: know multi-byte encodings. Each char is a character.
#pragma once

#include <locale>
#include <string>

#include "lvx/platform/export.h"

namespace lvx {

/// `text` with every character in lower case by the global locale's std::ctype<char>. NULs stay.
LVX_EXPORT std::string to_lower(std::string text);

/// `text` with every character in upper case by the global locale's std::ctype<char>. NULs stay.
LVX_EXPORT std::string to_upper(std::string text);

/// The characters of `text`, up to its NUL, in lower case by the std::ctype<wchar_t> of `locale`. Null gives
/// an empty text.
LVX_EXPORT std::wstring to_lower(const wchar_t* text, const std::locale& locale);

/// The characters of `text`, up to its NUL, in upper case by the std::ctype<wchar_t> of `locale`. Null gives
/// an empty text.
LVX_EXPORT std::wstring to_upper(const wchar_t* text, const std::locale& locale);

/// `value` in fixed notation.
///
/// With a `precision` above 0, at most so many digits behind the point; trailing zeros go, and the point with
/// them: 2.50 with 2 is "2.5", 2.0 is "2". With 0, a whole number. A negative `precision` rounds to a unit,
/// halves away from zero: -1 to 5, -2 to 10, -3 to 50, -4 to 100, -5 to 500, -6 to 1000, -7 to 5000, -8 to
/// 10000, and anything below to 1. So 1237.0 with -1 is "1235".
///
/// Rounding to a unit is arithmetic of 32 bits, and numbers that do not fit are taken modulo 2^32; infinities
/// and not-a-number become "0" there. Otherwise they are "inf", "-inf", "nan" or "-nan". A negative number
/// that rounds to zero is "-0" with a `precision` of 0 or more, and "0" when rounded to a unit.
LVX_EXPORT std::string to_string(double value, int precision);

/// `value` with `digits` significant digits and no exponent, however long that gets: 12345.0 with 3 is
/// "12300", 0.001234 with 4 is "0.001234". Zeros at the end of a fraction go. Negative zero is "0".
///
/// "Error!" for a `digits` of 1, for infinities and for not-a-number. A `digits` of 0 or below stands for 7.
LVX_EXPORT std::string to_string_ex(double value, int digits);

/// Each character widened by the global locale's std::ctype<wchar_t>; the result is as long as `text`, NULs
/// included. ASCII widens to itself. What a byte above 127 becomes is the locale's affair: in the classic
/// locale of Linux it has no wide form, and the facet answers with WEOF.
LVX_EXPORT std::wstring widen(const std::string& text);

/// Each character narrowed by the global locale's std::ctype<wchar_t>, with `fallback` for what has no narrow
/// form; the result is as long as `text`, NULs included.
LVX_EXPORT std::string narrow(const std::wstring& text, char fallback);

/// The position of the bracket or other character that closes what `open` opens.
///
/// With an `open` of NUL, the character at `start` opens and the search begins behind it; otherwise the
/// search begins at `start`, inside. The partners are () [] {}; any other character closes itself. Nested
/// pairs are stepped over, and so is what stands in quotes of the three kinds " ' ` or behind a backslash,
/// which works in quotes too.
///
/// If there is no such position, that of the first NUL from there on, as a rule the size of `text`. A
/// `start` at or beyond the size comes back as it is. Positions beyond 32 bits are not searched.
LVX_EXPORT unsigned int find_matching(const std::string& text, char open, unsigned int start);

/// `text` with `escape` in front of each character that occurs in `special`, which ends at its first NUL. A
/// NUL in `text` counts as special. `escape` itself is special only if `special` says so: without it,
/// strip_escapes() gives the text back only if it held no `escape`.
LVX_EXPORT std::string add_escapes(const std::string& text, const std::string& special, char escape);

/// `text` with each `escape` taken away and the character behind it kept, where b, n, r and t become
/// backspace, line feed, carriage return and tab. An `escape` at the very end stays.
///
/// Those four control characters are changed too when they are escaped raw: to n, r, t and NUL. An escaped
/// NUL stays.
LVX_EXPORT std::string strip_escapes(const std::string& text, char escape);

/// `text` with the first letter of each word in upper case and all others in lower case, by the global
/// locale's std::ctype<char>. Words are what white space of any kind separates: "o'neil-smith" is one.
LVX_EXPORT std::string capitalise(std::string text);

/// `text` without blanks and tabs at both ends, and with a single blank for each run of them inside, except
/// in double quotes. In quotes a backslash protects the next double quote, even if other characters stand
/// between the two.
LVX_EXPORT std::string trim(const std::string& text);

/// `text` without any blanks and tabs, except in double quotes, which work as for trim().
LVX_EXPORT std::string collapse(const std::string& text);

/// Whether `text` is a whole number: digits with at most a '-' in front. No '+', no blanks; the size of the
/// number does not matter. A NUL is a character like any other, and makes it false.
LVX_EXPORT bool is_int(const std::string& text);

/// Whether `text`, up to its first NUL, is a number: "-1.5", "1.", ".5", "1e-5". Digits stand on one side of
/// the point at least; there is no '+', in the exponent neither, and there are no blanks.
LVX_EXPORT bool is_float(const std::string& text);

}  // namespace lvx
