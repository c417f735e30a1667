#include "lvx/platform/atoms.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <new>
#include <optional>
#include <string>
#include <string_view>

#include "lvx/platform/posix/atom_table.h"

namespace {

using lvx::platform::AtomTable;

constexpr std::size_t longest_name = 255;

// Never destroyed: static objects of other modules give their atoms up as late as they like.
AtomTable& table() {
    static AtomTable& instance = *new AtomTable;
    return instance;
}

// 0 if it is out of range.
unsigned short checked_number(std::uintptr_t number) {
    return number < AtomTable::first_atom ? static_cast<unsigned short>(number) : 0;
}

// The number that "#" and digits stand for, 0 if it is out of range; nothing for a name.
std::optional<unsigned short> number_of(std::string_view name) {
    if (name.size() < 2 || name[0] != '#' ||
        name.find_first_not_of("0123456789", 1) != std::string_view::npos) {
        return std::nullopt;
    }
    std::uintptr_t number = 0;
    const bool fits = std::from_chars(name.data() + 1, name.data() + name.size(), number).ec == std::errc();
    return fits ? checked_number(number) : 0;
}

unsigned short add_name(std::string_view name) {
    if (const auto number = number_of(name)) {
        return *number;
    }
    return name.empty() || name.size() > longest_name ? 0 : table().Add(name);
}

unsigned int copy_name(std::string_view name, char* buffer, int size) {
    if (size <= 0) {
        return 0;
    }
    const std::size_t length = std::min(name.size(), static_cast<std::size_t>(size) - 1);
    std::memcpy(buffer, name.data(), length);
    buffer[length] = '\0';
    return length < name.size() ? 0 : static_cast<unsigned int>(length);
}

}  // namespace

unsigned short GlobalAddAtomA(const char* name) {
    // An address that small is a number: no object lies there.
    const auto address = reinterpret_cast<std::uintptr_t>(name);
    if (address <= 0xFFFF) {
        return checked_number(address);
    }
    try {
        return add_name(name);
    } catch (const std::bad_alloc&) {
        return 0;
    }
}

unsigned short GlobalDeleteAtom(unsigned short atom) {
    return atom < AtomTable::first_atom || table().Delete(atom) ? 0 : atom;
}

unsigned int GlobalGetAtomNameA(unsigned short atom, char* buffer, int size) {
    if (atom != 0 && atom < AtomTable::first_atom) {
        return copy_name('#' + std::to_string(atom), buffer, size);
    }
    return table().WithName(atom, [=](std::string_view name) { return copy_name(name, buffer, size); });
}
