// Threads of tests. What waits has a time-out, so that a test that fails ends too.
#pragma once

#include <atomic>
#include <chrono>
#include <thread>
#include <vector>

namespace lvx_test {

/// Far longer than anything takes: a wait that comes to this has failed.
inline constexpr unsigned long long_time = 20000;

/// Runs `action` on a thread of its own, which has ended behind the call.
template <class Action>
void on_another_thread(Action action) {
    std::thread(action).join();
}

inline void sleep_for(int milliseconds) {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

/// How long `action` takes, whole milliseconds.
template <class Action>
long milliseconds_of(Action action) {
    const auto start = std::chrono::steady_clock::now();
    action();
    const auto time = std::chrono::steady_clock::now() - start;
    return static_cast<long>(std::chrono::duration_cast<std::chrono::milliseconds>(time).count());
}

/// Waits until `is_true()`. False if that took too long.
template <class Condition>
bool comes_true(Condition is_true) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(long_time);
    while (!is_true() && std::chrono::steady_clock::now() < end) {
        sleep_for(1);
    }
    return is_true();
}

/// Threads that all do the same, and count once each when they come through. Joined at the end.
class Threads {
public:
    template <class Action>
    Threads(int count, Action action) {
        for (int i = 0; i < count; ++i) {
            m_threads.emplace_back([this, action] {
                ++m_started;
                action();
                ++m_through;
            });
        }
        comes_true([&] { return m_started == count; });
    }
    Threads(const Threads&) = delete;
    Threads& operator=(const Threads&) = delete;
    ~Threads() { Join(); }

    void Join() {
        for (std::thread& thread : m_threads) {
            thread.join();
        }
        m_threads.clear();
    }

    int Through() const { return m_through; }
    bool ComeThrough(int count) const {
        return comes_true([&] { return m_through >= count; });
    }

private:
    std::atomic<int> m_started{0};
    std::atomic<int> m_through{0};
    std::vector<std::thread> m_threads;
};

}  // namespace lvx_test
