#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

#include "lvx/text/lexer.h"

namespace {

constexpr int thread_count = 4;

std::vector<long> tokens_of(const Lexer& lexer, const std::string& text) {
    std::vector<long> tokens;
    unsigned int length = 0;
    for (unsigned int place = 0; place < text.size(); place += length) {
        tokens.push_back(lexer.getToken(text, place, length));
        if (length == 0) {
            break;
        }
    }
    return tokens;
}

void add_patterns(Lexer& lexer) {
    lexer.addPattern("[a-z]+", 1, 0);
    lexer.addPattern("[0-9]+", 2, 0);
    lexer.addPattern(" +", 3, 0);
    lexer.addPattern("end\\b", 4, 1);
}

}  // namespace

TEST(LexerThreads, first_calls_on_several_threads_all_get_their_tokens) {
    const std::string text = "abc 12 end ending";
    const std::vector<long> expected = {1, 3, 2, 3, 4, 3, 1};
    for (int round = 0; round < 50; ++round) {
        Lexer lexer;
        add_patterns(lexer);
        std::atomic<int> waiting = thread_count;
        std::vector<std::vector<long>> found(thread_count);
        std::vector<std::thread> threads;
        for (std::vector<long>& tokens : found) {
            threads.emplace_back([&lexer, &text, &waiting, &tokens] {
                // All begin at once, before there is a table.
                --waiting;
                while (waiting > 0) {
                    std::this_thread::yield();
                }
                tokens = tokens_of(lexer, text);
            });
        }
        for (std::thread& thread : threads) {
            thread.join();
        }
        EXPECT_EQ(std::vector<std::vector<long>>(thread_count, expected), found);
    }
}
