#include "lvx/platform/atoms.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <random>
#include <string>

#include "support/threads.h"

namespace {

// A name that no other program has added meanwhile: where the table is the system's, this process is not
// alone.
std::string own_name(const std::string& end) {
    static const std::string process = std::to_string(std::random_device{}());
    return "lvx " + process + " " + end;
}

// Takes its reference away at the end of the test.
class Atom {
public:
    explicit Atom(const std::string& name) : m_atom(GlobalAddAtomA(name.c_str())) {}
    Atom(const Atom&) = delete;
    Atom& operator=(const Atom&) = delete;
    ~Atom() { GlobalDeleteAtom(m_atom); }

    operator unsigned short() const { return m_atom; }

private:
    unsigned short m_atom;
};

// What GlobalGetAtomNameA wrote into a buffer of `size`, with a dot for each byte that it left alone.
std::string written(unsigned short atom, int size, unsigned int& length) {
    std::string buffer(300, '.');
    length = GlobalGetAtomNameA(atom, buffer.data(), size);
    std::replace(buffer.begin(), buffer.end(), '\0', '0');
    return buffer.substr(0, buffer.find_last_not_of('.') + 1);
}

std::string name_of(unsigned short atom) {
    char buffer[300] = {};
    const unsigned int length = GlobalGetAtomNameA(atom, buffer, sizeof buffer);
    return {buffer, length};
}

unsigned short add_number(std::uintptr_t number) {
    return GlobalAddAtomA(reinterpret_cast<const char*>(number));
}

}  // namespace

TEST(Atoms, a_name_has_a_number_from_0xC000_on) {
    const Atom atom(own_name("a"));
    EXPECT_GE(atom, 0xC000);
}

TEST(Atoms, one_name_has_one_number_in_any_letter_case_and_keeps_the_first) {
    const std::string name = own_name("Stars.Dat");
    std::string raised = name;
    std::transform(name.begin(), name.end(), raised.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    const Atom first(name);
    const Atom second(raised);
    EXPECT_EQ(first, second);
    EXPECT_EQ(name, name_of(second));
    EXPECT_NE(first, Atom(name + "x"));
}

TEST(Atoms, a_name_goes_with_its_last_reference) {
    const std::string name = own_name("counted");
    const unsigned short atom = GlobalAddAtomA(name.c_str());
    GlobalAddAtomA(name.c_str());
    EXPECT_EQ(0, GlobalDeleteAtom(atom));
    EXPECT_EQ(name, name_of(atom));
    EXPECT_EQ(0, GlobalDeleteAtom(atom));
    EXPECT_EQ("", name_of(atom));
    EXPECT_EQ(atom, GlobalDeleteAtom(atom));
}

TEST(Atoms, a_name_that_went_can_come_back_in_another_letter_case) {
    const std::string name = own_name("case");
    GlobalDeleteAtom(GlobalAddAtomA(name.c_str()));
    const Atom again("L" + name.substr(1));
    EXPECT_EQ("L" + name.substr(1), name_of(again));
}

TEST(Atoms, names_have_1_to_255_characters) {
    EXPECT_EQ(0, GlobalAddAtomA(""));
    EXPECT_EQ(0, GlobalAddAtomA(std::string(256, 'x').c_str()));
    EXPECT_EQ(0, GlobalAddAtomA(std::string(100000, 'x').c_str()));
    const std::string longest = own_name(std::string(255, 'x')).substr(0, 255);
    const Atom atom(longest);
    EXPECT_EQ(longest, name_of(atom));
    EXPECT_EQ("q", name_of(Atom("q")));
}

TEST(Atoms, characters_above_127_come_back) {
    const std::string name = own_name("gr\xFC\xDF\x80");
    EXPECT_EQ(name, name_of(Atom(name)));
}

TEST(Atoms, a_number_sign_and_digits_are_that_number) {
    struct {
        const char* name;
        unsigned int atom;
        const char* text;
    } const cases[] = {
        {"#1", 1, "#1"},
        {"#123", 123, "#123"},
        {"#0012", 12, "#12"},
        {"#49151", 0xBFFF, "#49151"},
        {"#0", 0, ""},
        {"#49152", 0, ""},
        {"#65535", 0, ""},
        {"#65536", 0, ""},
        {"#99999999999999999999999999", 0, ""},
    };
    for (const auto& [name, atom, text] : cases) {
        EXPECT_EQ(atom, GlobalAddAtomA(name)) << name;
        EXPECT_EQ(text, name_of(static_cast<unsigned short>(atom))) << name;
    }
}

TEST(Atoms, a_number_sign_with_anything_else_is_a_name) {
    for (const char* const name : {"#", "#12ab", "# 12", "#-1", "#12 ", "12", "##1"}) {
        const Atom atom(name);
        EXPECT_GE(atom, 0xC000) << name;
        EXPECT_EQ(name, name_of(atom));
    }
}

TEST(Atoms, a_small_address_is_that_number) {
    EXPECT_EQ(7, add_number(7));
    EXPECT_EQ(0xBFFF, add_number(0xBFFF));
    EXPECT_EQ(0, add_number(0xC000));
    EXPECT_EQ(0, add_number(0xFFFF));
    EXPECT_EQ(0, GlobalAddAtomA(nullptr));
}

TEST(Atoms, nothing_deletes_a_number) {
    EXPECT_EQ(0, GlobalDeleteAtom(123));
    EXPECT_EQ(0, GlobalDeleteAtom(0));
    EXPECT_EQ("#123", name_of(123));
}

TEST(Atoms, a_short_buffer_is_filled_and_ended_and_the_length_is_0) {
    const Atom atom("Hello LVX");
    struct {
        int size;
        const char* bytes;
        unsigned int length;
    } const cases[] = {
        {300, "Hello LVX0", 9},
        {11, "Hello LVX0", 9},
        {10, "Hello LVX0", 9},
        {9, "Hello LV0", 0},
        {2, "H0", 0},
        {1, "0", 0},
        {0, "", 0},
        {-1, "", 0},
    };
    for (const auto& [size, bytes, expected] : cases) {
        unsigned int length = 99;
        EXPECT_EQ(bytes, written(atom, size, length)) << size;
        EXPECT_EQ(expected, length) << size;
    }
    unsigned int length = 99;
    EXPECT_EQ("#0", written(5, 2, length));
    EXPECT_EQ(0u, length);
}

TEST(Atoms, the_name_of_no_atom_leaves_the_buffer_alone) {
    const std::string name = own_name("gone");
    const unsigned short gone = GlobalAddAtomA(name.c_str());
    GlobalDeleteAtom(gone);
    for (const unsigned short atom : {gone, static_cast<unsigned short>(0)}) {
        unsigned int length = 99;
        EXPECT_EQ("", written(atom, 300, length));
        EXPECT_EQ(0u, length);
    }
}

TEST(Atoms, threads_count_references_together) {
    const std::string name = own_name("shared");
    const Atom atom(name);
    lvx_test::Threads threads(3, [&] {
        for (int i = 0; i < 200; ++i) {
            EXPECT_EQ(atom, GlobalAddAtomA(name.c_str()));
            EXPECT_EQ(name, name_of(atom));
            EXPECT_EQ(0, GlobalDeleteAtom(atom));
        }
    });
    threads.Join();
    EXPECT_EQ(name, name_of(atom));
}
