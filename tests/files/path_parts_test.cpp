#include <gtest/gtest.h>

#include "lvx/files/path_string.h"
#include "platform/environment.h"
#include "support/drive_folder.h"
#include "support/path_oracle.h"
#include "text/all_texts.h"

namespace {

using lvx_test::DriveFolder;
using lvx_test::PathOracle;
using Part = bool (LVXPathString::*)(std::string&) const;

constexpr const char* untouched = "untouched";

/// What an operation gives; "false" and what it left in the string if it fails.
std::string answer(const LVXPathString& path, Part part) {
    std::string out = untouched;
    return (path.*part)(out) ? out : "false " + out;
}

const std::string fails = std::string("false ") + untouched;

std::string told(const std::optional<std::string>& text) {
    return text.value_or(fails);
}

struct Row {
    std::string path;
    std::string expected;
};

void expect_all(Part part, const std::vector<Row>& rows) {
    for (const Row& row : rows) {
        EXPECT_EQ(row.expected, answer(row.path, part)) << row.path;
    }
}

const std::string picture = "C:\\work\\pics\\logo.bmp";
const std::string alphabet = "a.\\:*;";

/// A NUL in the middle of a text.
std::string with_nul(const char* front, const char* back) {
    return std::string(front) + '\0' + back;
}

}  // namespace

TEST(PathParts, a_path_has_all_of_them) {
    const LVXPathString path(picture);
    EXPECT_EQ("C:", answer(path, &LVXPathString::driveOf));
    EXPECT_EQ("\\work\\pics", answer(path, &LVXPathString::baseOf));
    EXPECT_EQ("logo.bmp", answer(path, &LVXPathString::nameOf));
    EXPECT_EQ("logo", answer(path, &LVXPathString::prefixOf));
    EXPECT_EQ("bmp", answer(path, &LVXPathString::suffixOf));
    EXPECT_EQ("C:\\work\\pics", answer(path, &LVXPathString::directoryOf));
}

TEST(PathParts, they_are_those_of_the_documentation) {
    struct Parts {
        const char *path, *drive, *base, *directory, *name, *prefix, *suffix;
    };
    const char* const no = fails.c_str();
    for (const Parts& row :
         {Parts{"c:\\work\\pics\\logo.bmp", "C:", "\\work\\pics", "C:\\work\\pics", "logo.bmp", "logo",
                "bmp"},
          Parts{"\\logo", no, "\\", "\\", "logo", "logo", "false "},
          Parts{"sub\\a.b.c", no, "sub", "sub", "a.b.c", "a", "c"}, Parts{"a.", no, no, no, "a.", "a", ""},
          Parts{".profile", no, no, no, ".profile", "", "false "},
          Parts{"a..b", no, no, no, "a..b", "a", "false "},
          Parts{"c:\\d.x\\", "C:", "\\d.x", "C:\\d.x", "", "", "false "},
          Parts{"1:x", "1:", no, "1:", "x", "x", "false "}}) {
        EXPECT_EQ(row.drive, answer(row.path, &LVXPathString::driveOf)) << row.path;
        EXPECT_EQ(row.base, answer(row.path, &LVXPathString::baseOf)) << row.path;
        EXPECT_EQ(row.directory, answer(row.path, &LVXPathString::directoryOf)) << row.path;
        EXPECT_EQ(row.name, answer(row.path, &LVXPathString::nameOf)) << row.path;
        EXPECT_EQ(row.prefix, answer(row.path, &LVXPathString::prefixOf)) << row.path;
        EXPECT_EQ(row.suffix, answer(row.path, &LVXPathString::suffixOf)) << row.path;
    }
}

TEST(PathParts, any_first_character_is_a_drive_in_front_of_a_colon) {
    expect_all(&LVXPathString::driveOf, {{"a:", "A:"},
                                         {"Z:x", "Z:"},
                                         {"z:\\x", "Z:"},
                                         {"1:", "1:"},
                                         {"::", "::"},
                                         {"\\:", "\\:"},
                                         {"\xE4:", "\xE4:"},
                                         {"`:", "`:"},
                                         {"{:", "{:"},
                                         {"C", fails},
                                         {":", fails},
                                         {"", fails},
                                         {"ab:", fails},
                                         {":a", fails}});
}

TEST(PathParts, the_base_ends_in_front_of_the_last_separator) {
    expect_all(&LVXPathString::baseOf, {{"c:\\a\\b\\f", "\\a\\b"},
                                        {"\\f", "\\"},
                                        {"\\", "\\"},
                                        {"c:\\f", "\\"},
                                        {"c:\\", "\\"},
                                        {"\\\\f", "\\"},
                                        {"\\\\\\f", "\\\\"},
                                        {"sub\\f", "sub"},
                                        {"c:sub\\f", "sub"},
                                        {"sub\\", "sub"},
                                        {"s\\", "s"},
                                        {"f.txt", fails},
                                        {"c:", fails},
                                        {"c:f", fails},
                                        {"", fails},
                                        {"a/b", fails},
                                        {"x\\a:b", "x"}});
}

TEST(PathParts, the_base_of_a_directory_that_exists_is_all_of_it) {
    const DriveFolder folder;
    folder.AddFolder("sub");
    const std::string rest = folder.Path().substr(2);
    EXPECT_EQ(rest, answer(folder.Path(), &LVXPathString::baseOf));
    EXPECT_EQ(rest + "\\", answer(folder.Path() + "\\", &LVXPathString::baseOf));
    EXPECT_EQ(rest + "\\sub", answer(folder.File("sub"), &LVXPathString::baseOf));
    EXPECT_EQ(rest, answer(folder.File("other"), &LVXPathString::baseOf));
    folder.Enter();
    EXPECT_EQ("sub", answer("sub", &LVXPathString::baseOf));
    EXPECT_EQ("sub\\", answer("sub\\", &LVXPathString::baseOf));
}

TEST(PathParts, the_base_sees_500_characters_and_the_name_all) {
    const std::string front(499, 'd');
    EXPECT_EQ(fails, answer("c:" + front + "\\name", &LVXPathString::baseOf));
    EXPECT_EQ("name", answer("c:" + front + "\\name", &LVXPathString::nameOf));
    EXPECT_EQ(front, answer(front + "\\name", &LVXPathString::baseOf)) << "the separator is the 500th";
    EXPECT_EQ(fails, answer("d" + front + "\\name", &LVXPathString::baseOf)) << "and here the 501st";
    EXPECT_EQ("\\a", answer("c:\\a\\" + std::string(5000, 'f') + "\\g.x", &LVXPathString::baseOf));
    EXPECT_EQ("x", answer("c:\\a\\" + std::string(5000, 'f') + "\\g.x", &LVXPathString::suffixOf));
    EXPECT_EQ("c:\\a",
              "c:" + answer(std::string("\\a\\") + std::string(5000, 'f'), &LVXPathString::directoryOf));
}

TEST(PathParts, the_name_stands_behind_the_last_separator_or_colon) {
    expect_all(&LVXPathString::nameOf, {{"c:\\a\\b.txt", "b.txt"},
                                        {"b.txt", "b.txt"},
                                        {"c:b", "b"},
                                        {"c:", ""},
                                        {"c:\\", ""},
                                        {"a\\", ""},
                                        {"\\", ""},
                                        {":", ""},
                                        {":a", "a"},
                                        {"a:b:c", "c"},
                                        {"x", "x"},
                                        {"a/b", "a/b"},
                                        {"", fails}});
}

TEST(PathParts, the_directory_is_drive_and_base) {
    expect_all(&LVXPathString::directoryOf, {{"c:\\a\\f", "C:\\a"},
                                             {"c:\\f", "C:\\"},
                                             {"c:f", "C:"},
                                             {"c:", "C:"},
                                             {"\\a\\f", "\\a"},
                                             {"sub\\f", "sub"},
                                             {"f", fails},
                                             {"", fails}});
}

TEST(PathParts, the_directory_of_one_that_exists_is_the_path_as_it_stands) {
    const DriveFolder folder;
    std::string small = folder.Path();
    small[0] = static_cast<char>(small[0] | 0x20);
    EXPECT_EQ(small, answer(small, &LVXPathString::directoryOf));
    EXPECT_EQ(small + "\\", answer(small + "\\", &LVXPathString::directoryOf));
}

TEST(PathParts, the_suffix_stands_behind_the_last_dot_of_the_name) {
    expect_all(&LVXPathString::suffixOf, {{"a.txt", "txt"},
                                          {"a.b.c", "c"},
                                          {"a.", ""},
                                          {"a. ", " "},
                                          {"c:.x", "x"},
                                          {"\\.profile", "profile"},
                                          {"c:\\dir.x\\f.y", "y"}});
}

TEST(PathParts, what_has_no_suffix_empties_the_result) {
    for (const char* path : {"", "a", ".profile", ".", "..", "a..b", "...", "a..", "c:\\dir.x\\file", "a.b\\",
                             "a.b:c", "c:\\..", "c:\\", "c:"}) {
        EXPECT_EQ("false ", answer(path, &LVXPathString::suffixOf)) << path;
        EXPECT_EQ(nullptr, LVXPathString(path).dotOf()) << path;
    }
}

TEST(PathParts, the_dot_stands_in_the_path_itself) {
    const LVXPathString path("c:\\a.b\\c.d.e");
    EXPECT_EQ(path.data() + 10, path.dotOf());
    const LVXPathString at_the_end("a.");
    EXPECT_EQ(at_the_end.data() + 1, at_the_end.dotOf());
}

TEST(PathParts, the_prefix_ends_at_the_first_dot) {
    expect_all(&LVXPathString::prefixOf, {{"a.b.c", "a"},
                                          {"c:\\x.y\\a.b", "a"},
                                          {"a", "a"},
                                          {".profile", ""},
                                          {"c:\\", ""},
                                          {"..", ""},
                                          {"", fails}});
}

TEST(PathParts, a_nul_is_a_character_like_any_other) {
    const LVXPathString path(with_nul("c:\\d", "e\\f") + with_nul(".x", "y"));
    EXPECT_EQ(with_nul("\\d", "e"), answer(path, &LVXPathString::baseOf));
    EXPECT_EQ(with_nul("f.x", "y"), answer(path, &LVXPathString::nameOf));
    EXPECT_EQ(with_nul("x", "y"), answer(path, &LVXPathString::suffixOf));
    EXPECT_EQ(std::string("\0:", 2), answer(std::string("\0:", 2), &LVXPathString::driveOf));
}

TEST(PathParts, a_result_may_be_the_path_itself) {
    const auto replaced = [](LVXPathString path, Part part) {
        return (path.*part)(path) ? std::string(path) : "false " + path;
    };
    EXPECT_EQ("C:", replaced("c:\\a\\b.x", &LVXPathString::driveOf));
    EXPECT_EQ("\\a", replaced("c:\\a\\b.x", &LVXPathString::baseOf));
    EXPECT_EQ("b.x", replaced("c:\\a\\b.x", &LVXPathString::nameOf));
    EXPECT_EQ("C:\\a", replaced("c:\\a\\b.x", &LVXPathString::directoryOf));
    EXPECT_EQ("b", replaced("c:\\a\\b.x", &LVXPathString::prefixOf));
    EXPECT_EQ("x", replaced("c:\\a\\b.x", &LVXPathString::suffixOf));
    EXPECT_EQ("false b", replaced("b", &LVXPathString::baseOf));
    EXPECT_EQ("false ", replaced("b", &LVXPathString::suffixOf));
    EXPECT_EQ("a very long name behind a short directory.x",
              replaced("d\\a very long name behind a short directory.x", &LVXPathString::nameOf));
}

TEST(PathParts, a_variable_of_the_environment_is_told) {
    const lvx_test::EnvironmentVariable variable("LVX_TEST_VARIABLE", "c:\\a;D:\\b");
    std::string value = untouched;
    EXPECT_TRUE(LVXPathString()._environ("LVX_TEST_VARIABLE", value));
    EXPECT_EQ("c:\\a;D:\\b", value);
    LVXPathString path("LVX_TEST_VARIABLE");
    EXPECT_TRUE(path._environ(path, path));
    EXPECT_EQ("c:\\a;D:\\b", path);
}

TEST(PathParts, a_variable_that_is_not_there_leaves_the_result) {
    std::string value = untouched;
    EXPECT_FALSE(LVXPathString()._environ("", value));
    EXPECT_FALSE(LVXPathString()._environ("LVX_TEST_NO_SUCH_VARIABLE", value));
    EXPECT_FALSE(LVXPathString()._environ(with_nul("PATH", "x"), value)) << "that is not PATH";
    EXPECT_EQ(untouched, value);
    EXPECT_TRUE(LVXPathString()._environ("PATH", value));
}

TEST(PathParts, the_rules_hold_for_every_short_text) {
    for_each_text(alphabet, 6, [](const std::string& text) {
        const LVXPathString path(text);
        const PathOracle oracle(text, false);
        ASSERT_EQ(told(oracle.Drive()), answer(path, &LVXPathString::driveOf)) << text;
        ASSERT_EQ(told(oracle.Name()), answer(path, &LVXPathString::nameOf)) << text;
        ASSERT_EQ(told(oracle.Prefix()), answer(path, &LVXPathString::prefixOf)) << text;
        ASSERT_EQ(oracle.Suffix().value_or("false "), answer(path, &LVXPathString::suffixOf)) << text;
        const char* const dot = path.dotOf();
        ASSERT_EQ(oracle.Dot().has_value(), dot != nullptr) << text;
        ASSERT_TRUE(dot == nullptr || *oracle.Dot() == static_cast<std::size_t>(dot - path.data())) << text;
    });
}

TEST(PathParts, the_rules_that_ask_for_a_directory_hold_for_every_short_text) {
    for_each_text(alphabet, 5, [](const std::string& text) {
        const LVXPathString path(text);
        const PathOracle oracle(text, path.isDirectory());
        ASSERT_EQ(told(oracle.Base()), answer(path, &LVXPathString::baseOf)) << text;
        ASSERT_EQ(told(oracle.Directory()), answer(path, &LVXPathString::directoryOf)) << text;
    });
}

TEST(PathParts, the_rules_hold_for_long_texts) {
    for_random_texts(alphabet + "bC \xE4", 700, 3000, [](const std::string& text) {
        const LVXPathString path(text);
        const PathOracle oracle(text, path.isDirectory());
        ASSERT_EQ(told(oracle.Base()), answer(path, &LVXPathString::baseOf)) << text;
        ASSERT_EQ(told(oracle.Directory()), answer(path, &LVXPathString::directoryOf)) << text;
        ASSERT_EQ(told(oracle.Name()), answer(path, &LVXPathString::nameOf)) << text;
        ASSERT_EQ(told(oracle.Prefix()), answer(path, &LVXPathString::prefixOf)) << text;
        ASSERT_EQ(oracle.Suffix().value_or("false "), answer(path, &LVXPathString::suffixOf)) << text;
    });
}
