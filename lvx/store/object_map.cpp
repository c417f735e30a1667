#include "lvx/store/object_map.h"

#include <limits>
#include <stdexcept>

namespace lvx::store {
namespace {

constexpr std::size_t first_table_size = 64;

std::uintptr_t address_of(const Storable* object) {
    return reinterpret_cast<std::uintptr_t>(object);
}

}  // namespace

long ObjectMap::Find(const Storable* object) const {
    const std::uintptr_t address = address_of(object);
    if (address % granularity != 0) {
        const auto found = m_misaligned.find(object);
        return found == m_misaligned.end() ? -1 : static_cast<long>(found->second) - 1;
    }
    const Page* page = FindPage(address / page_bytes);
    return page == nullptr ? -1 : static_cast<long>(page->slots[address % page_bytes / granularity]) - 1;
}

void ObjectMap::Append(const Storable* object) {
    if (m_size == std::numeric_limits<std::int32_t>::max()) {
        throw std::length_error("ObjectMap: all ids are used up");
    }
    const std::uintptr_t address = address_of(object);
    std::uint32_t& slot = address % granularity != 0
                              ? m_misaligned[object]
                              : MakePage(address / page_bytes).slots[address % page_bytes / granularity];
    if (slot == 0) {
        slot = static_cast<std::uint32_t>(++m_size);
    }
}

const ObjectMap::Page* ObjectMap::FindPage(std::uintptr_t number) const {
    if (m_last.page != nullptr && m_last.number == number) {
        return m_last.page;
    }
    if (m_table.empty()) {
        return nullptr;
    }
    const Entry& entry = m_table[Probe(number)];
    if (entry.page != nullptr) {
        m_last = entry;
    }
    return entry.page;
}

ObjectMap::Page& ObjectMap::MakePage(std::uintptr_t number) {
    if (m_last.page != nullptr && m_last.number == number) {
        return *m_last.page;
    }
    // At most two thirds full, so that probing ends soon, and ends.
    if (m_table.empty() || m_pages.size() * 3 >= m_table.size() * 2) {
        Grow();
    }
    Entry& entry = m_table[Probe(number)];
    if (entry.page == nullptr) {
        m_pages.push_back(std::make_unique<Page>());
        entry = {number, m_pages.back().get()};
    }
    m_last = entry;
    return *entry.page;
}

// The place of `number` in the table: its entry, or the free one where it belongs.
std::size_t ObjectMap::Probe(std::uintptr_t number) const {
    const std::size_t mask = m_table.size() - 1;
    // Neighbouring pages get neighbouring places; the upper bits are folded in to part distant regions.
    std::size_t place = (number ^ (number >> 15)) & mask;
    while (m_table[place].page != nullptr && m_table[place].number != number) {
        place = (place + 1) & mask;
    }
    return place;
}

void ObjectMap::Grow() {
    std::vector<Entry> old(m_table.empty() ? first_table_size : m_table.size() * 2);
    m_table.swap(old);
    for (const Entry& entry : old) {
        if (entry.page != nullptr) {
            m_table[Probe(entry.number)] = entry;
        }
    }
}

}  // namespace lvx::store
