#include "owl/choose_font_dialog.h"

#include <array>

namespace owl {

namespace {

constexpr DWORD own_flags = CF_ENABLEHOOK | CF_ENABLETEMPLATE | CF_ENABLETEMPLATEHANDLE;

}  // namespace

TChooseFontDialog::TChooseFontDialog(TWindow* parent, TData& data, const char* title, TModule* module)
    : TCommonDialog(parent, title, module), Data(data) {}

TChooseFontDialog::~TChooseFontDialog() = default;

int TChooseFontDialog::DoExecute() {
    // As long as the names of styles in the system's own structures.
    std::array<char, LF_FULLFACESIZE> style{};
    FillIn();
    Data.Style.copy(style.data(), style.size() - 1);
    cf.lpszStyle = style.data();
    const int result = RunDialog("ChooseFont", Data.Error, [this] { return ::ChooseFontA(&cf) != FALSE; });
    if (result == IDOK)
        TakeOut();
    cf.lpszStyle = nullptr;
    return result;
}

void TChooseFontDialog::FillIn() {
    m_font = Data.LogFont;
    cf = {};
    cf.lStructSize = sizeof cf;
    cf.hwndOwner = GetOwnerHandle();
    cf.hDC = Data.DC;
    cf.lpLogFont = &m_font;
    cf.iPointSize = Data.PointSize;
    cf.Flags = (Data.Flags & ~own_flags) | CF_ENABLEHOOK;
    cf.rgbColors = Data.Color;
    cf.lpfnHook = &HookProcedure;
    cf.nFontType = static_cast<WORD>(Data.FontType);
    cf.nSizeMin = Data.SizeMin;
    cf.nSizeMax = Data.SizeMax;
}

void TChooseFontDialog::TakeOut() {
    Data.LogFont = m_font;
    Data.PointSize = cf.iPointSize;
    Data.Flags = cf.Flags & ~own_flags;
    Data.Color = TColor(cf.rgbColors);
    Data.Style = cf.lpszStyle;
    Data.FontType = cf.nFontType;
}

}  // namespace owl
