// lvx/platform/atoms.h
//
// Global atoms: short texts that are known by a number of 16 bits, as messages carry them. On Windows the
// system's calls and its table, which all programs share; elsewhere the same calls with the same results on a
// table of this process. Any thread may call them.
//
// Each GlobalAddAtomA of a name adds a reference to it, each GlobalDeleteAtom takes one away, and with the
// last one the name goes. Names differ by more than letter case, and have 1 to 255 characters.
//
// "#" and a number from 1 to 49151 (0xBFFF) is no name but that number, as is an address of that value. Such
// an atom is always there: nothing is counted, and nothing deletes it.
//
// Off Windows they do not: tell why they failed (there is no last error), or know the letter case of
// characters above 127.
#pragma once

#ifdef _WIN32

#include <windows.h>

#else

#include "lvx/platform/export.h"

// C linkage, so that a test program can define its own in front of these.
extern "C" {

/// The atom of `name`, from 0xC000 on, with one reference more; the name of a new one keeps its letter case.
/// 0 for null, a name that is too long or empty, a number out of range, and when all 16384 are in use or
/// there is no memory.
LVX_EXPORT unsigned short GlobalAddAtomA(const char* name);

/// Takes one reference away. 0 on success and for numbers below 0xC000; `atom` itself if there is none.
LVX_EXPORT unsigned short GlobalDeleteAtom(unsigned short atom);

/// Copies the name and a NUL into `buffer` of `size` characters; "#" and digits for a number below 0xC000.
/// Its length. If it is too long, so much of it as there is room for, with the NUL, and 0. If there is no
/// such atom or no room at all, 0, and the buffer stays as it is.
LVX_EXPORT unsigned int GlobalGetAtomNameA(unsigned short atom, char* buffer, int size);
}

#endif
