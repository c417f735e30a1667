// lvx/platform/posix/compound_layout.h
//
// Where things lie in a compound file: its header, its allocation table and its directory, each checked
// against the length of the file and against loops before anything relies on it. Takes memory in proportion
// to the file, whatever numbers the file holds.
#pragma once

#include <array>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <vector>

#include "lvx/platform/posix/element.h"
#include "lvx/platform/structured_storage.h"

namespace lvx::platform {

/// Bytes of a stream that lie together in the file.
struct Extent {
    std::uint64_t position;
    std::uint64_t offset;
    std::uint64_t length;
};

class CompoundLayout {
public:
    /// S_OK, or STG_E_FILEALREADYEXISTS if the file is no compound file, STG_E_DOCFILECORRUPT if it is a
    /// damaged one, STG_E_READFAULT if it cannot be read. Does not look at the streams.
    HRESULT Load(std::FILE* file);

    /// What lies directly below the root, in no particular order. Requires: loaded.
    const std::vector<Element>& Elements() const { return m_elements; }

    /// Where the stream's bytes lie, from the first to the last. Nothing if some are missing: a chain that is
    /// too short, that loops, or that leads out of the file.
    std::optional<std::vector<Extent>> Locate(const Element& element) const;

private:
    using Sector = std::uint32_t;
    using Header = std::array<unsigned char, 512>;

    bool LoadHeader(const Header& header);
    bool LoadTable(const Header& header);
    bool LoadDirectory();
    bool LoadElements(const std::vector<unsigned char>& directory);

    bool ReadSector(Sector sector, std::vector<unsigned char>& data);
    bool AppendTableSector(Sector sector, std::vector<Sector>& table);
    std::uint64_t SectorOffset(Sector sector) const;
    // The sectors from `first` to the end of the chain in `table`; false on a loop or a sector outside.
    static bool FollowChain(const std::vector<Sector>& table, Sector first, std::vector<Sector>& chain);
    // Where a small sector lies; nothing if the stream of small streams has not that many bytes.
    std::optional<std::uint64_t> SmallSectorOffset(Sector sector, std::uint64_t needed) const;

    std::FILE* m_file = nullptr;
    std::uint64_t m_length = 0;
    bool m_read_failed = false;
    unsigned m_sector_shift = 0;
    Sector m_directory_start = 0;
    Sector m_small_table_start = 0;
    std::vector<Sector> m_table;
    std::vector<Sector> m_small_table;
    // The stream that the small streams lie in; no sectors if it is damaged.
    std::vector<Sector> m_small_streams;
    std::uint64_t m_small_streams_size = 0;
    std::vector<Element> m_elements;
};

}  // namespace lvx::platform
