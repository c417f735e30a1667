// lvx/controls/float_edit.h
//
// A field for a real number, such as "-1.5e-3", which refuses each key that leads to none: it beeps and stays
// as it is. What passes is told by lvx::judge_float_key. The point is a point, whatever the user's country
// has.
//
//     auto* const width = new LVXFloatEdit(this, IDC_WIDTH);
//     width->SetValue(2.5, 3);
//     double value = 0;
//     if (!width->GetValue(value))
//         …                        // tell the user: the field is empty, half typed or was pasted into
//
// Used as an LVXEdit. Does not: keep to a range, test what is pasted or set; GetValue(double&) does that.
// Windows only.
#pragma once

#include "lvx/controls/edit.h"

class LVX_EXPORT LVXFloatEdit : public LVXEdit {
public:
    /// As those of LVXEdit.
    LVXFloatEdit(owl::TWindow* parent, int id, unsigned textLimit = 0, owl::TModule* module = nullptr);
    LVXFloatEdit(owl::TWindow* parent, int id, const char* text, int x, int y, int w, int h,
                 unsigned textLimit = 0, bool multiline = false, owl::TModule* module = nullptr);
    LVXFloatEdit(owl::TWindow* parent, int id, const std::string& text, int x, int y, int w, int h,
                 unsigned textLimit = 0, bool multiline = false, owl::TModule* module = nullptr);
    ~LVXFloatEdit() override;

    /// Shows the value as lvx::to_string(value, precision) writes it, with the caret in front. A field that
    /// shows this text already stays as it is, its selection too.
    void SetValue(double value, int precision);
    /// Puts the number into `value` if the text is one, by lvx::is_float. False, with `value` as it was, if
    /// not. A number that no double holds is infinite or 0.
    bool GetValue(double& value) const;
    /// The number that the text begins with; 0 if it begins with none.
    double GetValue() const;

    void EvChar(UINT key, UINT repeat, UINT flags);

    DECLARE_RESPONSE_TABLE(LVXFloatEdit);
};
