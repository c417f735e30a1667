// lvx/controls/custom_colour_dialog.h
//
// A dialog in which the user makes a colour: by red, green and blue from 0 to 255, and by hue from 0 to 360,
// lightness and saturation from 0 to 100, each with a field and a scroll bar, and with a sample of what comes
// out. Each of them follows all others.
//
//     owl::TColor colour = pen.colour();
//     if (LVXCustomColourDlg(this, colour, nullptr, nullptr).Execute() == IDOK)
//         pen.colour(colour);
//
// The dialog borrows the colour and the name, which must live as long as it does. The colour is written at
// each step, not only by OK: behind a Cancel it is what was shown last. A caller who wants the old one back
// keeps a copy.
// The host's resources hold the dialog 7060; custom_colour_dialog.rc, beside this header, is one that they
// may include. F1 shows the texts of the topic file "CustomColour.txt" in the help file "SWKHelp.chm", both
// the host's, by the ids of the controls. For the thread of the dialog. Windows only.
#pragma once

#include <memory>
#include <string>

#include "lvx/controls/centred_dialog.h"
#include "lvx/platform/export.h"
#include "owl/color.h"
#include "owl/control.h"

namespace owl {
class TEdit;
class TPalette;
class TScrollBar;
class TStatic;
}  // namespace owl

class IntRangeEdit;
class LVXHelpFile;

/// A rectangle of a colour, with an edge as of a button. On a device with a palette it shows the colour
/// itself, not a dither. Screen readers find it under the name that its frame has for a text, with the colour
/// as in "178, 34, 35" for a value.
class LVX_EXPORT ColourSample : public owl::TControl {
public:
    /// A sibling of `frame`, whose place it takes when it is created. Requires: `frame` is not null, has a
    /// parent, and lives as long as the sample's window; it should not be visible itself.
    ColourSample(owl::TWindow* frame, int id, owl::TColor colour, owl::TModule* module);
    ~ColourSample() override;

    /// Shows another colour.
    void setColour(owl::TColor colour);
    owl::TColor getColour() const { return Colour; }
    /// The frame that it was made with.
    owl::TWindow* getFrame() const { return Frame; }

    void SetupWindow() override;
    void Paint(owl::TDC& dc, bool erase, owl::TRect& rect) override;
    /// Paints, so that the ground is never seen. True.
    bool EvEraseBkgnd(HDC dc);
    LRESULT EvGetObject(WPARAM wParam, LPARAM lParam);

protected:
    owl::TWindow* Frame;
    owl::TColor Colour;
    /// Of one entry; never null.
    std::unique_ptr<owl::TPalette> Palette;

    DECLARE_RESPONSE_TABLE(ColourSample);
};

class LVX_EXPORT LVXCustomColourDlg : public LVXCentredDialog {
public:
    /// Shows `colour` and writes it. With a `name` it has a field for one as well, which begins with what
    /// `name` holds and goes into it by OK; null leaves the field out. `module` is where dialog 7060 is; null
    /// is the parent's, or the application's.
    LVXCustomColourDlg(owl::TWindow* parent, owl::TColor& colour, std::string* name, owl::TModule* module);
    ~LVXCustomColourDlg() override;

    void SetupWindow() override;
    /// Keeps the name and closes the dialog.
    void CmOk();

    /// Makes it this colour; numbers beyond their scales are taken for the scale's end. The caller's colour
    /// is palette-relative then. All controls follow but the field that `source` says, whose text the user is
    /// typing: 1 for red, 2 for green, 3 for blue; 0 for none. Does nothing while controls follow: what they
    /// tell then is no news.
    void setRGB(int r, int g, int b, int source);
    /// Likewise by hue, lightness and saturation; 1 for hue, 2 for lightness, 3 for saturation.
    void setHLS(int h, int l, int s, int source);

    // What the controls tell.

    void EvRScrolled(UINT code);
    void EvGScrolled(UINT code);
    void EvBScrolled(UINT code);
    void EvHScrolled(UINT code);
    void EvLScrolled(UINT code);
    void EvSScrolled(UINT code);
    void EvRChanged();
    void EvGChanged();
    void EvBChanged();
    void EvHChanged();
    void EvLChanged();
    void EvSChanged();
    /// Shows the help on the control that asks. 0. Throws lvx::runtime_error if the system has no help.
    LRESULT EvHelp(HELPINFO* help);
    /// Moves the bar of the channel that has the focus by a step for each notch of the wheel, forward to
    /// greater numbers. 0.
    LRESULT EvMouseWheel(WPARAM wParam, LPARAM lParam);

protected:
    owl::TColor& Colour;
    int Hue = 0;
    int Lightness = 0;
    int Saturation = 0;
    std::string* Name;
    owl::TScrollBar* RedBar;
    owl::TScrollBar* GreenBar;
    owl::TScrollBar* BlueBar;
    owl::TScrollBar* HueBar;
    owl::TScrollBar* LightBar;
    owl::TScrollBar* SatBar;
    IntRangeEdit* RedEdit;
    IntRangeEdit* GreenEdit;
    IntRangeEdit* BlueEdit;
    IntRangeEdit* HueEdit;
    IntRangeEdit* LightEdit;
    IntRangeEdit* SatEdit;
    owl::TStatic* SampleFrame;
    ColourSample* Sample = nullptr;
    owl::TStatic* NameLabel;
    owl::TEdit* NameEdit;
    /// True while the controls follow.
    bool Updating = false;

private:
    class Following;

    void PrepareControls();
    void ShowName();
    void Follow(int rgbSource, int hlsSource);
    void MoveBars();
    owl::TScrollBar* BarWithFocus() const;

    /// As long as the dialog, so that its texts may stay open.
    std::unique_ptr<LVXHelpFile> m_help;
    /// What is left of the wheel below a whole notch, and what it was turned for.
    int m_wheelRest = 0;
    const owl::TScrollBar* m_wheelBar = nullptr;

    DECLARE_RESPONSE_TABLE(LVXCustomColourDlg);
};
