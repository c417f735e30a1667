#include "lvx/controls/key_filter.h"

namespace lvx::controls {

bool IsPassed(KeyVerdict verdict) {
    // The plain beep, which is none of the sounds that a user gives to events.
    constexpr UINT plain_beep = static_cast<UINT>(-1);
    if (verdict == KeyVerdict::Beep)
        ::MessageBeep(plain_beep);
    return verdict == KeyVerdict::Pass;
}

}  // namespace lvx::controls
