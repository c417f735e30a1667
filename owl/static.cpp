#include "owl/static.h"

#include <algorithm>
#include <string>

namespace owl {

TStatic::TStatic(TWindow* parent, int id, const char* title, int x, int y, int w, int h, unsigned textLimit,
                 TModule* module)
    : TControl(parent, id, title, x, y, w, h, module), m_textLimit(textLimit) {
    Attr.Style = (Attr.Style & ~static_cast<DWORD>(WS_TABSTOP)) | SS_LEFT;
}

TStatic::TStatic(TWindow* parent, int resourceId, unsigned textLimit, TModule* module)
    : TControl(parent, resourceId, module), m_textLimit(textLimit) {}

TStatic::~TStatic() = default;

const char* TStatic::GetClassName() {
    return "STATIC";
}

void TStatic::SetText(const char* text) {
    SetWindowText(text != nullptr ? text : "");
}

void TStatic::Clear() {
    SetText("");
}

unsigned TStatic::Transfer(void* buffer, TTransferDirection direction) {
    if (m_textLimit == 0)
        return 0;
    if (direction == tdGetData) {
        GetText(static_cast<char*>(buffer), static_cast<int>(m_textLimit));
    } else if (direction == tdSetData) {
        const auto* const text = static_cast<const char*>(buffer);
        SetWindowText(std::string(text, std::find(text, text + m_textLimit - 1, '\0')));
    }
    return m_textLimit;
}

}  // namespace owl
