// lvx/propdlg/accessible_tabs.h
//
// A strip as screen readers see it: a list of page tabs, which have names, places, states and the action of
// being chosen. The tabs are simple elements, numbered from 1. Counts its references, as COM wants it, and
// may outlive the strip: then it answers CO_E_OBJNOTCONNECTED. For the thread of the strip. Private to the
// library.
#pragma once

#include <windows.h>

#include <oleacc.h>

class TPropertyTab;

namespace lvx::propdlg {

/// The name of the message by which a strip is asked to select the tab wParam, if that can be chosen.
inline constexpr const char* choose_message = "LVX choose tab";

class AccessibleTabs final : public IAccessible {
public:
    /// With one reference, the caller's.
    explicit AccessibleTabs(TPropertyTab& strip) : m_strip(strip) {}
    AccessibleTabs(const AccessibleTabs&) = delete;
    AccessibleTabs& operator=(const AccessibleTabs&) = delete;

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override;
    STDMETHODIMP_(ULONG) Release() override;

    // By name: not offered.
    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo** info) override;
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override;
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override;

    STDMETHODIMP get_accParent(IDispatch** parent) override;
    STDMETHODIMP get_accChildCount(LONG* count) override;
    STDMETHODIMP get_accChild(VARIANT child, IDispatch** object) override;
    STDMETHODIMP get_accName(VARIANT child, BSTR* name) override;
    STDMETHODIMP get_accValue(VARIANT child, BSTR* value) override;
    STDMETHODIMP get_accDescription(VARIANT child, BSTR* description) override;
    STDMETHODIMP get_accRole(VARIANT child, VARIANT* role) override;
    STDMETHODIMP get_accState(VARIANT child, VARIANT* state) override;
    STDMETHODIMP get_accHelp(VARIANT child, BSTR* help) override;
    STDMETHODIMP get_accHelpTopic(BSTR* file, VARIANT child, LONG* topic) override;
    STDMETHODIMP get_accKeyboardShortcut(VARIANT child, BSTR* shortcut) override;
    STDMETHODIMP get_accFocus(VARIANT* child) override;
    STDMETHODIMP get_accSelection(VARIANT* child) override;
    STDMETHODIMP get_accDefaultAction(VARIANT child, BSTR* action) override;
    STDMETHODIMP accSelect(LONG flags, VARIANT child) override;
    STDMETHODIMP accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT child) override;
    STDMETHODIMP accNavigate(LONG direction, VARIANT from, VARIANT* to) override;
    STDMETHODIMP accHitTest(LONG left, LONG top, VARIANT* child) override;
    STDMETHODIMP accDoDefaultAction(VARIANT child) override;
    STDMETHODIMP put_accName(VARIANT, BSTR) override;
    STDMETHODIMP put_accValue(VARIANT, BSTR) override;

private:
    // Ends with its last reference.
    ~AccessibleTabs() = default;

    /// S_OK if the strip is there and has such an element; `tab` is then its index, -1 for the strip itself.
    HRESULT Find(const VARIANT& child, int& tab) const;
    HRESULT FindStrip() const;
    LONG StateOf(int tab) const;
    HRESULT Choose(int tab) const;

    TPropertyTab& m_strip;
    ULONG m_references = 1;
};

}  // namespace lvx::propdlg
