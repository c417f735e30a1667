// owl/item_message.h
//
// The messages about items that lists and combo boxes have under different numbers. Private to the framework.
#pragma once

#include "owl/window.h"

namespace owl {

static_assert(LB_ERR == -1 && CB_ERR == -1);

/// -1 without a window.
inline int SendItemMessage(const TWindow& window, UINT msg, int index) {
    return window.IsWindow() ? static_cast<int>(window.SendMessage(msg, static_cast<WPARAM>(index))) : -1;
}

/// With a text; null is an empty one.
inline int SendItemText(const TWindow& window, UINT msg, int index, const char* text) {
    if (!window.IsWindow())
        return -1;
    const auto address = reinterpret_cast<LPARAM>(text != nullptr ? text : "");
    return static_cast<int>(window.SendMessage(msg, static_cast<WPARAM>(index), address));
}

/// Copies an item's text to where there is room for it.
inline int ReadItemText(const TWindow& window, UINT msg, int index, char* text) {
    text[0] = '\0';
    if (!window.IsWindow())
        return -1;
    return static_cast<int>(
        window.SendMessage(msg, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text)));
}

}  // namespace owl
