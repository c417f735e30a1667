// Numbers in the fields of dialogs.
#pragma once

#include "owl/dialog.h"

namespace sketch {

/// Reads the field `id` into `number`. If there is no number from `least` to `most` in it, says so in a box,
/// goes to the field, and answers false.
bool ReadField(owl::TDialog& dialog, int id, double least, double most, double& number);

/// Likewise a whole number.
bool ReadField(owl::TDialog& dialog, int id, int least, int most, int& number);

/// Shows `text` in a box and goes to the field, all of it selected.
void RefuseField(owl::TDialog& dialog, int id, const std::string& text);

}  // namespace sketch
