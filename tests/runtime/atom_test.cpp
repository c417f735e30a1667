#include "lvx/runtime/atom.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <utility>

#include "lvx/platform/atoms.h"

namespace {

static_assert(!std::is_copy_constructible_v<LVXAtom> && !std::is_copy_assignable_v<LVXAtom>);
static_assert(std::is_convertible_v<unsigned short, LVXAtom> && std::is_convertible_v<int, LVXAtom> &&
              std::is_convertible_v<std::string, LVXAtom> && !std::is_convertible_v<const char*, LVXAtom>);
// What gives an atom up cannot be asked whether there is one.
static_assert(std::is_void_v<decltype(!std::declval<LVXAtom&>())>);

unsigned short number_of(const LVXAtom& atom) {
    return static_cast<unsigned short>(static_cast<unsigned int>(atom));
}

const char* text_of(LVXAtom& atom) {
    return atom;
}

// Whether the table knows it.
bool is_alive(unsigned short atom) {
    char buffer[300];
    return GlobalGetAtomNameA(atom, buffer, sizeof buffer) != 0;
}

// A name of so many characters that no other test adds.
std::string name_of_length(std::size_t length) {
    return ("lvx atom " + std::to_string(length) + std::string(length, '.')).substr(0, length);
}

}  // namespace

TEST(Atom, has_the_number_of_its_name) {
    LVXAtom atom("lvx atom one");
    EXPECT_GE(static_cast<unsigned int>(atom), 0xC000u);
    EXPECT_EQ(GlobalAddAtomA("LVX ATOM ONE"), number_of(atom));
    GlobalDeleteAtom(number_of(atom));
    !atom;
}

TEST(Atom, destroyed_leaves_the_atom_alive) {
    const unsigned short number = GlobalAddAtomA("lvx atom alive");
    {
        LVXAtom atom(number);
        EXPECT_STREQ("lvx atom alive", text_of(atom));
    }
    { const LVXAtom added("lvx atom alive"); }
    EXPECT_TRUE(is_alive(number));
    // The reference of the one that was added, then our own.
    EXPECT_EQ(0, GlobalDeleteAtom(number));
    EXPECT_TRUE(is_alive(number));
    EXPECT_EQ(0, GlobalDeleteAtom(number));
    EXPECT_FALSE(is_alive(number));
}

TEST(Atom, wrapping_a_number_counts_nothing) {
    const unsigned short number = GlobalAddAtomA("lvx atom wrapped");
    { const LVXAtom atom(number); }
    EXPECT_EQ(0, GlobalDeleteAtom(number));
    EXPECT_FALSE(is_alive(number));
}

TEST(Atom, is_given_up_once) {
    const unsigned short number = GlobalAddAtomA("lvx atom given up");
    GlobalAddAtomA("lvx atom given up");
    LVXAtom atom(number);
    !atom;
    EXPECT_EQ(0u, static_cast<unsigned int>(atom));
    !atom;
    EXPECT_TRUE(is_alive(number));
    GlobalDeleteAtom(number);
    EXPECT_FALSE(is_alive(number));
}

TEST(Atom, without_an_atom_there_is_nothing_to_give_up_and_no_name) {
    LVXAtom atom(static_cast<unsigned short>(0));
    EXPECT_EQ(0u, static_cast<unsigned int>(atom));
    EXPECT_EQ(nullptr, text_of(atom));
    !atom;
    EXPECT_EQ(0u, static_cast<unsigned int>(atom));
}

// `if (atom)` used to take the name, and who asked for it afterwards got null.
TEST(Atom, asked_whether_there_is_one_keeps_its_name_for_later) {
    LVXAtom atom("lvx atom asked");
    EXPECT_TRUE(atom ? true : false);
    EXPECT_TRUE(atom ? true : false);
    EXPECT_TRUE(atom != 0);
    EXPECT_FALSE(atom == 0);
    const unsigned int number = atom;
    EXPECT_EQ(static_cast<unsigned int>(atom), number);
    const char* const text = atom;
    EXPECT_STREQ("lvx atom asked", text);
    EXPECT_TRUE(atom ? true : false);
    !atom;
    EXPECT_FALSE(atom ? true : false);
    EXPECT_TRUE(atom == 0);
}

TEST(Atom, that_is_0_is_false) {
    LVXAtom none = 0;
    EXPECT_FALSE(none ? true : false);
    const LVXAtom constant = 0;
    EXPECT_FALSE(constant ? true : false);
}

TEST(Atom, is_made_from_a_number_or_a_text_where_one_is_asked_for) {
    const auto number_and_name = [](LVXAtom atom) {
        return std::pair(number_of(atom), std::string(text_of(atom)));
    };
    const std::string name = "lvx atom converted";
    const auto [number, text] = number_and_name(name);
    EXPECT_EQ(name, text);
    EXPECT_EQ(std::pair(number, name), number_and_name(number));
    LVXAtom given_up = number;
    !given_up;
    EXPECT_FALSE(is_alive(number));
    EXPECT_EQ(5, number_of(5));
}

TEST(Atom, delivers_its_name_once) {
    LVXAtom atom("lvx atom Once");
    const char* const text = atom;
    EXPECT_STREQ("lvx atom Once", text);
    EXPECT_EQ(nullptr, text_of(atom));
    EXPECT_EQ(nullptr, text_of(atom));
    EXPECT_STREQ("lvx atom Once", text);
    !atom;
    EXPECT_STREQ("lvx atom Once", text);
}

TEST(Atom, that_was_given_up_has_no_name) {
    LVXAtom atom("lvx atom nameless");
    !atom;
    EXPECT_EQ(nullptr, text_of(atom));
}

TEST(Atom, gives_names_of_every_length_whole) {
    for (const std::size_t length : {1u, 2u, 97u, 98u, 99u, 100u, 101u, 198u, 199u, 200u, 201u, 254u, 255u}) {
        const std::string name = name_of_length(length);
        LVXAtom atom(name);
        EXPECT_EQ(name, std::string(text_of(atom)));
        !atom;
    }
}

TEST(Atom, that_the_table_does_not_know_has_an_empty_name) {
    LVXAtom added("lvx atom dead");
    LVXAtom dead(number_of(added));
    !added;
    EXPECT_STREQ("", text_of(dead));
    EXPECT_EQ(nullptr, text_of(dead));
    !dead;
    EXPECT_EQ(0u, static_cast<unsigned int>(dead));
}

TEST(Atom, of_a_name_that_cannot_be_one_is_0) {
    for (const std::string& name : {std::string(), name_of_length(256), std::string("\0after", 6)}) {
        const LVXAtom atom(name);
        EXPECT_EQ(0u, static_cast<unsigned int>(atom));
    }
}

TEST(Atom, of_a_number_sign_and_digits_is_the_number) {
    LVXAtom atom("#0815");
    EXPECT_EQ(815u, static_cast<unsigned int>(atom));
    EXPECT_STREQ("#815", text_of(atom));
    !atom;
}

TEST(Atom, takes_the_name_up_to_its_first_NUL) {
    LVXAtom atom(std::string("lvx atom\0 tail", 14));
    EXPECT_STREQ("lvx atom", text_of(atom));
    !atom;
}
