#include "owl/class_procedure.h"

namespace owl {

namespace {

constexpr const char* narrow_property = "owl.class_procedure";
constexpr const char* wide_property = "owl.wide_class_procedure";

// Asked by the other text's call, the system tells a procedure's stand-in.
ClassProcedure OnTopOf(HWND handle) {
    const bool isWide = ::IsWindowUnicode(handle) != 0;
    const LONG_PTR procedure =
        isWide ? ::GetWindowLongPtrW(handle, GWLP_WNDPROC) : ::GetWindowLongPtrA(handle, GWLP_WNDPROC);
    return {reinterpret_cast<WNDPROC>(procedure), isWide};
}

void PutOnTop(HWND handle, const ClassProcedure& top) {
    const auto procedure = reinterpret_cast<LONG_PTR>(top.procedure);
    if (top.isWide)
        ::SetWindowLongPtrW(handle, GWLP_WNDPROC, procedure);
    else
        ::SetWindowLongPtrA(handle, GWLP_WNDPROC, procedure);
}

}  // namespace

LRESULT ClassProcedure::Call(HWND handle, UINT msg, WPARAM wParam, LPARAM lParam) const {
    return isWide ? ::CallWindowProcW(procedure, handle, msg, wParam, lParam)
                  : ::CallWindowProcA(procedure, handle, msg, wParam, lParam);
}

ClassProcedure PutInFront(HWND handle, WNDPROC ours) {
    const ClassProcedure aside = PutAside(handle);
    if (!aside.IsNone())
        return aside;
    const ClassProcedure top = OnTopOf(handle);
    if (top.procedure == ours)
        return {};
    ::SetPropA(handle, top.isWide ? wide_property : narrow_property, reinterpret_cast<HANDLE>(top.procedure));
    PutOnTop(handle, {ours, top.isWide});
    return top;
}

void GiveBack(HWND handle, WNDPROC ours) {
    const ClassProcedure aside = PutAside(handle);
    if (aside.IsNone() || OnTopOf(handle).procedure != ours)
        return;
    PutOnTop(handle, aside);
    ForgetPutAside(handle);
}

ClassProcedure PutAside(HWND handle) {
    if (const HANDLE narrow = ::GetPropA(handle, narrow_property))
        return {reinterpret_cast<WNDPROC>(narrow), false};
    return {reinterpret_cast<WNDPROC>(::GetPropA(handle, wide_property)), true};
}

void ForgetPutAside(HWND handle) {
    ::RemovePropA(handle, narrow_property);
    ::RemovePropA(handle, wide_property);
}

}  // namespace owl
