#include "tests/lvxdoc/compound_builder.h"

#include "tests/lvxdoc/support.h"

namespace {

constexpr std::uint32_t end_of_chain = 0xfffffffe;
constexpr std::uint32_t unused = 0xffffffff;
constexpr std::uint32_t table_sector = 0xfffffffd;
constexpr std::size_t sector_size = 512;
constexpr std::size_t small_size = 64;
constexpr std::size_t small_limit = 4096;

void pad(std::string& bytes, std::size_t unit) {
    bytes.resize((bytes.size() + unit - 1) / unit * unit);
}

// The sectors behind the header and the words of the table for them.
struct Sectors {
    std::string bytes;
    std::vector<std::uint32_t> table;

    std::uint32_t Add(std::string content) {
        if (content.empty()) {
            return end_of_chain;
        }
        const auto first = static_cast<std::uint32_t>(table.size());
        pad(content, sector_size);
        bytes += content;
        for (std::size_t left = content.size() / sector_size; left != 0; --left) {
            table.push_back(left == 1 ? end_of_chain : static_cast<std::uint32_t>(table.size()) + 1);
        }
        return first;
    }
};

std::string table_bytes(std::vector<std::uint32_t> table, std::size_t least) {
    table.resize(std::max(least, (table.size() + 127) / 128 * 128), unused);
    std::string bytes;
    for (const std::uint32_t word : table) {
        bytes += int_bytes(word);
    }
    return bytes;
}

std::string entry_bytes(const CompoundBuilder::Entry& entry, std::uint32_t first, std::size_t size) {
    std::string bytes;
    for (const char16_t c : entry.name) {
        bytes += {static_cast<char>(c & 0xff), static_cast<char>(c >> 8)};
    }
    bytes.resize(64);
    bytes += {static_cast<char>(entry.name.size() * 2 + 2), 0, static_cast<char>(entry.type), 1};
    bytes += int_bytes(entry.left) + int_bytes(entry.right) + int_bytes(entry.child);
    bytes.resize(116);
    return bytes + int_bytes(first) + int_bytes(static_cast<std::uint32_t>(size)) + int_bytes(0);
}

}  // namespace

CompoundBuilder::Entry& CompoundBuilder::Add(const std::u16string& name, const std::string& bytes,
                                             unsigned char type) {
    const auto number = static_cast<std::uint32_t>(entries.size()) + 1;
    if (first_child == unused) {
        first_child = number;
    } else {
        std::uint32_t last = first_child;
        while (entries[last - 1].right != unused) {
            last = entries[last - 1].right;
        }
        entries[last - 1].right = number;
    }
    entries.push_back({name, type, bytes});
    return entries.back();
}

std::string CompoundBuilder::Build() const {
    const std::size_t directory_sectors = (entries.size() + 1 + 3) / 4;
    Sectors sectors;
    sectors.table.push_back(table_sector);
    sectors.bytes.resize(sector_size);
    const std::uint32_t directory_first = sectors.Add(std::string(directory_sectors * sector_size, '\0'));
    std::string small;
    std::vector<std::uint32_t> small_table;
    std::vector<std::uint32_t> firsts;
    for (const Entry& entry : entries) {
        if (entry.bytes.size() >= small_limit) {
            firsts.push_back(sectors.Add(entry.bytes));
            continue;
        }
        firsts.push_back(entry.bytes.empty() ? end_of_chain : static_cast<std::uint32_t>(small_table.size()));
        small += entry.bytes;
        pad(small, small_size);
        while (small_table.size() < small.size() / small_size) {
            small_table.push_back(static_cast<std::uint32_t>(small_table.size()) + 1);
        }
        if (!entry.bytes.empty()) {
            small_table.back() = end_of_chain;
        }
    }
    const std::uint32_t small_first = sectors.Add(small);
    const std::uint32_t small_table_first =
        sectors.Add(small_table.empty() ? std::string() : table_bytes(small_table, 128));
    std::string directory =
        entry_bytes({u"Root Entry", 5, "", unused, unused, first_child}, small_first, small.size());
    for (std::size_t i = 0; i < entries.size(); ++i) {
        directory += entry_bytes(entries[i], firsts[i], entries[i].bytes.size());
    }
    pad(directory, sector_size);
    sectors.bytes.replace(0, sector_size, table_bytes(sectors.table, 128));
    sectors.bytes.replace(sector_size, directory.size(), directory);
    std::string header =
        bytes_of("d0cf11e0a1b11ae1 00000000000000000000000000000000 3e00 0300 feff 0900 0600") +
        std::string(10, '\0') + int_bytes(1) + int_bytes(directory_first) + int_bytes(0) +
        int_bytes(small_limit) + int_bytes(small_table_first) + int_bytes(small_table.empty() ? 0 : 1) +
        int_bytes(end_of_chain) + int_bytes(0) + int_bytes(0);
    header.resize(sector_size, '\xff');
    return header + sectors.bytes;
}
