#include "lvx/platform/posix/compound_directory.h"

#include "lvx/platform/posix/element_names.h"
#include "lvx/store/byte_order.h"

namespace lvx::platform {
namespace {

constexpr std::size_t entry_size = 128;
constexpr std::uint32_t no_entry = 0xFFFFFFFF;
// A balanced tree of all entries that a file can hold is 64 deep. Some writers leave lists instead of trees;
// libgsf calls itself for each entry of those.
constexpr std::size_t deepest = 4096;

enum class Kind : unsigned char { unused = 0, storage = 1, stream = 2, root = 5 };

// Where an entry has its fields.
constexpr std::size_t name_length_at = 64;
constexpr std::size_t kind_at = 66;
constexpr std::size_t left_at = 68;
constexpr std::size_t right_at = 72;
constexpr std::size_t child_at = 76;
constexpr std::size_t first_sector_at = 116;
constexpr std::size_t size_at = 120;

using Entry = std::span<const unsigned char, entry_size>;

std::uint32_t get32(Entry entry, std::size_t offset) {
    return store::decode<std::uint32_t>(entry.subspan(offset, 4).data());
}

Kind kind_of(Entry entry) {
    return static_cast<Kind>(entry[kind_at]);
}

// The length counts the bytes and the terminator.
std::optional<std::wstring> name_of(Entry entry) {
    const std::size_t length = entry[name_length_at] | std::size_t{entry[name_length_at + 1]} << 8;
    if (length < 4 || length % 2 != 0 || length > 2 * (longest_element_name + 1)) {
        return std::nullopt;
    }
    std::vector<char16_t> units;
    for (std::size_t i = 0; i < length; i += 2) {
        units.push_back(static_cast<char16_t>(entry[i] | entry[i + 1] << 8));
    }
    if (units.back() != 0) {
        return std::nullopt;
    }
    units.pop_back();
    return wide_from_utf16(units);
}

class Walk {
public:
    Walk(std::span<const unsigned char> data, bool has_wide_sizes)
        : m_data(data), m_has_wide_sizes(has_wide_sizes), m_seen(data.size() / entry_size, false) {}

    bool Run(CompoundDirectory& directory) {
        if (m_seen.empty() || !VisitRoot(directory.root)) {
            return false;
        }
        while (!m_waiting.empty()) {
            const Place place = m_waiting.back();
            m_waiting.pop_back();
            if (!Visit(place, directory.elements)) {
                return false;
            }
        }
        return true;
    }

private:
    struct Place {
        std::uint32_t number;
        std::size_t depth;
        bool below_root;
    };

    Entry At(std::uint32_t number) const { return Entry(m_data.subspan(number * entry_size, entry_size)); }

    std::uint64_t SizeOf(Entry entry) const {
        const std::uint64_t high = m_has_wide_sizes ? get32(entry, size_at + 4) : 0;
        return high << 32 | get32(entry, size_at);
    }

    bool VisitRoot(Element& root) {
        const Entry entry = At(0);
        if (kind_of(entry) != Kind::root || get32(entry, left_at) != no_entry ||
            get32(entry, right_at) != no_entry) {
            return false;
        }
        m_seen[0] = true;
        root.first_sector = get32(entry, first_sector_at);
        root.size = SizeOf(entry);
        return Await({get32(entry, child_at), 1, true});
    }

    bool Await(Place place) {
        if (place.number == no_entry) {
            return true;
        }
        if (place.number >= m_seen.size() || m_seen[place.number] || place.depth > deepest) {
            return false;
        }
        m_seen[place.number] = true;
        m_waiting.push_back(place);
        return true;
    }

    bool Visit(Place place, std::vector<Element>& elements) {
        const Entry entry = At(place.number);
        const Kind kind = kind_of(entry);
        const std::optional<std::wstring> name = name_of(entry);
        if (!name || (kind != Kind::stream && kind != Kind::storage)) {
            return false;
        }
        if (place.below_root) {
            elements.push_back({*name, kind == Kind::stream, kind == Kind::stream ? SizeOf(entry) : 0,
                                get32(entry, first_sector_at)});
        }
        const std::uint32_t child = kind == Kind::storage ? get32(entry, child_at) : no_entry;
        return Await({get32(entry, left_at), place.depth + 1, place.below_root}) &&
               Await({get32(entry, right_at), place.depth + 1, place.below_root}) &&
               Await({child, place.depth + 1, false});
    }

    std::span<const unsigned char> m_data;
    bool m_has_wide_sizes;
    std::vector<bool> m_seen;
    std::vector<Place> m_waiting;
};

}  // namespace

std::optional<CompoundDirectory> CompoundDirectory::Check(std::span<const unsigned char> data,
                                                          bool has_wide_sizes) {
    CompoundDirectory directory;
    return Walk(data, has_wide_sizes).Run(directory) ? std::optional(directory) : std::nullopt;
}

}  // namespace lvx::platform
