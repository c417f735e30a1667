#include "lvx/controls/etched_static.h"

#include <array>

#include "lvx/text/strings.h"

namespace {

constexpr DWORD kind_bits = SS_TYPEMASK;

bool is_static(HWND control) {
    std::array<char, 101> name{};
    ::GetClassNameA(control, name.data(), static_cast<int>(name.size()));
    return lvx::to_upper(name.data()) == "STATIC";
}

SIZE size_of(HWND control) {
    RECT rect{};
    ::GetWindowRect(control, &rect);
    return {rect.right - rect.left, rect.bottom - rect.top};
}

bool is_line(DWORD style) {
    return (style & kind_bits) == SS_ETCHEDHORZ || (style & kind_bits) == SS_ETCHEDVERT;
}

// The system draws a line by an edge around a control without an inside. It sees to that when it creates one,
// not when one changes its kind.
void make_line(HWND control, bool isWide, SIZE size) {
    const auto extended = static_cast<DWORD>(::GetWindowLongA(control, GWL_EXSTYLE)) | WS_EX_STATICEDGE;
    ::SetWindowLongA(control, GWL_EXSTYLE, static_cast<LONG>(extended));
    RECT edges{};
    ::AdjustWindowRectEx(&edges, WS_CHILD, FALSE, extended);
    (isWide ? size.cy : size.cx) = edges.right - edges.left;
    ::SetWindowPos(control, nullptr, 0, 0, size.cx, size.cy,
                   SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

}  // namespace

DWORD lvx::controls::etched_style(DWORD style, bool isWide) {
    const DWORD others = style & ~kind_bits;
    switch (style & kind_bits) {
        // What is black and filled was meant for a line.
        case SS_BLACKRECT:
            return others | (isWide ? SS_ETCHEDHORZ : SS_ETCHEDVERT);
        case SS_BLACKFRAME:
            return others | SS_ETCHEDFRAME | SS_SUNKEN;
        case SS_GRAYRECT:
        case SS_WHITERECT:
        case SS_GRAYFRAME:
        case SS_WHITEFRAME:
            return others | SS_ETCHEDFRAME;
        default:
            return style;
    }
}

void lvx::controls::etch_static(HWND control) {
    if (!is_static(control)) {
        return;
    }
    const SIZE size = size_of(control);
    const bool isWide = size.cx > size.cy;
    const auto style = static_cast<DWORD>(::GetWindowLongA(control, GWL_STYLE));
    const DWORD etched = etched_style(style, isWide);
    if (etched == style) {
        return;
    }
    ::SetWindowLongA(control, GWL_STYLE, static_cast<LONG>(etched));
    if (is_line(etched)) {
        make_line(control, isWide, size);
    }
}
