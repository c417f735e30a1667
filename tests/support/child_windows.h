// The windows within a window of any program, and fields that a user fills in anew.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

#include "support/user.h"

namespace user {

namespace detail {

struct ChildSearch {
    const std::function<bool(HWND)>& fits;
    HWND found;
};

inline BOOL CALLBACK LookAtChild(HWND child, LPARAM data) {
    auto& search = *reinterpret_cast<ChildSearch*>(data);
    if (::IsWindowVisible(child) && search.fits(child))
        search.found = child;
    return search.found == nullptr;
}

}  // namespace detail

/// The first window within `parent`, at any depth, that is shown and fits. Null if there is none.
inline HWND FindShownChild(HWND parent, const std::function<bool(HWND)>& fits) {
    detail::ChildSearch search{fits, nullptr};
    ::EnumChildWindows(parent, &detail::LookAtChild, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

/// Clicks into a field and types in place of what is there.
inline void TypeAnew(HWND field, const std::string& text) {
    Click(field);
    WaitUntil([&] { return FocusOf(field) == field; }, 2000);
    Press({VK_HOME});
    Press({VK_SHIFT, VK_END});
    Press({VK_DELETE});
    Type(text);
}

}  // namespace user
