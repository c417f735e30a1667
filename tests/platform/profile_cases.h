// tests/platform/profile_cases.h
//
// What is read out of a settings file, and what a write makes of one, case by case. The same tables run
// against the system's own calls on Windows and against ours elsewhere. The cases in which these differ stand
// in tables of their own, with a column for each.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace lvx_test {

using namespace std::string_view_literals;

struct ProfileReadCase {
    std::string_view bytes;
    const char* section;
    const char* key;
    const char* default_value;
    std::string_view expected;
};

inline std::vector<ProfileReadCase> profile_read_cases() {
    return {
        // Line ends.
        {"[s]\r\nk=v\r\n", "s", "k", "D", "v"},
        {"[s]\nk=v\n", "s", "k", "D", "v"},
        {"[s]\rj=1\rk=v\r", "s", "k", "D", "v"},
        {"[s]\nk=v", "s", "k", "D", "v"},
        {"[s]\n\n\r\nk=v", "s", "k", "D", "v"},
        {"[s]\rj=1\nk=v\r\n", "s", "k", "D", "v"},
        {"[s]\nk=a\\\nb\n", "s", "k", "D", "a\\"},
        {"", "s", "k", "D", "D"},
        // Quotes that enclose the value go, once.
        {"[s]\nk=\"v\"\n", "s", "k", "D", "v"},
        {"[s]\nk='v'\n", "s", "k", "D", "v"},
        {"[s]\nk=\"\"\n", "s", "k", "D", ""},
        {"[s]\nk=''\n", "s", "k", "D", ""},
        {"[s]\nk=\" v \"\n", "s", "k", "D", " v "},
        {"[s]\nk=' v '\n", "s", "k", "D", " v "},
        {"[s]\nk= \"v\" \n", "s", "k", "D", "v"},
        {"[s]\nk='\"v\"'\n", "s", "k", "D", "\"v\""},
        {"[s]\nk=\"'v'\"\n", "s", "k", "D", "'v'"},
        {"[s]\nk=\"\"v\"\"\n", "s", "k", "D", "\"v\""},
        {"[s]\nk=\"v\n", "s", "k", "D", "\"v"},
        {"[s]\nk=v\"\n", "s", "k", "D", "v\""},
        {"[s]\nk=\"\n", "s", "k", "D", "\""},
        {"[s]\nk='\n", "s", "k", "D", "'"},
        {"[s]\nk=\"v'\n", "s", "k", "D", "\"v'"},
        {"[s]\nk=\"v\" x\n", "s", "k", "D", "\"v\" x"},
        {"[s]\nk=\"v\";c\n", "s", "k", "D", "\"v\";c"},
        // Blanks round values and names go; those inside stay.
        {"[s]\nk= v w \n", "s", "k", "D", "v w"},
        {"[s]\nk=\tv\t\n", "s", "k", "D", "v"},
        {"[s]\nk=\v\fv\f\v\n", "s", "k", "D", "v"},
        {"[s]\nk=\xA0v\xA0\n", "s", "k", "D", "\xA0v\xA0"},
        {"[s]\nk=\x01v\x01\n", "s", "k", "D", "\x01v\x01"},
        {" [s]\nk=v\n", "s", "k", "D", "v"},
        {"\t[ s ] \nk=v\n", "s", "k", "D", "v"},
        {"[s]\nk=v\n", " s ", " k ", "D", "v"},
        {"[s\t]\n\tk\t=v\n", "s", "k", "D", "v"},
        {"[s]\n k \v = v\n", "s", "\vk\f", "D", "v"},
        {"[s]\nk k=v\n", "s", "k k", "D", "v"},
        {"[s]\nk  k=v\n", "s", "k k", "D", "D"},
        // Case does not matter for ASCII letters.
        {"[S]\nK=v\n", "s", "k", "D", "v"},
        {"[ab]\ncd=V\n", "AB", "CD", "D", "V"},
        {"[a[]\nk{=v\n", "a{", "k{", "D", "D"},
        {"[s]\n[=v\n", "s", "{", "D", "D"},
        {"[\xE9]\nk=v\n", "\xE9", "k", "D", "v"},
        {"[\xE9]\nk=v\n", "\xC9", "k", "D", "D"},
        // Headers: the last bracket ends the name, and nothing behind it counts.
        {"[s] x\nk=v\n", "s", "k", "D", "v"},
        {"[s]x\nk=v\n", "s", "k", "D", "v"},
        {"[s]k=v\n", "s", "k", "D", "D"},
        {"[s]x]\nk=v\n", "s]x", "k", "D", "v"},
        {"[s]x]\nk=v\n", "s", "k", "D", "D"},
        {"[s] ]\nk=v\n", "s]", "k", "D", "v"},
        {"[s]]\nk=v\n", "s]", "k", "D", "v"},
        {"[[s]\nk=v\n", "[s", "k", "D", "v"},
        {"[[s]]\nk=v\n", "[s]", "k", "D", "v"},
        {"[s;c]\nk=v\n", "s;c", "k", "D", "v"},
        {"[s\nk=v\n", "s", "k", "D", "D"},
        {"[a]\nx=1\n[s\nk=v\n", "a", "k", "D", "v"},
        {"[a]\nx=1\n[s\nk=v\n", "a", "[s", "D", "D"},
        {"[a]\n[s=3\nk=v\n", "a", "[s", "D", "3"},
        {"x[s]\nk=v\n", "s", "k", "D", "D"},
        // The lines in front of the first header are those of the section without a name.
        {"k=v\n[s]\nk=w\n", "", "k", "D", "v"},
        {"k=v\n[s]\nk=w\n", " ", "k", "D", "v"},
        {"k=v\n[s]\nk=w\n", "s", "k", "D", "w"},
        {"k=v\n", "s", "k", "D", "D"},
        {"[]\nk=v\n", "", "k", "D", "D"},
        {"[ ]\nk=v\n", "", "k", "D", "D"},
        {"a=1\n[]\nk=v\n", "", "k", "D", "D"},
        {"a=1\n[]\nk=v\n", "", "a", "D", "1"},
        // The first of several counts, be it empty.
        {"[s]\nk=1\nK=2\n", "s", "k", "D", "1"},
        {"[s]\nk=\nk=2\n", "s", "k", "D", ""},
        {"[s]\nk=1\n[t]\nk=2\n[S]\nk=3\n", "s", "k", "D", "1"},
        {"[s]\na=1\n[t]\n[s]\nk=3\n", "s", "k", "D", "D"},
        // Values: none, empty, with signs inside.
        {"[s]\nk\n", "s", "k", "D", "D"},
        {"[s]\nk\nk=2\n", "s", "k", "D", "D"},
        {"[s]\nk=\n", "s", "k", "D", ""},
        {"[s]\nk=  \n", "s", "k", "D", ""},
        {"[s]\nk==v\n", "s", "k", "D", "=v"},
        {"[s]\nk = = v\n", "s", "k", "D", "= v"},
        {"[s]\nk:v\n", "s", "k", "D", "D"},
        {"[s]\n=v\n", "s", "", "D", "v"},
        {"[s]\n=v\n", "s", " ", "D", "v"},
        {"[s]\n=v\n=w\n", "s", "", "D", "v"},
        {"[s]\nk=v\n", "s", "", "D", "D"},
        {"[s]\n\n=v\n", "s", "", "D", "v"},
        // Comments: nothing is one behind a value, and a line of one is a key.
        {"[s]\n;k=v\n", "s", "k", "D", "D"},
        {"[s]\n;k=v\n", "s", ";k", "D", "v"},
        {"[s]\n ;k=v\n", "s", ";k", "D", "v"},
        {"[s]\n#k=v\n", "s", "k", "D", "D"},
        {"[s]\n#k=v\n", "s", "#k", "D", "v"},
        {";[s]\nk=v\n", "s", "k", "D", "D"},
        {"#[s]\nk=v\n", "s", "k", "D", "D"},
        {"[s]\nk=v ; c\n", "s", "k", "D", "v ; c"},
        {"[s]\nk=v#c\n", "s", "k", "D", "v#c"},
        {"[s]\nk;c=v\n", "s", "k;c", "D", "v"},
        {"[s]\n\"k\"=v\n", "s", "k", "D", "D"},
        {"[s]\n\"k\"=v\n", "s", "\"k\"", "D", "v"},
        // A NUL ends the name or the value that it is in; the line goes on to its end.
        {"[s]\nk=a\0b\nj=w\n"sv, "s", "k", "D", "a"},
        {"[s]\nk=a\0b\nj=w\n"sv, "s", "j", "D", "w"},
        {"[s\0x]\nk=a\n"sv, "s", "k", "D", "a"},
        {"[s]\0\nk=a\n"sv, "s", "k", "D", "a"},
        {"[s]\nk\0x=a\n"sv, "s", "k", "D", "a"},
        {"[s]\n\0k=a\n"sv, "s", "k", "D", "D"},
        {"[s]\n\0k=a\n"sv, "s", "", "D", "a"},
        {"\0[s]\nk=a\n"sv, "s", "k", "D", "D"},
        {"[s]\nk=\0v\n"sv, "s", "k", "D", ""},
        {"[s]\nk=\"a\0b\"\n"sv, "s", "k", "D", "\"a"},
        {"[s]\nk= a \0\n"sv, "s", "k", "D", "a "},
        // The end-of-file character is a blank.
        {"[s]\nk=a\x1A\nj=w\n", "s", "k", "D", "a"},
        {"[s]\nk=a\n\x1A\nj=w\n", "s", "j", "D", "w"},
        {"[s]\n\x1Ak=a\n\x1A", "s", "k", "D", "a"},
        {"[s\x1A]\nk=v\n", "s\x1A", "k", "D", "v"},
        // Byte-order marks; without one bytes are what they are.
        {"\xEF\xBB\xBF[s]\nk=v\n", "s", "k", "D", "v"},
        {"\xEF\xBB\xBFk=v\n", "", "k", "D", "v"},
        {"\xEF\xBB\xBF", "s", "k", "D", "D"},
        {"\xFF\xFE[\0s\0]\0\n\0k\0=\0v\0\n\0"sv, "s", "k", "D", "v"},
        {"\xFF\xFE[\0s\0]\0\r\0\n\0k\0=\0'\0v\0'\0"sv, "s", "k", "D", "v"},
        {"\xFE\xFF\0[\0s\0]\0\n\0k\0=\0v\0\n"sv, "s", "k", "D", "v"},
        {"[s]\nk=\xE9\xFC\x80\x9F\n", "s", "k", "D", "\xE9\xFC\x80\x9F"},
        {"[s]\nk=\xC3\xA9\n", "s", "k", "D", "\xC3\xA9"},
        // The default loses blanks at its end, but for one that is all it has, and quotes like a value.
        {"[s]\n", "s", "k", "", ""},
        {"[s]\n", "s", "k", "D ", "D"},
        {"[s]\n", "s", "k", " D  E  ", " D  E"},
        {"[s]\n", "s", "k", "D\t", "D\t"},
        {"[s]\n", "s", "k", "   ", " "},
        {"[s]\n", "s", "k", "\"D\"", "D"},
        {"[s]\n", "s", "k", "'D'  ", "D"},
        {"[s]\n", "s", "k", " \"D\" ", " \"D\""},
        {"[s]\n", "s", "k", "\" D \"", " D "},
        {"[s]\n", "s", "k", "\"", "\""},
        {"[s]\n", "s", "k", nullptr, ""},
        {"[s]\nk=\n", "s", "k", "D  ", ""},
    };
}

/// Read differently: what is beyond ASCII comes in the system's code page on Windows, as UTF-8 elsewhere.
struct ProfileReadDifference {
    std::string_view bytes;
    std::string_view on_windows;
    std::string_view elsewhere;
};

inline std::vector<ProfileReadDifference> profile_read_differences() {
    return {
        {"\xEF\xBB\xBF[s]\nk=\xC3\xA9\n", "\xE9", "\xC3\xA9"},
        {"\xFF\xFE[\0s\0]\0\n\0k\0=\0\xE9\0\n\0"sv, "\xE9", "\xC3\xA9"},
        {"\xFE\xFF\0[\0s\0]\0\n\0k\0=\0\xE9\0\n"sv, "\xE9", "\xC3\xA9"},
    };
}

/// Numbers behind "k=", asked for with the default 7.
struct ProfileNumberCase {
    std::string_view text;
    std::uint32_t expected;
};

inline std::vector<ProfileNumberCase> profile_number_cases() {
    return {
        {"12", 12},
        {" 12 ", 12},
        {"\t12", 12},
        {"0", 0},
        {"00", 0},
        {"010", 10},
        {"-5", 4294967291},
        {"+5", 5},
        {"-0", 0},
        {"- 5", 0},
        {"--5", 0},
        {"+-5", 0},
        {"-", 0},
        {"+", 0},
        // Whatever stands behind the digits.
        {"12abc", 12},
        {"12 34", 12},
        {"1.5", 1},
        {"1,234", 1},
        {"1e3", 1},
        {"abc", 0},
        {"(12)", 0},
        {"$12", 0},
        // Missing.
        {"", 7},
        {"  ", 7},
        {"\"\"", 7},
        // In quotes.
        {"\"12\"", 12},
        {"'12'", 12},
        {"\" 12\"", 12},
        {"'\t-12'", 4294967284},
        {"\"\x01 12\"", 12},
        // Other bases, with a small letter.
        {"0x10", 16},
        {"0xABCdef", 11259375},
        {"-0x10", 4294967280},
        {"+0x1F", 31},
        {"0X1F", 0},
        {"0x", 0},
        {"0xg", 0},
        {"0o17", 15},
        {"0o18", 1},
        {"0b101", 5},
        {"0b12", 1},
        {"-0b1", 4294967295},
        // Modulo 2^32.
        {"2147483647", 2147483647},
        {"2147483648", 2147483648},
        {"4294967295", 4294967295},
        {"4294967296", 0},
        {"42949672950", 4294967286},
        {"-2147483648", 2147483648},
        {"-2147483649", 2147483647},
        {"-4294967295", 1},
        {"0x1ffffffff", 4294967295},
        // Up to the 29th character.
        {"0000000000000000000000000001", 1},
        {"12345678901234567890123456789", 1849262357},
        {"123456789012345678901234567890", 1849262357},
        {"000000000000000000000000000000000012", 0},
    };
}

/// No file at all.
inline constexpr std::string_view no_profile{};

struct ProfileWriteCase {
    std::string_view before;
    const char* section;
    const char* key;
    const char* value;
    std::string_view after;
};

inline std::vector<ProfileWriteCase> profile_write_cases() {
    return {
        // Into nothing.
        {no_profile, "s", "k", "v", "[s]\r\nk=v\r\n"},
        {""sv, "s", "k", "v", "[s]\r\nk=v\r\n"},
        {""sv, "", "k", "v", "k=v\r\n"},
        {"\xEF\xBB\xBF", "s", "k", "v", "\xEF\xBB\xBF[s]\r\nk=v\r\n"},
        // A value in place of another; the first of several.
        {"[s]\r\nk=v\r\n", "s", "k", "w", "[s]\r\nk=w\r\n"},
        {"[s]\r\nK=1\r\n", "S", "k", "v", "[s]\r\nK=v\r\n"},
        {"[s]\r\nk\r\n", "s", "k", "v", "[s]\r\nk=v\r\n"},
        {"[s]\r\nk\r\nk=2\r\n", "s", "k", "v", "[s]\r\nk=v\r\nk=2\r\n"},
        {"[s]\r\nk=1\r\nk=2\r\n[s]\r\nk=3\r\n", "s", "k", "v", "[s]\r\nk=v\r\nk=2\r\n[s]\r\nk=3\r\n"},
        {"k=1\r\n[s]\r\n", "", "k", "v", "k=v\r\n[s]\r\n"},
        {"[s]\r\n=1\r\n", "s", "", "v", "[s]\r\n=v\r\n"},
        {"[s]\r\nk=V\r\n", "s", "k", "v", "[s]\r\nk=v\r\n"},
        {"[s]\r\nk=\"v\"\r\n", "s", "k", "v", "[s]\r\nk=v\r\n"},
        {"[s]\r\nk=1\r\n", "s", "k", "", "[s]\r\nk=\r\n"},
        // The value that it has: nothing is touched.
        {"[s]\nk = 1\n\n", "s", "k", "1", "[s]\nk = 1\n\n"},
        {"[s]\nk = \"1\"\n\n", "s", "k", "\"1\"", "[s]\nk = \"1\"\n\n"},
        // A new key behind the last line of its section.
        {"[s]\r\na=1\r\n", "s", "k", "v", "[s]\r\na=1\r\nk=v\r\n"},
        {"[s]\r\na=1", "s", "k", "v", "[s]\r\na=1\r\nk=v\r\n"},
        {"[s]", "s", "k", "v", "[s]\r\nk=v\r\n"},
        {"[s]\r\na=1\r\n; c\r\n[t]\r\nb=2\r\n", "s", "k", "v", "[s]\r\na=1\r\n; c\r\nk=v\r\n[t]\r\nb=2\r\n"},
        {"[s]\r\na=1\r\n[t]\r\n[s]\r\nk=3\r\n", "s", "k", "v", "[s]\r\na=1\r\nk=v\r\n[t]\r\n[s]\r\nk=3\r\n"},
        {"[s]\r\n", "", "k", "v", "k=v\r\n[s]\r\n"},
        {"[s]\r\nk=1\r\n", "s", "", "v", "[s]\r\nk=1\r\n=v\r\n"},
        // A new section to the end.
        {"[s]\r\na=1\r\n", "t", "k", "v", "[s]\r\na=1\r\n[t]\r\nk=v\r\n"},
        {"[s]\r\na=1", "t", "k", "v", "[s]\r\na=1\r\n[t]\r\nk=v\r\n"},
        {"; top\r\n", "t", "k", "v", "; top\r\n[t]\r\nk=v\r\n"},
        {"[a]\r\nx=1\r\n[s\r\nk=1\r\n", "s", "k", "v", "[a]\r\nx=1\r\n[s\r\nk=1\r\n[s]\r\nk=v\r\n"},
        // Names and values as they are given, without blanks in front.
        {"[s]\r\n", "s", "k", " v ", "[s]\r\nk=v \r\n"},
        {"[s]\r\n", "s", "k", "\tv", "[s]\r\nk=v\r\n"},
        {"[s]\r\n", "s", " k ", "v", "[s]\r\nk =v\r\n"},
        {"[s]\r\n", " s ", "k", "v", "[s]\r\nk=v\r\n"},
        {"[s]\r\n", " t ", "k", "v", "[s]\r\n[t ]\r\nk=v\r\n"},
        {"[s]\r\n", "t]", "k", "v", "[s]\r\n[t]]\r\nk=v\r\n"},
        {"[s]\r\n", "s", "k", "\"v\"", "[s]\r\nk=\"v\"\r\n"},
        {"[s]\r\n", "s", "k", "v=w;x", "[s]\r\nk=v=w;x\r\n"},
        {"[s]\r\n", "s", ";k", "v", "[s]\r\n;k=v\r\n"},
        {"[s]\r\n", "s", "[k", "v", "[s]\r\n[k=v\r\n"},
        {"[s]\r\n", "s", "k", "v\xE9\x80", "[s]\r\nk=v\xE9\x80\r\n"},
        // The encoding stays.
        {"\xEF\xBB\xBF[s]\r\nk=\xC3\xA9\r\n", "s", "j", "v", "\xEF\xBB\xBF[s]\r\nk=\xC3\xA9\r\nj=v\r\n"},
        {"\xFF\xFE[\0s\0]\0\r\0\n\0k\0=\0\xE9\0\r\0\n\0"sv, "s", "j", "w",
         "\xFF\xFE[\0s\0]\0\r\0\n\0k\0=\0\xE9\0\r\0\n\0j\0=\0w\0\r\0\n\0"sv},
        {"\xFE\xFF\0[\0s\0]\0\r\0\n\0k\0=\0v\0\r\0\n"sv, "s", "k", "w",
         "\xFE\xFF\0[\0s\0]\0\r\0\n\0k\0=\0w\0\r\0\n"sv},
    };
}

/// Written differently: elsewhere every byte stays that the write is not about.
struct ProfileWriteDifference {
    std::string_view before;
    const char* section;
    const char* key;
    const char* value;
    std::string_view on_windows;
    std::string_view elsewhere;
};

inline std::vector<ProfileWriteDifference> profile_write_differences() {
    return {
        // Line ends.
        {"[s]\nk=v\n", "s", "k", "w", "[s]\r\nk=w\r\n", "[s]\nk=w\n"},
        {"[s]\nk=v\n", "s", "j", "w", "[s]\r\nk=v\r\nj=w\r\n", "[s]\nk=v\nj=w\n"},
        {"[s]\nk=v", "t", "j", "w", "[s]\r\nk=v\r\n[t]\r\nj=w\r\n", "[s]\nk=v\n[t]\nj=w\n"},
        {"[s]\rk=v\r", "s", "j", "w", "[s]\r\nk=v\r\nj=w\r\n", "[s]\rk=v\rj=w\r"},
        // Blanks and blank lines.
        {"[s]\r\n k = v \r\n", "s", "k", "w", "[s]\r\nk=w\r\n", "[s]\r\n k = w\r\n"},
        {"[s]\r\na=1\r\n\r\n[t]\r\nb=2\r\n", "s", "k", "v", "[s]\r\na=1\r\nk=v\r\n[t]\r\nb=2\r\n",
         "[s]\r\na=1\r\nk=v\r\n\r\n[t]\r\nb=2\r\n"},
        {"[s]\r\na=1\r\n\r\n", "t", "k", "v", "[s]\r\na=1\r\n[t]\r\nk=v\r\n",
         "[s]\r\na=1\r\n\r\n[t]\r\nk=v\r\n"},
        {"\r\n", "t", "k", "v", "[t]\r\nk=v\r\n", "\r\n[t]\r\nk=v\r\n"},
        // What stands behind a header, a NUL, and at the end of old files.
        {"[s] x\r\nk=1\r\n", "s", "k", "v", "[s]\r\nk=v\r\n", "[s] x\r\nk=v\r\n"},
        {"[s]\r\nk=a\0b\r\n"sv, "s", "j", "w", "[s]\r\nk=a\r\nj=w\r\n", "[s]\r\nk=a\0b\r\nj=w\r\n"sv},
        {"[s]\r\nk=a\r\n\x1A", "s", "j", "w", "[s]\r\nk=a\r\nj=w\r\n", "[s]\r\nk=a\r\nj=w\r\n\x1A"},
        {"[s]\r\nk=a\r\n\x1A", "t", "j", "w", "[s]\r\nk=a\r\n[t]\r\nj=w\r\n",
         "[s]\r\nk=a\r\n[t]\r\nj=w\r\n\x1A"},
        // What could not be read back is not written.
        {"[s]\r\n", "s", "k", "a\r\nb=2", "[s]\r\nk=a\r\nb=2\r\n", "[s]\r\n"},
        {"[s]\r\n", "s", "a\nb", "v", "[s]\r\na\nb=v\r\n", "[s]\r\n"},
        {"[s]\r\n", "t\nu", "k", "v", "[s]\r\n[t\nu]\r\nk=v\r\n", "[s]\r\n"},
        {"[s]\r\n", "s", "k=j", "v", "[s]\r\nk=j=v\r\n", "[s]\r\n"},
        {"[s]\r\n", "s", "[k]", "v", "[s]\r\n[k]=v\r\n", "[s]\r\n"},
    };
}

}  // namespace lvx_test
