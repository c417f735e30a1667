// lvx/platform/profile.h
//
// Profile files: settings by section and key, in text files. On Windows these are the system's own calls.
// Elsewhere the same names stand here with the same rules; docs/settings.md tells them all, and what is left
// of differences.
//
// Elsewhere: nothing is kept between calls; each opens the file anew. A write puts a whole new file in the
// place of the old one, or leaves that as it was. Any thread may call them. None throws.
// Do not, elsewhere: list sections or keys for a null name, delete for a null value.
#pragma once

#ifdef _WIN32

#include <windows.h>

#else

#include <cstdint>

using BOOL = int;
using DWORD = std::uint32_t;
using UINT = unsigned int;

/// The value of `key` as a number: a sign, "0x", "0o" or "0b", and digits, whatever follows them; 0 without
/// any, and modulo 2^32 for more than fit. `default_value` if the section, the key, its value or the file is
/// missing.
UINT GetPrivateProfileIntA(const char* section, const char* key, int default_value, const char* file);

/// Copies the value of `key`, or `default_value` if there is none, into `buffer`, cut to `size` - 1
/// characters, and a NUL behind them. The number of characters without the NUL; 0 for a `size` of 0, which
/// leaves the buffer alone. Null for `default_value` stands for the empty text.
DWORD GetPrivateProfileStringA(const char* section, const char* key, const char* default_value, char* buffer,
                               DWORD size, const char* file);

/// Sets the value of `key`, making file, section and key as needed. 0 if it could not be done: the file is
/// then as it was. Names and values that would not be read back as such cannot be written: those with a line
/// end in them, those that are no UTF-8 in a file of UTF-16, and a first key that looks like a byte-order
/// mark.
BOOL WritePrivateProfileStringA(const char* section, const char* key, const char* value, const char* file);

#endif
