// lvx/drawing/tool_life.h
//
// What pens, brushes and fonts have in common: the list of the ports that use a tool, and what becomes of
// those ports when the tool changes or goes.
#pragma once

#include <algorithm>
#include <utility>
#include <vector>

#include "lvx/drawing/port.h"
#include "owl/error.h"

namespace lvx::drawing {

using Ports = std::vector<LVX::Port*>;

/// How a port takes a tool out of its context, and how it selects one, null for its own default.
template <class Tool>
struct PortCalls {
    void (LVX::Port::*reset)();
    bool (LVX::Port::*use)(Tool*);
};

inline constexpr PortCalls<LVXPen> pen_calls{&LVX::Port::resetPen, &LVX::Port::usePen};
inline constexpr PortCalls<LVXBrush> brush_calls{&LVX::Port::resetBrush, &LVX::Port::useBrush};
inline constexpr PortCalls<LVXFont> font_calls{&LVX::Port::resetFont, &LVX::Port::useFont};

/// Appends `port` unless it is there or null; or takes it out.
inline void bind_port(Ports& ports, LVX::Port* port, bool add) {
    const auto place = std::find(ports.begin(), ports.end(), port);
    if (!add) {
        if (place != ports.end()) {
            ports.erase(place);
        }
    } else if (place == ports.end() && port != nullptr) {
        ports.push_back(port);
    }
}

/// Runs `change`, which replaces the system's object of `tool`, while no port has that selected. The ports
/// select the tool again behind it, also if it throws: then that is the object of before.
template <class Tool, class Change>
void change_tool(Tool* tool, const Ports& ports, const PortCalls<Tool>& calls, const Change& change) {
    const auto select_again = [&] {
        for (LVX::Port* const port : ports) {
            (port->*calls.use)(tool);
        }
    };
    for (LVX::Port* const port : ports) {
        (port->*calls.reset)();
    }
    try {
        change();
    } catch (...) {
        select_again();
        throw;
    }
    select_again();
}

/// Sends the ports of a tool that goes to their own default tools. One whose default tool the system refuses
/// is left with what its context had at first.
template <class Tool>
void leave_ports(Ports& ports, const PortCalls<Tool>& calls) {
    // They unbind themselves meanwhile.
    for (LVX::Port* const port : std::exchange(ports, {})) {
        try {
            (port->*calls.use)(nullptr);
        } catch (const owl::TXGdi&) {
            (port->*calls.reset)();
        }
    }
}

}  // namespace lvx::drawing
