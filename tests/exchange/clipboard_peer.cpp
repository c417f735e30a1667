// The second process of the tests of the clipboard: another program, which knows the system's calls alone.
//
// usage: lvx_clipboard_peer put [FORMAT FILE]...               empties the clipboard, puts what the files
// have
//        lvx_clipboard_peer put-bitmap                         a bitmap of the screen's depth, RG above BW
//        lvx_clipboard_peer dump FORMAT FILE                   writes the bytes that lie there
//        lvx_clipboard_peer dump-bitmap FILE                   writes a letter for each pixel that lies there
//        lvx_clipboard_peer hold READY GO                      has the clipboard open
//        lvx_clipboard_peer promise READY GO [FORMAT FILE]...  announces formats; a FILE of - is not
//        delivered
//
// A format is a number or a name. READY is set and GO waited for, which are names of events. Exits with 1 if
// there is nothing to write.
#include <windows.h>

#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <vector>

namespace {

constexpr DWORD long_time = 20000;

using Files = std::map<unsigned, std::string>;

/// Open as long as it lives.
class Clipboard {
public:
    explicit Clipboard(HWND window) {
        // Others may look into it for a moment.
        for (int tries = 0; tries < 1000 && ::OpenClipboard(window) == FALSE; ++tries) {
            ::Sleep(5);
        }
    }
    Clipboard(const Clipboard&) = delete;
    Clipboard& operator=(const Clipboard&) = delete;
    ~Clipboard() { ::CloseClipboard(); }
};

unsigned format_of(const std::string& text) {
    const int number = std::atoi(text.c_str());
    return number != 0 ? static_cast<unsigned>(number) : ::RegisterClipboardFormatA(text.c_str());
}

Files files_of(int count, char** arguments) {
    Files files;
    for (int i = 0; i + 1 < count; i += 2) {
        files[format_of(arguments[i])] = arguments[i + 1];
    }
    return files;
}

HGLOBAL block_of(const std::string& name) {
    std::ifstream file(name, std::ios::binary);
    const std::string bytes(std::istreambuf_iterator<char>(file), {});
    const HGLOBAL block = ::GlobalAlloc(GMEM_MOVEABLE, bytes.size());
    if (!bytes.empty()) {
        std::memcpy(::GlobalLock(block), bytes.data(), bytes.size());
        ::GlobalUnlock(block);
    }
    return block;
}

// What the owner of the clipboard delivers when it is asked.

Files promised;

void deliver(unsigned format) {
    const auto file = promised.find(format);
    if (file != promised.end() && file->second != "-") {
        ::SetClipboardData(format, block_of(file->second));
    }
}

LRESULT CALLBACK own_messages(HWND window, UINT message, WPARAM first, LPARAM second) {
    switch (message) {
        case WM_RENDERFORMAT:
            deliver(static_cast<unsigned>(first));
            return 0;
        case WM_RENDERALLFORMATS: {
            const Clipboard clipboard(window);
            for (const auto& entry : promised) {
                deliver(entry.first);
            }
            return 0;
        }
        default:
            return ::DefWindowProcA(window, message, first, second);
    }
}

HWND make_window() {
    WNDCLASSA kind{};
    kind.lpfnWndProc = &own_messages;
    kind.hInstance = ::GetModuleHandleA(nullptr);
    kind.lpszClassName = "lvx_clipboard_peer";
    ::RegisterClassA(&kind);
    return ::CreateWindowExA(0, kind.lpszClassName, "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                             kind.hInstance, nullptr);
}

void handle_messages_until(HANDLE event) {
    while (::MsgWaitForMultipleObjects(1, &event, FALSE, long_time, QS_ALLINPUT) == WAIT_OBJECT_0 + 1) {
        MSG message{};
        while (::PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
            ::DispatchMessageA(&message);
        }
    }
}

HANDLE event_of(const char* name) {
    return ::OpenEventA(EVENT_ALL_ACCESS, FALSE, name);
}

// The verbs

int put(HWND window, const Files& files) {
    const Clipboard clipboard(window);
    ::EmptyClipboard();
    for (const auto& [format, file] : files) {
        if (::SetClipboardData(format, block_of(file)) == nullptr) {
            return 2;
        }
    }
    return 0;
}

int put_bitmap(HWND window) {
    const HDC screen = ::GetDC(nullptr);
    const HDC dc = ::CreateCompatibleDC(screen);
    const HBITMAP bitmap = ::CreateCompatibleBitmap(screen, 2, 2);
    const HGDIOBJ former = ::SelectObject(dc, bitmap);
    ::SetPixel(dc, 0, 0, RGB(255, 0, 0));
    ::SetPixel(dc, 1, 0, RGB(0, 255, 0));
    ::SetPixel(dc, 0, 1, RGB(0, 0, 255));
    ::SetPixel(dc, 1, 1, RGB(255, 255, 255));
    ::SelectObject(dc, former);
    ::DeleteDC(dc);
    ::ReleaseDC(nullptr, screen);
    const Clipboard clipboard(window);
    ::EmptyClipboard();
    return ::SetClipboardData(CF_BITMAP, bitmap) != nullptr ? 0 : 2;
}

int dump(unsigned format, const char* file) {
    const Clipboard clipboard(nullptr);
    const HANDLE block = ::GetClipboardData(format);
    if (block == nullptr) {
        return 1;
    }
    std::ofstream out(file, std::ios::binary);
    out.write(static_cast<const char*>(::GlobalLock(block)),
              static_cast<std::streamsize>(::GlobalSize(block)));
    ::GlobalUnlock(block);
    return 0;
}

char letter(COLORREF colour) {
    switch (colour) {
        case RGB(255, 0, 0):
            return 'R';
        case RGB(0, 255, 0):
            return 'G';
        case RGB(0, 0, 255):
            return 'B';
        case RGB(255, 255, 255):
            return 'W';
        default:
            return '?';
    }
}

int dump_bitmap(const char* file) {
    const Clipboard clipboard(nullptr);
    const HANDLE bitmap = ::GetClipboardData(CF_BITMAP);
    BITMAP shape{};
    if (bitmap == nullptr || ::GetObjectA(bitmap, sizeof shape, &shape) == 0) {
        return 1;
    }
    const HDC dc = ::CreateCompatibleDC(nullptr);
    ::SelectObject(dc, bitmap);
    std::ofstream out(file, std::ios::binary);
    for (int y = 0; y < shape.bmHeight; ++y) {
        for (int x = 0; x < shape.bmWidth; ++x) {
            out << letter(::GetPixel(dc, x, y));
        }
        out << '\n';
    }
    ::DeleteDC(dc);
    return 0;
}

int hold(HANDLE ready, HANDLE go) {
    const Clipboard clipboard(nullptr);
    ::SetEvent(ready);
    ::WaitForSingleObject(go, long_time);
    return 0;
}

int promise(HWND window, HANDLE ready, HANDLE go, const Files& files) {
    promised = files;
    {
        const Clipboard clipboard(window);
        ::EmptyClipboard();
        for (const auto& entry : promised) {
            ::SetClipboardData(entry.first, nullptr);
        }
    }
    ::SetEvent(ready);
    handle_messages_until(go);
    // The owner of the clipboard is asked for all that it has promised.
    ::DestroyWindow(window);
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    const std::string verb = argc > 1 ? argv[1] : "";
    if (verb == "put") {
        return put(make_window(), files_of(argc - 2, argv + 2));
    }
    if (verb == "put-bitmap") {
        return put_bitmap(make_window());
    }
    if (verb == "dump" && argc == 4) {
        return dump(format_of(argv[2]), argv[3]);
    }
    if (verb == "dump-bitmap" && argc == 3) {
        return dump_bitmap(argv[2]);
    }
    if (verb == "hold" && argc == 4) {
        return hold(event_of(argv[2]), event_of(argv[3]));
    }
    if (verb == "promise" && argc >= 4) {
        return promise(make_window(), event_of(argv[2]), event_of(argv[3]), files_of(argc - 4, argv + 4));
    }
    return 2;
}
