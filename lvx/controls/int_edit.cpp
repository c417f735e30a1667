#include "lvx/controls/int_edit.h"

#include "lvx/controls/key_filter.h"
#include "lvx/controls/typed_number.h"

DEFINE_RESPONSE_TABLE1(LVXIntEdit, LVXEdit)
    EV_WM_CHAR,
END_RESPONSE_TABLE;

LVXIntEdit::LVXIntEdit(owl::TWindow* parent, int id, long min, long max, owl::TModule* module)
    : LVXEdit(parent, id, 0, module), Min(min), Max(max) {}

LVXIntEdit::LVXIntEdit(owl::TWindow* parent, int id, int x, int y, int w, int h, long min, long max,
                       owl::TModule* module)
    : LVXEdit(parent, id, "", x, y, w, h, 0, false, module), Min(min), Max(max) {}

LVXIntEdit::~LVXIntEdit() = default;

void LVXIntEdit::SetValue(long value) {
    const std::string text = std::to_string(value);
    if (text != GetText())
        SetText(text.c_str());
}

bool LVXIntEdit::GetValue(long& value) const {
    return lvx::int_in_range(GetText(), Min, Max, value);
}

long LVXIntEdit::GetValue() const {
    return lvx::controls::leading_whole_number(GetText()).value;
}

void LVXIntEdit::EvChar(UINT key, UINT repeat, UINT flags) {
    if (lvx::controls::IsPassed(lvx::judge_int_key(lvx::controls::ShownText(*this), key, Min, Max)))
        LVXEdit::EvChar(key, repeat, flags);
}
