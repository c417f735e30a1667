// A process that cannot tell where its program lies: settings are then looked for in the current directory.
// Puts readlink in front of the C library's.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <string>

#include "files/profile_folder.h"
#include "lvx/files/settings.h"

namespace {

bool is_unknown = false;
// What the link of the program leads to, if not empty.
std::string program;

}  // namespace

extern "C" [[gnu::visibility("default")]] ssize_t readlink(const char* path, char* buffer,
                                                           size_t size) noexcept {
    if (std::strcmp(path, "/proc/self/exe") == 0) {
        if (is_unknown) {
            errno = EACCES;
            return -1;
        }
        if (!program.empty()) {
            return static_cast<ssize_t>(program.copy(buffer, size));
        }
    }
    return reinterpret_cast<decltype(&readlink)>(dlsym(RTLD_NEXT, "readlink"))(path, buffer, size);
}

namespace {

class UnknownProgram : public ::testing::Test {
protected:
    UnknownProgram() : m_before(std::filesystem::current_path()) {
        // Lower case, as the current directory is told.
        std::filesystem::current_path(m_folder.Path());
        lvx_test::write_file(m_folder.File("tool.INI"), "[s]\nk=current\n");
    }
    ~UnknownProgram() override {
        std::filesystem::current_path(m_before);
        is_unknown = false;
        program.clear();
    }

    std::string Get() { return LVXUtilities::Settings("tool", false).GetStr("s", "k", "D"); }

    lvx_test::ProfileFolder m_profile;
    lvx_test::TempFolder m_folder;

private:
    std::filesystem::path m_before;
};

}  // namespace

TEST_F(UnknownProgram, settings_beside_a_known_program_are_not_those_of_the_current_directory) {
    EXPECT_EQ("D", Get());
    program = m_folder.File("program");
    EXPECT_EQ("current", Get());
}

TEST_F(UnknownProgram, its_settings_are_in_the_current_directory) {
    is_unknown = true;
    EXPECT_EQ("current", Get());
    std::filesystem::current_path("/");
    EXPECT_EQ("D", Get());
}

TEST_F(UnknownProgram, a_path_that_does_not_fit_is_unknown) {
    program = "/" + std::string(1100, 'p') + "/program";
    EXPECT_EQ("current", Get());
}
