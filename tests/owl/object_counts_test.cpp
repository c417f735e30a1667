// Whether what the tests of leaks count with sees what leaks.
#include "object_counts.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "message_window.h"

namespace {

using owl_test::Added;
using owl_test::CountObjects;
using owl_test::ObjectCounts;

/// Makes an object and returns what ends it.
using Maker = std::function<std::function<void()>()>;

struct Kind {
    const char* name;
    Maker make;
};

template <class Handle>
Maker GdiMaker(Handle (*make)()) {
    return [make] {
        const Handle handle = make();
        return [handle] { ::DeleteObject(handle); };
    };
}

const std::vector<Kind>& Kinds() {
    static const LOGBRUSH red{BS_SOLID, RGB(255, 0, 0), 0};
    static const LOGPALETTE palette{0x300, 1, {{1, 2, 3, 0}}};
    static const BYTE bits[32] = {};
    static const std::vector<Kind> kinds = {
        {"pen", GdiMaker(+[] { return ::CreatePen(PS_SOLID, 3, 0); })},
        {"pen of lines", GdiMaker(+[] { return ::ExtCreatePen(PS_GEOMETRIC, 3, &red, 0, nullptr); })},
        {"brush", GdiMaker(+[] { return ::CreateBrushIndirect(&red); })},
        {"font", GdiMaker(+[] { return ::CreateFontA(10, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, "Arial"); })},
        {"palette", GdiMaker(+[] { return ::CreatePalette(&palette); })},
        {"bitmap", GdiMaker(+[] { return ::CreateBitmap(8, 8, 1, 1, nullptr); })},
        {"region", GdiMaker(+[] { return ::CreateRectRgn(0, 0, 9, 9); })},
        {"context",
         [] {
             const HDC dc = ::CreateDCA("DISPLAY", nullptr, nullptr, nullptr);
             return [dc] { ::DeleteDC(dc); };
         }},
        {"memory context",
         [] {
             const HDC dc = ::CreateCompatibleDC(nullptr);
             return [dc] { ::DeleteDC(dc); };
         }},
        {"metafile context",
         [] {
             const HDC dc = ::CreateMetaFileA(nullptr);
             return [dc] { ::DeleteMetaFile(::CloseMetaFile(dc)); };
         }},
        {"metafile",
         [] {
             const HMETAFILE file = ::CloseMetaFile(::CreateMetaFileA(nullptr));
             return [file] { ::DeleteMetaFile(file); };
         }},
        {"enhanced metafile",
         [] {
             const HENHMETAFILE file =
                 ::CloseEnhMetaFile(::CreateEnhMetaFileA(nullptr, nullptr, nullptr, nullptr));
             return [file] { ::DeleteEnhMetaFile(file); };
         }},
        {"window",
         [] {
             const HWND window =
                 ::CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
             return [window] { ::DestroyWindow(window); };
         }},
        {"window",
         [] {
             const HWND window =
                 ::CreateWindowExA(0, "STATIC", "", 0, 0, 0, 9, 9, HWND_MESSAGE, nullptr, nullptr, nullptr);
             return [window] { ::DestroyWindow(window); };
         }},
        {"menu",
         [] {
             const HMENU menu = ::CreateMenu();
             return [menu] { ::DestroyMenu(menu); };
         }},
        {"menu",
         [] {
             const HMENU menu = ::CreatePopupMenu();
             return [menu] { ::DestroyMenu(menu); };
         }},
        {"icon or cursor",
         [] {
             const HICON icon = ::CreateIcon(nullptr, 16, 16, 1, 1, bits, bits);
             return [icon] { ::DestroyIcon(icon); };
         }},
        {"icon or cursor",
         [] {
             const HCURSOR cursor = ::CreateCursor(nullptr, 0, 0, 16, 16, bits, bits);
             return [cursor] { ::DestroyCursor(cursor); };
         }},
        {"accelerator table",
         [] {
             ACCEL key{FVIRTKEY, 'K', 7};
             const HACCEL table = ::CreateAcceleratorTableA(&key, 1);
             return [table] { ::DestroyAcceleratorTable(table); };
         }},
    };
    return kinds;
}

int AddedOf(const ObjectCounts& added, const char* kind) {
    const auto found = added.find(kind);
    return found == added.end() ? 0 : found->second;
}

TEST(ObjectCounts, see_each_kind_of_object_come_and_go) {
    // The first window of a thread has others in its train.
    const owl_test::MessageWindow first;
    // What the system keeps for the next of a kind stays.
    for (const Kind& kind : Kinds())
        kind.make()();
    const ObjectCounts before = CountObjects();
    for (const Kind& kind : Kinds()) {
        const auto end = kind.make();
        EXPECT_EQ(1, AddedOf(Added(before, CountObjects()), kind.name)) << kind.name;
        end();
    }
    EXPECT_EQ(ObjectCounts{}, Added(before, CountObjects()));
}

TEST(ObjectCounts, tell_what_was_added_and_not_what_is_gone) {
    EXPECT_EQ((ObjectCounts{{"font", 2}, {"pen", 1}}),
              Added({{"brush", 3}, {"pen", 4}}, {{"brush", 2}, {"font", 2}, {"pen", 5}}));
    EXPECT_EQ(ObjectCounts{}, Added({{"pen", 1}}, {{"pen", 1}}));
}

}  // namespace
