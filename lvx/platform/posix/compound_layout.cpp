#include "lvx/platform/posix/compound_layout.h"

#include <algorithm>
#include <span>

#include "lvx/platform/posix/compound_directory.h"
#include "lvx/platform/posix/storage_file.h"
#include "lvx/store/byte_order.h"

namespace lvx::platform {
namespace {

constexpr std::array<unsigned char, 8> signature = {0xD0, 0xCF, 0x11, 0xE0, 0xA1, 0xB1, 0x1A, 0xE1};
constexpr std::uint32_t last_sector_number = 0xFFFFFFFA;
constexpr std::uint32_t end_of_chain = 0xFFFFFFFE;
constexpr std::uint32_t small_stream_limit = 4096;
constexpr unsigned small_sector_shift = 6;
constexpr std::size_t table_sectors_in_header = 109;

// Where the header has its fields.
constexpr std::size_t major_version_at = 26;
constexpr std::size_t byte_order_at = 28;
constexpr std::size_t sector_shift_at = 30;
constexpr std::size_t small_sector_shift_at = 32;
constexpr std::size_t table_sectors_at = 44;
constexpr std::size_t directory_start_at = 48;
constexpr std::size_t small_stream_limit_at = 56;
constexpr std::size_t small_table_start_at = 60;
constexpr std::size_t small_table_sectors_at = 64;
constexpr std::size_t table_list_start_at = 68;
constexpr std::size_t table_list_at = 76;

std::uint32_t get32(std::span<const unsigned char> data, std::size_t offset) {
    return store::decode<std::uint32_t>(data.subspan(offset, 4).data());
}

std::uint16_t get16(std::span<const unsigned char> data, std::size_t offset) {
    return static_cast<std::uint16_t>(data[offset] | data[offset + 1] << 8);
}

bool has_signature(const std::array<unsigned char, 512>& header) {
    return std::equal(signature.begin(), signature.end(), header.begin());
}

void append(std::vector<Extent>& extents, std::uint64_t offset, std::uint64_t length) {
    if (extents.empty()) {
        extents.push_back({0, offset, length});
        return;
    }
    Extent& last = extents.back();
    if (last.offset + last.length == offset) {
        last.length += length;
    } else {
        extents.push_back({last.position + last.length, offset, length});
    }
}

}  // namespace

HRESULT CompoundLayout::Load(std::FILE* file) {
    m_file = file;
    m_length = file_length(file);
    Header header{};
    const std::size_t header_length = std::min<std::uint64_t>(m_length, header.size());
    if (!read_at(file, 0, header.data(), header_length)) {
        return STG_E_READFAULT;
    }
    if (!has_signature(header)) {
        return STG_E_FILEALREADYEXISTS;
    }
    const bool is_whole = LoadHeader(header) && LoadTable(header) && LoadDirectory();
    if (m_read_failed) {
        return STG_E_READFAULT;
    }
    return is_whole ? S_OK : STG_E_DOCFILECORRUPT;
}

bool CompoundLayout::LoadHeader(const Header& header) {
    const unsigned version = get16(header, major_version_at);
    m_sector_shift = get16(header, sector_shift_at);
    m_directory_start = get32(header, directory_start_at);
    // Where there are no small streams, anything may stand for the start of their table.
    m_small_table_start =
        get32(header, small_table_sectors_at) != 0 ? get32(header, small_table_start_at) : end_of_chain;
    const bool is_known = (version == 3 && m_sector_shift == 9) || (version == 4 && m_sector_shift == 12);
    return is_known && get16(header, byte_order_at) == 0xFFFE &&
           get16(header, small_sector_shift_at) == small_sector_shift &&
           get32(header, small_stream_limit_at) == small_stream_limit;
}

// The table is itself spread over sectors. The header lists the first of them, and a chain of sectors, each
// ending in the number of the next, lists the others.
bool CompoundLayout::LoadTable(const Header& header) {
    const std::uint64_t count = get32(header, table_sectors_at);
    if (count == 0 || count > m_length >> m_sector_shift) {
        return false;
    }
    std::vector<Sector> list;
    for (std::size_t i = 0; i < table_sectors_in_header && list.size() < count; ++i) {
        list.push_back(get32(header, table_list_at + 4 * i));
    }
    // Each further sector adds to the list, so that a chain that loops comes to its end as well.
    Sector next = get32(header, table_list_start_at);
    std::vector<unsigned char> data;
    while (list.size() < count) {
        if (!ReadSector(next, data)) {
            return false;
        }
        for (std::size_t offset = 0; offset + 4 < data.size() && list.size() < count; offset += 4) {
            list.push_back(get32(data, offset));
        }
        next = get32(data, data.size() - 4);
    }
    return std::ranges::all_of(list, [&](Sector sector) { return AppendTableSector(sector, m_table); });
}

bool CompoundLayout::LoadDirectory() {
    std::vector<Sector> chain;
    std::vector<Sector> small_chain;
    if (!FollowChain(m_table, m_directory_start, chain) || chain.empty() ||
        !FollowChain(m_table, m_small_table_start, small_chain)) {
        return false;
    }
    std::vector<unsigned char> directory;
    std::vector<unsigned char> data;
    for (const Sector sector : chain) {
        if (!ReadSector(sector, data)) {
            return false;
        }
        directory.insert(directory.end(), data.begin(), data.end());
    }
    return std::ranges::all_of(small_chain,
                               [&](Sector sector) { return AppendTableSector(sector, m_small_table); }) &&
           LoadElements(directory);
}

bool CompoundLayout::LoadElements(const std::vector<unsigned char>& directory) {
    const std::optional<CompoundDirectory> entries = CompoundDirectory::Check(directory, m_sector_shift > 9);
    if (!entries) {
        return false;
    }
    m_elements = entries->elements;
    m_small_streams_size = entries->root.size;
    if (!FollowChain(m_table, entries->root.first_sector, m_small_streams)) {
        m_small_streams.clear();
    }
    return true;
}

std::uint64_t CompoundLayout::SectorOffset(Sector sector) const {
    return (std::uint64_t{sector} + 1) << m_sector_shift;
}

bool CompoundLayout::ReadSector(Sector sector, std::vector<unsigned char>& data) {
    const std::uint64_t size = std::uint64_t{1} << m_sector_shift;
    if (sector > last_sector_number || SectorOffset(sector) + size > m_length) {
        return false;
    }
    data.resize(size);
    m_read_failed = !read_at(m_file, SectorOffset(sector), data.data(), data.size());
    return !m_read_failed;
}

bool CompoundLayout::AppendTableSector(Sector sector, std::vector<Sector>& table) {
    std::vector<unsigned char> data;
    if (!ReadSector(sector, data)) {
        return false;
    }
    for (std::size_t offset = 0; offset < data.size(); offset += 4) {
        table.push_back(get32(data, offset));
    }
    return true;
}

bool CompoundLayout::FollowChain(const std::vector<Sector>& table, Sector first, std::vector<Sector>& chain) {
    for (Sector sector = first; sector != end_of_chain; sector = table[sector]) {
        // A chain longer than the table has been somewhere twice.
        if (sector >= table.size() || chain.size() == table.size()) {
            return false;
        }
        chain.push_back(sector);
    }
    return true;
}

std::optional<std::uint64_t> CompoundLayout::SmallSectorOffset(Sector sector, std::uint64_t needed) const {
    const std::uint64_t position = std::uint64_t{sector} << small_sector_shift;
    const std::uint64_t place = position >> m_sector_shift;
    if (position + needed > m_small_streams_size || place >= m_small_streams.size()) {
        return std::nullopt;
    }
    const std::uint64_t mask = (std::uint64_t{1} << m_sector_shift) - 1;
    return SectorOffset(m_small_streams[place]) + (position & mask);
}

// Short streams lie in small sectors, all within one stream, with a table of their own.
std::optional<std::vector<Extent>> CompoundLayout::Locate(const Element& element) const {
    const bool is_small = element.size < small_stream_limit;
    const std::uint64_t sector_size = std::uint64_t{1} << (is_small ? small_sector_shift : m_sector_shift);
    std::vector<Extent> extents;
    if (element.size == 0) {
        return extents;
    }
    std::vector<Sector> chain;
    if (element.size > m_length ||
        !FollowChain(is_small ? m_small_table : m_table, element.first_sector, chain)) {
        return std::nullopt;
    }
    std::uint64_t left = element.size;
    for (const Sector sector : chain) {
        const std::uint64_t needed = std::min(left, sector_size);
        const std::optional<std::uint64_t> offset =
            is_small ? SmallSectorOffset(sector, needed) : SectorOffset(sector);
        if (!offset || *offset + needed > m_length) {
            return std::nullopt;
        }
        append(extents, *offset, needed);
        left -= needed;
        if (left == 0) {
            return extents;
        }
    }
    return std::nullopt;
}

}  // namespace lvx::platform
