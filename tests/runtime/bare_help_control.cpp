// A help control that lacks the function for help.
#include "help_control.h"

extern "C" __declspec(dllexport) const HelpCall* LastHelpCall() {
    static HelpCall none{};
    return &none;
}
