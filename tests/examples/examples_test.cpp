// The example programs, run as a reader of the documentation runs them.
#include <gtest/gtest.h>

#include <string>

#include "examples/example_run.h"
#include "files/profile_folder.h"
#include "lvx/images/dibitmap.h"
#include "lvx/store/object_store_storage.h"
#include "lvx/text/strings.h"
#include "platform/environment.h"
#include "support/bytes.h"
#include "support/drive_folder.h"
#include "support/places.h"

namespace {

using LVXUtilities::DIBitmap;

class Examples : public lvx_test::ExampleRun {
protected:
    /// Writes a document with one picture, as `lvxdoc pack` does.
    std::string Document(const DIBitmap& picture) {
        const std::string name = m_folder.File("document");
        LVXUtilities::ObjectStoreStorage store;
        std::string error;
        EXPECT_TRUE(store.OpenStorage(name, ObjectStore::ForWrite, error)) << error;
        EXPECT_TRUE(store.OpenStream("picture", error)) << error;
        store << 1L << picture;
        store.CloseStream();
        return name;
    }
};

const std::string picture_file = lvx_test::own_data() + "/pictures/pal8v4.bmp";

}  // namespace

TEST_F(Examples, stars_come_back_as_a_pair) {
    EXPECT_TRUE(Run("stars " + m_folder.File("stars.dat"))) << m_output;
    EXPECT_EQ("Sirius (-1.46) goes with Sirius B (8.44)\nand back: true\n", m_output);
}

TEST_F(Examples, stars_tell_a_place_that_cannot_be_written) {
    EXPECT_FALSE(Run("stars " + m_folder.File("missing/stars.dat")));
    EXPECT_NE(std::string::npos, m_output.find("cannot write")) << m_output;
    EXPECT_FALSE(Run("stars"));
    EXPECT_EQ("usage: stars FILE\n", m_output);
}

TEST_F(Examples, compare_pictures_finds_a_stored_picture_equal) {
    const std::string document = Document(DIBitmap(picture_file, DIBitmap::DIB));
    EXPECT_TRUE(Run("compare_pictures " + document + " picture " + picture_file)) << m_output;
    EXPECT_NE(std::string::npos, m_output.find("\t127\t64\t8\tequal\n")) << m_output;
}

TEST_F(Examples, compare_pictures_sees_one_byte_of_another_colour_and_of_another_pixel) {
    const DIBitmap picture(picture_file, DIBitmap::DIB);
    const auto first_colour = static_cast<std::ptrdiff_t>(108);
    for (const std::ptrdiff_t place : {first_colour, first_colour + 256 * 4 + 5}) {
        DIBitmap changed(picture);
        auto* const bytes = reinterpret_cast<unsigned char*>(changed.GetClrTabAddress().get()) - first_colour;
        bytes[place] ^= 1;
        EXPECT_FALSE(Run("compare_pictures " + Document(changed) + " picture " + picture_file));
        EXPECT_NE(std::string::npos, m_output.find("different from byte " + std::to_string(place)))
            << m_output;
    }
}

TEST_F(Examples, compare_pictures_tells_a_missing_stream) {
    const std::string document = Document(DIBitmap(picture_file, DIBitmap::DIB));
    EXPECT_FALSE(Run("compare_pictures " + document + " other " + picture_file));
    EXPECT_NE(std::string::npos, m_output.find("other: HRESULT = 80030002")) << m_output;
}

// 227 by 149 with 22 and 14 pixels: the frame is that of a turn by 30 degrees, 227 cos + 149 sin = 271.09
// and, cut one by one, 129 + 113.
TEST_F(Examples, turn_and_skew_writes_both_pictures) {
    const std::string folder = m_folder.File("");
    EXPECT_TRUE(Run("turn_and_skew " + lvx_test::own_data() + "/pictures/testorig.jpg " + folder))
        << m_output;
    EXPECT_EQ(lvx_test::output_in_page("skew.md", "turn_and_skew"), m_output);
    const DIBitmap turned(m_folder.File("turned.bmp"), DIBitmap::DIB);
    EXPECT_EQ(owl::TSize(271, 242), turned.GetSize());
    const DIBitmap skewed(m_folder.File("skewed.bmp"), DIBitmap::DIB);
    EXPECT_EQ(owl::TSize(227, 149), skewed.GetSize());
    // What the corner was dragged out of is white: the last row of the block begins with it.
    const auto pixels = skewed.GetBitsAddress();
    EXPECT_EQ(255, pixels[148 * 227 * 4]);
    EXPECT_NE(255, pixels[120 * 227 * 4 + 100 * 4]);
}

TEST_F(Examples, turn_and_skew_tells_a_picture_that_is_not_there) {
    EXPECT_FALSE(Run("turn_and_skew " + m_folder.File("missing") + " " + m_folder.File("")));
    EXPECT_NE(std::string::npos, m_output.find("No such file.")) << m_output;
    EXPECT_FALSE(Run("turn_and_skew"));
    EXPECT_EQ("usage: turn_and_skew PICTURE FOLDER\n", m_output);
}

TEST_F(Examples, where_is_takes_apart_what_it_finds_along_a_search_list) {
    const lvx_test::DriveFolder folder;
    folder.AddFolder("one");
    folder.AddFile("one/logo.old.bmp");
    folder.AddFolder("two");
    folder.AddFile("two/logo");
    folder.AddFolder("two/logos");
    const lvx_test::EnvironmentVariable list("LVX_TEST_PICTURES", folder.File("one;") + folder.File("two"));
    EXPECT_TRUE(Run("where_is logo* LVX_TEST_PICTURES")) << m_output;
    const std::string top = lvx::to_lower(folder.Path());
    // The part of the drive is raised, the rest is as it was found.
    const std::string raised = folder.Path().substr(0, 2) + top.substr(2);
    EXPECT_EQ("logo.old.bmp: prefix logo, suffix bmp\n    in " + raised + "\\one\n    backup " + top +
                  "\\one\\logo.old.bak\nlogo: prefix logo, suffix none\n    in " + raised +
                  "\\two\n    backup " + top + "\\two\\logo.bak\n",
              m_output);
}

TEST_F(Examples, where_is_tells_that_nothing_was_found) {
    EXPECT_FALSE(Run("where_is lvx-no-such-file LVX_TEST_NO_SUCH_VARIABLE"));
    EXPECT_EQ("nothing found\n", m_output);
    EXPECT_FALSE(Run("where_is"));
    EXPECT_EQ("usage: where_is PATTERN VARIABLE\n", m_output);
}

TEST_F(Examples, plotter_says_what_its_page_says) {
    EXPECT_TRUE(Run("plotter")) << m_output;
    EXPECT_EQ(lvx_test::output_in_page("token-tables.md", "plotter"), m_output);
}

TEST_F(Examples, topics_are_handed_over_whole_and_in_order_of_their_making) {
    EXPECT_TRUE(Run("topics")) << m_output;
    EXPECT_EQ(
        "worker: stars.dat\nworker: Planets.dat\n"
        "worker: a third topic with a name that is longer than the hundred characters that most programs "
        "would ever make room for in one go\n"
        "3 topics handed over\n"
        "the worker ended with the mutex in its hands: told\n",
        m_output);
}

TEST_F(Examples, window_place_finds_what_it_left) {
    const lvx_test::ProfileFolder profile;
    const std::string command = "window_place " + profile.Name() + " " + profile.Folder();
    EXPECT_TRUE(Run(command)) << m_output;
    EXPECT_EQ("window at 100, 80: [(no title)]\n", m_output);
    EXPECT_EQ("[Window]\r\nLeft=-50\r\nTitle=\" house \"\r\n", profile.Content());
    EXPECT_TRUE(Run(command)) << m_output;
    EXPECT_EQ("window at -50, 80: [ house ]\n", m_output);
    EXPECT_FALSE(Run("window_place"));
    EXPECT_EQ("usage: window_place NAME [FOLDER]\n", m_output);
}

TEST_F(Examples, recent_files_shows_the_files_of_the_last_time_too) {
    const lvx_test::ProfileFolder profile;
    const std::string command = "recent_files " + profile.Name() + " " + profile.Folder();
    EXPECT_TRUE(Run(command + " a.drw b.drw")) << m_output;
    EXPECT_EQ("&Open\n&1 b.drw\n    would open b.drw\n&2 a.drw\n----\nE&xit\n", m_output);
    EXPECT_EQ("[MRU]\r\n1=b.drw\r\n2=a.drw\r\n", profile.Content());
    EXPECT_TRUE(Run(command + " c.drw a.drw")) << m_output;
    EXPECT_EQ("&Open\n&1 a.drw\n    would open a.drw\n&2 c.drw\n&3 b.drw\n----\nE&xit\n", m_output);
    EXPECT_FALSE(Run("recent_files"));
    EXPECT_EQ("usage: recent_files NAME FOLDER FILE...\n", m_output);
}

TEST_F(Examples, pattern_tokens_tells_keywords_names_numbers_and_signs) {
    EXPECT_TRUE(Run("pattern_tokens \"Line(lines, -2.5,.5 )\"")) << m_output;
    EXPECT_EQ(
        "keyword\tLine\nsign\t(\nname\tlines\nsign\t,\nsign\t-\nnumber\t2.5\nsign\t,\nnumber\t.5\nsign\t)\n",
        m_output);
}

TEST_F(Examples, pattern_tokens_tells_where_there_is_no_token) {
    EXPECT_FALSE(Run("pattern_tokens \"move(1 ;2)\""));
    EXPECT_NE(std::string::npos, m_output.find("no token at character 7\n")) << m_output;
    EXPECT_FALSE(Run("pattern_tokens"));
    EXPECT_EQ("usage: pattern_tokens TEXT\n", m_output);
}
