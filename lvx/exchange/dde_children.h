// lvx/exchange/dde_children.h
//
// The walk of a master through its children. Private to the library.
#pragma once

#include <algorithm>
#include <vector>

#include "lvx/exchange/dde_handling.h"
#include "lvx/exchange/dde_server.h"

/// Calls `action` for each child that there is now. What is done for one may end others, which are passed
/// over, and the master.
template <class Action>
void LVXDdeServer::ForEachChild(const Handling& handling, const Action& action) {
    const std::vector<LVXDdeServer*> present = m_children;
    for (LVXDdeServer* const child : present) {
        if (handling.Gone()) {
            return;
        }
        if (std::find(m_children.begin(), m_children.end(), child) != m_children.end()) {
            action(*child);
        }
    }
}
