// lvx/platform/posix/compound_layout.h
//
// Where things lie in a compound file: its header, its allocation table and its directory, each checked
// against the length of the file and against loops before anything relies on it.
//
// libgsf reads the streams. It trusts what the file says of itself in places: it descends the directory as
// deep as that goes, and complains of damage on the standard error output of whoever runs it. What has passed
// here it reads in silence. Takes memory in proportion to the file, whatever numbers the file holds.
#pragma once

#include <array>
#include <cstdint>
#include <cstdio>
#include <vector>

#include "lvx/platform/posix/element.h"
#include "lvx/platform/structured_storage.h"

namespace lvx::platform {

class CompoundLayout {
public:
    /// S_OK, or STG_E_FILEALREADYEXISTS if the file is no compound file, STG_E_DOCFILECORRUPT if it is a
    /// damaged one, STG_E_READFAULT if it cannot be read.
    HRESULT Load(std::FILE* file);

    /// What lies directly below the root, in no particular order. Requires: loaded.
    const std::vector<Element>& Elements() const { return m_elements; }

    /// Whether every byte of the stream is there: its chain long enough, free of loops and inside the file.
    bool IsWhole(const Element& element) const;

private:
    using Sector = std::uint32_t;

    bool LoadHeader(const std::array<unsigned char, 512>& header);
    bool LoadTable(const std::array<unsigned char, 512>& header);
    bool LoadDirectory();
    bool LoadElements(const std::vector<unsigned char>& directory);

    bool ReadSector(Sector sector, std::vector<unsigned char>& data) const;
    bool AppendTableSector(Sector sector, std::vector<Sector>& table) const;
    std::uint64_t SectorOffset(Sector sector) const;
    // The sectors from `first` to the end of the chain in `table`; false on a loop or a sector outside.
    static bool FollowChain(const std::vector<Sector>& table, Sector first, std::vector<Sector>& chain);
    // Whether the chain from `first` holds `size` bytes that lie in the file.
    bool HoldsBytes(Sector first, std::uint64_t size) const;
    bool HoldsSmallBytes(Sector first, std::uint64_t size) const;

    std::FILE* m_file = nullptr;
    std::uint64_t m_length = 0;
    unsigned m_sector_shift = 0;
    Sector m_directory_start = 0;
    Sector m_small_table_start = 0;
    std::vector<Sector> m_table;
    std::vector<Sector> m_small_table;
    Sector m_root_start = 0;
    std::uint64_t m_root_size = 0;
    std::vector<Element> m_elements;
};

}  // namespace lvx::platform
