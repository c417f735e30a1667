#include "lvx/platform/posix/compound_layout.h"

#include <algorithm>
#include <cstring>
#include <span>

#include "lvx/platform/posix/compound_directory.h"
#include "lvx/platform/posix/storage_file.h"
#include "lvx/store/byte_order.h"

namespace lvx::platform {
namespace {

using Header = std::array<unsigned char, 512>;

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

bool has_signature(const Header& header, std::size_t length) {
    return length >= signature.size() && std::equal(signature.begin(), signature.end(), header.begin());
}

bool read_at(std::FILE* file, std::uint64_t offset, std::span<unsigned char> data) {
    return fseeko(file, static_cast<off_t>(offset), SEEK_SET) == 0 &&
           std::fread(data.data(), 1, data.size(), file) == data.size();
}

std::uint64_t units_for(std::uint64_t size, unsigned shift) {
    return (size >> shift) + ((size & ((std::uint64_t{1} << shift) - 1)) != 0 ? 1 : 0);
}

}  // namespace

HRESULT CompoundLayout::Load(std::FILE* file) {
    m_file = file;
    m_length = file_length(file);
    Header header{};
    if (fseeko(file, 0, SEEK_SET) != 0) {
        return STG_E_READFAULT;
    }
    const std::size_t header_length = std::fread(header.data(), 1, header.size(), file);
    if (std::ferror(file) != 0) {
        return STG_E_READFAULT;
    }
    if (!has_signature(header, header_length)) {
        return STG_E_FILEALREADYEXISTS;
    }
    const bool whole =
        header_length == header.size() && LoadHeader(header) && LoadTable(header) && LoadDirectory();
    if (std::ferror(file) != 0) {
        return STG_E_READFAULT;
    }
    return whole ? S_OK : STG_E_DOCFILECORRUPT;
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
    m_root_start = entries->root.first_sector;
    m_root_size = entries->root.size;
    m_elements = entries->elements;
    return true;
}

std::uint64_t CompoundLayout::SectorOffset(Sector sector) const {
    return (std::uint64_t{sector} + 1) << m_sector_shift;
}

bool CompoundLayout::ReadSector(Sector sector, std::vector<unsigned char>& data) const {
    const std::uint64_t size = std::uint64_t{1} << m_sector_shift;
    if (sector > last_sector_number || SectorOffset(sector) + size > m_length) {
        return false;
    }
    data.resize(size);
    return read_at(m_file, SectorOffset(sector), data);
}

bool CompoundLayout::AppendTableSector(Sector sector, std::vector<Sector>& table) const {
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

bool CompoundLayout::HoldsBytes(Sector first, std::uint64_t size) const {
    std::vector<Sector> chain;
    if (size > m_length || !FollowChain(m_table, first, chain) ||
        chain.size() < units_for(size, m_sector_shift)) {
        return false;
    }
    for (const Sector sector : chain) {
        const std::uint64_t needed = std::min(size, std::uint64_t{1} << m_sector_shift);
        if (SectorOffset(sector) + needed > m_length) {
            return false;
        }
        size -= needed;
    }
    return true;
}

// Small streams lie together in the root's stream, in a table of their own.
bool CompoundLayout::HoldsSmallBytes(Sector first, std::uint64_t size) const {
    std::vector<Sector> chain;
    if (!HoldsBytes(m_root_start, m_root_size) || !FollowChain(m_small_table, first, chain) ||
        chain.size() < units_for(size, small_sector_shift)) {
        return false;
    }
    return std::ranges::all_of(chain, [&](Sector sector) {
        const std::uint64_t needed = std::min(size, std::uint64_t{1} << small_sector_shift);
        size -= needed;
        return (std::uint64_t{sector} << small_sector_shift) + needed <= m_root_size;
    });
}

bool CompoundLayout::IsWhole(const Element& element) const {
    if (element.size == 0) {
        return true;
    }
    return element.size < small_stream_limit ? HoldsSmallBytes(element.first_sector, element.size)
                                             : HoldsBytes(element.first_sector, element.size);
}

}  // namespace lvx::platform
