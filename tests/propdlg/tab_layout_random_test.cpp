// A strip and the second coding of its rules go the same random way, and have to be the same at each step.
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "lvx/propdlg/tab_layout.h"
#include "support/tab_walk.h"

namespace {

using lvx_test::TabWalk;

constexpr int steps_of_a_walk = 100'000;
constexpr int steps_of_a_strip = 250;

class RandomNumbers {
public:
    explicit RandomNumbers(unsigned seed) : m_engine(seed) {}
    int operator()(int below) { return static_cast<int>(m_engine() % static_cast<unsigned>(below)); }

private:
    std::mt19937 m_engine;
};

TEST(tab_layout_random, a_walk_of_a_hundred_thousand_steps_never_differs_from_the_rules) {
    RandomNumbers number(8);
    for (int step = 0; step < steps_of_a_walk; step += steps_of_a_strip) {
        TabWalk walk(static_cast<unsigned long>(number(0x10000)), number(16) > 0, number(3) * 37);
        for (int i = 0; i < steps_of_a_strip; ++i) {
            walk.Step(number);
            ASSERT_EQ("", walk.Difference()) << "strip " << step / steps_of_a_strip << ", step " << i;
        }
    }
}

}  // namespace
