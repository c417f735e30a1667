#include "owl/common_dialog_text.h"

#include <gtest/gtest.h>

namespace {

using owl::CommonDialogText;

// The numbers are the system's published ones.
TEST(CommonDialogText, tells_the_reason_in_words) {
    EXPECT_EQ("there is no default printer", CommonDialogText(0x1008));
    EXPECT_EQ("there is no printer", CommonDialogText(0x1007));
    EXPECT_EQ("there is no such printer any more", CommonDialogText(0x100B));
    EXPECT_EQ("there are no fonts", CommonDialogText(0x2001));
    EXPECT_EQ("the name to begin with is no file name", CommonDialogText(0x3002));
    EXPECT_EQ("the name of the file does not fit", CommonDialogText(0x3003));
    EXPECT_EQ("the template was not found", CommonDialogText(6));
    EXPECT_EQ("the system could not make the dialog", CommonDialogText(0xFFFF));
}

TEST(CommonDialogText, of_a_number_that_nobody_knows_is_the_number) {
    EXPECT_EQ("error 0", CommonDialogText(0));
    EXPECT_EQ("error abcd1234", CommonDialogText(0xABCD1234));
}

}  // namespace
