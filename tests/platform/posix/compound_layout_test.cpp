#include "lvx/platform/posix/compound_layout.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "lvx/platform/posix/storage_file.h"
#include "platform/storage_calls.h"
#include "support/bytes.h"
#include "support/temp_folder.h"

using lvx_test::code;
using lvx_test::Storage;
using lvx_test::Stream;

namespace {

// Bytes of a document changed at known places. The small one has its header at 0 and its sectors, of 512
// bytes each, behind that.
class Layout : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(lvx_test::write_document(
            m_name, {{L"small", "tiny"}, {L"Large", lvx_test::counting_bytes(5000)}, {L"empty", ""}}));
        m_data = lvx_test::read_file(m_name);
    }

    std::uint32_t Get32(std::size_t offset) const {
        std::uint32_t value = 0;
        for (std::size_t i = 4; i-- > 0;) {
            value = value << 8 | static_cast<unsigned char>(m_data.at(offset + i));
        }
        return value;
    }
    void Put32(std::size_t offset, std::uint32_t value) {
        for (std::size_t i = 0; i < 4; ++i) {
            m_data.at(offset + i) = static_cast<char>(value >> (8 * i));
        }
    }
    static std::size_t SectorAt(std::uint32_t sector) { return (std::size_t{sector} + 1) * 512; }
    // Where the table has the entry of a sector. Requires: a table of one sector.
    std::size_t TableEntry(std::uint32_t sector) const { return SectorAt(Get32(76)) + 4 * sector; }
    std::size_t Directory() const { return SectorAt(Get32(48)); }
    // Where the directory has the entry of this name. Requires: a directory of one sector.
    std::size_t EntryOf(const std::string& name) const {
        for (std::size_t entry = Directory(); entry < Directory() + 512; entry += 128) {
            std::string found;
            for (std::size_t i = 0; i + 2 < static_cast<unsigned char>(m_data.at(entry + 64)); i += 2) {
                found += m_data.at(entry + i);
            }
            if (found == name) {
                return entry;
            }
        }
        ADD_FAILURE() << "no entry " << name;
        return Directory();
    }

    std::string Load() {
        lvx_test::write_file(m_name, m_data);
        Storage storage;
        return code(lvx_test::open_file(m_name, storage));
    }
    // What opening a stream gives in a file that opens.
    std::string OpenStream(const std::wstring& name) {
        lvx_test::write_file(m_name, m_data);
        Storage storage;
        Stream stream;
        const HRESULT opened = lvx_test::open_file(m_name, storage);
        return SUCCEEDED(opened) ? code(lvx_test::open_stream(storage, name, stream)) : "no file";
    }

    lvx_test::TempFolder m_folder;
    std::string m_name = m_folder.File("document");
    std::string m_data;
};

// A new file each time: some file systems flush one that is written over, which takes milliseconds.
void write_anew(const std::string& name, std::string_view data) {
    std::filesystem::remove(name);
    lvx_test::write_file(name, data);
}

constexpr const char* corrupt = "80030109";
constexpr const char* not_compound = "80030050";

// Opens the file and reads every stream; true if it gave all three streams whole.
bool read_all(const std::string& name) {
    Storage storage;
    if (FAILED(lvx_test::open_file(name, storage))) {
        return false;
    }
    lvx_test::list(storage);
    bool whole = true;
    for (const wchar_t* stream_name : {L"small", L"Large", L"empty"}) {
        Stream stream;
        if (FAILED(lvx_test::open_stream(storage, stream_name, stream))) {
            whole = false;
            continue;
        }
        const std::uint64_t size = lvx_test::size_of(stream);
        // The file has some 9000 bytes, and no stream has more.
        EXPECT_LT(size, 20000u);
        EXPECT_EQ(size, lvx_test::read(stream, size).size());
    }
    return whole;
}

}  // namespace

TEST_F(Layout, takes_the_file_as_it_was_written) {
    EXPECT_EQ("", Load());
    EXPECT_TRUE(read_all(m_name));
}

TEST_F(Layout, needs_the_signature_and_then_a_header_that_it_knows) {
    struct Case {
        std::size_t offset;
        char value;
        const char* result;
    };
    for (const Case& change :
         {Case{0, 'x', not_compound}, Case{7, 'x', not_compound}, Case{26, 5, corrupt}, Case{28, 0, corrupt},
          Case{30, 10, corrupt}, Case{30, 12, corrupt}, Case{32, 7, corrupt}, Case{56, 1, corrupt}}) {
        const std::string whole = m_data;
        m_data[change.offset] = change.value;
        EXPECT_EQ(change.result, Load()) << change.offset;
        m_data = whole;
    }
}

TEST_F(Layout, needs_the_sectors_of_its_table) {
    const std::string whole = m_data;
    for (const std::uint32_t count : {0u, 2u, 110u, 1000000u, 0xFFFFFFFFu}) {
        Put32(44, count);
        EXPECT_EQ(corrupt, Load()) << count;
        m_data = whole;
    }
    for (const std::uint32_t sector : {10000u, 0xFFFFFFFAu, 0xFFFFFFFEu, 0xFFFFFFFFu}) {
        Put32(76, sector);
        EXPECT_EQ(corrupt, Load()) << sector;
        m_data = whole;
    }
}

TEST_F(Layout, needs_a_directory_whose_chain_ends) {
    const std::uint32_t sector = Get32(48);
    Put32(TableEntry(sector), sector);
    EXPECT_EQ(corrupt, Load());
    Put32(TableEntry(sector), 100000);
    EXPECT_EQ(corrupt, Load());
    Put32(48, 0xFFFFFFFE);
    EXPECT_EQ(corrupt, Load());
}

TEST_F(Layout, a_chain_that_loops_spoils_its_own_stream_alone) {
    const std::uint32_t first = Get32(EntryOf("Large") + 116);
    const std::uint32_t second = Get32(TableEntry(first));
    Put32(TableEntry(second), first);
    EXPECT_EQ(corrupt, OpenStream(L"Large"));
    EXPECT_EQ("", OpenStream(L"small"));
}

TEST_F(Layout, a_chain_that_ends_early_spoils_its_own_stream_alone) {
    const std::uint32_t first = Get32(EntryOf("Large") + 116);
    Put32(TableEntry(first), 0xFFFFFFFE);
    EXPECT_EQ(corrupt, OpenStream(L"Large"));
    EXPECT_EQ("", OpenStream(L"small"));
}

TEST_F(Layout, a_size_beyond_the_file_is_damage_and_takes_no_memory) {
    for (const std::uint32_t size : {6000u, 100000u, 0x7FFFFFFFu, 0xFFFFFFFFu}) {
        Put32(EntryOf("Large") + 120, size);
        EXPECT_EQ(corrupt, OpenStream(L"Large")) << size;
    }
    Put32(EntryOf("small") + 120, 4095);
    EXPECT_EQ(corrupt, OpenStream(L"small"));
}

TEST_F(Layout, a_size_that_says_less_than_there_is_is_taken) {
    Put32(EntryOf("Large") + 120, 4500);
    EXPECT_EQ("", OpenStream(L"Large"));
    Put32(EntryOf("small") + 120, 0);
    EXPECT_EQ("", OpenStream(L"small"));
}

TEST_F(Layout, what_stands_above_a_size_of_32_bits_does_not_count) {
    Put32(EntryOf("Large") + 124, 0xDEADBEEF);
    EXPECT_EQ("", OpenStream(L"Large"));
}

TEST_F(Layout, small_streams_need_the_stream_that_they_lie_in) {
    Put32(Directory() + 116, 100000);
    EXPECT_EQ(corrupt, OpenStream(L"small"));
    EXPECT_EQ("", OpenStream(L"empty"));
}

TEST_F(Layout, a_file_cut_anywhere_gives_an_error_or_its_streams) {
    for (std::size_t length = 0; length < m_data.size(); length += length < 1024 ? 1 : 13) {
        write_anew(m_name, std::string_view(m_data).substr(0, length));
        EXPECT_FALSE(read_all(m_name) && length + 512 < m_data.size()) << length;
    }
}

TEST_F(Layout, every_changed_byte_gives_an_error_or_streams) {
    std::size_t refused = 0;
    for (std::size_t i = 0; i < m_data.size(); ++i) {
        // The bytes of the large stream are just bytes; what counts are the header, the tables and the
        // directory.
        const bool is_content = i % 512 != 0 && m_data[i] == static_cast<char>(m_data[i - 1] + 1);
        const bool is_filling = m_data[i] == '\xFF' && i % 4 != 0;
        if (is_content || is_filling) {
            continue;
        }
        std::string damaged = m_data;
        for (const char change : {'\x01', '\x80'}) {
            damaged[i] = static_cast<char>(m_data[i] ^ change);
            write_anew(m_name, damaged);
            refused += read_all(m_name) ? 0u : 1u;
        }
    }
    EXPECT_GT(refused, 300u);
}

// The allocation table of a file above 7 MB has more sectors than the header can list.
TEST_F(Layout, a_table_with_a_list_beyond_the_header_is_followed_and_checked) {
    const std::string large = lvx_test::counting_bytes(8'000'000);
    ASSERT_TRUE(lvx_test::write_document(m_name, {{L"Large", large}}));
    {
        Storage storage;
        Stream stream;
        ASSERT_EQ("", code(lvx_test::open_file(m_name, storage)));
        ASSERT_EQ("", code(lvx_test::open_stream(storage, L"Large", stream)));
        EXPECT_TRUE(large == lvx_test::read(stream, large.size() + 1));
    }
    m_data = lvx_test::read_file(m_name);
    const std::uint32_t list_start = Get32(68);
    ASSERT_LT(list_start, 0xFFFFFFF0u);
    for (const std::uint32_t start : {0xFFFFFFFEu, 0x00FFFFFFu}) {
        Put32(68, start);
        EXPECT_EQ(corrupt, Load()) << start;
    }
    Put32(68, list_start);
    // One table sector more than the list has.
    Put32(44, Get32(44) + 200);
    EXPECT_EQ(corrupt, Load());
}

TEST_F(Layout, the_size_of_sectors_goes_with_the_version) {
    const struct {
        unsigned char version;
        unsigned char shift;
    } cases[] = {{3, 12}, {4, 9}, {5, 9}, {2, 9}, {3, 8}};
    for (const auto& [version, shift] : cases) {
        m_data[26] = static_cast<char>(version);
        m_data[30] = static_cast<char>(shift);
        EXPECT_EQ(corrupt, Load()) << int{version} << ", " << int{shift};
    }
}

TEST_F(Layout, what_cannot_be_read_is_no_damage) {
    const lvx::platform::StorageFile file(std::fopen(m_name.c_str(), "ab"));
    lvx::platform::CompoundLayout layout;
    EXPECT_EQ("8003001e", code(layout.Load(file.get())));
}
