// lvx/controls/bar_accessible.h
//
// A bar as screen readers and other aids find it: a toolbar with a child for each gadget that stands for a
// command, which has the name of its tip, a role, a state, a place, and can be pressed.
//
// An object of COM: born with one reference, gone with the last. It knows the bar by its window, may outlive
// it, and answers CO_E_OBJNOTCONNECTED then. Controls in the bar are its last children, each an object of its
// own. For the thread of the bar. Private to the library. Windows only.
#pragma once

#include <windows.h>

#include <objbase.h>
#include <oleacc.h>

namespace lvx::controls {

class BarAccessible final : public IAccessible {
public:
    /// For the bar whose window is `bar`.
    explicit BarAccessible(HWND bar);
    BarAccessible(const BarAccessible&) = delete;
    BarAccessible& operator=(const BarAccessible&) = delete;

    // IUnknown

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override;
    ULONG STDMETHODCALLTYPE Release() override;

    // IDispatch: none of it.

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** info) override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                     UINT*) override;

    // IAccessible. E_INVALIDARG for what is no child; S_FALSE for what there is not.

    HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) override;
    HRESULT STDMETHODCALLTYPE get_accChildCount(LONG* count) override;
    HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch** object) override;
    HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) override;
    HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* value) override;
    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* description) override;
    HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) override;
    HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) override;
    HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT child, BSTR* help) override;
    HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT child, LONG* topic) override;
    HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT child, BSTR* keys) override;
    HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* child) override;
    HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* children) override;
    HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT child, BSTR* action) override;
    HRESULT STDMETHODCALLTYPE accSelect(LONG flags, VARIANT child) override;
    HRESULT STDMETHODCALLTYPE accLocation(LONG* left, LONG* top, LONG* width, LONG* height,
                                          VARIANT child) override;
    HRESULT STDMETHODCALLTYPE accNavigate(LONG direction, VARIANT start, VARIANT* end) override;
    HRESULT STDMETHODCALLTYPE accHitTest(LONG x, LONG y, VARIANT* child) override;
    /// Presses a button, as a click does. S_FALSE if it is disabled.
    HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) override;
    HRESULT STDMETHODCALLTYPE put_accName(VARIANT child, BSTR name) override;
    HRESULT STDMETHODCALLTYPE put_accValue(VARIANT child, BSTR value) override;

private:
    ~BarAccessible() = default;

    ULONG m_references = 1;
    const HWND m_window;
};

/// What a window of the bar answers to WM_GETOBJECT when its client area is asked for.
LRESULT answer_get_object(HWND bar, WPARAM flags);

}  // namespace lvx::controls
