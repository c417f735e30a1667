// lvx/controls/centred_dialog.h
//
// The base of the library's dialogs: it opens in the middle of its parent, with a font of normal weight, and
// with etched lines where its resource has the filled and framed rectangles of old.
//
//     class Settings : public LVXCentredDialog {
//     public:
//         explicit Settings(owl::TWindow* parent) : LVXCentredDialog(parent, IDD_SETTINGS, nullptr) {}
//     };
//
// Owns the lighter font, which its controls use as long as the dialog lives. What it does to itself it does
// to other dialogs by the static operations. For the thread of the dialog. Windows only. Does not: keep the
// dialog on the screen, or lay controls out anew for the lighter font.
#pragma once

#include "lvx/controls/enabler_dialog.h"
#include "lvx/platform/export.h"
#include "lvx/text/ownership.h"
#include "owl/font.h"

class LVX_EXPORT LVXCentredDialog : public LVXEnablerDialog {
public:
    /// As LVXEnablerDialog.
    LVXCentredDialog(owl::TWindow* parent, owl::TResId res, owl::TModule* module);
    ~LVXCentredDialog() override;

    /// Centres the dialog and lightens its font, before it shows.
    void SetupWindow() override;

    /// Moves `dialog` into the middle of its parent, or of the screen if it has no parent or that has no
    /// window. One that is larger than its parent begins above and to the left of it, be that outside of the
    /// screen; halves of a pixel are cut off. Nothing happens to null or without a window.
    static void Centre(owl::TDialog* dialog);

    /// Gives all controls in `dialog` a font like the dialog's own, but of normal weight. `holder` owns it
    /// and must live as long as they do; one that holds a font already keeps it, and that is what they get.
    /// If there is nothing to lighten, or the dialog has no font, they keep theirs and `holder` stays empty.
    ///
    /// With `windows95` the rectangles and frames among the statics become etched, in either case. Nothing
    /// happens to null or without a window. owl::TXGdi if the system makes no more fonts.
    static void LightenFont(owl::TDialog* dialog, lvx::auto_ptr<owl::TFont>& holder, bool windows95);

    /// Whether the system draws etched lines.
    bool Windows95() const { return Windows95Flag; }

protected:
    /// Empty until a font was lightened.
    lvx::auto_ptr<owl::TFont> Font;
    bool Windows95Flag;
};
