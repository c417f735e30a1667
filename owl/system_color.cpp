#include "owl/color.h"

#include <windows.h>

namespace owl {

TColor TColor::FromSystem(int index) {
    return TColor(::GetSysColor(index));
}

}  // namespace owl
