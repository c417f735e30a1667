// Two threads count together under a mutex. With the argument "forget" one of them forgets the mutex: the
// thread sanitizer has to find that, and nothing without it.
//
// Exits with 0 if the count is right, with what the sanitizer says otherwise.
#include <cstdio>
#include <functional>
#include <thread>

#include "lvx/runtime/sync.h"

namespace {

int shared = 0;

void count(LVXMutex& mutex, bool forget) {
    for (int i = 0; i < 100; ++i) {
        if (!forget) {
            mutex.Lock(INFINITE);
        }
        ++shared;
        if (!forget) {
            mutex.Unlock();
        }
    }
}

}  // namespace

int main(int argc, char**) {
    LVXMutex mutex(false, nullptr, nullptr);
    std::thread other(count, std::ref(mutex), argc > 1);
    count(mutex, false);
    other.join();
    std::printf("%d\n", shared);
    return shared == 200 ? 0 : 1;
}
