#include "lvx/controls/colour_maths.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <ostream>

namespace lvx {

std::ostream& operator<<(std::ostream& out, const RgbColour& c) {
    return out << c.red << ' ' << c.green << ' ' << c.blue;
}

std::ostream& operator<<(std::ostream& out, const HlsColour& c) {
    return out << c.hue << ' ' << c.lightness << ' ' << c.saturation;
}

}  // namespace lvx

namespace {

using lvx::hls_of;
using lvx::HlsColour;
using lvx::rgb_of;
using lvx::RgbColour;

int deviation(const RgbColour& a, const RgbColour& b) {
    return std::max({std::abs(a.red - b.red), std::abs(a.green - b.green), std::abs(a.blue - b.blue)});
}

template <class Visit>
void for_each_rgb(const Visit& visit) {
    for (int red = 0; red < 256; ++red)
        for (int green = 0; green < 256; ++green)
            for (int blue = 0; blue < 256; ++blue)
                visit(RgbColour{red, green, blue});
}

template <class Visit>
void for_each_hls(const Visit& visit) {
    for (int hue = 0; hue <= 360; ++hue)
        for (int lightness = 0; lightness <= 100; ++lightness)
            for (int saturation = 0; saturation <= 100; ++saturation)
                visit(HlsColour{hue, lightness, saturation});
}

}  // namespace

TEST(HlsOf, tells_well_known_colours) {
    const struct {
        RgbColour rgb;
        HlsColour hls;
    } cases[] = {
        {{255, 0, 0}, {0, 50, 100}},     {{255, 255, 0}, {60, 50, 100}}, {{0, 255, 0}, {120, 50, 100}},
        {{0, 255, 255}, {180, 50, 100}}, {{0, 0, 255}, {240, 50, 100}},  {{255, 0, 255}, {300, 50, 100}},
        {{128, 0, 0}, {0, 25, 100}},      // 128 / 510 = 25.1 %
        {{255, 128, 128}, {0, 75, 100}},  // 383 / 510 = 75.1 %; 127 of 510 - 383
        {{192, 64, 64}, {0, 50, 50}},     // 256 / 510 = 50.2 %; 128 of 510 - 256 = 50.4 %
        {{64, 64, 192}, {240, 50, 50}},  {{255, 165, 0}, {39, 50, 100}},  // 60 * 165 / 255 = 38.8
        {{1, 0, 0}, {0, 0, 100}},
    };
    for (const auto& [rgb, hls] : cases)
        EXPECT_EQ(hls, hls_of(rgb, 77)) << rgb;
}

TEST(HlsOf, rounds_a_hue_just_below_red_up_to_360) {
    EXPECT_EQ(360, hls_of({255, 0, 1}, 0).hue);  // 360 - 60 / 255 = 359.8
    EXPECT_EQ(360, hls_of({255, 0, 2}, 0).hue);  // 359.53
    EXPECT_EQ(359, hls_of({255, 0, 3}, 0).hue);  // 359.29
    EXPECT_EQ(0, hls_of({255, 1, 0}, 0).hue);
}

TEST(HlsOf, lets_red_win_over_green_and_green_over_blue) {
    EXPECT_EQ(60, hls_of({200, 200, 100}, 0).hue);
    EXPECT_EQ(180, hls_of({100, 200, 200}, 0).hue);
    EXPECT_EQ(300, hls_of({200, 100, 200}, 0).hue);
}

TEST(HlsOf, leaves_a_grey_the_hue_that_there_was) {
    for (int grey = 0; grey <= 255; ++grey) {
        for (const int hue : {0, 1, 123, 360}) {
            // In hundredths of the scale and halves, so that nothing is left to fractions.
            const int lightness = (grey * 200 + 255) / 510;
            EXPECT_EQ((HlsColour{hue, lightness, 0}), hls_of({grey, grey, grey}, hue)) << grey;
        }
    }
    EXPECT_EQ((HlsColour{210, 50, 0}), hls_of({128, 128, 128}, 210));
}

TEST(HlsOf, stays_on_its_scales) {
    for_each_rgb([](const RgbColour& rgb) {
        const HlsColour hls = hls_of(rgb, 0);
        ASSERT_TRUE(hls.hue >= 0 && hls.hue <= 360) << rgb;
        ASSERT_TRUE(hls.lightness >= 0 && hls.lightness <= 100) << rgb;
        ASSERT_TRUE(hls.saturation >= 0 && hls.saturation <= 100) << rgb;
    });
}

// Lightness and hue by whole numbers: rounded quotients, of which none lies on the border between two.
// Lightness is 100 (max + min) / 510, which would need 20 (max + min) = 51 (2k + 1), an even number equal to
// an odd one.
TEST(HlsOf, has_the_lightness_that_whole_numbers_give) {
    for_each_rgb([](const RgbColour& rgb) {
        const auto [min, max] = std::minmax({rgb.red, rgb.green, rgb.blue});
        ASSERT_EQ((200 * (max + min) + 510) / 1020, hls_of(rgb, 0).lightness) << rgb;
    });
}

TEST(HlsOf, has_the_saturation_that_whole_numbers_give_but_where_that_lies_between_two) {
    for_each_rgb([](const RgbColour& rgb) {
        const auto [min, max] = std::minmax({rgb.red, rgb.green, rgb.blue});
        if (min == max)
            return;
        const int sum = max + min;
        const int whole = sum <= 255 ? sum : 510 - sum;
        const int doubled = 200 * (max - min) + whole;
        const int saturation = hls_of(rgb, 0).saturation;
        if (doubled % (2 * whole) != 0)
            ASSERT_EQ(doubled / (2 * whole), saturation) << rgb;
        else
            ASSERT_LE(std::abs(2 * whole * saturation - doubled + whole), whole) << rgb;
    });
}

TEST(HlsOf, takes_numbers_beyond_the_scale_for_its_end) {
    EXPECT_EQ(hls_of({255, 0, 0}, 5), hls_of({256, -1, INT_MIN}, 5));
    EXPECT_EQ(hls_of({255, 255, 255}, 5), hls_of({300, 999, INT_MAX}, 5));
    EXPECT_EQ(hls_of({255, 255, 0}, 5), hls_of({255, 510, 0}, 5));
}

TEST(RgbOf, tells_well_known_colours) {
    const struct {
        HlsColour hls;
        RgbColour rgb;
    } cases[] = {
        {{0, 50, 100}, {255, 0, 0}},      {{60, 50, 100}, {255, 255, 0}},    {{120, 50, 100}, {0, 255, 0}},
        {{180, 50, 100}, {0, 255, 255}},  {{240, 50, 100}, {0, 0, 255}},     {{300, 50, 100}, {255, 0, 255}},
        {{30, 50, 100}, {255, 128, 0}},    // 127.5 is rounded up
        {{0, 25, 100}, {128, 0, 0}},       // m2 = 2 * 0.25
        {{210, 75, 40}, {166, 191, 217}},  // m2 0.85, m1 0.65: 165.75; 0.75 and 191.25; 216.75
        {{77, 0, 100}, {0, 0, 0}},        {{77, 100, 100}, {255, 255, 255}}, {{77, 50, 0}, {128, 128, 128}},
        {{77, 20, 0}, {51, 51, 51}},
    };
    for (const auto& [hls, rgb] : cases)
        EXPECT_EQ(rgb, rgb_of(hls)) << hls;
}

TEST(RgbOf, gives_the_hue_360_what_it_gives_0) {
    for (int lightness = 0; lightness <= 100; ++lightness)
        for (int saturation = 0; saturation <= 100; ++saturation)
            EXPECT_EQ(rgb_of({0, lightness, saturation}), rgb_of({360, lightness, saturation}))
                << lightness << ' ' << saturation;
}

TEST(RgbOf, has_no_hue_without_saturation) {
    for (int hue = 0; hue <= 360; ++hue)
        for (int lightness = 0; lightness <= 100; ++lightness)
            EXPECT_EQ(rgb_of({0, lightness, 0}), rgb_of({hue, lightness, 0})) << hue << ' ' << lightness;
}

TEST(RgbOf, stays_on_its_scales) {
    for_each_hls([](const HlsColour& hls) {
        const RgbColour rgb = rgb_of(hls);
        for (const int channel : {rgb.red, rgb.green, rgb.blue})
            ASSERT_TRUE(channel >= 0 && channel <= 255) << hls;
    });
}

TEST(RgbOf, takes_numbers_beyond_the_scales_for_their_ends) {
    EXPECT_EQ(rgb_of({360, 50, 100}), rgb_of({361, 50, 101}));
    EXPECT_EQ(rgb_of({0, 50, 100}), rgb_of({-1, 50, INT_MAX}));
    EXPECT_EQ(rgb_of({0, 0, 0}), rgb_of({INT_MIN, -1, -1}));
    EXPECT_EQ(rgb_of({0, 100, 0}), rgb_of({INT_MAX, INT_MAX, INT_MIN}));
}

TEST(OnScale, takes_a_number_beyond_its_scale_for_the_end) {
    EXPECT_EQ((RgbColour{0, 255, 255}), lvx::on_scale(RgbColour{-1, 256, INT_MAX}));
    EXPECT_EQ((RgbColour{0, 128, 255}), lvx::on_scale(RgbColour{0, 128, 255}));
    EXPECT_EQ((HlsColour{360, 100, 100}), lvx::on_scale(HlsColour{361, 101, INT_MAX}));
    EXPECT_EQ((HlsColour{0, 0, 0}), lvx::on_scale(HlsColour{-1, INT_MIN, -100}));
    EXPECT_EQ((HlsColour{360, 100, 0}), lvx::on_scale(HlsColour{360, 100, 0}));
}

// Red, green and blue as a function of hue, lightness and saturation are, from the smallest channel to the
// largest, L - C/2, L - C/2 + C f and L + C/2: C = 2 S L for L up to 1/2, else 2 S (1 - L), and f, from 0 to
// 1, is how far the hue is on its way through a sextant. So a channel is L + C k with k = f - 1/2 between
// -1/2 and 1/2. Rounding moves L and S by up to 1/200 each and the hue by half a degree, f by 1/120. With C
// up to 1, the channel moves by dL + k dC + C df at most, where dC is 2 S dL + 2 L dS, up to 2/200 + 1/200:
//
//     1/200 + 1/2 * 3/200 + 1/120 = 1/48 = 0.0208
//
// and by products of two such steps, 3/200 * 1/120 and 1/2 * 2 * 1/200^2, below 0.0002. Of 255 that is less
// than 5.37; rounding the channel adds up to 0.5. What is a whole number moves by 5 at most.
//
// And one does. (2, 228, 230): L = 232/510 = 45.490 %, S = 228/232 = 98.276 %, hue 180 + 60 * 2/228 = 180.53;
// rounded 45, 98, 181. Back: m2 = 1.98 * 0.45 = 0.891, m1 = 0.009; blue 227.2, red 2.3, and green at 181:
// 0.009 + 0.882 * 59/60 = 0.8763, 223.46 of 255 and so 223, which is 5 less than 228.
TEST(Colours, come_back_from_hls_no_further_off_than_5) {
    EXPECT_EQ((HlsColour{181, 45, 98}), hls_of({2, 228, 230}, 0));
    EXPECT_EQ((RgbColour{2, 223, 227}), rgb_of({181, 45, 98}));
    int largest = 0;
    for_each_rgb(
        [&](const RgbColour& rgb) { largest = std::max(largest, deviation(rgb, rgb_of(hls_of(rgb, 0)))); });
    EXPECT_EQ(5, largest);
}

// A grey moves by its lightness alone, by 255/200 and the rounding.
TEST(Colours, that_are_grey_come_back_no_further_off_than_1_and_grey) {
    for (int grey = 0; grey <= 255; ++grey) {
        const RgbColour back = rgb_of(hls_of({grey, grey, grey}, 200));
        EXPECT_LE(std::abs(back.red - grey), 1);
        EXPECT_EQ(back.red, back.green);
        EXPECT_EQ(back.red, back.blue);
    }
}
