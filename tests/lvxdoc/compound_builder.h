// Compound files made by hand, sector by sector, so that tests can put each byte wrong.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

class CompoundBuilder {
public:
    struct Entry {
        std::u16string name;
        /// 1 for a storage, 2 for a stream.
        unsigned char type;
        std::string bytes;
        /// The numbers of other entries: 1 is the first that was added. 0xffffffff for none.
        std::uint32_t left = 0xffffffff;
        std::uint32_t right = 0xffffffff;
        std::uint32_t child = 0xffffffff;
    };

    /// Adds a stream or storage at the top, which follows the one that was added to it before.
    Entry& Add(const std::u16string& name, const std::string& bytes, unsigned char type = 2);

    /// The file, in version 3: sectors of 512 bytes. Sector 0 is the table, 1 and following the directory.
    std::string Build() const;

    /// Where entry `number` stands in the file; 0 is the root.
    static std::size_t EntryOffset(std::size_t number) { return 1024 + number * 128; }
    /// Where the table's word for `sector` stands.
    static std::size_t TableOffset(std::size_t sector) { return 512 + sector * 4; }

    std::vector<Entry> entries;
    std::uint32_t first_child = 0xffffffff;
};
