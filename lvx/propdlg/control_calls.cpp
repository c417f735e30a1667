#include "lvx/propdlg/control_calls.h"

#include <array>

namespace lvx::propdlg {

namespace {

constexpr LPARAM whole_text = 32767;

bool keeps_its_font(HWND control) {
    return is_of_class(control, "STATIC") && (::GetWindowLongPtrA(control, GWL_STYLE) & SS_NOPREFIX) != 0;
}

}  // namespace

bool is_of_class(HWND window, const char* name) {
    std::array<char, 100> text{};
    return ::GetClassNameA(window, text.data(), static_cast<int>(text.size())) > 0 &&
           ::lstrcmpiA(text.data(), name) == 0;
}

void apply_small_font(HWND window) {
    if (window == nullptr)
        return;
    const auto font = reinterpret_cast<WPARAM>(::GetStockObject(ANSI_VAR_FONT));
    for (HWND child = ::GetWindow(window, GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        if (keeps_its_font(child))
            continue;
        ::SendMessageA(child, WM_SETFONT, font, FALSE);
        apply_small_font(child);
    }
}

void select_text(HWND control) {
    if (control != nullptr && (::SendMessageA(control, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) != 0)
        ::PostMessageA(control, EM_SETSEL, 0, whole_text);
}

}  // namespace lvx::propdlg
