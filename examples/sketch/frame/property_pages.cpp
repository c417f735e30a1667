#include "sketch/frame/property_pages.h"

#include "sketch/frame/dialog_values.h"
#include "sketch/frame/font_choice.h"
#include "sketch/frame/sketch_ids.h"
#include "sketch/model/coordinates.h"

namespace sketch {
namespace {

constexpr double whole_turn = 360;
constexpr int places_behind_the_point = 2;

}  // namespace

void PropertiesPage::SetupWindow() {
    LVXPropertyPage::SetupWindow();
    Show(m_properties);
}

bool PropertiesPage::Check() {
    Properties read = m_properties;
    return Read(read);
}

ShapePage::ShapePage(Properties& properties)
    : PropertiesPage(IDD_SHAPE_PAGE, properties),
      m_left(new LVXIntEdit(this, IDC_LEFT, -farthest, farthest)),
      m_top(new LVXIntEdit(this, IDC_TOP, -farthest, farthest)),
      m_width(new LVXIntEdit(this, IDC_WIDTH, 0, farthest)),
      m_height(new LVXIntEdit(this, IDC_HEIGHT, 0, farthest)) {}

void ShapePage::Show(const Properties& properties) {
    m_left->SetValue(properties.place.left);
    m_top->SetValue(properties.place.top);
    m_width->SetValue(properties.place.Width());
    m_height->SetValue(properties.place.Height());
    m_width->EnableWindow(properties.canResize);
    m_height->EnableWindow(properties.canResize);
}

bool ShapePage::Read(Properties& properties) {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    if (!ReadField(*this, *m_left, -farthest, farthest, left) ||
        !ReadField(*this, *m_top, -farthest, farthest, top) ||
        !ReadField(*this, *m_width, 0, farthest, width) ||
        !ReadField(*this, *m_height, 0, farthest, height)) {
        return false;
    }
    properties.place = owl::TRect(owl::TPoint(left, top), owl::TSize(width, height));
    return true;
}

LinePage::LinePage(Properties& properties) : PropertiesPage(IDD_LINE_PAGE, properties) {}

FillPage::FillPage(Properties& properties) : PropertiesPage(IDD_FILL_PAGE, properties) {}

bool FillPage::Read(Properties& properties) {
    m_fields.Read(properties.look);
    return true;
}

FontPage::FontPage(Properties& properties)
    : PropertiesPage(IDD_FONT_PAGE, properties), m_font(properties.font) {}

void FontPage::Show(const Properties&) {
    m_sample.Show(*this, m_font);
}

bool FontPage::Read(Properties& properties) {
    properties.font = m_font;
    return true;
}

void FontPage::BnFont() {
    if (AskForFont(*GetParentWindow(), m_font)) {
        m_sample.Show(*this, m_font);
    }
}

DEFINE_RESPONSE_TABLE1(LinePage, LVXPropertyPage)
    EV_COMMAND(IDC_LINE_COLOUR_OTHER, BnColour),
END_RESPONSE_TABLE;

DEFINE_RESPONSE_TABLE1(FillPage, LVXPropertyPage)
    EV_COMMAND(IDC_FILL_COLOUR_OTHER, BnColour),
END_RESPONSE_TABLE;

DEFINE_RESPONSE_TABLE1(FontPage, LVXPropertyPage)
    EV_COMMAND(IDC_FONT, BnFont),
END_RESPONSE_TABLE;

PicturePage::PicturePage(Properties& properties)
    : PropertiesPage(IDD_PICTURE_PAGE, properties),
      m_name(new LVXEdit(this, IDC_NAME)),
      m_degrees(new LVXFloatEdit(this, IDC_DEGREES)) {}

void PicturePage::Show(const Properties& properties) {
    m_name->SetWindowText(properties.name);
    m_degrees->SetValue(properties.degrees, places_behind_the_point);
    const std::string size =
        std::to_string(properties.size.cx) + " x " + std::to_string(properties.size.cy) + " pixels";
    SetDlgItemText(IDC_PICTURE_SIZE, size.c_str());
}

bool PicturePage::Read(Properties& properties) {
    if (!ReadField(*this, *m_degrees, -whole_turn, whole_turn, properties.degrees)) {
        return false;
    }
    properties.name = m_name->GetText();
    return true;
}

}  // namespace sketch
