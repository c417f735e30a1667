// The second process of the tests of the clipboard: another program of the library's.
//
// usage: lvx_clipboard_host put FILE           puts the object that the store FILE begins with
//        lvx_clipboard_host get FILE           writes the object that lies there to a store
//        lvx_clipboard_host echo READY GO      takes each object off and puts it back, READY and GO for each
//
// READY is set and GO waited for, which are names of events. Exits with 1 if there is no object, 3 with an
// exception.
#include <windows.h>

#include <exception>
#include <memory>
#include <string>

#include "lvx/exchange/clipboard.h"
#include "lvx/store/object_store_file.h"
#include "owl/message_window.h"
#include "support/random_shapes.h"
#include "support/shapes.h"

namespace {

constexpr DWORD long_time = 20000;

int put(LVXClipboard& clipboard, const char* file) {
    ObjectStoreFile store;
    if (!store.OpenStream(file, ObjectStore::ForRead)) {
        return 2;
    }
    Storable* object = nullptr;
    store >> object;
    const lvx_test::ShapesOwner owner(object);
    return clipboard.clear() && clipboard.put(object) ? 0 : 2;
}

int get(LVXClipboard& clipboard, const char* file) {
    Storable* object = nullptr;
    if (!clipboard.get(object, true)) {
        return 1;
    }
    const lvx_test::ShapesOwner owner(object);
    ObjectStoreFile store;
    store.OpenStream(file, ObjectStore::ForWrite);
    store << *object;
    store.CloseStream();
    return 0;
}

int echo(LVXClipboard& clipboard, HANDLE ready, HANDLE go) {
    for (;;) {
        ::SetEvent(ready);
        if (::WaitForSingleObject(go, long_time) != WAIT_OBJECT_0) {
            return 2;
        }
        Storable* object = nullptr;
        if (!clipboard.get(object, true)) {
            return 1;
        }
        const lvx_test::ShapesOwner owner(object);
        if (!clipboard.clear() || !clipboard.put(object)) {
            return 2;
        }
    }
}

int run(int argc, char** argv) {
    const owl_test::MessageWindow window;
    LVXClipboard clipboard(static_cast<HWND>(window));
    lvx_test::register_shapes();
    const std::string verb = argc > 2 ? argv[1] : "";
    if (verb == "put") {
        return put(clipboard, argv[2]);
    }
    if (verb == "get") {
        return get(clipboard, argv[2]);
    }
    if (verb == "echo" && argc == 4) {
        return echo(clipboard, ::OpenEventA(EVENT_ALL_ACCESS, FALSE, argv[2]),
                    ::OpenEventA(EVENT_ALL_ACCESS, FALSE, argv[3]));
    }
    return 2;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return run(argc, argv);
    } catch (const std::exception&) {
        return 3;
    }
}
