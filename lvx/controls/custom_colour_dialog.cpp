#include "lvx/controls/custom_colour_dialog.h"

#include "lvx/controls/colour_maths.h"
#include "lvx/controls/custom_colour_dialog_ids.h"
#include "lvx/controls/int_range_edit.h"
#include "lvx/runtime/help_file.h"
#include "owl/scroll_bar.h"
#include "owl/static.h"

DEFINE_RESPONSE_TABLE1(LVXCustomColourDlg, LVXCentredDialog)
    EV_CHILD_NOTIFY_ALL_CODES(IDC_COLOUR_RED_BAR, EvRScrolled),
        EV_CHILD_NOTIFY_ALL_CODES(IDC_COLOUR_GREEN_BAR, EvGScrolled),
        EV_CHILD_NOTIFY_ALL_CODES(IDC_COLOUR_BLUE_BAR, EvBScrolled),
        EV_CHILD_NOTIFY_ALL_CODES(IDC_COLOUR_HUE_BAR, EvHScrolled),
        EV_CHILD_NOTIFY_ALL_CODES(IDC_COLOUR_LIGHTNESS_BAR, EvLScrolled),
        EV_CHILD_NOTIFY_ALL_CODES(IDC_COLOUR_SATURATION_BAR, EvSScrolled),
        EV_EN_CHANGE(IDC_COLOUR_RED_EDIT, EvRChanged), EV_EN_CHANGE(IDC_COLOUR_GREEN_EDIT, EvGChanged),
        EV_EN_CHANGE(IDC_COLOUR_BLUE_EDIT, EvBChanged), EV_EN_CHANGE(IDC_COLOUR_HUE_EDIT, EvHChanged),
        EV_EN_CHANGE(IDC_COLOUR_LIGHTNESS_EDIT, EvLChanged),
        EV_EN_CHANGE(IDC_COLOUR_SATURATION_EDIT, EvSChanged), EV_COMMAND(IDOK, CmOk), EV_WM_HELP,
        EV_MESSAGE(WM_MOUSEWHEEL, EvMouseWheel),
END_RESPONSE_TABLE;

namespace {

constexpr const char* help_file = "SWKHelp.chm";
constexpr const char* help_texts = "CustomColour.txt";

// Whose text is not to be written, of red, green and blue or of hue, lightness and saturation.
enum Source { nobody = 0, first = 1, second = 2, third = 3 };

owl::TColor ColourOf(const lvx::RgbColour& rgb) {
    return owl::TColor(rgb.red, rgb.green, rgb.blue).PaletteRelative();
}

void SetValueUnless(bool isSource, IntRangeEdit& edit, int value) {
    if (!isSource)
        edit.SetValue(value);
}

// Moves a bar as its arrow does, so that all who listen to it hear of it.
void PressArrow(const owl::TScrollBar& bar, bool forward) {
    bar.Parent->SendMessage(WM_HSCROLL, forward ? SB_LINEDOWN : SB_LINEUP,
                            reinterpret_cast<LPARAM>(bar.GetHandle()));
}

}  // namespace

// Says that the controls follow, until its end.
class LVXCustomColourDlg::Following {
public:
    explicit Following(LVXCustomColourDlg& dialog) : m_dialog(dialog) { dialog.Updating = true; }
    ~Following() { m_dialog.Updating = false; }
    Following(const Following&) = delete;
    Following& operator=(const Following&) = delete;

private:
    LVXCustomColourDlg& m_dialog;
};

LVXCustomColourDlg::LVXCustomColourDlg(owl::TWindow* parent, owl::TColor& colour, std::string* name,
                                       owl::TModule* module)
    : LVXCentredDialog(parent, IDD_CUSTOM_COLOUR, module), Colour(colour), Name(name) {
    const auto bar = [&](int id) { return new owl::TScrollBar(this, id, module); };
    const auto edit = [&](int id, int max) { return new IntRangeEdit(this, id, max, module); };
    RedBar = bar(IDC_COLOUR_RED_BAR);
    GreenBar = bar(IDC_COLOUR_GREEN_BAR);
    BlueBar = bar(IDC_COLOUR_BLUE_BAR);
    HueBar = bar(IDC_COLOUR_HUE_BAR);
    LightBar = bar(IDC_COLOUR_LIGHTNESS_BAR);
    SatBar = bar(IDC_COLOUR_SATURATION_BAR);
    RedEdit = edit(IDC_COLOUR_RED_EDIT, lvx::most_of_rgb);
    GreenEdit = edit(IDC_COLOUR_GREEN_EDIT, lvx::most_of_rgb);
    BlueEdit = edit(IDC_COLOUR_BLUE_EDIT, lvx::most_of_rgb);
    HueEdit = edit(IDC_COLOUR_HUE_EDIT, lvx::most_of_hue);
    LightEdit = edit(IDC_COLOUR_LIGHTNESS_EDIT, lvx::most_of_lightness);
    SatEdit = edit(IDC_COLOUR_SATURATION_EDIT, lvx::most_of_saturation);
    SampleFrame = new owl::TStatic(this, IDC_COLOUR_SAMPLE_FRAME, 0, module);
    NameLabel = new owl::TStatic(this, IDC_COLOUR_NAME_LABEL, 0, module);
    NameEdit = new owl::TEdit(this, IDC_COLOUR_NAME_EDIT, 0, module);
}

LVXCustomColourDlg::~LVXCustomColourDlg() = default;

void LVXCustomColourDlg::SetupWindow() {
    {
        // Fields that get their texts tell of changes, which are none of the user's.
        const Following following(*this);
        LVXCentredDialog::SetupWindow();
        if (Sample == nullptr) {
            Sample = new ColourSample(SampleFrame, IDC_COLOUR_SAMPLE, Colour, GetModule());
            Sample->Create();
        }
        PrepareControls();
    }
    setRGB(Colour.Red(), Colour.Green(), Colour.Blue(), nobody);
    ShowName();
}

void LVXCustomColourDlg::PrepareControls() {
    for (owl::TScrollBar* const bar : {RedBar, GreenBar, BlueBar})
        bar->SetRange(0, lvx::most_of_rgb);
    HueBar->SetRange(0, lvx::most_of_hue);
    LightBar->SetRange(0, lvx::most_of_lightness);
    SatBar->SetRange(0, lvx::most_of_saturation);
    for (IntRangeEdit* const edit : {RedEdit, GreenEdit, BlueEdit, HueEdit, LightEdit, SatEdit})
        edit->SetText("0");
}

void LVXCustomColourDlg::ShowName() {
    const int how = Name != nullptr ? SW_SHOW : SW_HIDE;
    NameLabel->ShowWindow(how);
    if (Name != nullptr)
        NameEdit->SetText(Name->c_str());
    NameEdit->ShowWindow(how);
}

void LVXCustomColourDlg::CmOk() {
    if (Name != nullptr)
        *Name = NameEdit->GetWindowText();
    CloseWindow(IDOK);
}

void LVXCustomColourDlg::setRGB(int r, int g, int b, int source) {
    if (Updating)
        return;
    const lvx::RgbColour rgb = lvx::on_scale(lvx::RgbColour{r, g, b});
    const lvx::HlsColour hls = lvx::hls_of(rgb, Hue);
    Colour = ColourOf(rgb);
    Hue = hls.hue;
    Lightness = hls.lightness;
    Saturation = hls.saturation;
    Follow(source, nobody);
}

void LVXCustomColourDlg::setHLS(int h, int l, int s, int source) {
    if (Updating)
        return;
    const lvx::HlsColour hls = lvx::on_scale(lvx::HlsColour{h, l, s});
    Colour = ColourOf(lvx::rgb_of(hls));
    Hue = hls.hue;
    Lightness = hls.lightness;
    Saturation = hls.saturation;
    Follow(nobody, source);
}

void LVXCustomColourDlg::Follow(int rgbSource, int hlsSource) {
    if (Sample != nullptr)
        Sample->setColour(Colour);
    const Following following(*this);
    MoveBars();
    SetValueUnless(rgbSource == first, *RedEdit, Colour.Red());
    SetValueUnless(rgbSource == second, *GreenEdit, Colour.Green());
    SetValueUnless(rgbSource == third, *BlueEdit, Colour.Blue());
    SetValueUnless(hlsSource == first, *HueEdit, Hue);
    SetValueUnless(hlsSource == second, *LightEdit, Lightness);
    SetValueUnless(hlsSource == third, *SatEdit, Saturation);
}

void LVXCustomColourDlg::MoveBars() {
    RedBar->SetPosition(Colour.Red());
    GreenBar->SetPosition(Colour.Green());
    BlueBar->SetPosition(Colour.Blue());
    HueBar->SetPosition(Hue);
    LightBar->SetPosition(Lightness);
    SatBar->SetPosition(Saturation);
}

void LVXCustomColourDlg::EvRScrolled(UINT) {
    const int position = RedBar->GetPosition();
    if (position != Colour.Red())
        setRGB(position, Colour.Green(), Colour.Blue(), nobody);
}

void LVXCustomColourDlg::EvGScrolled(UINT) {
    const int position = GreenBar->GetPosition();
    if (position != Colour.Green())
        setRGB(Colour.Red(), position, Colour.Blue(), nobody);
}

void LVXCustomColourDlg::EvBScrolled(UINT) {
    const int position = BlueBar->GetPosition();
    if (position != Colour.Blue())
        setRGB(Colour.Red(), Colour.Green(), position, nobody);
}

void LVXCustomColourDlg::EvHScrolled(UINT) {
    const int position = HueBar->GetPosition();
    if (position != Hue)
        setHLS(position, Lightness, Saturation, nobody);
}

void LVXCustomColourDlg::EvLScrolled(UINT) {
    const int position = LightBar->GetPosition();
    if (position != Lightness)
        setHLS(Hue, position, Saturation, nobody);
}

void LVXCustomColourDlg::EvSScrolled(UINT) {
    const int position = SatBar->GetPosition();
    if (position != Saturation)
        setHLS(Hue, Lightness, position, nobody);
}

void LVXCustomColourDlg::EvRChanged() {
    setRGB(RedEdit->GetValue(), Colour.Green(), Colour.Blue(), first);
}

void LVXCustomColourDlg::EvGChanged() {
    setRGB(Colour.Red(), GreenEdit->GetValue(), Colour.Blue(), second);
}

void LVXCustomColourDlg::EvBChanged() {
    setRGB(Colour.Red(), Colour.Green(), BlueEdit->GetValue(), third);
}

void LVXCustomColourDlg::EvHChanged() {
    setHLS(HueEdit->GetValue(), Lightness, Saturation, first);
}

void LVXCustomColourDlg::EvLChanged() {
    setHLS(Hue, LightEdit->GetValue(), Saturation, second);
}

void LVXCustomColourDlg::EvSChanged() {
    setHLS(Hue, Lightness, SatEdit->GetValue(), third);
}

LRESULT LVXCustomColourDlg::EvHelp(HELPINFO* help) {
    // A menu asks too, by a handle that is no window's.
    if (help->iContextType != HELPINFO_WINDOW)
        return 0;
    unsigned long pairs[2 * (IDC_COLOUR_NAME_EDIT - IDC_COLOUR_RGB_GROUP + 1) + 2] = {};
    unsigned long* next = pairs;
    for (unsigned long id = IDC_COLOUR_RGB_GROUP; id <= IDC_COLOUR_NAME_EDIT; ++id) {
        *next++ = id;
        *next++ = id;
    }
    if (m_help == nullptr)
        m_help = std::make_unique<LVXHelpFile>(this, help_file);
    m_help->DisplayTextPopup(static_cast<HWND>(help->hItemHandle), help_texts, pairs);
    return 0;
}

owl::TScrollBar* LVXCustomColourDlg::BarWithFocus() const {
    const struct {
        owl::TScrollBar* bar;
        IntRangeEdit* edit;
    } channels[] = {{RedBar, RedEdit}, {GreenBar, GreenEdit}, {BlueBar, BlueEdit},
                    {HueBar, HueEdit}, {LightBar, LightEdit}, {SatBar, SatEdit}};
    const HWND focus = GetFocus();
    for (const auto& [bar, edit] : channels) {
        if (focus != nullptr && (bar->GetHandle() == focus || edit->GetHandle() == focus))
            return bar;
    }
    return nullptr;
}

// A fine wheel tells of parts of a notch.
LRESULT LVXCustomColourDlg::EvMouseWheel(WPARAM wParam, LPARAM) {
    owl::TScrollBar* const bar = BarWithFocus();
    if (bar == nullptr)
        return DefaultProcessing();
    if (bar != m_wheelBar)
        m_wheelRest = 0;
    m_wheelBar = bar;
    m_wheelRest += GET_WHEEL_DELTA_WPARAM(wParam);
    for (; m_wheelRest >= WHEEL_DELTA; m_wheelRest -= WHEEL_DELTA)
        PressArrow(*bar, true);
    for (; m_wheelRest <= -WHEEL_DELTA; m_wheelRest += WHEEL_DELTA)
        PressArrow(*bar, false);
    return 0;
}
