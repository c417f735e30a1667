#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>

#include "lvx/text/strings.h"
#include "text/global_locale.h"

namespace {

constexpr int greatest_int = std::numeric_limits<int>::max();
constexpr int least_int = std::numeric_limits<int>::min();
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();
constexpr double greatest = std::numeric_limits<double>::max();
constexpr double least = std::numeric_limits<double>::denorm_min();

struct Case {
    double value;
    int count;
    const char* text;
};

std::string c_library_text(const char* format, int decimals, double value) {
    std::array<char, 1500> buffer;
    const int length = std::snprintf(buffer.data(), buffer.size(), format, decimals, value);
    return std::string(buffer.data(), static_cast<std::size_t>(length));
}

double number_in(const std::string& text) {
    return std::strtod(text.c_str(), nullptr);
}

// Finite doubles of every size.
double any_double(std::mt19937_64& random) {
    for (;;) {
        const auto value = std::bit_cast<double>(random());
        if (std::isfinite(value)) {
            return value;
        }
    }
}

class CommaDecimals : public std::numpunct<char> {
protected:
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

// The C library's locale for the length of a scope, the first of the German ones that the system has.
class GermanNumbers {
public:
    GermanNumbers() {
        for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "de_DE", "German_Germany.1252", "German"}) {
            if (std::setlocale(LC_NUMERIC, name)) {
                return;
            }
        }
        std::puts("note: ran without a German locale, this system has none");
    }
    ~GermanNumbers() { std::setlocale(LC_NUMERIC, "C"); }
    GermanNumbers(const GermanNumbers&) = delete;
    GermanNumbers& operator=(const GermanNumbers&) = delete;
};

}  // namespace

TEST(ToString, shows_at_most_so_many_decimals) {
    const Case cases[] = {
        {3.14159, 2, "3.14"},
        {2.50, 2, "2.5"},
        {2.0, 2, "2"},
        {100.0, 2, "100"},
        {-3.14159, 2, "-3.14"},
        {-2.0, 3, "-2"},
        {0.0, 2, "0"},
        {0.005, 1, "0"},
        {1.999, 2, "2"},
        {10.10, 1, "10.1"},
        {0.1, 20, "0.10000000000000000555"},
        {9.99, 1, "10"},
        {1e6, 3, "1000000"},
        {0.000001, 6, "0.000001"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.text, lvx::to_string(c.value, c.count)) << c.value << " " << c.count;
    }
}

TEST(ToString, without_decimals_cuts_no_zeros) {
    EXPECT_EQ("1200", lvx::to_string(1200.0, 0));
    EXPECT_EQ("0", lvx::to_string(0.0, 0));
    EXPECT_EQ("-10", lvx::to_string(-10.4, 0));
    EXPECT_EQ("10", lvx::to_string(9.6, 0));
}

// The exact binary value decides; a true half goes to the even neighbour.
TEST(ToString, rounds_decimals_by_the_exact_value) {
    EXPECT_EQ("0.12", lvx::to_string(0.125, 2));
    EXPECT_EQ("0.38", lvx::to_string(0.375, 2));
    EXPECT_EQ("2", lvx::to_string(2.5, 0));
    EXPECT_EQ("4", lvx::to_string(3.5, 0));
    EXPECT_EQ("1", lvx::to_string(1.005, 2));
}

TEST(ToString, keeps_the_sign_of_a_negative_zero) {
    EXPECT_EQ("-0", lvx::to_string(-0.0, 2));
    EXPECT_EQ("-0", lvx::to_string(-0.001, 2));
    EXPECT_EQ("-0", lvx::to_string(-0.2, 0));
}

TEST(ToString, rounds_to_the_unit_of_a_negative_precision) {
    const Case cases[] = {
        {1234.0, -2, "1230"},   {1237.0, -1, "1235"}, {-1237.0, -1, "-1235"}, {7.4, -9, "7"},
        {1238.0, -1, "1240"},   {1234.0, -3, "1250"}, {1224.0, -3, "1200"},   {1249.0, -4, "1200"},
        {1250.0, -4, "1300"},   {1249.0, -5, "1000"}, {1250.0, -5, "1500"},   {1499.0, -6, "1000"},
        {1500.0, -6, "2000"},   {7499.0, -7, "5000"}, {7500.0, -7, "10000"},  {14999.0, -8, "10000"},
        {15000.0, -8, "20000"}, {7.5, -9, "8"},       {7.6, -100, "8"},       {7.6, least_int, "8"},
        {0.0, -1, "0"},         {2.4, -1, "0"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.text, lvx::to_string(c.value, c.count)) << c.value << " " << c.count;
    }
}

TEST(ToString, halves_of_a_unit_go_away_from_zero) {
    EXPECT_EQ("5", lvx::to_string(2.5, -1));
    EXPECT_EQ("-5", lvx::to_string(-2.5, -1));
    EXPECT_EQ("10", lvx::to_string(7.5, -1));
    EXPECT_EQ("-10", lvx::to_string(-5.0, -2));
    EXPECT_EQ("-1", lvx::to_string(-0.5, -9));
}

TEST(ToString, a_negative_number_that_rounds_to_no_unit_is_plain_zero) {
    EXPECT_EQ("0", lvx::to_string(-0.2, -2));
    EXPECT_EQ("0", lvx::to_string(-4.9, -2));
    EXPECT_EQ("0", lvx::to_string(-0.0, -2));
    EXPECT_EQ("0", lvx::to_string(-0.4, -9));
}

// 3 000 000 000 is 2^32 - 1 294 967 296; 10^13 is 2328 * 2^32 + 1 316 134 912.
TEST(ToString, rounding_to_a_unit_wraps_at_32_bits) {
    EXPECT_EQ("2147480000", lvx::to_string(2147483000.0, -8));
    EXPECT_EQ("-1294967296", lvx::to_string(3e9, -8));
    EXPECT_EQ("1294967296", lvx::to_string(-3e9, -8));
    EXPECT_EQ("1316134912", lvx::to_string(1e13, -1));
    EXPECT_EQ("-1316134912", lvx::to_string(-1e13, -1));
    EXPECT_EQ("0", lvx::to_string(4294967296.0, -9));
    EXPECT_EQ("1", lvx::to_string(4294967297.0, -9));
}

TEST(ToString, rounding_reaches_both_ends_of_32_bits) {
    EXPECT_EQ("2147483647", lvx::to_string(2147483647.0, -9));
    EXPECT_EQ("-2147483647", lvx::to_string(-2147483647.0, -9));
    EXPECT_EQ("-2147483648", lvx::to_string(-2147483648.0, -9));
    EXPECT_EQ("-2147483648", lvx::to_string(2147483648.0, -9));
}

// Beyond 2^85 or so every double, divided by a unit, is a multiple of 2^32.
TEST(ToString, rounding_what_has_no_32_bits_ends_in_zero) {
    for (const double value : {infinity, -infinity, not_a_number, greatest, -greatest, 1e300}) {
        for (int precision = -1; precision > -10; --precision) {
            EXPECT_EQ("0", lvx::to_string(value, precision)) << value << " " << precision;
        }
    }
}

TEST(ToString, shows_what_is_no_number_as_text) {
    EXPECT_EQ("inf", lvx::to_string(infinity, 2));
    EXPECT_EQ("-inf", lvx::to_string(-infinity, 0));
    EXPECT_EQ("nan", lvx::to_string(not_a_number, 2));
    EXPECT_EQ("-nan", lvx::to_string(std::copysign(not_a_number, -1.0), 2));
}

TEST(ToString, writes_numbers_of_any_length) {
    EXPECT_EQ("10000000000000000000000", lvx::to_string(1e22, 4));
    const std::string longest = lvx::to_string(-greatest, 3);
    EXPECT_EQ(310u, longest.size());
    EXPECT_EQ("-179769313486231570814527423731704356798070567525844", longest.substr(0, 52));
    EXPECT_EQ("858368", longest.substr(304));
}

// 2^-1074 has 1074 decimals, the last of them a 5; all beyond are zeros.
TEST(ToString, an_absurd_precision_shows_every_digit_there_is) {
    const std::string smallest = lvx::to_string(least, greatest_int);
    EXPECT_EQ(2u + 1074u, smallest.size());
    EXPECT_EQ('5', smallest.back());
    EXPECT_EQ(least, number_in(smallest));
    EXPECT_EQ(smallest, lvx::to_string(least, 1074));
    EXPECT_EQ("0.1000000000000000055511151231257827021181583404541015625", lvx::to_string(0.1, 100000));
    EXPECT_EQ("2", lvx::to_string(2.0, greatest_int));
}

TEST(ToString, shows_the_digits_that_the_c_library_prints) {
    std::mt19937_64 random(1);
    for (int i = 0; i < 3000; ++i) {
        const double value = i % 2 ? any_double(random) : static_cast<double>(random() % 1000000) / 128.0;
        const int precision = static_cast<int>(random() % 20);
        std::string expected = c_library_text("%.*f", precision, value);
        while (precision > 0 && expected.ends_with('0')) {
            expected.pop_back();
        }
        if (expected.ends_with('.')) {
            expected.pop_back();
        }
        ASSERT_EQ(expected, lvx::to_string(value, precision)) << value << " " << precision;
    }
}

TEST(ToString, has_a_point_in_every_locale) {
    const GlobalLocale commas(std::locale(std::locale::classic(), new CommaDecimals));
    const GermanNumbers german;
    EXPECT_EQ("12345.5", lvx::to_string(12345.5, 3));
    EXPECT_EQ("2", lvx::to_string(2.0, 3));
    EXPECT_EQ("12350", lvx::to_string(12345.5, -3));
}

TEST(ToStringEx, shows_significant_digits) {
    const Case cases[] = {
        {12345.0, 3, "12300"},
        {0.001234, 4, "0.001234"},
        {1.5, 3, "1.5"},
        {0.0, 3, "0"},
        {-2.0, 3, "-2"},
        {123.0, 3, "123"},
        {123.4, 3, "123"},
        {123.4, 4, "123.4"},
        {123.4, 7, "123.4"},
        {0.1, 2, "0.1"},
        {-0.00012, 2, "-0.00012"},
        {9.99, 2, "10"},
        {99.96, 3, "100"},
        {0.0999, 2, "0.1"},
        {10.0, 2, "10"},
        {10.5, 3, "10.5"},
        {100.25, 4, "100.2"},
        {1e6, 2, "1000000"},
        {1234567.0, 2, "1200000"},
        {120.0, 5, "120"},
        {-98765.4321, 6, "-98765.4"},
        {1.0, 2, "1"},
        {1002.0, 5, "1002"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.text, lvx::to_string_ex(c.value, c.count)) << c.value << " " << c.count;
    }
}

TEST(ToStringEx, a_single_digit_is_an_error) {
    for (const double value : {5.0, -5.0, 0.0, 1e100}) {
        EXPECT_EQ("Error!", lvx::to_string_ex(value, 1));
    }
}

TEST(ToStringEx, what_is_no_number_is_an_error) {
    for (const double value : {infinity, -infinity, not_a_number}) {
        for (const int digits : {3, 1, 0, -5, greatest_int}) {
            EXPECT_EQ("Error!", lvx::to_string_ex(value, digits)) << value << " " << digits;
        }
    }
}

TEST(ToStringEx, zero_has_no_sign) {
    EXPECT_EQ("0", lvx::to_string_ex(-0.0, 3));
    EXPECT_EQ("0", lvx::to_string_ex(0.0, 300));
}

TEST(ToStringEx, no_digits_or_fewer_stand_for_seven) {
    for (const int digits : {0, -1, -100, least_int}) {
        EXPECT_EQ("3.141593", lvx::to_string_ex(3.14159265358979, digits)) << digits;
        EXPECT_EQ("123456800", lvx::to_string_ex(123456789.0, digits)) << digits;
    }
}

TEST(ToStringEx, exponents_of_three_figures_count_in_full) {
    EXPECT_EQ("1" + std::string(308, '0'), lvx::to_string_ex(1e308, 3));
    EXPECT_EQ("-1" + std::string(100, '0'), lvx::to_string_ex(-1e100, 2));
    EXPECT_EQ("0." + std::string(323, '0') + "494", lvx::to_string_ex(least, 3));
    EXPECT_EQ("0." + std::string(99, '0') + "15", lvx::to_string_ex(1.5e-100, 3));
}

// 2^-1074 has 323 zeros behind the point and 751 digits after them.
TEST(ToStringEx, an_absurd_count_shows_every_digit_there_is) {
    const std::string smallest = lvx::to_string_ex(least, greatest_int);
    EXPECT_EQ(2u + 1074u, smallest.size());
    EXPECT_EQ(lvx::to_string(least, 1074), smallest);
    EXPECT_EQ(lvx::to_string(greatest, 0), lvx::to_string_ex(greatest, greatest_int));
    EXPECT_EQ("0.1000000000000000055511151231257827021181583404541015625", lvx::to_string_ex(0.1, 100000));
}

TEST(ToStringEx, is_the_number_that_the_c_library_rounds_to) {
    std::mt19937_64 random(2);
    for (int i = 0; i < 3000; ++i) {
        const double value = i % 2 ? any_double(random) : static_cast<double>(random() % 1000000) / 128.0;
        const int digits = 2 + static_cast<int>(random() % 18);
        const std::string text = lvx::to_string_ex(value, digits);
        ASSERT_EQ(number_in(c_library_text("%.*e", digits - 1, value)), number_in(text)) << text;
        ASSERT_TRUE(lvx::is_float(text)) << text;
        ASSERT_EQ(std::string::npos, text.find('e'));
        ASSERT_FALSE(text.find('.') != std::string::npos && (text.ends_with('0') || text.ends_with('.')))
            << text;
    }
}

TEST(ToStringEx, seventeen_digits_give_every_double_back) {
    std::mt19937_64 random(3);
    for (int i = 0; i < 3000; ++i) {
        const double value = any_double(random);
        ASSERT_EQ(value, number_in(lvx::to_string_ex(value, 17)));
    }
}

TEST(ToStringEx, has_a_point_in_every_locale) {
    const GlobalLocale commas(std::locale(std::locale::classic(), new CommaDecimals));
    const GermanNumbers german;
    EXPECT_EQ("1.5", lvx::to_string_ex(1.5, 3));
    EXPECT_EQ("12345.5", lvx::to_string_ex(12345.5, 8));
}
