// lvx/store/object_map.h
//
// The ids of the objects that a store has written, by address: one flat table, in which objects that lie
// close together in memory have places close together. Saving spends most of its time here, waiting for
// memory, and a drawing's objects are mostly saved in the order in which they were made. Objects that lie
// scattered cost one such wait each, and no object more than 64 bytes of table.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "lvx/store/storable.h"

namespace lvx::store {

class ObjectMap {
public:
    /// The id of `object`, or -1 if it has none.
    long Find(const Storable* object) const;

    /// Gives `object` the next id, counted from 0, unless it has one. Throws ObjectStore::WriteFailure when
    /// the ids that a store can hold are used up, and std::bad_alloc, unchanged.
    void Append(const Storable* object);

    long Size() const { return m_size; }

private:
    struct Entry {
        std::uintptr_t address;
        // The id plus one; 0 if the entry is free.
        std::uint32_t number;
    };

    std::size_t Probe(std::uintptr_t address) const;
    void Grow();

    std::int32_t m_size = 0;
    // Its size is a power of two, at least twice that of what it holds.
    std::vector<Entry> m_table;
};

}  // namespace lvx::store
