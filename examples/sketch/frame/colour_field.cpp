#include "sketch/frame/colour_field.h"

#include <algorithm>
#include <iterator>

#include "lvx/controls/custom_colour_dialog.h"
#include "lvx/drawing/colours.h"
#include "sketch/model/colour_text.h"

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

constexpr int number_of_names = static_cast<int>(std::size(colours));

int IndexOf(const owl::TColor& colour) {
    const auto* const found =
        std::find_if(std::begin(colours), std::end(colours),
                     [&](const NamedColour& named) { return named.colour.Rgb() == colour; });
    return static_cast<int>(found - std::begin(colours));
}

}  // namespace

void ColourField::Show(const owl::TColor& colour) {
    m_dialog.SendDlgItemMessage(m_id, CB_RESETCONTENT);
    for (const NamedColour& named : colours) {
        m_dialog.SendDlgItemMessage(m_id, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(named.name));
    }
    m_colour = colour.Rgb();
    SelectColour();
}

// One without a name is told by its numbers, behind the others.
void ColourField::SelectColour() {
    const int index = IndexOf(m_colour);
    if (index == number_of_names) {
        const std::string name = ColourText(m_colour);
        m_dialog.SendDlgItemMessage(m_id, CB_DELETESTRING, static_cast<WPARAM>(index));
        m_dialog.SendDlgItemMessage(m_id, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name.c_str()));
    }
    m_dialog.SendDlgItemMessage(m_id, CB_SETCURSEL, static_cast<WPARAM>(index));
}

void ColourField::Make() {
    owl::TColor colour = Chosen();
    // The dialog writes at each step, and relative to a palette.
    if (LVXCustomColourDlg(&m_dialog, colour, nullptr, nullptr).Execute() == IDOK) {
        m_colour = colour.Rgb();
        SelectColour();
    }
}

owl::TColor ColourField::Chosen() const {
    const auto index = static_cast<int>(m_dialog.SendDlgItemMessage(m_id, CB_GETCURSEL));
    return index >= 0 && index < number_of_names ? colours[index].colour.Rgb() : m_colour;
}

}  // namespace sketch
