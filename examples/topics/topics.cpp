// Two threads with a mutex, two events and atoms: one hands topics over, the other takes them. The worker
// then ends without giving the mutex back, and the first thread is told.
//
// usage: topics
#include <exception>
#include <functional>
#include <iostream>
#include <string>
#include <thread>
#include <vector>

#include "lvx/runtime/atom.h"
#include "lvx/runtime/sync.h"

namespace {

constexpr unsigned long patience = 10000;  // milliseconds

// One topic at a time, as the 16 bits that a message would carry.
struct Desk {
    LVXMutex mutex{false, nullptr, nullptr};
    LVXEvent filled{false, false, nullptr, nullptr};
    LVXEvent emptied{false, false, nullptr, nullptr};
    unsigned int topic = 0;
};

void hand_over(Desk& desk, const LVXAtom& topic) {
    desk.mutex.Lock(patience);
    desk.topic = topic;
    desk.mutex.Unlock();
    desk.filled.SetEvent();
    desk.emptied.Lock(patience);
}

void take(Desk& desk) {
    desk.filled.Lock(patience);
    desk.mutex.Lock(patience);
    LVXAtom topic(static_cast<unsigned short>(desk.topic));
    desk.mutex.Unlock();
    const char* const name = topic;  // once: a second conversion gives null
    std::cout << "worker: " << name << '\n';
    desk.emptied.SetEvent();
}

void work(Desk& desk, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        take(desk);
    }
    desk.mutex.Lock(patience);  // and never gives it back
}

void run() {
    const std::vector<std::string> names{"stars.dat", "Planets.dat",
                                         "a third topic with a name that is longer than the hundred "
                                         "characters that most programs would ever make "
                                         "room for in one go"};
    Desk desk;
    std::thread worker(work, std::ref(desk), names.size());
    for (const std::string& name : names) {
        LVXAtom topic(name);
        hand_over(desk, topic);
        !topic;  // the other side is done with it, and so are we
    }
    worker.join();
    std::cout << names.size() << " topics handed over\n";
    const bool given_back = desk.mutex.Lock(0);
    std::cout << "the worker ended with the mutex in its hands: " << (given_back ? "not told" : "told")
              << '\n';
    desk.mutex.Unlock();
}

}  // namespace

int main() {
    try {
        run();
    } catch (const std::exception& error) {
        std::cerr << "topics: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
