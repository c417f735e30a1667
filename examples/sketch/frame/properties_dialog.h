// The dialog with tabs for all that can be set of a figure, or of those to come.
#pragma once

#include "sketch/model/properties.h"

namespace owl {
class TWindow;
}

namespace sketch {

/// Shows `properties`; tabs that do not apply to them are disabled. False, and nothing changed, unless the
/// user agreed.
bool EditProperties(owl::TWindow* parent, Properties& properties);

}  // namespace sketch
