// Windows that stand where they are told to.
#pragma once

#include "owl/frame_window.h"
#include "tests/owl/desk.h"

namespace settled {

/// Shows a frame at `place`, and waits until it keeps it: the window manager has its say when a window shows,
/// a moment after the system.
inline bool Show(owl::TFrameWindow& frame, const owl::TRect& place) {
    const auto isThere = [&] { return frame.GetWindowRect() == place; };
    desk::Activate(frame);
    for (int tries = 0; tries < 10; ++tries) {
        frame.MoveWindow(place);
        if (desk::PumpUntil(isThere, 1000) && !desk::PumpUntil([&] { return !isThere(); }, 150))
            return true;
    }
    return false;
}

}  // namespace settled
