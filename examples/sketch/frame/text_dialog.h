// Asks for the words of a text and their font.
#pragma once

#include "lvx/controls/centred_dialog.h"
#include "lvx/drawing/my_font.h"

namespace sketch {

class TextDialog : public LVXCentredDialog {
public:
    /// Begins with `words`, their lines ended with "\n", and `font`.
    TextDialog(owl::TWindow* parent, std::string words, const myFont& font);

    // What was chosen: some words, never none.
    const std::string& Words() const { return m_words; }
    const myFont& Font() const { return m_font; }

    void SetupWindow() override;
    bool CanClose() override;

private:
    void BnFont();
    void ShowFont();

    std::string m_words;
    myFont m_font;

    DECLARE_RESPONSE_TABLE(TextDialog);
};

}  // namespace sketch
