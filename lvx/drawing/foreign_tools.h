// lvx/drawing/foreign_tools.h
//
// What a debug build says when a port ends while tools of the host are still in use on it.
#pragma once

#include <string>

namespace lvx::drawing {

/// Names the tools that are foreign to the port; "" if none is.
inline std::string foreign_tools(bool pen, bool brush, bool font) {
    std::string names;
    const auto add = [&names](bool foreign, const char* name) {
        if (foreign) {
            names += (names.empty() ? "" : ", ") + std::string(name);
        }
    };
    add(pen, "pen");
    add(brush, "brush");
    add(font, "font");
    if (names.empty()) {
        return names;
    }
    return "LVX::Port: ends with a host's " + names +
           " still in use; changing or ending that tool later would reach for the dead port\n";
}

}  // namespace lvx::drawing
