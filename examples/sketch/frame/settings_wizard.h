// Asks step by step what the user likes to begin with.
#pragma once

#include "sketch/frame/preferences.h"

namespace owl {
class TWindow;
}

namespace sketch {

/// Begins with `preferences`. False, and nothing changed, unless the user went through with it.
bool RunSettingsWizard(owl::TWindow* parent, Preferences& preferences);

}  // namespace sketch
