#include "lvx/controls/float_edit.h"

#include "lvx/controls/key_filter.h"
#include "lvx/controls/typed_number.h"
#include "lvx/text/strings.h"

DEFINE_RESPONSE_TABLE1(LVXFloatEdit, LVXEdit)
    EV_WM_CHAR,
END_RESPONSE_TABLE;

LVXFloatEdit::LVXFloatEdit(owl::TWindow* parent, int id, unsigned textLimit, owl::TModule* module)
    : LVXEdit(parent, id, textLimit, module) {}

LVXFloatEdit::LVXFloatEdit(owl::TWindow* parent, int id, const char* text, int x, int y, int w, int h,
                           unsigned textLimit, bool multiline, owl::TModule* module)
    : LVXEdit(parent, id, text, x, y, w, h, textLimit, multiline, module) {}

LVXFloatEdit::LVXFloatEdit(owl::TWindow* parent, int id, const std::string& text, int x, int y, int w, int h,
                           unsigned textLimit, bool multiline, owl::TModule* module)
    : LVXEdit(parent, id, text, x, y, w, h, textLimit, multiline, module) {}

LVXFloatEdit::~LVXFloatEdit() = default;

void LVXFloatEdit::SetValue(double value, int precision) {
    const std::string text = lvx::to_string(value, precision);
    if (text == GetText())
        return;
    SetText(text.c_str());
    SetSelection(0, 0);
}

bool LVXFloatEdit::GetValue(double& value) const {
    const std::string text = GetText();
    if (!lvx::is_float(text))
        return false;
    value = lvx::controls::leading_number(text);
    return true;
}

double LVXFloatEdit::GetValue() const {
    return lvx::controls::leading_number(GetText());
}

void LVXFloatEdit::EvChar(UINT key, UINT repeat, UINT flags) {
    if (lvx::controls::IsPassed(lvx::judge_float_key(lvx::controls::ShownText(*this), key)))
        LVXEdit::EvChar(key, repeat, flags);
}
