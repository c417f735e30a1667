// owl/child_walk.h
//
// Walks over the children of a window during which anything may happen: what a child is asked may delete it,
// its neighbours or the parent. Private to the framework.
#pragma once

#include <algorithm>
#include <vector>

#include "owl/window.h"
#include "owl/window_table.h"

namespace owl {

/// Calls `body` for each child object of now, in order, until it is true; whether it was. Children that go
/// meanwhile are passed over. If the parent's window goes, and perhaps its object with it, the walk is over.
template <class Body>
bool AnyChild(const TWindow& parent, const Body& body) {
    const HWND handle = parent.GetHandle();
    const std::vector<TWindow*> children = parent.GetChildren();
    for (TWindow* child : children) {
        if (handle != nullptr && FindWindowObject(handle) != &parent)
            return false;
        const std::vector<TWindow*>& present = parent.GetChildren();
        if (std::find(present.begin(), present.end(), child) != present.end() && body(*child))
            return true;
    }
    return false;
}

/// Likewise for all of them.
template <class Body>
void EachChild(const TWindow& parent, const Body& body) {
    AnyChild(parent, [&body](TWindow& child) {
        body(child);
        return false;
    });
}

}  // namespace owl
