// What shows that a figure is selected: a dotted line around it and the handles by which it is pulled.
#pragma once

#include "sketch/model/figure.h"

namespace sketch {

void DrawMarks(LVX::Port& port, const Figure& figure);

/// The handle at `point`, the topmost; -1 if there is none.
int HandleAt(const Figure& figure, const owl::TPoint& point);

}  // namespace sketch
