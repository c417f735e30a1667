#include "lvx/propdlg/shared_state.h"

#include <algorithm>

namespace lvx::propdlg {

SharedState& shared_state() {
    static SharedState state;
    return state;
}

void forget_strip(TPropertyTab* strip) {
    auto& strips = shared_state().PropertyTabs;
    const int place = strips.Find(strip);
    if (place != strips.NotFound)
        strips.Detach(place);
}

bool is_alive(const TPropertyTab* strip) {
    const auto& live = shared_state().LiveTabs;
    return std::find(live.begin(), live.end(), strip) != live.end();
}

}  // namespace lvx::propdlg
