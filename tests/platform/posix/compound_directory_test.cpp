#include "lvx/platform/posix/compound_directory.h"

#include <gtest/gtest.h>

using lvx::platform::CompoundDirectory;

namespace {

constexpr std::uint32_t none = 0xFFFFFFFF;

struct Links {
    std::uint32_t left = none;
    std::uint32_t right = none;
    std::uint32_t child = none;
};

// A directory, entry by entry.
class Entries {
public:
    void Add(const std::u16string& name, unsigned char kind, Links links, std::uint32_t size = 0) {
        const std::size_t entry = data.size();
        data.resize(entry + 128);
        for (std::size_t i = 0; i < name.size(); ++i) {
            data[entry + 2 * i] = static_cast<unsigned char>(name[i]);
            data[entry + 2 * i + 1] = static_cast<unsigned char>(name[i] >> 8);
        }
        data[entry + 64] = static_cast<unsigned char>(2 * name.size() + 2);
        data[entry + 66] = kind;
        Put32(entry + 68, links.left);
        Put32(entry + 72, links.right);
        Put32(entry + 76, links.child);
        Put32(entry + 116, 7);
        Put32(entry + 120, size);
    }
    void AddRoot(std::uint32_t child) { Add(u"Root Entry", 5, {none, none, child}); }
    void Put32(std::size_t offset, std::uint32_t value) {
        for (std::size_t i = 0; i < 4; ++i) {
            data[offset + i] = static_cast<unsigned char>(value >> (8 * i));
        }
    }
    bool IsSound() const { return CompoundDirectory::Check(data, false).has_value(); }

    std::vector<unsigned char> data;
};

}  // namespace

TEST(Directory, tells_what_lies_directly_below_the_root) {
    Entries entries;
    entries.AddRoot(2);
    entries.Add(u"a", 2, {}, 100);
    entries.Add(u"b", 1, {1, 3, 4}, 55);
    entries.Add(u"\x00FC\xD83D\xDE00", 2, {}, 5000);
    entries.Add(u"inside", 2, {}, 9);
    const auto directory = CompoundDirectory::Check(entries.data, false);
    ASSERT_TRUE(directory);
    ASSERT_EQ(3u, directory->elements.size());
    for (const auto& element : directory->elements) {
        EXPECT_EQ(element.name != L"b", element.is_stream);
        EXPECT_EQ(7u, element.first_sector);
        if (element.name == L"a") {
            EXPECT_EQ(100u, element.size);
        } else if (element.name == L"b") {
            EXPECT_EQ(0u, element.size) << "a storage has none";
        } else {
            EXPECT_EQ(L"\x00FC\x1F600", element.name);
            EXPECT_EQ(5000u, element.size);
        }
    }
}

TEST(Directory, may_be_empty_but_for_its_root) {
    Entries entries;
    entries.AddRoot(none);
    EXPECT_TRUE(entries.IsSound());
    EXPECT_FALSE(Entries().IsSound());
}

TEST(Directory, needs_a_root_that_stands_alone) {
    for (const int kind : {0, 1, 2, 3, 6, 255}) {
        Entries entries;
        entries.Add(u"Root Entry", static_cast<unsigned char>(kind), {});
        EXPECT_FALSE(entries.IsSound()) << kind;
    }
    Entries with_left;
    with_left.Add(u"Root Entry", 5, {1, none, none});
    with_left.Add(u"a", 2, {});
    EXPECT_FALSE(with_left.IsSound());
}

TEST(Directory, has_no_loops_and_no_entry_twice) {
    for (const Links& links : {Links{1, none, none}, Links{none, 1, none}, Links{none, none, 1},
                               Links{2, 2, none}, Links{0, none, none}, Links{none, none, 0}}) {
        Entries entries;
        entries.AddRoot(1);
        entries.Add(u"a", 1, links);
        entries.Add(u"b", 2, {});
        EXPECT_FALSE(entries.IsSound()) << links.left << ' ' << links.right << ' ' << links.child;
    }
}

TEST(Directory, has_no_links_that_lead_out_of_it) {
    for (const std::uint32_t number : {2u, 1000u, 0xFFFFFFFEu}) {
        Entries entries;
        entries.AddRoot(1);
        entries.Add(u"a", 2, {number, none, none});
        EXPECT_FALSE(entries.IsSound()) << number;
        Entries child;
        child.AddRoot(number);
        child.Add(u"a", 2, {});
        EXPECT_FALSE(child.IsSound()) << number;
    }
}

TEST(Directory, ignores_the_child_that_a_stream_may_claim) {
    Entries entries;
    entries.AddRoot(1);
    entries.Add(u"a", 2, {none, none, 12345});
    EXPECT_TRUE(entries.IsSound());
}

TEST(Directory, has_streams_and_storages_with_proper_names) {
    struct Case {
        std::size_t offset;
        unsigned char value;
    };
    // The kind, then the length of the name: none, odd, too long, not at the terminator; then a NUL and half
    // a character in the name.
    for (const Case& change : {Case{66, 0}, Case{66, 3}, Case{66, 5}, Case{64, 0}, Case{64, 2}, Case{64, 7},
                               Case{64, 66}, Case{65, 1}, Case{64, 6}, Case{0, 0}, Case{3, 0xD8}}) {
        Entries entries;
        entries.AddRoot(1);
        entries.Add(u"abc", 2, {});
        ASSERT_TRUE(entries.IsSound());
        entries.data[128 + change.offset] = change.value;
        EXPECT_FALSE(entries.IsSound()) << change.offset << ' ' << int{change.value};
    }
}

TEST(Directory, may_be_a_list_of_any_length) {
    // Some writers leave lists where there should be trees.
    constexpr std::uint32_t count = 100000;
    Entries entries;
    entries.AddRoot(1);
    for (std::uint32_t i = 1; i <= count; ++i) {
        entries.Add(u"n", 2, {none, i < count ? i + 1 : none, none});
    }
    const auto directory = CompoundDirectory::Check(entries.data, false);
    ASSERT_TRUE(directory);
    EXPECT_EQ(count, directory->elements.size());
}

TEST(Directory, has_sizes_of_64_bits_in_files_that_have_them) {
    Entries entries;
    entries.AddRoot(1);
    entries.Add(u"a", 2, {}, 5);
    entries.Put32(128 + 124, 1);
    EXPECT_EQ(5u, CompoundDirectory::Check(entries.data, false)->elements.at(0).size);
    EXPECT_EQ(0x100000005u, CompoundDirectory::Check(entries.data, true)->elements.at(0).size);
}
