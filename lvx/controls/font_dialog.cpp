#include "lvx/controls/font_dialog.h"

#include <algorithm>
#include <memory>

#include "lvx/controls/centred_dialog.h"
#include "lvx/drawing/colours.h"
#include "lvx/drawing/font.h"
#include "lvx/drawing/my_font.h"
#include "owl/choose_font_dialog.h"

namespace {

using FontOptionsEnum::FontOptions;

// What the system's own template calls its controls.
constexpr int colour_label = 0x443;
constexpr int colour_list = 0x473;
constexpr int strikeout_box = 0x410;
constexpr int underline_box = 0x411;

constexpr int most_tenths = 1 << 24;

bool has(FontOptions options, FontOptions part) {
    return (options & part) != FontOptionsEnum::None;
}

DWORD flags_for(FontOptions options) {
    DWORD flags = CF_SCREENFONTS | CF_INITTOLOGFONTSTRUCT | CF_EFFECTS | CF_TTONLY;
    if (!has(options, FontOptionsEnum::Face)) {
        flags |= CF_NOFACESEL;
    }
    if (!has(options, FontOptionsEnum::Size)) {
        flags |= CF_NOSIZESEL;
    }
    if (!has(options, FontOptionsEnum::Bold | FontOptionsEnum::Italic)) {
        flags |= CF_NOSTYLESEL;
    }
    return flags;
}

// A size that is no number, or that no font has, is none.
int tenths_of_points(double points) {
    const double tenths = points * 10 + 0.5;
    return tenths > -most_tenths && tenths < most_tenths ? static_cast<int>(tenths) : 0;
}

struct FontDeleter {
    void operator()(LVXFont* font) const { font->free(); }
};

LOGFONTA description_of(const myFont& font) {
    const std::unique_ptr<LVXFont, FontDeleter> made(font.make_font());
    LOGFONTA description{};
    static_cast<owl::TFont&>(*made).GetObject(description);
    return description;
}

owl::TChooseFontDialog::TData data_for(const myFont& font, FontOptions options) {
    owl::TChooseFontDialog::TData data;
    data.LogFont = description_of(font);
    data.PointSize = tenths_of_points(font.Size());
    data.Color = LVX::Black;
    data.Flags = flags_for(options);
    return data;
}

class FontPartsDialog : public owl::TChooseFontDialog {
public:
    FontPartsDialog(owl::TWindow* parent, TData& data, myFont& font, FontOptions& options)
        : TChooseFontDialog(parent, data), m_font(font), m_options(options) {}

    void SetupWindow() override {
        TChooseFontDialog::SetupWindow();
        LVXCentredDialog::Centre(this);
        ::ShowWindow(GetDlgItem(colour_list), SW_HIDE);
        ::ShowWindow(GetDlgItem(colour_label), SW_HIDE);
        OfferUndecided(underline_box, FontOptionsEnum::Underline);
        OfferUndecided(strikeout_box, FontOptionsEnum::Strikeout);
    }

    int DoExecute() override {
        const int result = TChooseFontDialog::DoExecute();
        TakeParts();
        return result;
    }

private:
    void OfferUndecided(int box, FontOptions part) {
        if (has(m_options, part)) {
            return;
        }
        SendDlgItemMessage(box, BM_SETSTYLE, BS_AUTO3STATE);
        SendDlgItemMessage(box, BM_SETCHECK, BST_INDETERMINATE);
    }

    bool WasOffered(DWORD without) const { return (Data.Flags & without) == 0; }

    void TakeParts() {
        const LOGFONTA& chosen = Data.LogFont;
        if (WasOffered(CF_NOFACESEL)) {
            m_font.Face(chosen.lfFaceName);
            m_options |= FontOptionsEnum::Face;
        }
        if (WasOffered(CF_NOSIZESEL)) {
            m_font.Size(Data.PointSize * 0.1);
            m_options |= FontOptionsEnum::Size;
        }
        if (WasOffered(CF_NOSTYLESEL)) {
            m_font.Bold(chosen.lfWeight > FW_NORMAL);
            m_font.Italic(chosen.lfItalic != FALSE);
            m_options |= FontOptionsEnum::Bold | FontOptionsEnum::Italic;
        }
        m_font.Underline(chosen.lfUnderline != FALSE);
        m_font.Strikeout(chosen.lfStrikeOut != FALSE);
        m_options |= FontOptionsEnum::Underline | FontOptionsEnum::Strikeout;
    }

    myFont& m_font;
    FontOptions& m_options;
};

}  // namespace

bool fontDialog::dialog(owl::TWindow* parent, myFont& font, FontOptions& options, bool) {
    owl::TChooseFontDialog::TData data = data_for(font, options);
    myFont chosen(font);
    if (FontPartsDialog(parent, data, chosen, options).Execute() != IDOK) {
        return false;
    }
    font = chosen;
    return true;
}
