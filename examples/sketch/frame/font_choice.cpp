#include "sketch/frame/font_choice.h"

#include "lvx/drawing/font.h"
#include "owl/choose_font_dialog.h"
#include "owl/font.h"
#include "sketch/model/text.h"

namespace sketch {
namespace {

LOGFONTA Description(const myFont& font) {
    LVXFont* const made = font.make_font();
    LOGFONTA description{};
    static_cast<const owl::TFont&>(static_cast<const LVXFont&>(*made)).GetObject(description);
    made->free();
    return description;
}

}  // namespace

bool AskForFont(owl::TWindow& parent, myFont& font) {
    owl::TChooseFontDialog::TData data;
    data.Flags = CF_SCREENFONTS | CF_INITTOLOGFONTSTRUCT | CF_EFFECTS | CF_TTONLY | CF_LIMITSIZE;
    data.SizeMin = static_cast<int>(Text::smallest);
    data.SizeMax = static_cast<int>(Text::largest);
    data.LogFont = Description(font);
    if (owl::TChooseFontDialog(&parent, data).Execute() != IDOK) {
        return false;
    }
    const LOGFONTA& chosen = data.LogFont;
    font = myFont(chosen.lfFaceName, data.PointSize / 10.0, chosen.lfWeight > FW_NORMAL, chosen.lfItalic != 0,
                  chosen.lfUnderline != 0, chosen.lfStrikeOut != 0);
    return true;
}

}  // namespace sketch
