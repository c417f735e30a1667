#include "lvx/platform/posix/atom_table.h"

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <vector>

#include "support/threads.h"

using lvx::platform::AtomTable;

namespace {

std::string name_of(const AtomTable& table, unsigned short atom) {
    std::string name;
    table.WithName(atom, [&](std::string_view found) {
        name = found;
        return 1u;
    });
    return name;
}

void fill(AtomTable& table) {
    for (std::size_t i = 0; i < AtomTable::capacity; ++i) {
        ASSERT_NE(0, table.Add("name " + std::to_string(i)));
    }
}

}  // namespace

TEST(AtomTable, gives_numbers_from_the_first_on) {
    AtomTable table;
    EXPECT_EQ(0xC000, table.Add("a"));
    EXPECT_EQ(0xC001, table.Add("b"));
    EXPECT_EQ(0xC000, table.Add("A"));
}

TEST(AtomTable, raises_no_character_but_the_26_letters) {
    AtomTable table;
    EXPECT_EQ(table.Add("azAZ"), table.Add("AZaz"));
    EXPECT_NE(table.Add("@"), table.Add("`"));
    EXPECT_NE(table.Add("["), table.Add("{"));
    EXPECT_NE(table.Add("\xC4"), table.Add("\xE4"));
}

TEST(AtomTable, a_number_comes_again_only_when_all_others_were_given_out) {
    AtomTable table;
    const unsigned short first = table.Add("first");
    table.Delete(first);
    for (std::size_t i = 1; i < AtomTable::capacity; ++i) {
        EXPECT_NE(first, table.Add("name " + std::to_string(i)));
    }
    EXPECT_EQ(first, table.Add("again"));
}

TEST(AtomTable, a_full_table_takes_no_new_name_but_counts_those_that_it_has) {
    AtomTable table;
    fill(table);
    EXPECT_EQ(0, table.Add("one more"));
    const unsigned short known = table.Add("NAME 77");
    EXPECT_EQ("name 77", name_of(table, known));
    EXPECT_TRUE(table.Delete(known));
    EXPECT_EQ(0, table.Add("one more"));
    EXPECT_TRUE(table.Delete(known));
    EXPECT_EQ(known, table.Add("one more"));
    EXPECT_EQ("one more", name_of(table, known));
}

TEST(AtomTable, the_last_number_is_0xFFFF) {
    AtomTable table;
    fill(table);
    EXPECT_EQ("name 16383", name_of(table, 0xFFFF));
}

TEST(AtomTable, what_was_never_added_has_no_name_and_is_not_deleted) {
    AtomTable table;
    for (const unsigned short atom : std::vector<unsigned short>{0, 1, 0xBFFF, 0xC000, 0xFFFF}) {
        EXPECT_EQ("", name_of(table, atom));
        EXPECT_FALSE(table.Delete(atom));
    }
}

TEST(AtomTable, threads_have_their_names_at_the_same_time) {
    AtomTable table;
    std::atomic<int> next{0};
    lvx_test::Threads threads(3, [&] {
        const std::string name = "thread " + std::to_string(next++);
        for (int i = 0; i < 200; ++i) {
            const unsigned short atom = table.Add(name);
            EXPECT_EQ(name, name_of(table, atom));
            EXPECT_TRUE(table.Delete(atom));
        }
    });
    threads.Join();
    for (unsigned int atom = 0xC000; atom < 0xC000 + 600; ++atom) {
        EXPECT_FALSE(table.Delete(static_cast<unsigned short>(atom)));
    }
}
