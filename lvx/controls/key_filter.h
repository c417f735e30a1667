// lvx/controls/key_filter.h
//
// A field's side of the key filters: what it shows, and the beep. Private to the library.
#pragma once

#include "lvx/controls/edit_filter.h"
#include "owl/edit.h"

namespace lvx::controls {

/// What a field shows when a key comes, as far as the filters look.
class ShownText {
public:
    explicit ShownText(const owl::TEdit& field) {
        field.GetText(m_text, sizeof m_text);
        field.GetSelection(m_start, m_end);
    }

    operator FieldText() const { return {m_text, m_start, m_end}; }

private:
    char m_text[filtered_characters + 1] = "";
    int m_start = 0;
    int m_end = 0;
};

/// Whether the field gets the key. Beeps if that is what became of it.
bool IsPassed(KeyVerdict verdict);

}  // namespace lvx::controls
