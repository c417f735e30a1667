// An atom table of this test's own, which answers what no good one does. The library's calls come here: it
// looks these up as any program's.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "lvx/platform/atoms.h"
#include "lvx/runtime/atom.h"

namespace {

// What the table answers for a buffer of `size`, and what it leaves there.
struct Answer {
    virtual ~Answer() = default;
    virtual unsigned int operator()(char* buffer, int size) = 0;
    int asked = 0;
};

Answer* answer = nullptr;

// Tells how much there was room for, as some systems do when a name is cut.
struct CutsAndTells : Answer {
    explicit CutsAndTells(std::string text) : name(std::move(text)) {}
    unsigned int operator()(char* buffer, int size) override {
        const std::size_t length = std::min(name.size(), static_cast<std::size_t>(size) - 1);
        *std::copy_n(name.data(), length, buffer) = '\0';
        return static_cast<unsigned int>(length);
    }
    std::string name;
};

// Always has more to say.
struct NeverEnds : Answer {
    unsigned int operator()(char* buffer, int size) override {
        std::fill_n(buffer, size, 'x');
        return static_cast<unsigned int>(size) - 1;
    }
};

// Claims more than there was room for.
struct Lies : Answer {
    unsigned int operator()(char* buffer, int size) override {
        std::fill_n(buffer, size, 'x');
        return 1u << 30;
    }
};

// Always cut, and no length is told.
struct AlwaysTooSmall : Answer {
    unsigned int operator()(char* buffer, int size) override {
        std::fill_n(buffer, size - 1, 'x');
        return 0;
    }
};

std::string name_by(Answer& table) {
    answer = &table;
    LVXAtom atom(static_cast<unsigned short>(0xC123));
    const char* const text = atom;
    return text == nullptr ? "null" : text;
}

}  // namespace

extern "C" __attribute__((visibility("default"))) unsigned int GlobalGetAtomNameA(unsigned short,
                                                                                  char* buffer, int size) {
    ++answer->asked;
    return (*answer)(buffer, size);
}

TEST(OddTables, a_name_that_fills_the_buffer_is_asked_for_again) {
    struct {
        std::size_t length;
        int passes;
    } const cases[] = {{0, 1}, {98, 1}, {99, 2}, {100, 2}, {198, 2}, {199, 3}, {255, 3}, {9998, 100}};
    for (const auto& [length, passes] : cases) {
        CutsAndTells table(std::string(length, 'n'));
        EXPECT_EQ(table.name, name_by(table)) << length;
        EXPECT_EQ(passes, table.asked) << length;
    }
}

TEST(OddTables, a_name_without_end_is_cut) {
    NeverEnds table;
    EXPECT_EQ(std::string(9999, 'x'), name_by(table));
    EXPECT_EQ(100, table.asked);
}

TEST(OddTables, a_length_beyond_the_buffer_is_not_believed) {
    Lies table;
    EXPECT_EQ(std::string(10000, 'x'), name_by(table));
}

TEST(OddTables, a_name_that_never_fits_is_empty) {
    AlwaysTooSmall table;
    EXPECT_EQ("", name_by(table));
    EXPECT_EQ(100, table.asked);
}
