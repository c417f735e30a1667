#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

#include "owl/regexp.h"

namespace {

constexpr int rounds = 500;

// How often the match was the right one.
int search(const TRegexp& expression) {
    int found = 0;
    for (unsigned int i = 0; i < rounds; ++i) {
        const unsigned int place = i % 50;
        unsigned int length = 0;
        const std::string text = std::string(place, '-') + "abc123";
        found += expression.find(text, &length, 0) == place && length == 6 ? 1 : 0;
    }
    return found;
}

}  // namespace

TEST(RegexpThreads, search_with_one_expression_at_once) {
    const TRegexp expression("[a-z]+[0-9]+");
    std::vector<int> found(4, 0);
    std::vector<std::thread> threads;
    for (int& count : found) {
        threads.emplace_back([&expression, &count] { count = search(expression); });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(std::vector<int>(4, rounds), found);
}
