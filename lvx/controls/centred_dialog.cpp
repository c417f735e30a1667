#include "lvx/controls/centred_dialog.h"

#include "lvx/controls/etched_static.h"
#include "lvx/controls/shell_version.h"

namespace {

/// Of the fonts' weights the last that counts as normal.
constexpr LONG normal_weight = FW_NORMAL;

bool is_shown_by(const owl::TWindow* window) {
    return window != nullptr && window->IsWindow();
}

owl::TRect screen() {
    return {0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN)};
}

/// The font of `dialog` in normal weight; none if it is no bolder than that, or cannot be read.
lvx::auto_ptr<owl::TFont> lighter_font(const owl::TDialog& dialog) {
    LOGFONTA description{};
    const owl::TFont font(dialog.GetWindowFont());
    if (!font.GetObject(description) || description.lfWeight <= normal_weight) {
        return lvx::auto_ptr<owl::TFont>();
    }
    description.lfWeight = normal_weight;
    return lvx::auto_ptr<owl::TFont>(new owl::TFont(description));
}

/// What becomes of the controls of a dialog.
struct Modernised {
    /// Null leaves them theirs.
    HFONT font;
    bool etched;
};

BOOL CALLBACK modernise(HWND control, LPARAM parameter) {
    const auto& wanted = *reinterpret_cast<const Modernised*>(parameter);
    if (wanted.font != nullptr) {
        ::SendMessageA(control, WM_SETFONT, reinterpret_cast<WPARAM>(wanted.font), FALSE);
    }
    if (wanted.etched) {
        lvx::controls::etch_static(control);
    }
    return TRUE;
}

}  // namespace

LVXCentredDialog::LVXCentredDialog(owl::TWindow* parent, owl::TResId res, owl::TModule* module)
    : LVXEnablerDialog(parent, res, module),
      Windows95Flag(lvx::controls::draws_etched_lines(::GetVersion())) {}

LVXCentredDialog::~LVXCentredDialog() = default;

void LVXCentredDialog::SetupWindow() {
    LVXEnablerDialog::SetupWindow();
    Centre(this);
    LightenFont(this, Font, Windows95Flag);
}

void LVXCentredDialog::Centre(owl::TDialog* dialog) {
    if (!is_shown_by(dialog)) {
        return;
    }
    const owl::TRect frame = is_shown_by(dialog->Parent) ? dialog->Parent->GetWindowRect() : screen();
    const owl::TRect own = dialog->GetWindowRect();
    const int x = frame.left + (frame.Width() - own.Width()) / 2;
    const int y = frame.top + (frame.Height() - own.Height()) / 2;
    dialog->SetWindowPos(nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
}

void LVXCentredDialog::LightenFont(owl::TDialog* dialog, lvx::auto_ptr<owl::TFont>& holder, bool windows95) {
    // Without a window it would be all windows of the desk whose children are asked for.
    if (!is_shown_by(dialog)) {
        return;
    }
    if (holder.get() == nullptr) {
        holder = lighter_font(*dialog);
    }
    const Modernised wanted{holder.get() != nullptr ? static_cast<HFONT>(*holder) : nullptr, windows95};
    ::EnumChildWindows(dialog->GetHandle(), &modernise, reinterpret_cast<LPARAM>(&wanted));
}
