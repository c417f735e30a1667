// The second process of the tests of named objects.
//
// usage: lvx_sync_peer set EVENT             sets the event
//        lvx_sync_peer wait EVENT            waits until it is set
//        lvx_sync_peer try MUTEX             locks the mutex if it is free
//        lvx_sync_peer hold MUTEX EVENT      locks the mutex, sets the event, and waits to be killed
//
// Exits with 0 for true, 1 for false, 2 for an exception.
#include <exception>
#include <iostream>
#include <string>

#include "lvx/runtime/sync.h"

namespace {

constexpr unsigned long long_time = 20000;

bool run(const std::string& what, const char* name, const char* second) {
    if (what == "set") {
        return LVXEvent(false, false, name, nullptr).SetEvent();
    }
    if (what == "wait") {
        return LVXEvent(false, false, name, nullptr).Lock(long_time);
    }
    LVXMutex mutex(false, name, nullptr);
    if (what == "try") {
        return mutex.Lock(0);
    }
    mutex.Lock(long_time);
    LVXEvent(false, false, second, nullptr).SetEvent();
    LVXEvent(false, false, nullptr, nullptr).Lock(long_time);
    return false;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        return 3;
    }
    try {
        return run(argv[1], argv[2], argc > 3 ? argv[3] : nullptr) ? 0 : 1;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 2;
    }
}
