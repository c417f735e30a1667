// lvx/controls/int_range_edit.h
//
// A field for a whole number from 0 to a largest one, which refuses the key that would pass it. Private to
// the library: hosts have LVXIntEdit.
#pragma once

#include "owl/edit.h"

class IntRangeEdit : public owl::TEdit {
public:
    /// The field `id` of a dialog's resource.
    IntRangeEdit(owl::TWindow* parent, int id, int max, owl::TModule* module);
    ~IntRangeEdit() override;

    /// The number that the text begins with; 0 if there is none.
    int GetValue() const;
    /// Shows the number, all of it selected.
    void SetValue(int value);

    void EvChar(UINT key, UINT repeat, UINT flags);
    /// Leaves the wheel to the parent: one line has nothing to scroll, but some systems keep it all the same.
    LRESULT EvMouseWheel(WPARAM wParam, LPARAM lParam);

protected:
    int Max;

    DECLARE_RESPONSE_TABLE(IntRangeEdit);
};
