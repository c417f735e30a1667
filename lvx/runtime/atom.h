// lvx/runtime/atom.h
//
// A global atom: a short text as a number of 16 bits, as DDE messages carry it. The object does not own its
// atom: it is given up by operator! alone and never by the destructor, so the same class serves for atoms
// that somebody else owns.
//
//     LVXAtom topic("stars.dat");
//     post(topic);                        // as unsigned int
//     !topic;                             // this program is done with it
//
// On Windows atoms are the system's, seen by every program; elsewhere those of this process. One thread at a
// time for one object; any number of objects on any threads. Cannot be copied: the text that it hands out
// would end with either copy.
#pragma once

#include <string>

#include "lvx/platform/export.h"

class LVX_EXPORT LVXAtom {
public:
    /// Wraps an atom that exists, or 0 for none. Nothing is added or counted.
    LVXAtom(unsigned short atom);

    /// Adds `name`, up to its first NUL, to the table, or a reference to it if it is there in any letter
    /// case. A name of 1 to 255 characters; the atom is 0 for others, and when the table is full. "#" and a
    /// number below 49152 is that number and takes no room. Throws nothing; a null `const char*` in place of
    /// the name is std::string's own error.
    LVXAtom(const std::string& name);

    LVXAtom(const LVXAtom&) = delete;
    LVXAtom& operator=(const LVXAtom&) = delete;

    /// Frees the text. The atom stays alive.
    ~LVXAtom();

    /// The atom; 0 for none.
    operator unsigned int() const { return m_atom; }
    /// The same. With it `if (atom)` and `atom != 0` ask for the atom of an object that is not constant too,
    /// instead of spending the one delivery of its name on the question.
    operator unsigned int() { return m_atom; }

    /// The name, which lives as long as the object; empty if the table does not know the atom. Delivered
    /// once: null at every later conversion, and when the atom is 0. Callers convert once and keep the
    /// pointer.
    operator const char*();

    /// Takes one reference away from the atom in the table, and is 0 from here on; a second call does
    /// nothing. The text, once it was fetched, stays. Returns nothing, so that `if (!atom)`, which would give
    /// up what it seems to ask for, does not compile: ask `atom == 0`.
    void operator!();

private:
    unsigned short m_atom;
    char* m_text = nullptr;
};
