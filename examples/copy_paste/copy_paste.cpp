// Copies a spot of a drawing to the clipboard, as an object and as a text side by side, and pastes whichever
// of them lies there. Each call is a program of its own: what was copied outlives the one that did. Windows
// only.
//
// usage: copy_paste copy X Y NAME     puts the spot there
//        copy_paste paste             says what lies there: a spot, a text, or nothing
//        copy_paste dump              shows the bytes of the object that lies there
//
// Exits 0, 1 if there is nothing to paste or the clipboard is busy, 2 for a wrong call.
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <memory>
#include <string>

#include "lvx/exchange/clipboard.h"
#include "lvx/images/global_locker.h"
#include "lvx/store/object_factory.h"
#include "owl/clipboard.h"

class Spot : public Storable {
public:
    Spot() = default;
    Spot(int x, int y, std::string name) : m_x(x), m_y(y), m_name(std::move(name)) {}

    void PutTo(ObjectStore& store) const override { store << m_x << m_y << m_name; }
    void GetFrom(ObjectStore& store) override { store >> m_x >> m_y >> m_name; }

    std::string Text() const { return m_name + " at " + std::to_string(m_x) + ", " + std::to_string(m_y); }

private:
    int m_x = 0;
    int m_y = 0;
    std::string m_name;
};

namespace {

const ObjectFactoryInit factory;
const bool registered = (ObjectFactory::Register("Spot", ObjectFactory::CreateStorable<Spot>), true);

/// A window that nobody sees. Who puts something on the clipboard has one.
class HiddenWindow {
public:
    HiddenWindow()
        : m_window(
              ::CreateWindowExA(0, "STATIC", "", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr)) {}
    HiddenWindow(const HiddenWindow&) = delete;
    HiddenWindow& operator=(const HiddenWindow&) = delete;
    ~HiddenWindow() { ::DestroyWindow(m_window); }

    operator HWND() const { return m_window; }

private:
    HWND m_window;
};

/// Tries for a second: other programs have the clipboard open for a moment now and then.
template <class Action>
bool patiently(const Action& action) {
    for (int tries = 0; tries < 100; ++tries) {
        if (action()) {
            return true;
        }
        ::Sleep(10);
    }
    return false;
}

bool has(unsigned format) {
    return owl::TClipboard::IsClipboardFormatAvailable(format);
}

bool copy(LVXClipboard& clipboard, Spot& spot) {
    return patiently([&] { return clipboard.clear(); }) && patiently([&] { return clipboard.put(&spot); }) &&
           patiently([&] { return clipboard.put(spot.Text(), CF_TEXT); });
}

bool paste_object(LVXClipboard& clipboard) {
    Storable* object = nullptr;
    if (!patiently([&] { return clipboard.get(object, true); })) {
        return false;
    }
    const std::unique_ptr<Storable> owner(object);
    const auto* const spot = dynamic_cast<const Spot*>(object);
    std::cout << (spot != nullptr ? "the spot " + spot->Text() : "an object that is no spot") << '\n';
    return true;
}

bool paste_text(LVXClipboard& clipboard) {
    std::string text;
    if (!patiently([&] { return clipboard.get(text, CF_TEXT); })) {
        return false;
    }
    std::cout << "the text " << text << '\n';
    return true;
}

/// The best that there is: what a program can do most with comes first.
bool paste(LVXClipboard& clipboard) {
    return (has(LVXClipboard::CF_STORABLE) && paste_object(clipboard)) ||
           (has(CF_TEXT) && paste_text(clipboard));
}

/// Sixteen bytes a line, with their letters.
void print(const unsigned char* bytes, std::size_t size) {
    for (std::size_t line = 0; line < size; line += 16) {
        std::string letters;
        std::printf("%04zx ", line);
        for (std::size_t i = line; i < line + 16; ++i) {
            std::printf(i < size ? " %02x" : "   ", i < size ? bytes[i] : 0u);
            if (i < size) {
                letters += bytes[i] >= ' ' && bytes[i] < 0x7F ? static_cast<char>(bytes[i]) : '.';
            }
        }
        std::printf("  %s\n", letters.c_str());
    }
}

bool dump(HWND window) {
    const owl::TClipboard clipboard(window, false);
    const HANDLE block = clipboard.GetClipboardData(LVXClipboard::storableFormat());
    const LVXUtilities::GlobalLocker<const unsigned char> bytes(block);
    if (bytes.get() == nullptr) {
        return false;
    }
    print(bytes.get(), ::GlobalSize(block));
    return true;
}

int result(bool done) {
    if (!done) {
        std::cerr << "there is nothing to paste, or the clipboard is busy\n";
    }
    return done ? EXIT_SUCCESS : EXIT_FAILURE;
}

int run(int argc, char** argv) {
    const HiddenWindow window;
    LVXClipboard clipboard(static_cast<HWND>(window));
    const std::string verb = argc > 1 ? argv[1] : "";
    if (verb == "copy" && argc == 5) {
        Spot spot(std::atoi(argv[2]), std::atoi(argv[3]), argv[4]);
        return result(copy(clipboard, spot));
    }
    if (verb == "paste" && argc == 2) {
        return result(paste(clipboard));
    }
    if (verb == "dump" && argc == 2) {
        return result(patiently([&] { return dump(window); }));
    }
    std::cerr << "usage: copy_paste copy X Y NAME | paste | dump\n";
    return 2;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return run(argc, argv);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return EXIT_FAILURE;
    }
}
