#include "lvx/platform/posix/atom_table.h"

#include <algorithm>

namespace lvx::platform {

namespace {

char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

std::string in_lower_case(std::string_view name) {
    std::string result(name);
    std::transform(result.begin(), result.end(), result.begin(), lower);
    return result;
}

}  // namespace

unsigned short AtomTable::Add(std::string_view name) {
    std::string key = in_lower_case(name);
    const std::lock_guard guard(m_guard);
    if (const auto known = m_names.find(key); known != m_names.end()) {
        ++known->second.references;
        return known->second.atom;
    }
    if (m_names.size() == capacity) {
        return 0;
    }
    const std::size_t place = NextFreePlace();
    const auto atom = static_cast<unsigned short>(first_atom + place);
    const auto added = m_names.emplace(std::move(key), Entry{std::string(name), atom, 1}).first;
    m_places[place] = &*added;
    m_next = place + 1;
    return atom;
}

bool AtomTable::Delete(unsigned short atom) {
    const std::lock_guard guard(m_guard);
    Names::value_type* const named = Find(atom);
    if (named == nullptr) {
        return false;
    }
    if (--named->second.references == 0) {
        m_places[atom - first_atom] = nullptr;
        m_names.erase(m_names.find(named->first));
    }
    return true;
}

AtomTable::Names::value_type* AtomTable::Find(unsigned short atom) const {
    return atom < first_atom ? nullptr : m_places[atom - first_atom];
}

std::size_t AtomTable::NextFreePlace() const {
    std::size_t place = m_next % capacity;
    while (m_places[place] != nullptr) {
        place = (place + 1) % capacity;
    }
    return place;
}

}  // namespace lvx::platform
