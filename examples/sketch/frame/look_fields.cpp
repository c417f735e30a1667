#include "sketch/frame/look_fields.h"

#include <iterator>

#include "sketch/frame/dialog_values.h"
#include "sketch/frame/sketch_ids.h"

namespace sketch {
namespace {

// In the order of LineType and of FillPattern.
constexpr const char* line_styles[] = {"Solid",        "Dashed", "Dotted", "Dash dot",
                                       "Dash dot dot", "None",   "Inside"};
constexpr const char* fill_patterns[] = {"White",   "Solid",   "Dark grey", "Light grey", "Grey",    "Lines",
                                         "Columns", "Falling", "Rising",    "Crosses",    "Lozenges"};

void Fill(owl::TDialog& dialog, int id, const char* const* names, std::size_t count, int selected) {
    for (std::size_t i = 0; i < count; ++i) {
        dialog.SendDlgItemMessage(id, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(names[i]));
    }
    dialog.SendDlgItemMessage(id, CB_SETCURSEL, static_cast<WPARAM>(selected));
}

int SelectedIn(const owl::TDialog& dialog, int id) {
    return static_cast<int>(dialog.SendDlgItemMessage(id, CB_GETCURSEL));
}

}  // namespace

LineFields::LineFields(owl::TDialog& dialog)
    : m_dialog(dialog),
      m_colour(dialog, IDC_LINE_COLOUR),
      m_width(new LVXIntEdit(&dialog, IDC_LINE_WIDTH, 0, Look::widest)) {}

void LineFields::Show(const Look& look) {
    m_width->SetValue(look.lineWidth);
    Fill(m_dialog, IDC_LINE_STYLE, line_styles, std::size(line_styles), look.line);
    m_colour.Show(look.lineColour);
}

bool LineFields::Read(Look& look) {
    if (!ReadField(m_dialog, *m_width, 0, Look::widest, look.lineWidth)) {
        return false;
    }
    look.line = static_cast<LineType>(SelectedIn(m_dialog, IDC_LINE_STYLE));
    look.lineColour = m_colour.Chosen();
    return true;
}

FillFields::FillFields(owl::TDialog& dialog) : m_dialog(dialog), m_colour(dialog, IDC_FILL_COLOUR) {}

void FillFields::Show(const Look& look) {
    m_dialog.CheckDlgButton(IDC_FILLED, look.filled ? BST_CHECKED : BST_UNCHECKED);
    Fill(m_dialog, IDC_FILL_PATTERN, fill_patterns, std::size(fill_patterns), look.fill);
    m_colour.Show(look.fillColour);
}

void FillFields::Read(Look& look) {
    look.filled = m_dialog.IsDlgButtonChecked(IDC_FILLED) == BST_CHECKED;
    look.fill = static_cast<FillPattern>(SelectedIn(m_dialog, IDC_FILL_PATTERN));
    look.fillColour = m_colour.Chosen();
}

}  // namespace sketch
