#include "lvx/controls/sample_accessible.h"

#include <string>

#include "lvx/controls/custom_colour_dialog.h"

namespace lvx::controls {

namespace {

const ColourSample* sample_of(HWND window) {
    return dynamic_cast<const ColourSample*>(owl::TWindow::FromHandle(window));
}

HRESULT answer_text(BSTR* text, const std::wstring& answer) {
    *text = nullptr;
    if (answer.empty()) {
        return S_FALSE;
    }
    *text = ::SysAllocStringLen(answer.data(), static_cast<UINT>(answer.size()));
    return *text != nullptr ? S_OK : E_OUTOFMEMORY;
}

std::wstring text_of(HWND window) {
    std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(window)), L'\0');
    const int length = ::GetWindowTextW(window, text.data(), static_cast<int>(text.size()) + 1);
    text.resize(static_cast<std::size_t>(length));
    return text;
}

std::wstring text_of(owl::TColor colour) {
    return std::to_wstring(colour.Red()) + L", " + std::to_wstring(colour.Green()) + L", " +
           std::to_wstring(colour.Blue());
}

/// Asks about the sample itself: `answer` gets it. No exception may pass the border of COM.
template <class Answer>
HRESULT about(HWND window, const VARIANT& child, const void* result, const Answer& answer) noexcept {
    if (result == nullptr) {
        return E_POINTER;
    }
    const ColourSample* const sample = sample_of(window);
    if (sample == nullptr) {
        return CO_E_OBJNOTCONNECTED;
    }
    if (child.vt != VT_I4 || child.lVal != CHILDID_SELF) {
        return E_INVALIDARG;
    }
    try {
        return answer(*sample);
    } catch (...) {
        return E_OUTOFMEMORY;
    }
}

}  // namespace

SampleAccessible::SampleAccessible(HWND sample, IAccessible* standard)
    : m_window(sample), m_standard(standard) {
    m_standard->AddRef();
}

SampleAccessible::~SampleAccessible() {
    m_standard->Release();
}

HRESULT SampleAccessible::QueryInterface(REFIID id, void** object) {
    if (object == nullptr) {
        return E_POINTER;
    }
    const bool isKnown = ::IsEqualIID(id, IID_IUnknown) || ::IsEqualIID(id, IID_IDispatch) ||
                         ::IsEqualIID(id, __uuidof(IAccessible));
    *object = isKnown ? static_cast<IAccessible*>(this) : nullptr;
    if (!isKnown) {
        return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
}

ULONG SampleAccessible::AddRef() {
    return ++m_references;
}

ULONG SampleAccessible::Release() {
    const ULONG left = --m_references;
    if (left == 0) {
        delete this;
    }
    return left;
}

HRESULT SampleAccessible::get_accName(VARIANT child, BSTR* name) {
    return about(m_window, child, name, [&](const ColourSample& sample) {
        return answer_text(name, text_of(sample.getFrame()->GetHandle()));
    });
}

HRESULT SampleAccessible::get_accValue(VARIANT child, BSTR* value) {
    return about(m_window, child, value,
                 [&](const ColourSample& sample) { return answer_text(value, text_of(sample.getColour())); });
}

HRESULT SampleAccessible::get_accRole(VARIANT child, VARIANT* role) {
    return about(m_window, child, role, [&](const ColourSample&) {
        role->vt = VT_I4;
        role->lVal = ROLE_SYSTEM_GRAPHIC;
        return S_OK;
    });
}

// What the system answers.

HRESULT SampleAccessible::GetTypeInfoCount(UINT* count) {
    return m_standard->GetTypeInfoCount(count);
}

HRESULT SampleAccessible::GetTypeInfo(UINT index, LCID language, ITypeInfo** info) {
    return m_standard->GetTypeInfo(index, language, info);
}

HRESULT SampleAccessible::GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID language, DISPID* ids) {
    return m_standard->GetIDsOfNames(id, names, count, language, ids);
}

HRESULT SampleAccessible::Invoke(DISPID member, REFIID id, LCID language, WORD flags, DISPPARAMS* parameters,
                                 VARIANT* result, EXCEPINFO* exception, UINT* argument) {
    return m_standard->Invoke(member, id, language, flags, parameters, result, exception, argument);
}

HRESULT SampleAccessible::get_accParent(IDispatch** parent) {
    return m_standard->get_accParent(parent);
}

HRESULT SampleAccessible::get_accChildCount(LONG* count) {
    return m_standard->get_accChildCount(count);
}

HRESULT SampleAccessible::get_accChild(VARIANT child, IDispatch** object) {
    return m_standard->get_accChild(child, object);
}

HRESULT SampleAccessible::get_accDescription(VARIANT child, BSTR* description) {
    return m_standard->get_accDescription(child, description);
}

HRESULT SampleAccessible::get_accState(VARIANT child, VARIANT* state) {
    return m_standard->get_accState(child, state);
}

HRESULT SampleAccessible::get_accHelp(VARIANT child, BSTR* help) {
    return m_standard->get_accHelp(child, help);
}

HRESULT SampleAccessible::get_accHelpTopic(BSTR* file, VARIANT child, LONG* topic) {
    return m_standard->get_accHelpTopic(file, child, topic);
}

HRESULT SampleAccessible::get_accKeyboardShortcut(VARIANT child, BSTR* keys) {
    return m_standard->get_accKeyboardShortcut(child, keys);
}

HRESULT SampleAccessible::get_accFocus(VARIANT* child) {
    return m_standard->get_accFocus(child);
}

HRESULT SampleAccessible::get_accSelection(VARIANT* children) {
    return m_standard->get_accSelection(children);
}

HRESULT SampleAccessible::get_accDefaultAction(VARIANT child, BSTR* action) {
    return m_standard->get_accDefaultAction(child, action);
}

HRESULT SampleAccessible::accSelect(LONG flags, VARIANT child) {
    return m_standard->accSelect(flags, child);
}

HRESULT SampleAccessible::accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT child) {
    return m_standard->accLocation(left, top, width, height, child);
}

HRESULT SampleAccessible::accNavigate(LONG direction, VARIANT start, VARIANT* end) {
    return m_standard->accNavigate(direction, start, end);
}

HRESULT SampleAccessible::accHitTest(LONG x, LONG y, VARIANT* child) {
    return m_standard->accHitTest(x, y, child);
}

HRESULT SampleAccessible::accDoDefaultAction(VARIANT child) {
    return m_standard->accDoDefaultAction(child);
}

HRESULT SampleAccessible::put_accName(VARIANT child, BSTR name) {
    return m_standard->put_accName(child, name);
}

HRESULT SampleAccessible::put_accValue(VARIANT child, BSTR value) {
    return m_standard->put_accValue(child, value);
}

LRESULT answer_get_object_of_sample(HWND sample, WPARAM flags) {
    void* standard = nullptr;
    const HRESULT result = ::CreateStdAccessibleObject(sample, static_cast<LONG>(OBJID_CLIENT),
                                                       __uuidof(IAccessible), &standard);
    if (FAILED(result)) {
        return 0;
    }
    auto* const accessible = static_cast<IAccessible*>(standard);
    auto* const object = new SampleAccessible(sample, accessible);
    accessible->Release();
    const LRESULT answer = ::LresultFromObject(__uuidof(IAccessible), flags, object);
    object->Release();
    return answer;
}

}  // namespace lvx::controls
