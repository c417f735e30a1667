#include "lvx/drawing/foreign_tools.h"

#include <gtest/gtest.h>

using lvx::drawing::foreign_tools;

namespace {

std::string sentence(const std::string& tools) {
    return "LVX::Port: ends with a host's " + tools +
           " still in use; changing or ending that tool later would reach for the dead port\n";
}

}  // namespace

TEST(ForeignTools, are_named) {
    EXPECT_EQ(sentence("pen"), foreign_tools(true, false, false));
    EXPECT_EQ(sentence("brush"), foreign_tools(false, true, false));
    EXPECT_EQ(sentence("pen, font"), foreign_tools(true, false, true));
    EXPECT_EQ(sentence("pen, brush, font"), foreign_tools(true, true, true));
}

TEST(ForeignTools, are_not_spoken_of_when_there_are_none) {
    EXPECT_EQ("", foreign_tools(false, false, false));
}
