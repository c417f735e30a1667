#include "lvx/platform/posix/wait_queue.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <thread>
#include <vector>

#include "support/threads.h"

using lvx::platform::Waiter;
using lvx::platform::WaitQueue;

namespace {

// A queue with its lock, and threads that stand in it: each is there for certain once it was added.
class WaitQueueTest : public testing::Test {
protected:
    ~WaitQueueTest() override {
        for (std::thread& thread : m_threads) {
            thread.join();
        }
    }

    void AddThread(unsigned long milliseconds = lvx_test::long_time) {
        const auto number = static_cast<int>(m_threads.size());
        bool stands = false;
        m_threads.emplace_back([this, number, milliseconds, &stands] {
            std::unique_lock lock(m_guard);
            Waiter waiter;
            stands = true;
            const bool released = m_queue.Wait(lock, waiter, milliseconds);
            m_came.push_back(released ? number : -1);
            m_outcomes.push_back(waiter.outcome);
        });
        EXPECT_TRUE(lvx_test::comes_true([&] {
            const std::lock_guard guard(m_guard);
            return stands;
        }));
    }

    /// Who came through so far, once that are `count`.
    std::vector<int> Came(std::size_t count) {
        lvx_test::comes_true([&] {
            const std::lock_guard guard(m_guard);
            return m_came.size() >= count;
        });
        const std::lock_guard guard(m_guard);
        return m_came;
    }

    std::mutex m_guard;
    WaitQueue m_queue;
    std::vector<unsigned long> m_outcomes;

private:
    std::vector<int> m_came;
    std::vector<std::thread> m_threads;
};

}  // namespace

TEST_F(WaitQueueTest, nobody_waits_for_no_time) {
    std::unique_lock lock(m_guard);
    Waiter waiter;
    EXPECT_FALSE(m_queue.Wait(lock, waiter, 0));
    EXPECT_TRUE(lock.owns_lock());
    EXPECT_EQ(nullptr, m_queue.ReleaseFirst());
}

TEST_F(WaitQueueTest, releasing_nobody_does_nothing) {
    const std::lock_guard guard(m_guard);
    EXPECT_EQ(nullptr, m_queue.ReleaseFirst());
    m_queue.ReleaseAll();
}

TEST_F(WaitQueueTest, threads_are_released_in_the_order_in_which_they_came) {
    for (int i = 0; i < 3; ++i) {
        AddThread();
    }
    const std::vector<int> all{0, 1, 2};
    for (std::size_t count = 1; count <= all.size(); ++count) {
        {
            const std::lock_guard guard(m_guard);
            EXPECT_NE(nullptr, m_queue.ReleaseFirst());
        }
        EXPECT_EQ(std::vector<int>(all.begin(), all.begin() + static_cast<std::ptrdiff_t>(count)),
                  Came(count));
    }
}

TEST_F(WaitQueueTest, all_are_released_at_once_and_nobody_is_left) {
    for (int i = 0; i < 3; ++i) {
        AddThread();
    }
    {
        const std::lock_guard guard(m_guard);
        m_queue.ReleaseAll();
        EXPECT_EQ(nullptr, m_queue.ReleaseFirst());
    }
    EXPECT_EQ(3u, Came(3).size());
}

TEST_F(WaitQueueTest, a_thread_learns_the_outcome) {
    AddThread();
    {
        const std::lock_guard guard(m_guard);
        EXPECT_EQ(WAIT_ABANDONED, m_queue.ReleaseFirst(WAIT_ABANDONED)->outcome);
    }
    Came(1);
    EXPECT_EQ(std::vector<unsigned long>{WAIT_ABANDONED}, m_outcomes);
}

TEST_F(WaitQueueTest, who_gave_up_is_not_in_the_queue) {
    AddThread();
    AddThread(1);
    AddThread();
    EXPECT_EQ(std::vector<int>{-1}, Came(1));
    {
        const std::lock_guard guard(m_guard);
        m_queue.ReleaseFirst();
        m_queue.ReleaseFirst();
        EXPECT_EQ(nullptr, m_queue.ReleaseFirst());
    }
    EXPECT_EQ(3u, Came(3).size());
}

TEST_F(WaitQueueTest, times_of_more_than_32_bits_have_no_end) {
    for (const unsigned long endless : {INFINITE, INFINITE + 1, std::numeric_limits<unsigned long>::max() / 2,
                                        std::numeric_limits<unsigned long>::max()}) {
        AddThread(endless);
    }
    AddThread(INFINITE - 1);
    lvx_test::sleep_for(20);
    EXPECT_TRUE(Came(0).empty());
    const std::lock_guard guard(m_guard);
    m_queue.ReleaseAll();
}
