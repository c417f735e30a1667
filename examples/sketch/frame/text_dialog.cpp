#include "sketch/frame/text_dialog.h"

#include <utility>

#include "lvx/text/strings.h"
#include "sketch/frame/dialog_values.h"
#include "sketch/frame/font_choice.h"
#include "sketch/frame/sketch_ids.h"
#include "sketch/model/line_ends.h"
#include "sketch/model/text.h"

namespace sketch {
TextDialog::TextDialog(owl::TWindow* parent, std::string words, const myFont& font)
    : LVXCentredDialog(parent, IDD_TEXT, nullptr), m_words(std::move(words)), m_font(font) {}

void TextDialog::SetupWindow() {
    LVXCentredDialog::SetupWindow();
    SendDlgItemMessage(IDC_WORDS, EM_LIMITTEXT, Text::most_letters);
    SetDlgItemText(IDC_WORDS, WithSystemLineEnds(m_words).c_str());
    ShowFont();
}

void TextDialog::ShowFont() {
    SetDlgItemText(IDC_FONT_NAME, DescribeFont(m_font).c_str());
}

void TextDialog::BnFont() {
    if (AskForFont(*this, m_font)) {
        ShowFont();
    }
}

bool TextDialog::CanClose() {
    if (!LVXCentredDialog::CanClose()) {
        return false;
    }
    const std::string words = WithPlainLineEnds(GetDlgItemText(IDC_WORDS));
    if (lvx::trim(words).empty()) {
        RefuseField(*this, IDC_WORDS, "Please enter some words.");
        return false;
    }
    m_words = words;
    return true;
}

DEFINE_RESPONSE_TABLE1(TextDialog, LVXCentredDialog)
    EV_COMMAND(IDC_FONT, BnFont),
END_RESPONSE_TABLE;

}  // namespace sketch
