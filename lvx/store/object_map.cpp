#include "lvx/store/object_map.h"

#include <limits>

#include "lvx/store/object_store.h"

namespace lvx::store {
namespace {

constexpr std::size_t first_table_size = 64;

std::uintptr_t address_of(const Storable* object) {
    return reinterpret_cast<std::uintptr_t>(object);
}

// Where the search for `address` begins. A kilobyte of memory has its objects side by side from some place
// on, which is as good as random, so that neither dense objects nor those at regular distances pile up.
std::size_t preferred_place(std::uintptr_t address) {
    constexpr std::uintptr_t region = 1024;
    constexpr std::uintptr_t distance = 16;
    const std::uint64_t mixed = (std::uint64_t{address} / region) * 0x9E3779B97F4A7C15u;
    return static_cast<std::size_t>((mixed >> 32) + address % region / distance);
}

}  // namespace

long ObjectMap::Find(const Storable* object) const {
    if (m_table.empty()) {
        return -1;
    }
    return static_cast<long>(m_table[Probe(address_of(object))].number) - 1;
}

void ObjectMap::Append(const Storable* object) {
    if (m_size == std::numeric_limits<std::int32_t>::max()) {
        throw ObjectStore::WriteFailure();
    }
    if (static_cast<std::size_t>(m_size) * 2 >= m_table.size()) {
        Grow();
    }
    const std::uintptr_t address = address_of(object);
    Entry& entry = m_table[Probe(address)];
    if (entry.number == 0) {
        entry = {address, static_cast<std::uint32_t>(++m_size)};
    }
}

// The place of `address` in the table: its entry, or the free one where it belongs. At least half is free.
std::size_t ObjectMap::Probe(std::uintptr_t address) const {
    const std::size_t mask = m_table.size() - 1;
    std::size_t place = preferred_place(address) & mask;
    while (m_table[place].number != 0 && m_table[place].address != address) {
        place = (place + 1) & mask;
    }
    return place;
}

void ObjectMap::Grow() {
    std::vector<Entry> old(m_table.empty() ? first_table_size : m_table.size() * 2);
    m_table.swap(old);
    for (const Entry& entry : old) {
        if (entry.number != 0) {
            m_table[Probe(entry.address)] = entry;
        }
    }
}

}  // namespace lvx::store
