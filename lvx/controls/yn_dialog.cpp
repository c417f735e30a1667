#include "lvx/controls/yn_dialog.h"

#include <array>
#include <cstdarg>
#include <cstdio>
#include <string>

#include "owl/application.h"
#include "owl/window.h"

namespace {

UINT default_button(yesNoCancel answer) {
    switch (answer) {
        case yesNoCancel::cancel:
            return MB_DEFBUTTON3;
        case yesNoCancel::no:
            return MB_DEFBUTTON2;
        default:
            return MB_DEFBUTTON1;
    }
}

UINT buttons(bool allowCancel, yesNoCancel defaultAnswer) {
    const bool hasCancel = allowCancel || defaultAnswer == yesNoCancel::cancel;
    return (hasCancel ? MB_YESNOCANCEL : MB_YESNO) | default_button(defaultAnswer);
}

yesNoCancel answer_of(int button) {
    switch (button) {
        case IDYES:
            return yesNoCancel::yes;
        case IDNO:
            return yesNoCancel::no;
        default:
            return yesNoCancel::cancel;
    }
}

std::string caption() {
    const owl::TApplication* const application = owl::GetApplicationObject();
    return application != nullptr ? application->GetName() : owl::TModule().GetName();
}

int show(owl::TWindow* parent, const char* text, UINT type) {
    const std::string title = caption();
    return parent != nullptr ? parent->MessageBox(text, title.c_str(), type)
                             : ::MessageBoxExA(nullptr, text, title.c_str(), type, 0);
}

}  // namespace

yesNoCancel ynDialog::dialog(owl::TWindow* parent, bool allowCancel, yesNoCancel defaultAnswer,
                             const char* format, ...) {
    // Terminated whatever becomes of a format that cannot be carried out.
    std::array<char, 400> text{};
    std::va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(text.data(), text.size(), format, arguments);
    va_end(arguments);
    return answer_of(show(parent, text.data(), buttons(allowCancel, defaultAnswer) | MB_ICONEXCLAMATION));
}
