#include "sketch/frame/look_fields.h"

#include <algorithm>
#include <iterator>

#include "sketch/frame/dialog_values.h"
#include "sketch/frame/sketch_ids.h"

namespace sketch {
namespace {

struct NamedColour {
    const char* name;
    owl::TColor colour;
};

constexpr NamedColour colours[] = {
    {"Black", LVX::Black},
    {"White", LVX::White},
    {"Red", LVX::Red},
    {"Green", owl::TColor(0, 128, 0)},
    {"Blue", LVX::Blue},
    {"Yellow", LVX::Yellow},
    {"Orange", owl::TColor(255, 128, 0)},
    {"Cyan", LVX::Cyan},
    {"Magenta", LVX::Magenta},
    {"Light grey", LVX::LightGrey},
    {"Sky", owl::TColor(190, 220, 255)},
};

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

// A colour without a name is told by none, and kept unless one is chosen.
void FillColours(owl::TDialog& dialog, int id, const owl::TColor& selected) {
    for (const NamedColour& named : colours) {
        dialog.SendDlgItemMessage(id, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(named.name));
    }
    const auto* const found =
        std::find_if(std::begin(colours), std::end(colours),
                     [&](const NamedColour& named) { return named.colour.Rgb() == selected.Rgb(); });
    const auto index = found == std::end(colours) ? -1 : found - std::begin(colours);
    dialog.SendDlgItemMessage(id, CB_SETCURSEL, static_cast<WPARAM>(index));
}

int SelectedIn(const owl::TDialog& dialog, int id) {
    return static_cast<int>(dialog.SendDlgItemMessage(id, CB_GETCURSEL));
}

void TakeColour(const owl::TDialog& dialog, int id, owl::TColor& colour) {
    const int index = SelectedIn(dialog, id);
    if (index >= 0) {
        colour = colours[index].colour;
    }
}

}  // namespace

LineFields::LineFields(owl::TDialog& dialog)
    : m_dialog(dialog), m_width(new LVXIntEdit(&dialog, IDC_LINE_WIDTH, 0, Look::widest)) {}

void LineFields::Show(const Look& look) {
    m_width->SetValue(look.lineWidth);
    Fill(m_dialog, IDC_LINE_STYLE, line_styles, std::size(line_styles), look.line);
    FillColours(m_dialog, IDC_LINE_COLOUR, look.lineColour);
}

bool LineFields::Read(Look& look) {
    if (!ReadField(m_dialog, *m_width, 0, Look::widest, look.lineWidth)) {
        return false;
    }
    look.line = static_cast<LineType>(SelectedIn(m_dialog, IDC_LINE_STYLE));
    TakeColour(m_dialog, IDC_LINE_COLOUR, look.lineColour);
    return true;
}

void FillFields::Show(const Look& look) {
    m_dialog.CheckDlgButton(IDC_FILLED, look.filled ? BST_CHECKED : BST_UNCHECKED);
    Fill(m_dialog, IDC_FILL_PATTERN, fill_patterns, std::size(fill_patterns), look.fill);
    FillColours(m_dialog, IDC_FILL_COLOUR, look.fillColour);
}

void FillFields::Read(Look& look) {
    look.filled = m_dialog.IsDlgButtonChecked(IDC_FILLED) == BST_CHECKED;
    look.fill = static_cast<FillPattern>(SelectedIn(m_dialog, IDC_FILL_PATTERN));
    TakeColour(m_dialog, IDC_FILL_COLOUR, look.fillColour);
}

}  // namespace sketch
