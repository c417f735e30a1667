#include "lvx/runtime/atom.h"

#include <algorithm>
#include <memory>

#include "lvx/platform/atoms.h"

namespace {

constexpr int step = 100;
// Many times what any table takes, even when each character comes out as several bytes.
constexpr int longest = 100 * step;

using Buffer = std::unique_ptr<char[]>;

// Whether the name may be longer than what is in a buffer of `size` characters, of which the system says that
// it wrote `length`. Some systems tell the length of what there was room for; others tell 0, as they do for
// an unknown atom, but write what there was room for.
bool may_be_cut(const char* buffer, int size, unsigned int length) {
    return length >= static_cast<unsigned int>(size - 1) || (length == 0 && buffer[0] != '\0');
}

char* text_of(const char* buffer, unsigned int length) {
    char* const text = new char[length + std::size_t{1}];
    *std::copy_n(buffer, length, text) = '\0';
    return text;
}

char* name_of(unsigned short atom) {
    for (int size = step;; size += step) {
        const Buffer buffer = std::make_unique<char[]>(static_cast<std::size_t>(size) + 1);
        const unsigned int length = GlobalGetAtomNameA(atom, buffer.get(), size);
        if (!may_be_cut(buffer.get(), size, length) || size == longest) {
            return text_of(buffer.get(), std::min(length, static_cast<unsigned int>(size)));
        }
    }
}

}  // namespace

LVXAtom::LVXAtom(unsigned short atom) : m_atom(atom) {}

LVXAtom::LVXAtom(const std::string& name) : m_atom(GlobalAddAtomA(name.c_str())) {}

LVXAtom::~LVXAtom() {
    delete[] m_text;
}

LVXAtom::operator const char*() {
    if (m_atom == 0 || m_text != nullptr) {
        return nullptr;
    }
    m_text = name_of(m_atom);
    return m_text;
}

void LVXAtom::operator!() {
    if (m_atom != 0) {
        GlobalDeleteAtom(m_atom);
        m_atom = 0;
    }
}
