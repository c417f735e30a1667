// lvx/platform/posix/atom_table.h
//
// Names by number and numbers by name, with a count of references. Any thread may use a table at any time.
#pragma once

#include <cstddef>
#include <mutex>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace lvx::platform {

class AtomTable {
public:
    static constexpr unsigned int first_atom = 0xC000;
    static constexpr std::size_t capacity = 0x10000 - first_atom;

    /// The atom of `name` in any letter case, with one reference more; a new one unless it is there. The
    /// number of a name that went is given out again as late as possible, so that a stale one stays without
    /// a name. 0 if the table is full. Throws std::bad_alloc; the table is then as it was.
    unsigned short Add(std::string_view name);

    /// Takes one reference away, and the name with the last one. False if there is no such atom.
    bool Delete(unsigned short atom);

    /// What `use` returns for the name; 0 if there is no such atom.
    template <class Use>
    unsigned int WithName(unsigned short atom, Use use) const {
        const std::lock_guard guard(m_guard);
        const Names::value_type* const named = Find(atom);
        return named == nullptr ? 0 : use(std::string_view(named->second.name));
    }

private:
    struct Entry {
        // In the letter case in which it came first.
        std::string name;
        unsigned short atom = 0;
        std::size_t references = 0;
    };
    // By the name in lower case.
    using Names = std::unordered_map<std::string, Entry>;

    /// Null if there is no such atom.
    Names::value_type* Find(unsigned short atom) const;
    /// Requires: the table is not full.
    std::size_t NextFreePlace() const;

    mutable std::mutex m_guard;
    Names m_names;
    // A place for each atom; null if it is not in use.
    std::vector<Names::value_type*> m_places = std::vector<Names::value_type*>(capacity);
    // Behind the place that was given out last.
    std::size_t m_next = 0;
};

}  // namespace lvx::platform
