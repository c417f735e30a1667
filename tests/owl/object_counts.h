// How many objects of the system this process has: windows, menus, pens and the like, each kind by itself.
//
// Windows tells its sums. Wine answers 0 instead, but there the numbers of objects are few enough to be asked
// for one by one: the lower half of a handle is taken for the handle. Windows are listed on both.
#pragma once

#include <windows.h>

#include <iterator>
#include <map>
#include <string>

namespace owl_test {

/// By the name of the kind. A kind without objects is not in it.
using ObjectCounts = std::map<std::string, int>;

namespace detail {

template <class Handle>
Handle HandleOf(unsigned number) {
    return reinterpret_cast<Handle>(static_cast<ULONG_PTR>(number));
}

/// Null if there is no such object.
inline const char* GdiKind(unsigned number) {
    static constexpr const char* kinds[] = {nullptr,
                                            "pen",
                                            "brush",
                                            "context",
                                            "metafile context",
                                            "palette",
                                            "font",
                                            "bitmap",
                                            "region",
                                            "metafile",
                                            "memory context",
                                            "pen of lines",
                                            "enhanced metafile context",
                                            "enhanced metafile"};
    const DWORD type = ::GetObjectType(HandleOf<HGDIOBJ>(number));
    return type < std::size(kinds) ? kinds[type] : "another kind of GDI object";
}

inline bool IsIconOrCursor(unsigned number) {
    ICONINFO info{};
    if (!::GetIconInfo(HandleOf<HICON>(number), &info))
        return false;
    ::DeleteObject(info.hbmColor);
    ::DeleteObject(info.hbmMask);
    return true;
}

/// Null if there is no such object.
inline const char* UserKind(unsigned number) {
    if (::IsMenu(HandleOf<HMENU>(number)))
        return "menu";
    if (IsIconOrCursor(number))
        return "icon or cursor";
    if (::CopyAcceleratorTableA(HandleOf<HACCEL>(number), nullptr, 0) > 0)
        return "accelerator table";
    return nullptr;
}

constexpr unsigned numbers = 0x10000;

inline void CountGdiObjects(ObjectCounts& counts) {
    for (unsigned number = 1; number < numbers; ++number) {
        if (const char* const kind = GdiKind(number))
            ++counts[kind];
    }
}

// Each of them has two numbers, an even one and the odd one behind it.
inline void CountUserObjects(ObjectCounts& counts) {
    for (unsigned number = 2; number < numbers; number += 2) {
        if (const char* const kind = UserKind(number))
            ++counts[kind];
    }
}

inline BOOL CALLBACK CountWindow(HWND window, LPARAM counts) {
    DWORD process = 0;
    ::GetWindowThreadProcessId(window, &process);
    if (process == ::GetCurrentProcessId())
        ++(*reinterpret_cast<ObjectCounts*>(counts))["window"];
    return TRUE;
}

inline BOOL CALLBACK CountWithChildren(HWND window, LPARAM counts) {
    ::EnumChildWindows(window, &CountWindow, counts);
    return CountWindow(window, counts);
}

// These can be listed: asking for each number would ask the server.
inline void CountWindows(ObjectCounts& counts) {
    const auto parameter = reinterpret_cast<LPARAM>(&counts);
    ::EnumWindows(&CountWithChildren, parameter);
    HWND window = nullptr;
    while ((window = ::FindWindowExA(HWND_MESSAGE, window, nullptr, nullptr)) != nullptr)
        CountWithChildren(window, parameter);
}

inline void CountBySystem(ObjectCounts& counts) {
    const HANDLE process = ::GetCurrentProcess();
    if (const DWORD all = ::GetGuiResources(process, GR_GDIOBJECTS))
        counts["GDI object"] = static_cast<int>(all);
    if (const DWORD all = ::GetGuiResources(process, GR_USEROBJECTS))
        counts["USER object"] = static_cast<int>(all);
}

}  // namespace detail

inline ObjectCounts CountObjects() {
    ObjectCounts counts;
    detail::CountBySystem(counts);
    detail::CountGdiObjects(counts);
    detail::CountUserObjects(counts);
    detail::CountWindows(counts);
    return counts;
}

/// The kinds of which there are more in `after` than in `before`, and how many more.
inline ObjectCounts Added(const ObjectCounts& before, const ObjectCounts& after) {
    ObjectCounts added;
    for (const auto& [kind, count] : after) {
        const auto former = before.find(kind);
        const int more = former == before.end() ? count : count - former->second;
        if (more > 0)
            added[kind] = more;
    }
    return added;
}

}  // namespace owl_test
