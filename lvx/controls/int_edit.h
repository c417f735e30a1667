// lvx/controls/int_edit.h
//
// A field for a whole number within a range, which refuses each key that leads to none: it beeps and stays as
// it is. What passes is told by lvx::judge_int_key.
//
//     auto* const copies = new LVXIntEdit(this, IDC_COPIES, 1, 99, nullptr);
//     copies->SetValue(1);
//     long value = 0;
//     if (!copies->GetValue(value))
//         …                        // tell the user: from 1 to 99
//
// Used as an LVXEdit. Does not: hold the range as a whole while a number is typed, for it may be half typed,
// or test what is pasted or set; GetValue(long&) does that. Windows only.
#pragma once

#include "lvx/controls/edit.h"

class LVX_EXPORT LVXIntEdit : public LVXEdit {
public:
    /// The field `id` of a dialog's resource, for numbers from `min` to `max`, both included. In a range
    /// whose ends stand the wrong way round there are none.
    LVXIntEdit(owl::TWindow* parent, int id, long min, long max, owl::TModule* module = nullptr);
    /// Made in code, of one line, empty.
    LVXIntEdit(owl::TWindow* parent, int id, int x, int y, int w, int h, long min, long max,
               owl::TModule* module = nullptr);
    ~LVXIntEdit() override;

    /// Shows the value, be it within the range or not. A field that shows it already stays as it is, its
    /// selection too.
    void SetValue(long value);
    /// Puts the number into `value` if the text is one, by lvx::is_int, and lies within the range. False,
    /// with `value` as it was, if not.
    bool GetValue(long& value) const;
    /// The number that the text begins with, be it within the range or not; 0 if it begins with none, the
    /// nearest that there is for one that no long holds.
    long GetValue() const;

    void EvChar(UINT key, UINT repeat, UINT flags);

protected:
    long Min;
    long Max;

    DECLARE_RESPONSE_TABLE(LVXIntEdit);
};
