#include "sketch/frame/dialog_values.h"

#include <cmath>

namespace sketch {
namespace {

bool Refuse(owl::TDialog& dialog, const LVXEdit& field, const std::string& kind, double least, double most) {
    const std::string text = "Please enter " + kind + " from " + std::to_string(std::lround(least)) + " to " +
                             std::to_string(std::lround(most)) + ".";
    RefuseField(dialog, field.Attr.Id, text);
    return false;
}

}  // namespace

void RefuseField(owl::TDialog& dialog, int id, const std::string& text) {
    // A page has no caption of its own.
    char caption[80] = "";
    ::GetWindowTextA(::GetAncestor(dialog.GetHandle(), GA_ROOT), caption, sizeof caption);
    dialog.MessageBox(text.c_str(), caption, MB_OK | MB_ICONEXCLAMATION);
    const HWND field = dialog.GetDlgItem(id);
    dialog.SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(field), TRUE);
    ::SendMessageA(field, EM_SETSEL, 0, -1);
}

bool ReadField(owl::TDialog& dialog, const LVXFloatEdit& field, double least, double most, double& number) {
    return (field.GetValue(number) && number >= least && number <= most) ||
           Refuse(dialog, field, "a number", least, most);
}

bool ReadField(owl::TDialog& dialog, const LVXIntEdit& field, int least, int most, int& number) {
    long value = 0;
    if (!field.GetValue(value)) {
        return Refuse(dialog, field, "a whole number", least, most);
    }
    number = static_cast<int>(value);
    return true;
}

}  // namespace sketch
