// What pages of docs/ quote stands in their programs, and nothing of the tutorial's program is left untold.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "support/bytes.h"
#include "support/places.h"

namespace {

using Lines = std::vector<std::string>;

std::string file_of_tree(const std::string& name) {
    return lvx_test::read_file(lvx_test::own_data() + "/../../" + name);
}

Lines lines_of(const std::string& text) {
    Lines lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

// The blocks of a page that begin with "```LANGUAGE FILE".
std::vector<Lines> quotes(const std::string& page, const std::string& mark) {
    std::vector<Lines> blocks;
    bool inside = false;
    for (const std::string& line : lines_of(file_of_tree(page))) {
        if (inside && line == "```") {
            inside = false;
        } else if (inside) {
            blocks.back().push_back(line);
        } else if (line == "```" + mark) {
            inside = true;
            blocks.emplace_back();
        }
    }
    return blocks;
}

std::string joined(const Lines& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + '\n';
    }
    return text;
}

// The lines of a program that tell something: no blank ones, no comments, no brace alone.
Lines telling_lines(const std::string& file) {
    Lines lines = lines_of(file_of_tree(file));
    std::erase_if(lines, [](const std::string& line) { return line.size() < 2 || line.starts_with("//"); });
    return lines;
}

// Each block of a page that is marked as a part of a file stands there; how many those are.
std::size_t quotes_that_stand(const std::string& page, const std::string& mark, const std::string& file) {
    const std::string text = file_of_tree(file);
    const std::vector<Lines> blocks = quotes(page, mark);
    for (const Lines& block : blocks) {
        EXPECT_NE(std::string::npos, text.find(joined(block))) << page << ":\n" << joined(block);
    }
    return blocks.size();
}

}  // namespace

TEST(Tutorial, quotes_the_program_as_it_is) {
    EXPECT_EQ(9U, quotes_that_stand("docs/owl.md", "cpp hello.cpp", "examples/hello/hello.cpp"));
    EXPECT_EQ(2U, quotes_that_stand("docs/owl.md", "rc hello.rc", "examples/hello/hello.rc"));
}

TEST(PageOfBars, quotes_the_program_as_it_is) {
    EXPECT_EQ(7U, quotes_that_stand("docs/owl-bars.md", "cpp toolbar.cpp", "examples/toolbar/toolbar.cpp"));
    EXPECT_EQ(1U, quotes_that_stand("docs/owl-bars.md", "rc toolbar.rc", "examples/toolbar/toolbar.rc"));
}

TEST(PageOfControls, quotes_the_program_as_it_is) {
    EXPECT_EQ(3U, quotes_that_stand("docs/controls.md", "cpp paints.cpp", "examples/paints/paints.cpp"));
    EXPECT_EQ(1U, quotes_that_stand("docs/controls.md", "rc paints.rc", "examples/paints/paints.rc"));
}

TEST(Tutorial, leaves_nothing_of_the_program_untold) {
    std::string told;
    for (const Lines& block : quotes("docs/owl.md", "cpp hello.cpp")) {
        told += '\n' + joined(block);
    }
    for (const std::string& line : telling_lines("examples/hello/hello.cpp")) {
        EXPECT_NE(std::string::npos, told.find('\n' + line + '\n')) << line;
    }
}

TEST(Tutorial, tells_of_a_program_of_less_than_sixty_lines) {
    EXPECT_GT(60U, lines_of(file_of_tree("examples/hello/hello.cpp")).size());
}

TEST(PageOfDialogs, quotes_the_program_as_it_is) {
    EXPECT_EQ(5U, quotes_that_stand("docs/dialogs.md", "cpp dialogs.cpp", "examples/dialogs/dialogs.cpp"));
    EXPECT_EQ(1U, quotes_that_stand("docs/dialogs.md", "rc dialogs.rc", "examples/dialogs/dialogs.rc"));
}

TEST(PageOfToolbars, quotes_the_program_as_it_is) {
    EXPECT_EQ(3U, quotes_that_stand("docs/toolbar.md", "cpp aligned_text.cpp",
                                    "examples/aligned_text/aligned_text.cpp"));
    EXPECT_EQ(2U, quotes_that_stand("docs/toolbar.md", "rc aligned_text.rc",
                                    "examples/aligned_text/aligned_text.rc"));
}
