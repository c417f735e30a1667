// owl/choose_font_dialog.h
//
// The system's dialog to choose a font.
//
//     owl::TChooseFontDialog::TData data;
//     data.Flags = CF_SCREENFONTS | CF_INITTOLOGFONTSTRUCT;
//     font.GetObject(data.LogFont);
//     if (owl::TChooseFontDialog(this, data).Execute() == IDOK)
//         Use(owl::TFont(data.LogFont));
//
// The data are the caller's and must live as long as the dialog. DoExecute reads them when it begins and
// fills them in when a font was chosen.
#pragma once

#include <string>

#include "owl/color.h"
#include "owl/common_dialog.h"

namespace owl {

class OWL_EXPORT TChooseFontDialog : public TCommonDialog {
public:
    /// What the dialog is to offer, and what was chosen.
    struct TData {
        /// CF_ values. CF_NOFACESEL, CF_NOSTYLESEL and CF_NOSIZESEL come back as they went; those about hooks
        /// and templates are the dialog's own.
        DWORD Flags = CF_SCREENFONTS;
        /// Why the dialog could not be shown, as TXCommonDialog tells; else 0.
        DWORD Error = 0;
        /// The printer whose fonts are offered with CF_PRINTERFONTS. The caller's.
        HDC DC = nullptr;
        /// The font to begin with, if Flags has CF_INITTOLOGFONTSTRUCT; the one that was chosen.
        LOGFONTA LogFont{};
        /// Its size in tenths of a point; comes back.
        int PointSize = 0;
        /// With CF_EFFECTS the colour, in and out.
        TColor Color;
        /// With CF_USESTYLE the name of the style, such as "Bold Italic", in and out.
        std::string Style;
        /// Which kind of font it is: BOLD_FONTTYPE and its kin. Comes back.
        unsigned FontType = 0;
        /// The sizes in points that may be chosen, if Flags has CF_LIMITSIZE.
        int SizeMin = 0;
        int SizeMax = 0;
    };

    /// A null `title` leaves the system's.
    TChooseFontDialog(TWindow* parent, TData& data, const char* title = nullptr, TModule* module = nullptr);
    ~TChooseFontDialog() override;

    /// IDOK when a font was chosen, else IDCANCEL and the data are as they were. Throws TXCommonDialog, or
    /// what a handler threw.
    int DoExecute() override;

protected:
    TData& Data;
    /// What the system works on while the dialog is shown.
    CHOOSEFONTA cf{};

private:
    void FillIn();
    void TakeOut();

    // The system writes into it while the user tries fonts.
    LOGFONTA m_font{};
};

}  // namespace owl
