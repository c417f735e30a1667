// With a folder of fonts and a configuration of the test's own.
#include "lvx/platform/fonts.h"

#include <fontconfig/fontconfig.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "platform/environment.h"
#include "support/bytes.h"
#include "support/temp_folder.h"

namespace {

using lvx_test::EnvironmentVariable;
using lvx_test::TempFolder;
using Faces = std::vector<std::string>;

// One letter, a square of 4 pixels: a font of one size.
constexpr const char* square_font =
    "STARTFONT 2.1\n"
    "FONT -lvx-Lvx Squares-Medium-R-Normal--8-80-75-75-C-80-ISO10646-1\n"
    "SIZE 8 75 75\nFONTBOUNDINGBOX 8 8 0 0\n"
    "STARTPROPERTIES 3\nFAMILY_NAME \"Lvx Squares\"\nFONT_ASCENT 8\nFONT_DESCENT 0\nENDPROPERTIES\n"
    "CHARS 1\nSTARTCHAR A\nENCODING 65\nSWIDTH 1000 0\nDWIDTH 8 0\nBBX 8 4 0 0\nBITMAP\nF0\nF0\nF0\nF0\n"
    "ENDCHAR\nENDFONT\n";

class FontFolder {
public:
    /// `rules` stand in the configuration, beside the folder.
    explicit FontFolder(const std::string& rules = "") {
        std::filesystem::create_directory(Path());
        lvx_test::write_file(m_folder.File("fonts.conf"),
                             "<?xml version=\"1.0\"?>\n<fontconfig><dir>" + Path() + "</dir><cachedir>" +
                                 m_folder.File("cache") + "</cachedir>" + rules + "</fontconfig>\n");
    }

    void Add(const std::string& name) const {
        const std::filesystem::path installed = "/usr/share/fonts/truetype/liberation";
        std::filesystem::copy_file(installed / (name + ".ttf"), Path() + "/" + name + ".ttf");
    }
    void AddSquares() const { lvx_test::write_file(Path() + "/squares.bdf", square_font); }

    Faces List(Faces faces = {}) const {
        lvx::platform::add_scalable_faces(faces);
        return faces;
    }
    Faces Sorted() const {
        Faces faces = List();
        std::sort(faces.begin(), faces.end());
        return faces;
    }

private:
    std::string Path() const { return m_folder.File("fonts"); }

    TempFolder m_folder;
    EnvironmentVariable m_file{"FONTCONFIG_FILE", m_folder.File("fonts.conf")};
};

// Gives Liberation Mono other names: `mode` is "assign", "prepend" or "append".
std::string renamed(const std::string& mode, const std::string& name, const std::string& language) {
    const auto edit = [&](const std::string& object, const std::string& value) {
        return "<edit name=\"" + object + "\" mode=\"" + mode + "\"><string>" + value + "</string></edit>";
    };
    return "<match target=\"scan\"><test name=\"postscriptname\"><string>LiberationMono</string></test>" +
           edit("family", name) + edit("familylang", language) + "</match>";
}

int known_fonts() {
    FcConfig* const config = FcInitLoadConfigAndFonts();
    const int count = FcConfigGetFonts(config, FcSetSystem)->nfont;
    FcConfigDestroy(config);
    return count;
}

}  // namespace

TEST(Fonts, of_a_system_without_any_are_none) {
    const FontFolder folder;
    EXPECT_EQ(Faces{}, folder.List());
    EXPECT_EQ(Faces{"Arial"}, folder.List({"Arial"}));
}

TEST(Fonts, in_several_styles_are_one_face) {
    const FontFolder folder;
    folder.Add("LiberationSans-Regular");
    folder.Add("LiberationSans-Bold");
    folder.Add("LiberationSans-Italic");
    folder.Add("LiberationSerif-Regular");
    EXPECT_EQ((Faces{"Liberation Sans", "Liberation Serif"}), folder.Sorted());
}

TEST(Fonts, of_one_size_are_not_offered) {
    const FontFolder folder;
    folder.Add("LiberationMono-Regular");
    folder.AddSquares();
    ASSERT_EQ(2, known_fonts());
    EXPECT_EQ(Faces{"Liberation Mono"}, folder.List());
}

TEST(Fonts, that_are_in_the_list_are_not_added_again) {
    const FontFolder folder;
    folder.Add("LiberationSans-Regular");
    EXPECT_EQ((Faces{"b", "Liberation Sans", "a", "a"}), folder.List({"b", "Liberation Sans", "a", "a"}));
}

TEST(Fonts, that_were_installed_a_moment_ago_are_seen) {
    const FontFolder folder;
    folder.Add("LiberationSans-Regular");
    EXPECT_EQ(Faces{"Liberation Sans"}, folder.List());
    folder.Add("LiberationMono-Regular");
    EXPECT_EQ((Faces{"Liberation Mono", "Liberation Sans"}), folder.Sorted());
}

TEST(Fonts, go_by_their_english_names) {
    const FontFolder folder(renamed("prepend", "Schreibmaschine", "de"));
    folder.Add("LiberationMono-Regular");
    EXPECT_EQ(Faces{"Liberation Mono"}, folder.List());
}

TEST(Fonts, with_two_english_names_are_two_faces) {
    const FontFolder folder(renamed("append", "Liberation", "en"));
    folder.Add("LiberationMono-Regular");
    EXPECT_EQ((Faces{"Liberation", "Liberation Mono"}), folder.Sorted());
}

TEST(Fonts, without_an_english_name_go_by_their_first) {
    const FontFolder folder(renamed("assign", "Schreibmaschine", "de"));
    folder.Add("LiberationMono-Regular");
    EXPECT_EQ(Faces{"Schreibmaschine"}, folder.List());
}

TEST(Fonts, of_the_system_are_what_windows_has_by_custom) {
    const lvx::platform::SystemFont font = lvx::platform::system_font();
    EXPECT_EQ("System", font.face);
    EXPECT_EQ(12, font.points);
    EXPECT_TRUE(font.bold);
    EXPECT_FALSE(font.italic || font.underline || font.strikeOut);
}
