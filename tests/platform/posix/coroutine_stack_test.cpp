// A stack that a host made itself, below the thread's own.
#include <gtest/gtest.h>
#include <ucontext.h>

#include <vector>

#include "lvx/platform/stack.h"

namespace {

ucontext_t thread_context;
ucontext_t coroutine_context;
bool was_low = true;

void coroutine() {
    was_low = lvx::platform::stack_is_low();
}

}  // namespace

TEST(CoroutineStack, is_not_taken_for_the_end_of_the_threads_stack) {
    std::vector<char> stack(256 * 1024);
    ASSERT_EQ(0, getcontext(&coroutine_context));
    coroutine_context.uc_stack.ss_sp = stack.data();
    coroutine_context.uc_stack.ss_size = stack.size();
    coroutine_context.uc_link = &thread_context;
    makecontext(&coroutine_context, coroutine, 0);
    ASSERT_EQ(0, swapcontext(&thread_context, &coroutine_context));
    EXPECT_FALSE(was_low);
}
