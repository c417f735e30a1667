// The commands that the example host takes from other programs: what is understood, and what is refused.
#include <gtest/gtest.h>

#include "sketch/frame/commands.h"
#include "sketch/model/colour_text.h"

namespace {

// Notes what it is asked to do.
class Noted : public sketch::Commanded {
public:
    bool MakeNew() override { return Note("new"); }
    bool OpenFile(const std::string& file) override { return Note("open " + file); }
    bool SaveFile(const std::string& file) override { return Note("save " + file); }
    bool PrintNow() override { return Note("print"); }
    bool SelectNumber(int number) override { return Note("select " + std::to_string(number)); }
    bool DeleteSelected() override { return Note("delete"); }
    bool AddRectangle(const owl::TRect& rect) override { return Note("rectangle " + Text(rect)); }
    bool AddEllipse(const owl::TRect& rect) override { return Note("ellipse " + Text(rect)); }
    bool AddWords(const std::string& words, const owl::TPoint& place) override {
        return Note("text " + words + " " + std::to_string(place.x) + " " + std::to_string(place.y));
    }
    bool SetLineColour(const owl::TColor& colour) override {
        return Note("line " + sketch::ColourText(colour));
    }
    bool SetFillColour(const owl::TColor& colour) override {
        return Note("fill " + sketch::ColourText(colour));
    }
    bool ClearFill() override { return Note("no fill"); }

    std::string notes;
    /// What is refused.
    std::string refused;

private:
    static std::string Text(const owl::TRect& rect) {
        return std::to_string(rect.left) + " " + std::to_string(rect.top) + " " + std::to_string(rect.right) +
               " " + std::to_string(rect.bottom);
    }
    bool Note(const std::string& what) {
        notes += what + ";";
        return what != refused;
    }
};

std::string Done(const std::string& text) {
    Noted noted;
    const bool isDone = sketch::RunCommands(text, noted);
    return noted.notes + (isDone ? "" : "refused");
}

}  // namespace

TEST(SketchCommands, are_calls_with_arguments) {
    const struct {
        const char* text;
        const char* done;
    } cases[] = {
        {"new", "new;"},
        {"new()", "new;"},
        {"open(\"C:\\my drawings\\a.lvx\")", "open C:\\my drawings\\a.lvx;"},
        {"save", "save ;"},
        {"save(b.lvx)", "save b.lvx;"},
        {"print", "print;"},
        {"  select ( 3 ) ", "select 3;"},
        {"select(0)", "select 0;"},
        {"delete()", "delete;"},
        {"rectangle(10, 20, 30, 40)", "rectangle 10 20 40 60;"},
        {"ellipse(-5,-6,7,8)", "ellipse -5 -6 2 2;"},
        {"text(\"good, day\", 1, 2)", "text good, day 1 2;"},
        {"line(\"#ff8000\")", "line #FF8000;"},
        {"fill(#0080FF)", "fill #0080FF;"},
        {"fill()", "no fill;"},
        {"fill", "no fill;"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(each.done, Done(each.text)) << each.text;
}

TEST(SketchCommands, run_in_brackets_one_after_the_other) {
    EXPECT_EQ("new;select 0;print;", Done("[new][select(0)] [print()]"));
    EXPECT_EQ("open a]b.lvx;delete;", Done("[open(\"a]b.lvx\")][delete]"));
}

TEST(SketchCommands, end_at_the_first_that_fails) {
    Noted noted;
    noted.refused = "select 9";
    EXPECT_FALSE(sketch::RunCommands("[new][select(9)][print]", noted));
    EXPECT_EQ("new;select 9;", noted.notes);
    EXPECT_EQ("new;refused", Done("[new][explode][print]"));
}

TEST(SketchCommands, are_refused_when_they_are_none) {
    for (const char* text : {"",
                             "   ",
                             "(",
                             "explode",
                             "New",
                             "select",
                             "select()",
                             "select(one)",
                             "select(1.5)",
                             "select(1,2)",
                             "select(99999999999)",
                             "rectangle(1,2,3)",
                             "rectangle(1,2,3,0)",
                             "rectangle(1,2,-3,4)",
                             "open()",
                             "text(a,1)",
                             "line(red)",
                             "line(\"#12345\")",
                             "line(\"#12345G\")",
                             "fill(1,2)",
                             "new(1)",
                             "[",
                             "[new",
                             "[new]x",
                             "[]",
                             "print now"})
        EXPECT_EQ("refused", Done(text).substr(Done(text).size() - 7)) << text;
}

TEST(SketchColourText, is_the_same_there_and_back) {
    EXPECT_EQ("#FF8001", sketch::ColourText(owl::TColor(255, 128, 1)));
    const auto colour = sketch::ParseColour("#0a0B0c");
    ASSERT_TRUE(colour.has_value());
    EXPECT_EQ(owl::TColor(10, 11, 12), *colour);
    EXPECT_FALSE(sketch::ParseColour("").has_value());
    EXPECT_FALSE(sketch::ParseColour("0a0B0c7").has_value());
    EXPECT_FALSE(sketch::ParseColour("#-10000").has_value());
}
