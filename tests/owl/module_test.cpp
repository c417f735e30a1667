#include "owl/module.h"

#include <gtest/gtest.h>

#include "owl/error.h"
#include "tests/owl/resource_ids.h"

namespace {

using owl::TModule;

TEST(Module, is_the_program_unless_told) {
    EXPECT_EQ(::GetModuleHandleA(nullptr), TModule().GetInstance());
}

TEST(Module, takes_its_name_from_its_file) {
    EXPECT_STREQ("owl_window_tests", TModule().GetName());
}

TEST(Module, bears_the_name_that_it_is_given) {
    TModule module("Sketch");
    EXPECT_STREQ("Sketch", module.GetName());
    module.SetName("Draw");
    EXPECT_STREQ("Draw", module.GetName());
}

TEST(Module, knows_its_file) {
    const std::string file = TModule().GetModuleFileName();
    EXPECT_NE(std::string::npos, file.find("\\owl_window_tests.exe")) << file;
}

TEST(Module, loads_a_library_and_lets_it_go) {
    {
        const TModule library("lz32.dll", true);
        EXPECT_EQ(library.GetInstance(), ::GetModuleHandleA("lz32.dll"));
        EXPECT_STREQ("lz32", library.GetName());
    }
    EXPECT_EQ(nullptr, ::GetModuleHandleA("lz32.dll"));
}

TEST(Module, stands_for_a_library_that_somebody_else_has_loaded) {
    { const TModule kernel("kernel32.dll", false); }
    EXPECT_NE(nullptr, ::GetModuleHandleA("kernel32.dll"));
}

TEST(Module, of_a_missing_library_throws_its_name_and_the_reason) {
    try {
        const TModule library("no_such_library.dll", true);
        FAIL();
    } catch (const owl::TXOwl& error) {
        EXPECT_EQ(0U, std::string(error.what()).find("no_such_library.dll: ")) << error.what();
        EXPECT_EQ(static_cast<DWORD>(ERROR_MOD_NOT_FOUND), error.GetCode());
    }
}

TEST(Module, reads_a_text_of_the_string_table) {
    EXPECT_EQ("Thirty-two bytes are no limit here", TModule().LoadString(IDS_TEST_TEXT));
}

TEST(Module, has_an_empty_text_for_an_unknown_number) {
    EXPECT_EQ("", TModule().LoadString(IDS_TEST_EMPTY_NEIGHBOUR));
    EXPECT_EQ("", TModule().LoadString(60000));
}

TEST(Module, loads_a_menu_by_its_number) {
    const HMENU menu = TModule().LoadMenu(IDM_TEST_MENU);
    ASSERT_NE(nullptr, menu);
    EXPECT_EQ(1, ::GetMenuItemCount(menu));
    ::DestroyMenu(menu);
}

TEST(Module, gives_null_for_resources_that_it_lacks) {
    const TModule module;
    EXPECT_EQ(nullptr, module.LoadMenu(999));
    EXPECT_EQ(nullptr, module.LoadMenu("missing"));
    EXPECT_EQ(nullptr, module.LoadBitmap(999));
    EXPECT_EQ(nullptr, module.LoadIcon(999));
    EXPECT_EQ(nullptr, module.LoadCursor(999));
    EXPECT_EQ(nullptr, module.LoadAccelerators(999));
    EXPECT_EQ(nullptr, module.FindResource(999, reinterpret_cast<const char*>(RT_DIALOG)));
}

TEST(Module, finds_a_dialog_among_its_resources) {
    const TModule module;
    const HRSRC found = module.FindResource(IDD_TEST_DIALOG, reinterpret_cast<const char*>(RT_DIALOG));
    ASSERT_NE(nullptr, found);
    EXPECT_NE(nullptr, module.LoadResource(found));
}

TEST(Module, loads_accelerators) {
    EXPECT_NE(nullptr, TModule().LoadAccelerators(IDA_TEST_KEYS));
}

TEST(Module, without_a_file_throws) {
    EXPECT_THROW(owl::TModule(static_cast<const char*>(nullptr), true), owl::TXOwl);
}

}  // namespace
