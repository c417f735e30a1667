// tools/lvxdoc/compound_file.h
//
// Reads compound files: the tables of their sectors, their directory, and the bytes of their streams. It
// trusts nothing in the file: every sector number is held against the file's length, no chain is followed
// round a loop, and the memory taken is in proportion to the file. It does not use the platform's own reader,
// which tells neither where a file is damaged nor is made for files that are.
//
// Does not: write, or read a file's sector locks, times and class ids.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "tools/lvxdoc/byte_source.h"

namespace lvxdoc {

class CompoundFile {
public:
    struct Entry {
        /// The names of the storages around it and its own, with '/' between; see escape_name.
        std::string path;
        bool is_stream = false;
        /// Bytes in a stream, 0 for a storage.
        std::uint64_t size = 0;
        std::uint32_t first_sector = 0;
        /// Its place in the directory. Streams written one after the other stand in that order.
        std::uint32_t number = 0;
    };

    /// Whether `file` begins with the signature.
    static bool Recognise(ByteSource& file);

    /// Requires: Recognise. `file` outlives this object. Throws Damage, with an offset in `file`, unless the
    /// tables and the whole directory can be read.
    explicit CompoundFile(ByteSource& file);

    /// All storages and streams, by their place in the directory.
    const std::vector<Entry>& Entries() const { return m_entries; }

    /// The bytes of a stream. Throws Damage, with an offset in the stream, if its chain does not reach its
    /// size. The compound file outlives what is returned.
    std::unique_ptr<ByteSource> OpenStream(const Entry& entry) const;

private:
    class Stream;
    struct DirectoryEntry;
    using Sectors = std::vector<std::uint32_t>;

    void ReadHeader();
    void ReadSectorTable();
    void ReadDirectory();
    void ListTree(const std::vector<DirectoryEntry>& directory);
    std::vector<DirectoryEntry> LoadDirectory();

    std::uint64_t SectorOffset(std::uint32_t sector) const;
    std::uint32_t SectorCount() const;
    void CheckSector(std::uint32_t sector, std::uint64_t offset, const std::string& what) const;
    Sectors WholeChain(std::uint32_t first, const std::string& what) const;

    ByteSource& m_file;
    std::uint32_t m_sector_size = 0;
    std::uint32_t m_first_directory_sector = 0;
    std::uint32_t m_small_limit = 0;
    std::uint32_t m_first_small_table_sector = 0;
    std::uint32_t m_first_difat_sector = 0;
    bool m_has_long_sizes = false;
    Sectors m_table;
    Sectors m_small_table;
    /// The sectors that the small ones lie in.
    Sectors m_small_home;
    std::uint64_t m_small_home_size = 0;
    std::vector<Entry> m_entries;
};

}  // namespace lvxdoc
