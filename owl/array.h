// owl/array.h
//
// A growing array whose indices need not begin at 0. It owns copies of what is put in; where the elements are
// pointers it owns no object that they point at. One thread at a time.
#pragma once

#include <climits>
#include <cstddef>
#include <stdexcept>
#include <vector>

namespace owl {

template <class T>
class TArrayAsVector {
public:
    /// What Find() gives for an item that is not there.
    static constexpr int NotFound = INT_MAX;

    /// An empty array with room for the indices from `lower` to `upper`, none when `upper` is below `lower`.
    /// When it is full it grows by `step` places at a time; with a `step` of 0 or less it does not grow.
    /// Indices end at INT_MAX - 1, which leaves NotFound free.
    explicit TArrayAsVector(int upper, int lower = 0, int step = 0)
        : m_lower(lower), m_step(step > 0 ? step : 0), m_room(Room(upper, lower)) {}

    /// The first index.
    int LowerBound() const { return m_lower; }
    /// The last index that has room; below LowerBound() if there is no room at all.
    int UpperBound() const {
        return static_cast<int>(static_cast<long long>(m_lower) + static_cast<long long>(m_room) - 1);
    }
    /// How many items there is room for.
    unsigned int ArraySize() const { return static_cast<unsigned int>(m_room); }
    int GetItemsInContainer() const { return static_cast<int>(m_items.size()); }
    bool IsEmpty() const { return m_items.empty(); }
    /// Whether nothing more can be added.
    bool IsFull() const { return m_items.size() >= m_room && !CanGrow(); }

    /// Puts `item` behind the last one. False, and nothing done, if the array is full.
    bool Add(const T& item) { return AddAt(item, m_lower + GetItemsInContainer()); }

    /// Puts `item` at `index`; what stands there and behind it moves up by one. False, and nothing done, if
    /// the array is full or `index` is neither an item's nor the one behind the last.
    bool AddAt(const T& item, int index) {
        const std::size_t place = PlaceOf(index);
        if (place > m_items.size() || IsFull())
            return false;
        m_items.insert(Iterator(place), item);
        if (m_items.size() > m_room)
            m_room += static_cast<std::size_t>(m_step);
        return true;
    }

    /// Takes the item at `index` out; what stands behind it moves down by one. False if there is no item.
    /// Items that are pointers are not deleted.
    bool Detach(int index) {
        const std::size_t place = PlaceOf(index);
        if (place >= m_items.size())
            return false;
        m_items.erase(Iterator(place));
        return true;
    }
    /// The same: the items are values, and there is nothing else to destroy.
    bool Destroy(int index) { return Detach(index); }

    /// Takes all items out. The room stays.
    void Flush() { m_items.clear(); }

    /// The index of the first item that equals `item`, or `NotFound`.
    int Find(const T& item) const {
        for (std::size_t place = 0; place < m_items.size(); ++place) {
            if (m_items[place] == item)
                return m_lower + static_cast<int>(place);
        }
        return NotFound;
    }

    /// The item at `index`. An index that has no item throws std::out_of_range "invalid vector<T> subscript".
    T& operator[](int index) { return m_items[Checked(index)]; }
    const T& operator[](int index) const { return m_items[Checked(index)]; }

    /// The items in order.
    auto begin() { return m_items.begin(); }
    auto end() { return m_items.end(); }
    auto begin() const { return m_items.begin(); }
    auto end() const { return m_items.end(); }

private:
    static std::size_t Room(int upper, int lower) {
        const long long room = static_cast<long long>(upper < NotFound ? upper : NotFound - 1) - lower + 1;
        return room > 0 ? static_cast<std::size_t>(room) : 0;
    }

    bool CanGrow() const {
        return m_step > 0 &&
               static_cast<long long>(m_lower) + static_cast<long long>(m_room) + m_step <= INT_MAX;
    }

    /// Where `index` lies from the first item on; beyond every item for an index below the first.
    std::size_t PlaceOf(int index) const {
        const long long place = static_cast<long long>(index) - m_lower;
        return place < 0 ? static_cast<std::size_t>(-1) : static_cast<std::size_t>(place);
    }

    std::size_t Checked(int index) const {
        const std::size_t place = PlaceOf(index);
        if (place >= m_items.size())
            throw std::out_of_range("invalid vector<T> subscript");
        return place;
    }

    auto Iterator(std::size_t place) { return m_items.begin() + static_cast<std::ptrdiff_t>(place); }

    std::vector<T> m_items;
    int m_lower;
    int m_step;
    std::size_t m_room;
};

}  // namespace owl
