#include "lvx/propdlg/tab_key.h"

namespace lvx::propdlg {

namespace {

TabKeyMove move_from_dialog(const TabKeyPlace& place) {
    if (!place.hasStrip)
        return TabKeyMove::Nothing;
    if (place.onStrip && place.forward)
        return TabKeyMove::IntoPageFirst;
    // Backward from the strip the other controls come first, unless there are none.
    if (place.onStrip && !place.nextIsFocus)
        return TabKeyMove::Nothing;
    return place.nextIsStrip && !place.forward ? TabKeyMove::IntoPageLast : TabKeyMove::Nothing;
}

TabKeyMove move_from_page(const TabKeyPlace& place) {
    if (!place.onEdge)
        return TabKeyMove::Nothing;
    return place.forward ? TabKeyMove::BehindStrip : TabKeyMove::ToStrip;
}

}  // namespace

TabKeyMove move_by_tab_key(const TabKeyPlace& place) {
    switch (place.owner) {
        case KeyOwner::Dialog:
            return move_from_dialog(place);
        case KeyOwner::Page:
            return move_from_page(place);
        case KeyOwner::Other:
            break;
    }
    return TabKeyMove::Nothing;
}

}  // namespace lvx::propdlg
