#include <gtest/gtest.h>

#include <type_traits>

#include "lvx/files/path_string.h"
#include "support/drive_folder.h"
#include "support/path_oracle.h"
#include "text/all_texts.h"

namespace {

using lvx_test::DriveFolder;
using lvx_test::OraclePart;
using lvx_test::PathOracle;

constexpr auto keep_value = ~std::uintptr_t{0};

std::string built(const LVXPathString& path, const char* drive, const char* directory, const char* name) {
    std::string result = "replaced";
    path.buildPath(result, drive, directory, name);
    return result;
}

/// The path after an operation with one argument.
std::string after(LVXPathString path, void (LVXPathString::*operation)(const std::string&),
                  const std::string& argument) {
    (path.*operation)(argument);
    return path;
}

std::string added(LVXPathString path, const std::string& name) {
    return path.addName(name);
}

/// The path's parent; "false" and the path as it is then if there is none.
std::string parent(LVXPathString path) {
    return path.asParent() ? std::string(path) : "false " + path;
}

struct Choice {
    const char* argument;
    OraclePart oracle;
};

const std::vector<Choice> choices = {{LVXPathString::KeepPart, {OraclePart::keep, ""}},
                                     {nullptr, {OraclePart::leave_out, ""}},
                                     {"", {OraclePart::use, ""}},
                                     {"d", {OraclePart::use, "d"}},
                                     {"\\x\\", {OraclePart::use, "\\x\\"}}};

}  // namespace

TEST(PathComposition, a_path_is_a_text_and_nothing_more) {
    static_assert(std::is_base_of_v<std::string, LVXPathString>);
    static_assert(std::is_convertible_v<LVXPathString*, std::string*>, "the base is public");
    static_assert(sizeof(LVXPathString) == sizeof(std::string), "no member");
    static_assert(!std::is_polymorphic_v<LVXPathString>);
    static_assert(std::is_convertible_v<const char*, LVXPathString>);
    static_assert(std::is_convertible_v<std::string, LVXPathString>);
    EXPECT_EQ("", LVXPathString());
}

TEST(PathComposition, texts_are_kept_as_they_are_given) {
    const std::string odd = "c:/A\\\\b. ;";
    EXPECT_EQ(odd, LVXPathString(odd));
    EXPECT_EQ(odd, LVXPathString(odd.c_str()));
    const LVXPathString path(odd);
    EXPECT_EQ(odd, LVXPathString(path));
    LVXPathString assigned;
    EXPECT_EQ(&assigned, &(assigned = odd.c_str()));
    EXPECT_EQ(odd, assigned);
    EXPECT_EQ(&assigned, &(assigned = std::string("x\\")));
    EXPECT_EQ("x\\", assigned);
    EXPECT_EQ(&assigned, &(assigned = path));
    EXPECT_EQ(odd, assigned);
}

TEST(PathComposition, null_is_an_empty_text) {
    const char* const nothing = nullptr;
    EXPECT_EQ("", LVXPathString(nothing));
    LVXPathString path("a");
    EXPECT_EQ("", path = nothing);
}

TEST(PathComposition, a_path_may_be_assigned_a_part_of_itself) {
    LVXPathString path("c:\\directory\\a name that needs memory of its own");
    path = path.c_str() + 13;
    EXPECT_EQ("a name that needs memory of its own", path);
}

TEST(PathComposition, the_mark_for_a_kept_part_has_all_bits_set) {
    EXPECT_EQ(keep_value, reinterpret_cast<std::uintptr_t>(LVXPathString::KeepPart));
}

TEST(PathComposition, a_name_is_added_behind_one_separator) {
    EXPECT_EQ("c:\\a\\x", added("c:\\a", "x"));
    EXPECT_EQ("c:\\x", added("c:\\", "x"));
    EXPECT_EQ("c:\\x", added("c:", "x"));
    EXPECT_EQ("\\x", added("", "x"));
    EXPECT_EQ("a\\", added("a", ""));
    EXPECT_EQ("a\\", added("a\\", ""));
    EXPECT_EQ("\\", added("", ""));
    EXPECT_EQ("a\\\\b", added("a", "\\b")) << "a separator in the name is not looked for";
    EXPECT_EQ("a/\\b", added("a/", "b"));
}

TEST(PathComposition, adding_a_name_gives_the_path_back) {
    LVXPathString path("a");
    EXPECT_EQ(&path, &path.addName("b"));
    EXPECT_EQ("a\\b\\c", path.addName("c"));
}

TEST(PathComposition, a_path_can_be_added_to_itself) {
    LVXPathString path("a name that needs memory of its own");
    path.addName(path);
    EXPECT_EQ("a name that needs memory of its own\\a name that needs memory of its own", path);
}

TEST(PathComposition, a_suffix_is_replaced_added_or_taken_away) {
    EXPECT_EQ("a", after("a.txt", &LVXPathString::suffix, ""));
    EXPECT_EQ("a.bmp", after("a.txt", &LVXPathString::suffix, "bmp"));
    EXPECT_EQ("a.bmp", after("a", &LVXPathString::suffix, "bmp"));
    EXPECT_EQ("a", after("a", &LVXPathString::suffix, ""));
    EXPECT_EQ("a", after("a.", &LVXPathString::suffix, ""));
    EXPECT_EQ(".profile.bmp", after(".profile", &LVXPathString::suffix, "bmp"));
    EXPECT_EQ("a..b.bmp", after("a..b", &LVXPathString::suffix, "bmp"));
    EXPECT_EQ("a.b.x", after("a.b.c", &LVXPathString::suffix, "x"));
    EXPECT_EQ("c:\\d.x\\f.y", after("c:\\d.x\\f", &LVXPathString::suffix, "y"));
    EXPECT_EQ("a..y", after("a", &LVXPathString::suffix, ".y"));
    EXPECT_EQ(".INI", after("", &LVXPathString::suffix, "INI"));
}

TEST(PathComposition, the_suffix_may_be_the_path_itself) {
    LVXPathString path("name.txt");
    path.suffix(path);
    EXPECT_EQ("name.name.txt", path);
}

TEST(PathComposition, a_kept_drive_is_raised_and_a_given_one_is_not) {
    EXPECT_EQ("C:\\a\\b.txt", built("c:\\a\\b.txt", LVXPathString::KeepPart, LVXPathString::KeepPart,
                                    LVXPathString::KeepPart));
    EXPECT_EQ("d:\\a\\b.txt", after("c:\\a\\b.txt", &LVXPathString::drive, "d"));
}

TEST(PathComposition, one_part_is_replaced) {
    EXPECT_EQ("C:\\x\\b.txt", after("c:\\a\\b.txt", &LVXPathString::directory, "\\x"));
    EXPECT_EQ("C:\\b.txt", after("c:\\a\\b.txt", &LVXPathString::directory, ""))
        << "the drive is parted from the name";
    EXPECT_EQ("C:\\a\\x", after("c:\\a\\b.txt", &LVXPathString::name, "x"));
    EXPECT_EQ("C:\\a\\", after("c:\\a\\b.txt", &LVXPathString::name, ""));
    EXPECT_EQ("x", after("b.txt", &LVXPathString::name, "x"));
    EXPECT_EQ("", after("b.txt", &LVXPathString::name, ""));
    EXPECT_EQ("x\\b.txt", after("b.txt", &LVXPathString::directory, "x"));
    EXPECT_EQ(":\\a\\b.txt", after("c:\\a\\b.txt", &LVXPathString::drive, ""));
    EXPECT_EQ("d:\\", after("", &LVXPathString::drive, "d"));
    EXPECT_EQ("C:\\x", after("c:b", &LVXPathString::name, "x"));
}

TEST(PathComposition, parts_can_be_left_out) {
    const LVXPathString path("c:\\a\\b.txt");
    const char* const kept = LVXPathString::KeepPart;
    EXPECT_EQ("\\a\\b.txt", built(path, nullptr, kept, kept));
    EXPECT_EQ("C:\\b.txt", built(path, kept, nullptr, kept));
    EXPECT_EQ("C:\\a", built(path, kept, kept, nullptr));
    EXPECT_EQ("b.txt", built(path, nullptr, nullptr, kept));
    EXPECT_EQ("C:", built(path, kept, nullptr, nullptr));
    EXPECT_EQ("", built(path, nullptr, nullptr, nullptr));
}

TEST(PathComposition, an_empty_path_has_nothing_to_keep) {
    const char* const kept = LVXPathString::KeepPart;
    EXPECT_EQ("", built("", kept, kept, kept));
    EXPECT_EQ("d:\\x\\n", built("", "d", "\\x", "n"));
}

TEST(PathComposition, the_result_may_be_the_path_itself) {
    LVXPathString path("c:\\a\\b.txt");
    path.buildPath(path, nullptr, LVXPathString::KeepPart, path.c_str() + 5);
    EXPECT_EQ("\\a\\b.txt", path);
    path.name(path);
    EXPECT_EQ("\\a\\\\a\\b.txt", path);
}

TEST(PathComposition, a_nul_in_a_part_does_not_cut_it) {
    const std::string name("n\0m", 3);
    EXPECT_EQ("a\\" + name, after("a\\b", &LVXPathString::name, name));
    EXPECT_EQ(name + "\\b", after("a\\b", &LVXPathString::directory, name));
    EXPECT_EQ(name + ":a\\b", after("a\\b", &LVXPathString::drive, name));
    EXPECT_EQ("x\\" + name, added("x", name));
    EXPECT_EQ(name + "\\f", parent(name + "\\" + name + "\\f"));
}

TEST(PathComposition, a_directory_that_exists_has_its_last_component_twice) {
    const DriveFolder folder;
    folder.AddFolder("sub");
    const std::string rest = folder.File("sub").substr(2);
    EXPECT_EQ("q:" + rest + "\\sub", after(folder.File("sub"), &LVXPathString::drive, "q"));
    EXPECT_EQ(folder.File("sub") + "\\x", after(folder.File("sub"), &LVXPathString::name, "x"));
}

TEST(PathComposition, every_choice_of_parts_holds_for_every_short_text) {
    for_each_text("a.\\:", 4, [](const std::string& text) {
        const LVXPathString path(text);
        const PathOracle oracle(text, path.isDirectory());
        for (const Choice& drive : choices) {
            for (const Choice& directory : choices) {
                for (const Choice& name : choices) {
                    ASSERT_EQ(oracle.Built(drive.oracle, directory.oracle, name.oracle),
                              built(path, drive.argument, directory.argument, name.argument))
                        << text;
                }
            }
        }
    });
}

TEST(PathComposition, a_suffix_holds_for_every_short_text) {
    for_each_text("a.\\:*;", 5, [](const std::string& text) {
        for (const char* suffix : {"", "x", "."}) {
            ASSERT_EQ(PathOracle(text, false).WithSuffix(suffix),
                      after(text, &LVXPathString::suffix, suffix));
        }
    });
}

TEST(PathComposition, the_parent_takes_the_name_along) {
    EXPECT_EQ("C:\\a\\f.txt", parent("C:\\a\\b\\f.txt"));
    EXPECT_EQ("C:\\f.txt", parent("c:\\a\\f.txt"));
    EXPECT_EQ("\\f", parent("\\a\\f"));
    EXPECT_EQ("a\\f", parent("a\\b\\f"));
    EXPECT_EQ("C:a\\f", parent("c:a\\b\\f"));
    EXPECT_EQ("\\nowhere\\", parent("\\nowhere\\b\\"));
}

TEST(PathComposition, there_is_no_parent_of_a_root_a_bare_name_or_a_bare_directory) {
    for (const char* path :
         {"", "f", "c:", "c:f", "\\f", "c:\\f", "\\", "c:\\", "sub\\f", "c:sub\\f", "s\\"}) {
        EXPECT_EQ(std::string("false ") + path, parent(path));
    }
}

TEST(PathComposition, the_parent_of_a_directory_that_exists_is_that_directory) {
    const DriveFolder folder;
    EXPECT_EQ(folder.Path(), parent(folder.Path()));
    EXPECT_EQ(folder.Path() + "\\", parent(folder.Path() + "\\"));
}

TEST(PathComposition, parents_hold_for_every_short_text) {
    for_each_text("a.\\:", 6, [](const std::string& text) {
        const PathOracle oracle(text, LVXPathString(text).isDirectory());
        ASSERT_EQ(oracle.Parent().value_or("false " + text), parent(text));
    });
}
