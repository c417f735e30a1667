#include "lvx/controls/int_range_edit.h"

#include <algorithm>
#include <limits>
#include <string>

#include "lvx/controls/key_filter.h"
#include "lvx/controls/typed_number.h"

DEFINE_RESPONSE_TABLE1(IntRangeEdit, owl::TEdit)
    EV_WM_CHAR, EV_MESSAGE(WM_MOUSEWHEEL, EvMouseWheel),
END_RESPONSE_TABLE;

IntRangeEdit::IntRangeEdit(owl::TWindow* parent, int id, int max, owl::TModule* module)
    : TEdit(parent, id, 0, module), Max(max) {}

IntRangeEdit::~IntRangeEdit() = default;

// A pasted text may be of any length; more than this is no number of a colour.
int IntRangeEdit::GetValue() const {
    using Limits = std::numeric_limits<int>;
    constexpr int readCharacters = 40;
    char text[readCharacters + 1] = "";
    GetText(text, sizeof text);
    const long value = lvx::controls::leading_whole_number(text).value;
    return static_cast<int>(std::clamp<long>(value, Limits::min(), Limits::max()));
}

void IntRangeEdit::SetValue(int value) {
    SetText(std::to_string(value).c_str());
    SetSelection(0, -1);
}

void IntRangeEdit::EvChar(UINT key, UINT repeat, UINT flags) {
    if (lvx::controls::IsPassed(lvx::judge_count_key(lvx::controls::ShownText(*this), key, Max)))
        TEdit::EvChar(key, repeat, flags);
}

LRESULT IntRangeEdit::EvMouseWheel(WPARAM wParam, LPARAM lParam) {
    return Parent->SendMessage(WM_MOUSEWHEEL, wParam, lParam);
}
