// lvx/store/object_map.h
//
// The ids of the objects that a store has written, by address. Objects lie close together, so the map keeps a
// flat array of ids for each piece of address space that holds one, and finds the piece by hashing: that is a
// tenth of what a tree of addresses costs, and saving spends most of its time here.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <vector>

#include "lvx/store/storable.h"

namespace lvx::store {

class ObjectMap {
public:
    /// The id of `object`, or -1 if it has none.
    long Find(const Storable* object) const;

    /// Gives `object` the next id, counted from 0, unless it has one. Throws std::length_error when the ids
    /// that a store can hold are used up.
    void Append(const Storable* object);

    long Size() const { return m_size; }

private:
    static constexpr std::size_t page_bytes = 1024;
    static constexpr std::size_t granularity = alignof(Storable);

    // Ids plus one, so that a fresh page holds no id.
    struct Page {
        std::uint32_t slots[page_bytes / granularity];
    };
    struct Entry {
        std::uintptr_t number;
        Page* page;
    };

    const Page* FindPage(std::uintptr_t number) const;
    Page& MakePage(std::uintptr_t number);
    std::size_t Probe(std::uintptr_t number) const;
    void Grow();

    long m_size = 0;
    std::vector<Entry> m_table;
    std::vector<std::unique_ptr<Page>> m_pages;
    mutable Entry m_last{0, nullptr};
    // Objects in packed structures of a host.
    std::map<const Storable*, std::uint32_t> m_misaligned;
};

}  // namespace lvx::store
