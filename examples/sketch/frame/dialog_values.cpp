#include "sketch/frame/dialog_values.h"

#include <cmath>
#include <cstdlib>

#include "lvx/text/strings.h"

namespace sketch {
namespace {

bool IsWithin(double number, double least, double most) {
    return number >= least && number <= most;
}

bool Refuse(owl::TDialog& dialog, int id, const std::string& kind, double least, double most) {
    const std::string text = "Please enter " + kind + " from " + std::to_string(std::lround(least)) + " to " +
                             std::to_string(std::lround(most)) + ".";
    RefuseField(dialog, id, text);
    return false;
}

}  // namespace

void RefuseField(owl::TDialog& dialog, int id, const std::string& text) {
    dialog.MessageBox(text.c_str(), dialog.GetWindowText().c_str(), MB_OK | MB_ICONEXCLAMATION);
    const HWND field = dialog.GetDlgItem(id);
    dialog.SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(field), TRUE);
    ::SendMessageA(field, EM_SETSEL, 0, -1);
}

bool ReadField(owl::TDialog& dialog, int id, double least, double most, double& number) {
    const std::string text = lvx::trim(dialog.GetDlgItemText(id));
    number = std::strtod(text.c_str(), nullptr);
    return (lvx::is_float(text) && IsWithin(number, least, most)) ||
           Refuse(dialog, id, "a number", least, most);
}

bool ReadField(owl::TDialog& dialog, int id, int least, int most, int& number) {
    const std::string text = lvx::trim(dialog.GetDlgItemText(id));
    const double value = std::strtod(text.c_str(), nullptr);
    if (!lvx::is_float(text) || !IsWithin(value, least, most) || value != std::floor(value)) {
        return Refuse(dialog, id, "a whole number", least, most);
    }
    number = static_cast<int>(value);
    return true;
}

}  // namespace sketch
