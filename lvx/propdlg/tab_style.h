// lvx/propdlg/tab_style.h
//
// How a property dialog and its strip of tabs look and behave: a set of flags, put together with '|'. Values;
// they own nothing and may be used on any thread, also by the initialisers of static objects.
#pragma once

namespace Tab {

/// A set of the flags below; other bits are kept and mean nothing.
class Style {
public:
    /// No flag: one line per tab, as wide as its text.
    constexpr Style() = default;
    /// These flags. Implicit, so that 'Tab::Stacked | Tab::DoubleHeight' is a style.
    constexpr Style(unsigned long flags) : m_flags(flags) {}
    constexpr operator unsigned long() const { return m_flags; }

private:
    unsigned long m_flags = 0;
};

// How the strip looks

/// One line of text per tab: the absence of DoubleHeight.
inline constexpr Style SingleHeight(0x00000);
/// Tabs as wide as their texts: the absence of FixedWidth.
inline constexpr Style VariableWidth(0x00000);
/// Room for two lines of text; a caption with a blank or a carriage return may take both.
inline constexpr Style DoubleHeight(0x00001);
/// Every tab has the same width, that of SetFixedTabWidth(); margins and bitmaps add nothing to it.
inline constexpr Style FixedWidth(0x00002);
/// The selected tab is filled with the active colour.
inline constexpr Style ColorActive(0x00004);
/// A disabled tab is not shown and takes no room.
inline constexpr Style Collapsing(0x00008);
/// What a row has to spare is shared among its tabs.
inline constexpr Style Justified(0x00010);
/// Tabs wrap into several rows. Brings Justified with it and puts Collapsing out.
inline constexpr Style Stacked(0x00020);
/// Tabs get SetWideMarginWidth() pixels more at either side.
inline constexpr Style WideMargins(0x00100);
/// No tabs: a frame with a line above the buttons. Puts Stacked, Justified and DoubleHeight out.
inline constexpr Style WizardFrame(0x04000);
/// Each tab has a picture, an equal share of one bitmap.
inline constexpr Style UseTabBitmaps(0x08000);

// How the dialog behaves

/// One page may stand behind several tabs.
inline constexpr Style AllowDupPages(0x00040);
/// The window of a page exists only while its tab is selected.
inline constexpr Style CreateOnDemand(0x00080);
/// The strip takes the size of the dialog when that changes.
inline constexpr Style AutoTabResize(0x00200);
/// The dialog's buttons stand to the right of the strip, not below it.
inline constexpr Style ButtonsOnRight(0x00400);
/// The controls of the dialog and its pages get the system's small font.
inline constexpr Style UseSmallFont(0x00800);
/// A page saves its data whenever it is left.
inline constexpr Style SaveOnClosePage(0x01000);
/// OK and the ways of closing do nothing.
inline constexpr Style NoMDIClose(0x02000);
/// The dialog stands in the middle of its parent at first.
inline constexpr Style CenterDialog(0x10000);
/// The window of a page is made when its tab is selected for the first time, and then kept.
inline constexpr Style CreateOnDemandAndKeepIt(0x20000);
/// The focus goes into the page when a tab is selected.
inline constexpr Style FocusOnFirstControl(0x40000);

/// Whether `style` has all flags of `flags`.
constexpr bool Has(Style style, Style flags) {
    return (style & flags) == static_cast<unsigned long>(flags);
}

}  // namespace Tab
