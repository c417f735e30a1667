#include "owl/button.h"

#include <cstdint>
#include <cstring>

namespace owl {

TButton::TButton(TWindow* parent, int id, const char* text, int x, int y, int w, int h, bool isDefault,
                 TModule* module)
    : TControl(parent, id, text, x, y, w, h, module) {
    Attr.Style |= isDefault ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
}

TButton::TButton(TWindow* parent, int resourceId, TModule* module) : TControl(parent, resourceId, module) {}

TButton::~TButton() = default;

const char* TButton::GetClassName() {
    return "BUTTON";
}

unsigned TButton::Transfer(void* buffer, TTransferDirection direction) {
    static_cast<void>(buffer);
    static_cast<void>(direction);
    return 0;
}

TCheckBox::TCheckBox(TWindow* parent, int id, const char* text, int x, int y, int w, int h, TModule* module)
    : TButton(parent, id, text, x, y, w, h, false, module) {
    Attr.Style = WS_CHILD | WS_VISIBLE | WS_GROUP | WS_TABSTOP | BS_AUTOCHECKBOX;
}

TCheckBox::TCheckBox(TWindow* parent, int resourceId, TModule* module)
    : TButton(parent, resourceId, module) {}

TCheckBox::~TCheckBox() = default;

UINT TCheckBox::GetCheck() const {
    return static_cast<UINT>(SendMessage(BM_GETCHECK));
}

void TCheckBox::SetCheck(UINT check) {
    SendMessage(BM_SETCHECK, check);
}

// Through the states in the order in which a click goes.
void TCheckBox::Toggle() {
    const DWORD type = GetStyle() & BS_TYPEMASK;
    const UINT states = type == BS_3STATE || type == BS_AUTO3STATE ? 3 : 2;
    SetCheck((GetCheck() + 1) % states);
}

unsigned TCheckBox::Transfer(void* buffer, TTransferDirection direction) {
    std::uint16_t check = 0;
    if (direction == tdGetData) {
        check = static_cast<std::uint16_t>(GetCheck());
        std::memcpy(buffer, &check, sizeof(check));
    } else if (direction == tdSetData) {
        std::memcpy(&check, buffer, sizeof(check));
        SetCheck(check);
    }
    return sizeof(check);
}

TRadioButton::TRadioButton(TWindow* parent, int id, const char* text, int x, int y, int w, int h,
                           TModule* module)
    : TCheckBox(parent, id, text, x, y, w, h, module) {
    Attr.Style = WS_CHILD | WS_VISIBLE | BS_AUTORADIOBUTTON;
}

TRadioButton::TRadioButton(TWindow* parent, int resourceId, TModule* module)
    : TCheckBox(parent, resourceId, module) {}

TRadioButton::~TRadioButton() = default;

TGroupBox::TGroupBox(TWindow* parent, int id, const char* text, int x, int y, int w, int h, TModule* module)
    : TButton(parent, id, text, x, y, w, h, false, module) {
    Attr.Style = WS_CHILD | WS_VISIBLE | BS_GROUPBOX;
}

TGroupBox::TGroupBox(TWindow* parent, int resourceId, TModule* module)
    : TButton(parent, resourceId, module) {}

TGroupBox::~TGroupBox() = default;

}  // namespace owl
