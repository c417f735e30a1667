#include "owl/command_text.h"

#include <gtest/gtest.h>

#include "owl/module.h"
#include "tests/owl/gadget_ids.h"

namespace {

using owl::HintText;
using owl::TipText;

struct CommandText : testing::Test {
    owl::TModule module;
};

TEST_F(CommandText, is_a_hint_in_front_of_the_line_end_and_a_tip_behind) {
    EXPECT_EQ("Writes the drawing to its file", HintText(&module, CM_GADGET_SAVE));
    EXPECT_EQ("Save", TipText(&module, CM_GADGET_SAVE));
}

TEST_F(CommandText, without_a_line_end_is_a_hint_alone) {
    EXPECT_EQ("A sentence and nothing behind it", HintText(&module, CM_GADGET_HINT_ALONE));
    EXPECT_EQ("", TipText(&module, CM_GADGET_HINT_ALONE));
}

TEST_F(CommandText, that_begins_with_the_line_end_is_a_tip_alone) {
    EXPECT_EQ("", HintText(&module, CM_GADGET_EMPTY_HINT));
    EXPECT_EQ("Tip alone", TipText(&module, CM_GADGET_EMPTY_HINT));
}

TEST_F(CommandText, keeps_the_further_lines_of_a_tip) {
    EXPECT_EQ("Hint", HintText(&module, CM_GADGET_TWO_LINES));
    EXPECT_EQ("first\nsecond", TipText(&module, CM_GADGET_TWO_LINES));
}

TEST_F(CommandText, is_empty_without_a_resource_or_a_module) {
    EXPECT_EQ("", HintText(&module, CM_GADGET_NO_TEXT));
    EXPECT_EQ("", TipText(&module, CM_GADGET_NO_TEXT));
    EXPECT_EQ("", HintText(nullptr, CM_GADGET_SAVE));
    EXPECT_EQ("", TipText(nullptr, CM_GADGET_SAVE));
}

}  // namespace
