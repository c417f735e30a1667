#include "sketch/frame/font_sample.h"

#include "owl/font.h"
#include "sketch/frame/sketch_ids.h"
#include "sketch/model/text.h"

namespace sketch {

void FontSample::Show(owl::TDialog& dialog, const myFont& font) {
    std::unique_ptr<LVXFont, Free> shown(font.make_font());
    const owl::TFont& tool = static_cast<const LVXFont&>(*shown);
    const HFONT handle = tool;
    dialog.SendDlgItemMessage(IDC_SAMPLE, WM_SETFONT, reinterpret_cast<WPARAM>(handle), TRUE);
    // The label has let go of the former one now.
    m_font = std::move(shown);
    dialog.SetDlgItemText(IDC_FONT_NAME, DescribeFont(font).c_str());
}

}  // namespace sketch
