#include "lvx/propdlg/accessible_tabs.h"

#include <string>

#include "lvx/propdlg/hot_key.h"
#include "lvx/propdlg/pressed_key.h"
#include "lvx/propdlg/property_tab.h"
#include "lvx/propdlg/shared_state.h"

namespace lvx::propdlg {

namespace {

constexpr int strip_itself = -1;

VARIANT number(LONG value) {
    VARIANT variant;
    variant.vt = VT_I4;
    variant.lVal = value;
    return variant;
}

VARIANT nothing() {
    VARIANT variant;
    variant.vt = VT_EMPTY;
    return variant;
}

HRESULT give_text(const std::string& text, BSTR* result) {
    const int length = static_cast<int>(text.size());
    const int wide = ::MultiByteToWideChar(CP_ACP, 0, text.data(), length, nullptr, 0);
    *result = ::SysAllocStringLen(nullptr, static_cast<UINT>(wide));
    if (*result == nullptr)
        return E_OUTOFMEMORY;
    ::MultiByteToWideChar(CP_ACP, 0, text.data(), length, *result, wide);
    return S_OK;
}

HRESULT give_no_text(BSTR* result) {
    if (result == nullptr)
        return E_POINTER;
    *result = nullptr;
    return S_FALSE;
}

}  // namespace

// References

STDMETHODIMP AccessibleTabs::QueryInterface(REFIID iid, void** object) {
    if (object == nullptr)
        return E_POINTER;
    // Not by the interface's own name: the import library has a thunk of that name where the number should
    // be.
    const bool isOurs = IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, IID_IDispatch) ||
                        IsEqualIID(iid, __uuidof(IAccessible));
    *object = isOurs ? this : nullptr;
    if (!isOurs)
        return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

STDMETHODIMP_(ULONG) AccessibleTabs::AddRef() {
    return ++m_references;
}

STDMETHODIMP_(ULONG) AccessibleTabs::Release() {
    const ULONG left = --m_references;
    if (left == 0)
        delete this;
    return left;
}

// Which element

HRESULT AccessibleTabs::FindStrip() const {
    return is_alive(&m_strip) && m_strip.IsWindow() ? S_OK : CO_E_OBJNOTCONNECTED;
}

HRESULT AccessibleTabs::Find(const VARIANT& child, int& tab) const {
    const HRESULT found = FindStrip();
    if (found != S_OK)
        return found;
    if (child.vt != VT_I4 || child.lVal < CHILDID_SELF || child.lVal > m_strip.GetEntryCount())
        return E_INVALIDARG;
    tab = static_cast<int>(child.lVal) - 1;
    return S_OK;
}

STDMETHODIMP AccessibleTabs::get_accParent(IDispatch** parent) {
    if (parent == nullptr)
        return E_POINTER;
    *parent = nullptr;
    const HRESULT found = FindStrip();
    if (found != S_OK)
        return found;
    return ::AccessibleObjectFromWindow(m_strip.GetHandle(), static_cast<DWORD>(OBJID_WINDOW), IID_IDispatch,
                                        reinterpret_cast<void**>(parent));
}

STDMETHODIMP AccessibleTabs::get_accChildCount(LONG* count) {
    if (count == nullptr)
        return E_POINTER;
    *count = 0;
    const HRESULT found = FindStrip();
    if (found == S_OK)
        *count = m_strip.GetEntryCount();
    return found;
}

// Tabs are simple elements: they have no objects of their own.
STDMETHODIMP AccessibleTabs::get_accChild(VARIANT child, IDispatch** object) {
    if (object == nullptr)
        return E_POINTER;
    *object = nullptr;
    int tab = 0;
    const HRESULT found = Find(child, tab);
    return found == S_OK ? S_FALSE : found;
}

// What it is

STDMETHODIMP AccessibleTabs::get_accName(VARIANT child, BSTR* name) {
    if (name == nullptr)
        return E_POINTER;
    *name = nullptr;
    int tab = 0;
    const HRESULT found = Find(child, tab);
    if (found != S_OK)
        return found;
    return tab == strip_itself ? S_FALSE : give_text(shown_text(m_strip.GetTabText(tab)), name);
}

STDMETHODIMP AccessibleTabs::get_accRole(VARIANT child, VARIANT* role) {
    if (role == nullptr)
        return E_POINTER;
    *role = nothing();
    int tab = 0;
    const HRESULT found = Find(child, tab);
    if (found == S_OK)
        *role = number(tab == strip_itself ? ROLE_SYSTEM_PAGETABLIST : ROLE_SYSTEM_PAGETAB);
    return found;
}

LONG AccessibleTabs::StateOf(int tab) const {
    const bool hasFocus = ::GetFocus() == m_strip.GetHandle();
    if (tab == strip_itself)
        return hasFocus ? STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_FOCUSED : STATE_SYSTEM_FOCUSABLE;
    LONG state = STATE_SYSTEM_SELECTABLE | STATE_SYSTEM_FOCUSABLE;
    if (!m_strip.IsTabEnabled(tab))
        state = STATE_SYSTEM_UNAVAILABLE;
    if (!m_strip.IsTabVisible(tab))
        return state | STATE_SYSTEM_INVISIBLE;
    owl::TRect rect;
    if (!m_strip.GetTabRect(rect, tab, -1) || rect.left >= m_strip.GetClientRect().right)
        state |= STATE_SYSTEM_OFFSCREEN;
    if (m_strip.IsTabSelected(tab))
        state |= hasFocus ? STATE_SYSTEM_SELECTED | STATE_SYSTEM_FOCUSED : STATE_SYSTEM_SELECTED;
    return state;
}

STDMETHODIMP AccessibleTabs::get_accState(VARIANT child, VARIANT* state) {
    if (state == nullptr)
        return E_POINTER;
    *state = nothing();
    int tab = 0;
    const HRESULT found = Find(child, tab);
    if (found == S_OK)
        *state = number(StateOf(tab));
    return found;
}

STDMETHODIMP AccessibleTabs::get_accKeyboardShortcut(VARIANT child, BSTR* shortcut) {
    if (shortcut == nullptr)
        return E_POINTER;
    *shortcut = nullptr;
    int tab = 0;
    const HRESULT found = Find(child, tab);
    if (found != S_OK)
        return found;
    const char key = tab == strip_itself ? '\0' : hot_key_of(m_strip.GetTabText(tab));
    return key == 0 ? S_FALSE : give_text(std::string("Alt+") + key, shortcut);
}

STDMETHODIMP AccessibleTabs::get_accValue(VARIANT, BSTR* value) {
    return give_no_text(value);
}

STDMETHODIMP AccessibleTabs::get_accDescription(VARIANT, BSTR* description) {
    return give_no_text(description);
}

STDMETHODIMP AccessibleTabs::get_accHelp(VARIANT, BSTR* help) {
    return give_no_text(help);
}

STDMETHODIMP AccessibleTabs::get_accHelpTopic(BSTR* file, VARIANT, LONG* topic) {
    if (topic != nullptr)
        *topic = 0;
    return give_no_text(file);
}

// Which one has the focus, which one is selected

STDMETHODIMP AccessibleTabs::get_accSelection(VARIANT* child) {
    if (child == nullptr)
        return E_POINTER;
    *child = nothing();
    const HRESULT found = FindStrip();
    if (found == S_OK && m_strip.GetSelectedTab() < m_strip.GetEntryCount())
        *child = number(m_strip.GetSelectedTab() + 1);
    return found;
}

STDMETHODIMP AccessibleTabs::get_accFocus(VARIANT* child) {
    const HRESULT found = get_accSelection(child);
    if (found == S_OK && ::GetFocus() != m_strip.GetHandle())
        *child = nothing();
    return found;
}

// Where it is

STDMETHODIMP AccessibleTabs::accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT child) {
    if (left == nullptr || top == nullptr || width == nullptr || height == nullptr)
        return E_POINTER;
    *left = *top = *width = *height = 0;
    int tab = 0;
    const HRESULT found = Find(child, tab);
    if (found != S_OK)
        return found;
    owl::TRect rect = m_strip.GetClientRect();
    if (tab != strip_itself && !m_strip.GetTabRect(rect, tab, -1))
        return S_FALSE;
    owl::TPoint corner = rect.TopLeft();
    m_strip.ClientToScreen(corner);
    *left = corner.x;
    *top = corner.y;
    *width = rect.Width();
    *height = rect.Height();
    return S_OK;
}

STDMETHODIMP AccessibleTabs::accHitTest(LONG left, LONG top, VARIANT* child) {
    if (child == nullptr)
        return E_POINTER;
    *child = nothing();
    const HRESULT found = FindStrip();
    if (found != S_OK)
        return found;
    owl::TPoint point(left, top);
    m_strip.ScreenToClient(point);
    for (int tab = 0; tab < m_strip.GetEntryCount(); ++tab) {
        owl::TRect rect;
        if (m_strip.GetTabRect(rect, tab, -1) && rect.Contains(point)) {
            *child = number(tab + 1);
            return S_OK;
        }
    }
    if (!m_strip.GetClientRect().Contains(point))
        return S_FALSE;
    *child = number(CHILDID_SELF);
    return S_OK;
}

STDMETHODIMP AccessibleTabs::accNavigate(LONG direction, VARIANT from, VARIANT* to) {
    if (to == nullptr)
        return E_POINTER;
    *to = nothing();
    int tab = 0;
    const HRESULT found = Find(from, tab);
    if (found != S_OK)
        return found;
    const int last = m_strip.GetEntryCount() - 1;
    int next = -1;
    if (tab == strip_itself)
        next = direction == NAVDIR_FIRSTCHILD ? 0 : direction == NAVDIR_LASTCHILD ? last : -1;
    else if (direction == NAVDIR_NEXT || direction == NAVDIR_RIGHT)
        next = tab + 1;
    else if (direction == NAVDIR_PREVIOUS || direction == NAVDIR_LEFT)
        next = tab - 1;
    if (next < 0 || next > last)
        return S_FALSE;
    *to = number(next + 1);
    return S_OK;
}

// What it does

STDMETHODIMP AccessibleTabs::get_accDefaultAction(VARIANT child, BSTR* action) {
    if (action == nullptr)
        return E_POINTER;
    *action = nullptr;
    int tab = 0;
    const HRESULT found = Find(child, tab);
    if (found != S_OK)
        return found;
    return tab == strip_itself ? S_FALSE : give_text("Switch", action);
}

// Later, by a message: pages are asked, which takes its time and may throw.
HRESULT AccessibleTabs::Choose(int tab) const {
    if (tab == strip_itself)
        return DISP_E_MEMBERNOTFOUND;
    const bool isPosted =
        m_strip.PostMessage(::RegisterWindowMessageA(choose_message), static_cast<WPARAM>(tab));
    return isPosted ? S_OK : E_FAIL;
}

STDMETHODIMP AccessibleTabs::accDoDefaultAction(VARIANT child) {
    int tab = 0;
    const HRESULT found = Find(child, tab);
    return found == S_OK ? Choose(tab) : found;
}

STDMETHODIMP AccessibleTabs::accSelect(LONG flags, VARIANT child) {
    int tab = 0;
    const HRESULT found = Find(child, tab);
    if (found != S_OK)
        return found;
    // Choosing a tab moves the focus as well.
    return (flags & (SELFLAG_TAKESELECTION | SELFLAG_TAKEFOCUS)) != 0 ? Choose(tab) : E_INVALIDARG;
}

STDMETHODIMP AccessibleTabs::put_accName(VARIANT, BSTR) {
    return DISP_E_MEMBERNOTFOUND;
}

STDMETHODIMP AccessibleTabs::put_accValue(VARIANT, BSTR) {
    return DISP_E_MEMBERNOTFOUND;
}

// By name

STDMETHODIMP AccessibleTabs::GetTypeInfoCount(UINT* count) {
    if (count == nullptr)
        return E_POINTER;
    *count = 0;
    return S_OK;
}

STDMETHODIMP AccessibleTabs::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
    if (info != nullptr)
        *info = nullptr;
    return E_NOTIMPL;
}

STDMETHODIMP AccessibleTabs::GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) {
    return E_NOTIMPL;
}

STDMETHODIMP AccessibleTabs::Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) {
    return E_NOTIMPL;
}

}  // namespace lvx::propdlg
