// One table for streams on several threads.
#include <gtest/gtest.h>

#include <atomic>

#include "support/threads.h"
#include "text/token_list.h"

using lvx_test::TokenList;

namespace {

constexpr int thread_count = 3;

}  // namespace

TEST(TokenStreamThreads, one_table_serves_streams_on_several_threads) {
    LVXTokens tokens;
    tokens.add(1, 4, ';', 0);
    tokens.add(100, "begin");
    tokens.add(101, "->");
    tokens.useTokens();
    std::atomic<int> waiting = thread_count;
    lvx_test::Threads threads(thread_count, [&] {
        --waiting;
        while (waiting > 0) {
            lvx_test::sleep_for(0);
        }
        for (int i = 0; i < 100; ++i) {
            EXPECT_EQ((TokenList{{100, "begin"}, {4, "a"}, {101, "->"}, {1, "-5"}, {';', ";"}}),
                      lvx_test::tokens_of("begin a -> -5;", tokens));
        }
    });
    threads.Join();
    EXPECT_EQ(thread_count, threads.Through());
}
