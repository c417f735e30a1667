#include "tools/lvxdoc/compound_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/lvxdoc/compound_builder.h"
#include "tests/lvxdoc/support.h"
#include "tests/support/shared_data.h"
#include "tools/lvxdoc/errors.h"

using namespace lvxdoc;
using testing::ElementsAre;

namespace {

std::string pattern(std::size_t size) {
    std::string bytes(size, '\0');
    for (std::size_t i = 0; i < size; ++i) {
        bytes[i] = static_cast<char>(i * 31 + i / 251);
    }
    return bytes;
}

std::string read_stream(const CompoundFile& file, const CompoundFile::Entry& entry) {
    const auto stream = file.OpenStream(entry);
    std::string bytes(static_cast<std::size_t>(stream->Size()), '\0');
    stream->ReadAt(0, bytes.data(), bytes.size());
    return bytes;
}

std::string damage_of(const std::string& bytes) {
    MemorySource source(bytes);
    try {
        const CompoundFile file(source);
        for (const auto& entry : file.Entries()) {
            if (entry.is_stream) {
                read_stream(file, entry);
            }
        }
    } catch (const Damage& damage) {
        return std::to_string(damage.Offset()) + ": " + damage.what();
    }
    return "none";
}

void put(std::string& bytes, std::size_t offset, std::uint32_t word) {
    bytes.replace(offset, 4, int_bytes(word));
}

// A small stream and a large one.
std::string two_streams() {
    CompoundBuilder builder;
    builder.Add(u"Small", pattern(100));
    builder.Add(u"Large", pattern(5000));
    return builder.Build();
}

}  // namespace

TEST(CompoundFile, is_recognised_by_its_signature) {
    MemorySource good(two_streams());
    MemorySource other("\xd0\xcf\x11\xe0 no");
    MemorySource short_one("\xd0\xcf\x11");
    EXPECT_TRUE(CompoundFile::Recognise(good));
    EXPECT_FALSE(CompoundFile::Recognise(other));
    EXPECT_FALSE(CompoundFile::Recognise(short_one));
}

TEST(CompoundFile, reads_streams_of_every_size_around_the_limits) {
    for (const std::size_t size : {0u, 1u, 63u, 64u, 65u, 511u, 512u, 513u, 4095u, 4096u, 4097u, 20'000u}) {
        CompoundBuilder builder;
        builder.Add(u"Before", pattern(70));
        builder.Add(u"It", pattern(size));
        MemorySource source(builder.Build());
        const CompoundFile file(source);
        ASSERT_EQ(2u, file.Entries().size());
        EXPECT_EQ(size, file.Entries()[1].size);
        EXPECT_TRUE(read_stream(file, file.Entries()[1]) == pattern(size)) << size;
    }
}

TEST(CompoundFile, reads_any_part_of_a_stream) {
    MemorySource source(two_streams());
    const CompoundFile file(source);
    const auto stream = file.OpenStream(file.Entries()[1]);
    std::string bytes(1000, '\0');
    stream->ReadAt(511, bytes.data(), bytes.size());
    EXPECT_TRUE(bytes == pattern(5000).substr(511, 1000));
}

TEST(CompoundFile, gives_the_paths_of_storages_and_what_is_in_them) {
    CompoundBuilder builder;
    builder.Add(u"Sub", "", 1);
    builder.entries[0].child = 2;
    builder.entries.push_back({u"\x05In/side", 2, "abc"});
    MemorySource source(builder.Build());
    const CompoundFile file(source);
    ASSERT_EQ(2u, file.Entries().size());
    EXPECT_EQ("Sub", file.Entries()[0].path);
    EXPECT_FALSE(file.Entries()[0].is_stream);
    EXPECT_EQ("Sub/\\x05In\\x2fside", file.Entries()[1].path);
    EXPECT_EQ("abc", read_stream(file, file.Entries()[1]));
}

TEST(CompoundFile, follows_chains_in_any_order_of_sectors) {
    std::string bytes = two_streams();
    // Sector 2 and following hold the large stream; its first two change places.
    const std::string first = bytes.substr(512 * 3, 512);
    bytes.replace(512 * 3, 512, bytes.substr(512 * 4, 512)).replace(512 * 4, 512, first);
    put(bytes, CompoundBuilder::EntryOffset(2) + 116, 3);
    put(bytes, CompoundBuilder::TableOffset(3), 2);
    put(bytes, CompoundBuilder::TableOffset(2), 4);
    MemorySource source(bytes);
    const CompoundFile file(source);
    EXPECT_TRUE(read_stream(file, file.Entries()[1]) == pattern(5000));
}

TEST(CompoundFile, tells_damage_in_the_header) {
    const std::string good = two_streams();
    EXPECT_EQ("none", damage_of(good));
    EXPECT_EQ("100: the file ends within the header of a compound file", damage_of(good.substr(0, 100)));
    std::string bytes = good;
    bytes[28] = 0;
    EXPECT_EQ("28: the byte order mark of the compound file is wrong", damage_of(bytes));
    bytes = good;
    bytes[30] = 31;
    EXPECT_EQ("26: version 3 with sectors of 2^31 bytes is not known", damage_of(bytes));
    bytes = good;
    bytes[32] = 7;
    EXPECT_EQ("32: the size of small sectors is not 64", damage_of(bytes));
    bytes = good;
    put(bytes, 76, 1000);
    EXPECT_EQ("76: the list of the sector table points to sector 1000 of a file that has 14",
              damage_of(bytes));
}

TEST(CompoundFile, tells_a_loop_in_the_list_of_the_table) {
    std::string bytes = two_streams();
    put(bytes, 76, 0xffffffff);
    // The list goes on in sector 1, which is full of unused words and names itself as the next.
    bytes.replace(1024, 512, std::string(512, '\xff'));
    put(bytes, 1024 + 508, 1);
    put(bytes, 68, 1);
    EXPECT_EQ("1024: the list of the sector table has a loop", damage_of(bytes));
}

TEST(CompoundFile, tells_loops_and_ends_of_chains) {
    std::string bytes = two_streams();
    put(bytes, CompoundBuilder::TableOffset(1), 1);
    EXPECT_EQ("1024: the chain of the directory comes back to sector 1", damage_of(bytes));
    bytes = two_streams();
    put(bytes, CompoundBuilder::TableOffset(4), 2);
    EXPECT_EQ("1536: the stream has 5000 bytes, but its chain of sectors comes back to sector 2",
              damage_of(bytes));
    bytes = two_streams();
    put(bytes, CompoundBuilder::TableOffset(4), 0xfffffffe);
    EXPECT_EQ("1536: the stream has 5000 bytes, but its chain of sectors ends", damage_of(bytes));
    bytes = two_streams();
    put(bytes, CompoundBuilder::TableOffset(4), 500);
    EXPECT_EQ("1536: the stream has 5000 bytes, but its chain of sectors leads to no sector of the file, 500",
              damage_of(bytes));
}

TEST(CompoundFile, tells_damage_in_the_directory) {
    std::string bytes = two_streams();
    put(bytes, CompoundBuilder::EntryOffset(1) + 72, 1);
    EXPECT_EQ("1220: the directory entry 1 points to entry 1, which was met before", damage_of(bytes));
    bytes = two_streams();
    put(bytes, CompoundBuilder::EntryOffset(0) + 76, 99);
    EXPECT_EQ("1092: the directory entry 0 points to entry 99, which does not exist", damage_of(bytes));
    bytes = two_streams();
    bytes[CompoundBuilder::EntryOffset(2) + 66] = 7;
    EXPECT_EQ("1346: the directory entry 2 is neither a storage nor a stream", damage_of(bytes));
    bytes = two_streams();
    bytes[CompoundBuilder::EntryOffset(1) + 64] = 66;
    EXPECT_EQ("1216: a directory entry has a name of 66 bytes", damage_of(bytes));
    bytes = two_streams();
    bytes[CompoundBuilder::EntryOffset(0) + 66] = 1;
    EXPECT_EQ("1090: the directory does not begin with the root", damage_of(bytes));
}

TEST(CompoundFile, does_not_believe_an_absurd_size) {
    std::string bytes = two_streams();
    put(bytes, CompoundBuilder::EntryOffset(2) + 120, 0xffffffff);
    EXPECT_EQ("5120: the stream has 4294967295 bytes, but its chain of sectors ends", damage_of(bytes));
}

TEST(CompoundFile, ignores_the_upper_half_of_a_size_in_version_3) {
    std::string bytes = two_streams();
    put(bytes, CompoundBuilder::EntryOffset(2) + 124, 0xcdcdcdcd);
    EXPECT_EQ("none", damage_of(bytes));
}

TEST(CompoundFile, tells_a_stream_that_the_file_is_too_short_for) {
    CompoundBuilder builder;
    builder.Add(u"Large", pattern(5000));
    const std::string bytes = builder.Build();
    EXPECT_EQ("4608: the stream lies behind the end of the file",
              damage_of(bytes.substr(0, bytes.size() - 200)));
    // What is missing there is padding.
    EXPECT_EQ("none", damage_of(bytes.substr(0, bytes.size() - 100)));
}

TEST(CompoundFile, reads_what_another_program_wrote) {
    const std::string folder = (lvx_test::shared_data() / "compound").string();
    if (!lvx_test::has_shared_data("compound")) {
        return;
    }
    for (const int size : {0, 63, 64, 65, 511, 512, 513, 4095, 4096, 4097}) {
        const auto source = open_file(folder + "/TestStream_v3_" + std::to_string(size) + ".cfs");
        const CompoundFile file(*source);
        ASSERT_EQ(1u, file.Entries().size()) << size;
        EXPECT_EQ(static_cast<std::uint64_t>(size), file.Entries()[0].size);
        EXPECT_EQ(static_cast<std::size_t>(size), read_stream(file, file.Entries()[0]).size());
    }
}

TEST(CompoundFile, ends_on_a_chain_that_another_program_made_loop) {
    const std::string folder = (lvx_test::shared_data() / "compound").string();
    if (lvx_test::has_shared_data("compound")) {
        EXPECT_NE("none", damage_of(read_file(folder + "/FatChainLoop_v3.cfs")));
    }
}
