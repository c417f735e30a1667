// The example host as other programs drive it: by the client of the examples, which the system's own DDE
// library talks for.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>

#include "support/bytes.h"
#include "support/sketch_session.h"
#include "tests/owl/printed.h"

namespace {

using namespace sketch_test;

// What a program that may not have begun has written so far.
std::string WrittenTo(const std::string& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

class SketchDde : public Sketch {
protected:
    void SetUp() override { StartInFront(); }

    static std::string Quoted(const std::string& text) {
        std::string quoted = "\"";
        for (const char letter : text)
            quoted += letter == '"' ? "\\\"" : std::string(1, letter);
        return quoted + "\"";
    }
    std::string CommandLine(std::initializer_list<std::string> words) const {
        std::string line = LVX_TEST_PROGRAM_PREFIX "dde_ask.exe Sketch Drawing";
        for (const std::string& word : words)
            line += " " + Quoted(word);
        return line;
    }
    static constexpr int done = 0;
    static constexpr int nobody = 1;
    static constexpr int refused = 3;

    static int Run(const std::string& line) { return user::OtherProgram(line).WaitForEnd(); }
    bool Execute(const std::string& command) const { return Run(CommandLine({"execute", command})) == done; }
    // Whether the program itself says no.
    bool IsRefused(std::initializer_list<std::string> words) const {
        return Run(CommandLine(words)) == refused;
    }
    bool Set(const std::string& item, const std::string& text) const {
        return Run(CommandLine({"poke", item, text})) == done;
    }
    std::string Get(const std::string& item) const {
        const std::string file = m_folder.File("got.txt");
        const std::string line = CommandLine({"request", item}) + " > " + file + " 2>&1";
        const bool isDone = std::system(line.c_str()) == 0;
        std::string text = lvx_test::read_file(file);
        while (!text.empty() && (text.back() == '\n' || text.back() == '\r'))
            text.pop_back();
        return isDone ? text : "refused";
    }
};

}  // namespace

TEST_F(SketchDde, draws_and_colours_by_commands) {
    EXPECT_TRUE(Execute("[rectangle(100, 120, 120, 80)][line(\"#FF0000\")][fill(\"#FFFF00\")]"));
    EXPECT_TRUE(m_sketch->ShowsStatus("Rectangle, 120 x 80"));
    EXPECT_TRUE(Execute("[ellipse(300, 120, 60, 40)][fill(\"#0000FF\")][select(0)]"));
    EXPECT_TRUE(Shows(RGB(255, 0, 0), 100, 120));
    EXPECT_TRUE(Shows(RGB(255, 255, 0), 160, 160));
    EXPECT_TRUE(Shows(RGB(0, 0, 255), 330, 140));
}

TEST_F(SketchDde, tells_how_many_shapes_there_are_and_which_is_selected) {
    EXPECT_EQ("0", Get("Count"));
    EXPECT_EQ("0", Get("Selected"));
    EXPECT_EQ("", Get("Colour"));
    DrawARectangle();
    EXPECT_TRUE(Execute("text(\"good day\", 10, 10)"));
    EXPECT_EQ("2", Get("Count"));
    EXPECT_EQ("2", Get("Selected"));
    EXPECT_EQ("Text \"good day\", Arial, 18 points", Get("Description"));
    EXPECT_EQ("#000000", Get("Colour"));
    EXPECT_EQ("", Get("Fill"));
    EXPECT_EQ("1", Get("Changed"));
    EXPECT_EQ("refused", Get("Weight"));
}

// An atom keeps the case in which somebody in the system said it first.
TEST_F(SketchDde, knows_its_items_in_any_case) {
    const ATOM atoms[] = {::GlobalAddAtomA("cOUNT"), ::GlobalAddAtomA("fILL")};
    DrawARectangle();
    EXPECT_EQ("1", Get("Count"));
    EXPECT_EQ("1", Get("COUNT"));
    EXPECT_TRUE(Set("Fill", "#00FF00"));
    EXPECT_TRUE(Shows(RGB(0, 255, 0), 160, 160));
    for (const ATOM atom : atoms)
        ::GlobalDeleteAtom(atom);
}

TEST_F(SketchDde, lets_items_be_set) {
    DrawARectangle();
    EXPECT_TRUE(Set("Fill", "#00FF00"));
    EXPECT_TRUE(Shows(RGB(0, 255, 0), 160, 160));
    EXPECT_EQ("#00FF00", Get("Fill"));
    EXPECT_TRUE(Set("Fill", ""));
    EXPECT_TRUE(Shows(white, 160, 160));
    EXPECT_TRUE(Set("Colour", "#0000FF"));
    EXPECT_TRUE(Set("Selected", "0"));
    EXPECT_TRUE(Shows(RGB(0, 0, 255), 100, 120));
    EXPECT_TRUE(IsRefused({"poke", "Colour", "#FF0000"})) << "nothing is selected";
    EXPECT_TRUE(IsRefused({"poke", "Count", "5"}));
    EXPECT_TRUE(IsRefused({"poke", "Selected", "7"}));
}

TEST_F(SketchDde, tells_who_is_linked_what_the_user_changes) {
    const std::string file = m_folder.File("counts.txt");
    user::OtherProgram watcher("cmd /c " + CommandLine({"watch", "Count", "3"}) + " > " + file);
    // It says so when its link stands.
    ASSERT_TRUE(WaitUntil([&] { return WrittenTo(file).starts_with("watching"); }));
    Press({VK_F3});
    Press({VK_RETURN});
    EXPECT_TRUE(m_sketch->ShowsStatus("Rectangle, 120 x 80"));
    Press({VK_CONTROL, 'D'});
    // Selecting changes no count, and nobody is told.
    Press({VK_TAB});
    Press({VK_DELETE});
    EXPECT_EQ(0, watcher.WaitForEnd());
    EXPECT_EQ("watching\r\n1\r\n2\r\n1\r\n", WrittenTo(file));
}

TEST_F(SketchDde, saves_and_opens_documents) {
    const std::string file = m_folder.File("told.lvx");
    EXPECT_TRUE(IsRefused({"execute", "save"})) << "there is no name yet";
    EXPECT_TRUE(Execute("[rectangle(1, 2, 3, 4)][save(\"" + file + "\")]"));
    EXPECT_TRUE(m_sketch->ShowsTitle("told.lvx - Sketch"));
    EXPECT_EQ(1, ReadContents(file).figures);
    EXPECT_EQ(file, Get("File"));
    EXPECT_TRUE(Execute("[ellipse(5, 6, 7, 8)][save][new]"));
    EXPECT_TRUE(m_sketch->ShowsTitle("Untitled - Sketch"));
    EXPECT_EQ("0", Get("Count"));
    EXPECT_TRUE(Execute("open(\"" + file + "\")"));
    EXPECT_EQ("2", Get("Count"));
    EXPECT_TRUE(IsRefused({"execute", "open(\"" + file + ".none\")"}));
    EXPECT_TRUE(m_sketch->ShowsTitle("told.lvx - Sketch"));
}

TEST_F(SketchDde, does_not_lose_changes_by_a_command) {
    DrawARectangle();
    EXPECT_TRUE(IsRefused({"execute", "new"}));
    EXPECT_TRUE(IsRefused({"execute", "open(\"any.lvx\")"}));
    EXPECT_TRUE(m_sketch->ShowsTitle("Untitled* - Sketch"));
    EXPECT_EQ("1", Get("Count"));
}

TEST_F(SketchDde, prints_without_a_question) {
    const owl_test::FilePrinter printer;
    ASSERT_EQ("", printer.Problem());
    EXPECT_TRUE(Execute("[rectangle(100, 100, 200, 100)][fill(\"#00FF00\")][print]"));
    EXPECT_TRUE(WaitUntil([&] { return printer.HasPrinted(); }));
    const owl_test::RenderedPages pages = printer.Pages();
    ASSERT_EQ(1U, pages.size());
    EXPECT_EQ(owl::TColor(0, 255, 0), pages[0].At(150, 112));
}

TEST_F(SketchDde, takes_no_commands_while_the_user_is_in_a_dialog) {
    DrawARectangle();
    Press({VK_CONTROL, 'L'});
    const HWND dialog = m_sketch->Dialog("Line and Fill");
    EXPECT_TRUE(IsRefused({"execute", "delete"}));
    EXPECT_EQ("1", Get("Count"));
    Press({VK_ESCAPE});
    EXPECT_TRUE(m_sketch->IsGone(dialog));
    EXPECT_TRUE(Execute("delete"));
    EXPECT_EQ("0", Get("Count"));
}

TEST_F(SketchDde, takes_a_command_back_as_any_change) {
    EXPECT_TRUE(Execute("rectangle(100, 120, 120, 80)"));
    EXPECT_TRUE(m_sketch->ShowsTitle("Untitled* - Sketch"));
    Press({VK_CONTROL, 'Z'});
    EXPECT_TRUE(m_sketch->ShowsTitle("Untitled - Sketch"));
}

TEST_F(SketchDde, refuses_other_topics_and_wrong_commands) {
    EXPECT_EQ(nobody, Run(LVX_TEST_PROGRAM_PREFIX "dde_ask.exe Sketch Weather execute new"));
    EXPECT_EQ(nobody, Run(LVX_TEST_PROGRAM_PREFIX "dde_ask.exe Paint Drawing execute new"));
    EXPECT_EQ(done, Run(LVX_TEST_PROGRAM_PREFIX "dde_ask.exe SKETCH drawing execute new"));
    EXPECT_TRUE(IsRefused({"execute", "explode"}));
}

TEST_F(SketchDde, ends_in_the_middle_of_a_conversation) {
    user::OtherProgram watcher(CommandLine({"watch", "Count", "1"}));
    ::Sleep(1500);
    Press({VK_MENU, VK_F4});
    EXPECT_EQ(0, m_sketch->Process().WaitForEnd());
}
