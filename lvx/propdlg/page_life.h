// lvx/propdlg/page_life.h
//
// When the window of a page comes and goes, by the style of the dialog. Values. Private to the library.
#pragma once

#include "lvx/propdlg/tab_style.h"

namespace lvx::propdlg {

/// Whether a page gets its window when its tab is selected, and not together with the strip.
constexpr bool is_made_on_demand(Tab::Style style) {
    return Tab::Has(style, Tab::CreateOnDemand) || Tab::Has(style, Tab::CreateOnDemandAndKeepIt);
}

/// What becomes of a page whose tab is left.
struct Leaving {
    bool saves = false;
    /// Otherwise its window is hidden.
    bool destroys = false;

    constexpr bool operator==(const Leaving&) const = default;
};

/// A window that goes takes along what was typed: such a page always saves before.
constexpr Leaving leaving_under(Tab::Style style) {
    const bool destroys = Tab::Has(style, Tab::CreateOnDemand);
    return {destroys || Tab::Has(style, Tab::SaveOnClosePage), destroys};
}

}  // namespace lvx::propdlg
