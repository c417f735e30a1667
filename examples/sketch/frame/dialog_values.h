// Numbers in the fields of dialogs. The fields refuse keys that lead to no number; what is half typed, or was
// pasted, is told when the dialog closes.
#pragma once

#include "lvx/controls/float_edit.h"
#include "lvx/controls/int_edit.h"
#include "owl/dialog.h"

namespace sketch {

/// Reads `field`, which is one of `dialog`, into `number`. If there is no number from `least` to `most` in
/// it, says so in a box, goes to the field, and answers false.
bool ReadField(owl::TDialog& dialog, const LVXFloatEdit& field, double least, double most, double& number);

/// Likewise a whole number.
bool ReadField(owl::TDialog& dialog, const LVXIntEdit& field, int least, int most, int& number);

/// Shows `text` in a box and goes to the field, all of it selected.
void RefuseField(owl::TDialog& dialog, int id, const std::string& text);

}  // namespace sketch
