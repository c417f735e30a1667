#include "tools/lvxdoc/compound_file.h"

#include <algorithm>
#include <cstring>

#include "lvx/store/byte_order.h"
#include "tools/lvxdoc/errors.h"
#include "tools/lvxdoc/text.h"

namespace lvxdoc {
namespace {

using lvx::store::decode;

constexpr unsigned char signature[8] = {0xd0, 0xcf, 0x11, 0xe0, 0xa1, 0xb1, 0x1a, 0xe1};
constexpr std::uint32_t last_regular_sector = 0xfffffffa;
constexpr std::uint32_t end_of_chain = 0xfffffffe;
constexpr std::uint32_t no_entry = 0xffffffff;
constexpr std::uint32_t small_sector_size = 64;
constexpr std::uint32_t header_size = 512;
constexpr std::uint32_t header_table_entries = 109;
constexpr std::uint32_t header_table_offset = 76;
constexpr std::uint32_t directory_entry_size = 128;

enum EntryType : unsigned char { storage_entry = 1, stream_entry = 2, root_entry = 5 };

std::vector<unsigned char> read_block(ByteSource& file, std::uint64_t offset, std::uint32_t size) {
    // The last sector of a file may have been left short.
    std::vector<unsigned char> block(size);
    const std::uint64_t present = offset < file.Size() ? file.Size() - offset : 0;
    file.ReadAt(offset, block.data(), static_cast<std::size_t>(std::min<std::uint64_t>(size, present)));
    return block;
}

// Follows a chain in `table` for at most `limit` links.
std::vector<std::uint32_t> follow(const std::vector<std::uint32_t>& table, std::uint32_t first,
                                  std::uint64_t limit) {
    std::vector<std::uint32_t> chain;
    std::vector<bool> seen(table.size());
    for (std::uint32_t sector = first; chain.size() < limit && sector < table.size() && !seen[sector];) {
        seen[sector] = true;
        chain.push_back(sector);
        sector = table[sector];
    }
    return chain;
}

// Why a chain that was followed goes no further.
std::string end_of(const std::vector<std::uint32_t>& table, const std::vector<std::uint32_t>& chain,
                   std::uint32_t first) {
    const std::uint32_t next = chain.empty() ? first : table[chain.back()];
    if (next == end_of_chain) {
        return "ends";
    }
    return (next < table.size() ? "comes back to sector " : "leads to no sector of the file, ") +
           std::to_string(next);
}

}  // namespace

struct CompoundFile::DirectoryEntry {
    std::u16string name;
    unsigned char type = 0;
    std::uint32_t left = 0;
    std::uint32_t right = 0;
    std::uint32_t child = 0;
    std::uint32_t first_sector = 0;
    std::uint64_t size = 0;
    std::uint64_t offset = 0;
};

class CompoundFile::Stream : public ByteSource {
public:
    Stream(const CompoundFile& file, const Entry& entry);
    std::uint64_t Size() const override { return m_size; }
    void ReadAt(std::uint64_t offset, void* data, std::size_t size) override;

private:
    std::uint64_t Place(std::uint64_t offset) const;

    const CompoundFile& m_file;
    std::uint64_t m_size;
    bool m_is_small;
    std::uint32_t m_unit;
    Sectors m_chain;
};

bool CompoundFile::Recognise(ByteSource& file) {
    unsigned char start[sizeof signature];
    if (file.Size() < sizeof start) {
        return false;
    }
    file.ReadAt(0, start, sizeof start);
    return std::memcmp(start, signature, sizeof start) == 0;
}

CompoundFile::CompoundFile(ByteSource& file) : m_file(file) {
    ReadHeader();
    ReadSectorTable();
    ReadDirectory();
}

void CompoundFile::ReadHeader() {
    if (m_file.Size() < header_size) {
        throw Damage(m_file.Size(), "the file ends within the header of a compound file");
    }
    const auto header = read_block(m_file, 0, header_size);
    const auto version = decode<std::uint16_t>(&header[26]);
    const auto shift = decode<std::uint16_t>(&header[30]);
    if (decode<std::uint16_t>(&header[28]) != 0xfffe) {
        throw Damage(28, "the byte order mark of the compound file is wrong");
    }
    if (!(version == 3 && shift == 9) && !(version == 4 && shift == 12)) {
        throw Damage(26, "version " + std::to_string(version) + " with sectors of 2^" +
                             std::to_string(shift) + " bytes is not known");
    }
    if (decode<std::uint16_t>(&header[32]) != 6) {
        throw Damage(32, "the size of small sectors is not 64");
    }
    m_has_long_sizes = version == 4;
    m_sector_size = 1u << shift;
    m_first_directory_sector = decode<std::uint32_t>(&header[48]);
    m_small_limit = decode<std::uint32_t>(&header[56]);
    m_first_small_table_sector = decode<std::uint32_t>(&header[60]);
    m_first_difat_sector = decode<std::uint32_t>(&header[68]);
}

std::uint64_t CompoundFile::SectorOffset(std::uint32_t sector) const {
    return (std::uint64_t{sector} + 1) * m_sector_size;
}

std::uint32_t CompoundFile::SectorCount() const {
    const std::uint64_t size = m_file.Size();
    const std::uint64_t count = (size + m_sector_size - 1) / m_sector_size;
    return static_cast<std::uint32_t>(
        std::min<std::uint64_t>(count == 0 ? 0 : count - 1, last_regular_sector));
}

void CompoundFile::CheckSector(std::uint32_t sector, std::uint64_t offset, const std::string& what) const {
    if (sector >= SectorCount()) {
        throw Damage(offset, what + " points to sector " + std::to_string(sector) + " of a file that has " +
                                 std::to_string(SectorCount()));
    }
}

void CompoundFile::ReadSectorTable() {
    const std::uint32_t per_sector = m_sector_size / 4;
    auto list = read_block(m_file, header_table_offset, header_table_entries * 4);
    std::uint64_t list_offset = header_table_offset;
    std::uint32_t list_length = header_table_entries;
    std::uint32_t next_list = m_first_difat_sector;
    std::uint32_t lists = 0;
    for (;;) {
        for (std::uint32_t i = 0; i < list_length && m_table.size() < SectorCount(); ++i) {
            const auto sector = decode<std::uint32_t>(&list[i * 4]);
            if (sector == no_entry) {
                continue;
            }
            CheckSector(sector, list_offset + i * 4, "the list of the sector table");
            const auto part = read_block(m_file, SectorOffset(sector), m_sector_size);
            for (std::uint32_t j = 0; j < per_sector; ++j) {
                m_table.push_back(decode<std::uint32_t>(&part[j * 4]));
            }
        }
        if (m_table.size() >= SectorCount() || next_list >= last_regular_sector) {
            break;
        }
        CheckSector(next_list, list_offset, "the list of the sector table");
        if (++lists > SectorCount()) {
            throw Damage(list_offset, "the list of the sector table has a loop");
        }
        list_offset = SectorOffset(next_list);
        list = read_block(m_file, list_offset, m_sector_size);
        list_length = per_sector - 1;
        next_list = decode<std::uint32_t>(&list[list_length * 4]);
    }
    m_table.resize(std::min<std::size_t>(m_table.size(), SectorCount()));
}

CompoundFile::Sectors CompoundFile::WholeChain(std::uint32_t first, const std::string& what) const {
    if (first == end_of_chain || first == no_entry) {
        return {};
    }
    Sectors chain = follow(m_table, first, m_table.size() + 1);
    if (chain.empty() || m_table[chain.back()] != end_of_chain) {
        const std::uint64_t offset = chain.empty() ? 0 : SectorOffset(chain.back());
        throw Damage(offset, "the chain of " + what + " " + end_of(m_table, chain, first));
    }
    return chain;
}

std::vector<CompoundFile::DirectoryEntry> CompoundFile::LoadDirectory() {
    std::vector<DirectoryEntry> directory;
    for (const std::uint32_t sector : WholeChain(m_first_directory_sector, "the directory")) {
        const auto block = read_block(m_file, SectorOffset(sector), m_sector_size);
        for (std::uint32_t at = 0; at < m_sector_size; at += directory_entry_size) {
            const unsigned char* const bytes = &block[at];
            DirectoryEntry entry;
            const auto name_bytes = decode<std::uint16_t>(bytes + 64);
            entry.type = bytes[66];
            entry.offset = SectorOffset(sector) + at;
            if (entry.type != 0 && (name_bytes > 64 || name_bytes % 2 != 0 || name_bytes < 2)) {
                throw Damage(entry.offset + 64,
                             "a directory entry has a name of " + counted(name_bytes, "byte"));
            }
            for (std::uint32_t i = 0; entry.type != 0 && i + 2 < name_bytes; i += 2) {
                entry.name += static_cast<char16_t>(decode<std::uint16_t>(bytes + i));
            }
            entry.left = decode<std::uint32_t>(bytes + 68);
            entry.right = decode<std::uint32_t>(bytes + 72);
            entry.child = decode<std::uint32_t>(bytes + 76);
            entry.first_sector = decode<std::uint32_t>(bytes + 116);
            // The upper half is left undefined in files with small sectors.
            entry.size =
                m_has_long_sizes ? decode<std::uint64_t>(bytes + 120) : decode<std::uint32_t>(bytes + 120);
            directory.push_back(std::move(entry));
        }
    }
    return directory;
}

void CompoundFile::ReadDirectory() {
    const auto directory = LoadDirectory();
    if (directory.empty() || directory[0].type != root_entry) {
        const std::uint64_t offset = directory.empty() ? 48 : directory[0].offset + 66;
        throw Damage(offset, "the directory does not begin with the root");
    }
    const std::uint64_t units = (m_file.Size() / small_sector_size) + 1;
    for (const std::uint32_t sector : WholeChain(m_first_small_table_sector, "the table of small sectors")) {
        const auto part = read_block(m_file, SectorOffset(sector), m_sector_size);
        for (std::uint32_t j = 0; j < m_sector_size / 4 && m_small_table.size() < units; ++j) {
            m_small_table.push_back(decode<std::uint32_t>(&part[j * 4]));
        }
    }
    m_small_home =
        WholeChain(directory[0].size == 0 ? end_of_chain : directory[0].first_sector, "the small sectors");
    m_small_home_size =
        std::min<std::uint64_t>(directory[0].size, m_small_home.size() * std::uint64_t{m_sector_size});
    ListTree(directory);
}

void CompoundFile::ListTree(const std::vector<DirectoryEntry>& directory) {
    struct Step {
        std::uint32_t number;
        std::uint32_t from;
        // The storage around it, by its place in m_entries; none for the root.
        std::size_t parent;
    };
    constexpr std::size_t no_parent = static_cast<std::size_t>(-1);
    // A storage within a storage within a storage has a path as long as the nest is deep.
    constexpr std::size_t longest_path = 1024;
    std::vector<bool> seen(directory.size());
    std::vector<Step> steps{{directory[0].child, 0, no_parent}};
    while (!steps.empty()) {
        const Step step = steps.back();
        steps.pop_back();
        if (step.number == no_entry) {
            continue;
        }
        const std::uint64_t from = directory[step.from].offset;
        if (step.number == 0 || step.number >= directory.size() || seen[step.number]) {
            const bool again = step.number < directory.size();
            throw Damage(from + 68, "the directory entry " + std::to_string(step.from) + " points to entry " +
                                        std::to_string(step.number) +
                                        (again ? ", which was met before" : ", which does not exist"));
        }
        seen[step.number] = true;
        const DirectoryEntry& found = directory[step.number];
        if (found.type != storage_entry && found.type != stream_entry) {
            throw Damage(found.offset + 66, "the directory entry " + std::to_string(step.number) +
                                                " is neither a storage nor a stream");
        }
        Entry entry;
        entry.path =
            (step.parent == no_parent ? "" : m_entries[step.parent].path + '/') + escape_name(found.name);
        if (entry.path.size() > longest_path) {
            throw Damage(found.offset, "the storages are nested too deeply");
        }
        entry.is_stream = found.type == stream_entry;
        entry.size = entry.is_stream ? found.size : 0;
        entry.first_sector = found.first_sector;
        entry.number = step.number;
        m_entries.push_back(std::move(entry));
        steps.push_back({found.left, step.number, step.parent});
        steps.push_back({found.right, step.number, step.parent});
        if (found.type == storage_entry) {
            steps.push_back({found.child, step.number, m_entries.size() - 1});
        }
    }
    std::sort(m_entries.begin(), m_entries.end(),
              [](const Entry& a, const Entry& b) { return a.number < b.number; });
}

std::unique_ptr<ByteSource> CompoundFile::OpenStream(const Entry& entry) const {
    return std::make_unique<Stream>(*this, entry);
}

CompoundFile::Stream::Stream(const CompoundFile& file, const Entry& entry)
    : m_file(file),
      m_size(entry.size),
      m_is_small(entry.size < file.m_small_limit),
      m_unit(m_is_small ? small_sector_size : file.m_sector_size) {
    const Sectors& table = m_is_small ? file.m_small_table : file.m_table;
    const std::uint64_t needed = m_size / m_unit + (m_size % m_unit != 0 ? 1 : 0);
    m_chain = follow(table, entry.first_sector, needed);
    if (m_chain.size() < needed) {
        throw Damage(m_chain.size() * std::uint64_t{m_unit}, "the stream has " + counted(m_size, "byte") +
                                                                 ", but its chain of sectors " +
                                                                 end_of(table, m_chain, entry.first_sector));
    }
    const std::uint64_t room = m_is_small ? file.m_small_home_size : file.m_file.Size();
    for (std::size_t i = 0; i < m_chain.size(); ++i) {
        const std::uint64_t begin =
            m_is_small ? std::uint64_t{m_chain[i]} * m_unit : file.SectorOffset(m_chain[i]);
        const std::uint64_t offset = i * std::uint64_t{m_unit};
        if (begin + std::min<std::uint64_t>(m_unit, m_size - offset) > room) {
            throw Damage(offset, "the stream lies behind the end of the file");
        }
    }
}

// Where the byte at `offset` of the stream lies in the file.
std::uint64_t CompoundFile::Stream::Place(std::uint64_t offset) const {
    const std::uint32_t sector = m_chain[static_cast<std::size_t>(offset / m_unit)];
    const std::uint64_t within = offset % m_unit;
    if (!m_is_small) {
        return m_file.SectorOffset(sector) + within;
    }
    const std::uint64_t home = std::uint64_t{sector} * m_unit + within;
    const std::uint32_t home_sector =
        m_file.m_small_home[static_cast<std::size_t>(home / m_file.m_sector_size)];
    return m_file.SectorOffset(home_sector) + home % m_file.m_sector_size;
}

void CompoundFile::Stream::ReadAt(std::uint64_t offset, void* data, std::size_t size) {
    auto* target = static_cast<unsigned char*>(data);
    while (size != 0) {
        std::uint64_t count = std::min<std::uint64_t>(size, m_unit - offset % m_unit);
        const std::uint64_t place = Place(offset);
        // Neighbours in the file are read in one go.
        while (count < size && Place(offset + count) == place + count) {
            count = std::min<std::uint64_t>(size, count + m_unit);
        }
        if (place + count > m_file.m_file.Size()) {
            throw Damage(offset, "the stream lies behind the end of the file");
        }
        m_file.m_file.ReadAt(place, target, static_cast<std::size_t>(count));
        target += count;
        offset += count;
        size -= static_cast<std::size_t>(count);
    }
}

}  // namespace lvxdoc
