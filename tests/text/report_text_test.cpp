#include "lvx/text/report_text.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using lvx::text::ReportText;

[[gnu::format(gnu_printf, 1, 2)]] std::string text_of(const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    const ReportText text(format, arguments);
    va_end(arguments);
    return text.c_str();
}

}  // namespace

TEST(ReportText, carries_the_format_out) {
    EXPECT_EQ("bad 7 of 12, 50%", text_of("bad %d of %zu, 50%%", 7, std::size_t{12}));
    EXPECT_EQ("two\nlines", text_of("two\n%s", "lines"));
    EXPECT_EQ("", text_of("%s", ""));
}

TEST(ReportText, is_whole_where_a_buffer_of_400_characters_ends) {
    for (const std::size_t length : {398u, 399u, 400u, 401u, 1000u}) {
        const std::string text(length, 'x');
        EXPECT_EQ(text, text_of("%s", text.c_str()));
    }
}

TEST(ReportText, is_cut_behind_4095_characters) {
    const std::string text = std::string(4094, 'x') + "yz";
    EXPECT_EQ(text.substr(0, 4094), text_of("%s", text.substr(0, 4094).c_str()));
    EXPECT_EQ(text.substr(0, 4095), text_of("%s", text.substr(0, 4095).c_str()));
    EXPECT_EQ(text.substr(0, 4095), text_of("%s", text.c_str()));
    EXPECT_EQ(std::string(4095, ' '), text_of("%1000000d", 1));
}
