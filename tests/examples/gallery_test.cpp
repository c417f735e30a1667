// The scenes of docs/gallery: each comes to stand, its picture is there and has the size that the scene has
// today, and the gallery's page shows it.
#include <gtest/gtest.h>
#include <windows.h>

#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "support/bytes.h"
#include "support/places.h"
#include "support/temp_folder.h"

namespace {

struct Scene {
    std::string program;
    std::string name;
    std::string caption;
};

struct Result {
    int status;
    std::string output;
};

// Runs a command whose input has ended: a scene is then looked at as soon as it stands.
Result RunToEnd(const std::string& command) {
    const lvx_test::TempFolder folder;
    const std::string output = folder.File("output");
    const int status = std::system((command + " < NUL > " + output).c_str());
    std::string text = lvx_test::read_file(output);
    std::erase(text, '\r');
    return {status, text};
}

std::vector<std::string> Programs() {
    std::vector<std::string> programs;
    for (const auto& entry : std::filesystem::directory_iterator(LVX_TEST_PROGRAM_PREFIX)) {
        const std::string name = entry.path().filename().string();
        if (name.starts_with("gallery_") && name.ends_with(".exe"))
            programs.push_back(LVX_TEST_PROGRAM_PREFIX + name);
    }
    return programs;
}

std::vector<Scene> Scenes() {
    std::vector<Scene> scenes;
    for (const std::string& program : Programs()) {
        std::istringstream lines(RunToEnd(program).output);
        Scene scene{program, "", ""};
        while (std::getline(lines, scene.name, '\t') && std::getline(lines, scene.caption))
            scenes.push_back(scene);
    }
    return scenes;
}

std::string GalleryFile(const std::string& name) {
    return lvx_test::read_file(lvx_test::own_data() + "/../../docs/gallery/" + name);
}

// What the output of a scene names, or an empty rectangle.
RECT PlaceIn(const std::string& output) {
    std::istringstream line(output);
    std::string word;
    RECT place{};
    if (!(line >> word >> place.left >> place.top >> place.right >> place.bottom) || word != "ready")
        return {};
    return place;
}

// A number of four bytes in the head of a picture's file, the highest byte first.
LONG NumberAt(const std::string& bytes, std::size_t offset) {
    LONG number = 0;
    for (std::size_t i = 0; i < 4; ++i)
        number = number << 8 | static_cast<unsigned char>(bytes.at(offset + i));
    return number;
}

// "WIDTHxHEIGHT" of a picture's file.
std::string SizeOf(const std::string& picture) {
    if (picture.size() < 24 || picture.substr(0, 8) != "\x89PNG\r\n\x1A\n")
        return "no picture";
    return std::to_string(NumberAt(picture, 16)) + "x" + std::to_string(NumberAt(picture, 20));
}

}  // namespace

TEST(Gallery, has_programs_that_list_their_scenes) {
    EXPECT_LE(2U, Programs().size());
    EXPECT_LE(11U, Scenes().size());
}

TEST(Gallery, shows_each_scene_as_large_as_its_picture_is) {
    for (const Scene& scene : Scenes()) {
        const Result result = RunToEnd(scene.program + " " + scene.name);
        EXPECT_EQ(0, result.status) << scene.name;
        const RECT place = PlaceIn(result.output);
        EXPECT_EQ(std::to_string(place.right - place.left) + "x" + std::to_string(place.bottom - place.top),
                  SizeOf(GalleryFile(scene.name + ".png")))
            << scene.name << ": take its picture by ./dev gallery " << scene.name;
    }
}

TEST(Gallery, has_a_page_with_each_picture_and_no_other) {
    const std::string page = GalleryFile("README.md");
    std::size_t pictures = 0;
    for (std::size_t i = page.find("!["); i != std::string::npos; i = page.find("![", i + 1))
        ++pictures;
    EXPECT_EQ(Scenes().size(), pictures);
    for (const Scene& scene : Scenes()) {
        const std::string shown = scene.caption + ".\n\n![" + scene.caption + "](" + scene.name + ".png)\n";
        EXPECT_NE(std::string::npos, page.find(shown)) << scene.name;
    }
}

TEST(Gallery, refuses_a_scene_that_there_is_not) {
    for (const std::string& program : Programs())
        EXPECT_EQ(2, RunToEnd(program + " no-such-scene 2> NUL").status) << program;
}
