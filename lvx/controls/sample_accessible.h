// lvx/controls/sample_accessible.h
//
// A sample of a colour as screen readers and other aids find it: a graphic that has the text of its frame for
// a name, and its colour, as in "178, 34, 35", for a value. All else is what the system tells of any window.
//
// An object of COM: born with one reference, gone with the last. It knows the sample by its window, may
// outlive it, and answers CO_E_OBJNOTCONNECTED then. For the thread of the sample. Private to the library.
// Windows only.
#pragma once

#include <windows.h>

#include <objbase.h>
#include <oleacc.h>

namespace lvx::controls {

class SampleAccessible final : public IAccessible {
public:
    /// For the sample whose window is `sample`. `standard` is the system's object for it, not null.
    SampleAccessible(HWND sample, IAccessible* standard);
    SampleAccessible(const SampleAccessible&) = delete;
    SampleAccessible& operator=(const SampleAccessible&) = delete;

    // IUnknown

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override;
    ULONG STDMETHODCALLTYPE Release() override;

    // What is known better. E_INVALIDARG for a child, for there are none; S_FALSE for a name that is empty.

    HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) override;
    HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* value) override;
    HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) override;

    // What the system answers.

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID language, ITypeInfo** info) override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID language,
                                            DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID id, LCID language, WORD flags,
                                     DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                                     UINT* argument) override;
    HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) override;
    HRESULT STDMETHODCALLTYPE get_accChildCount(LONG* count) override;
    HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch** object) override;
    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* description) override;
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
    HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) override;
    HRESULT STDMETHODCALLTYPE put_accName(VARIANT child, BSTR name) override;
    HRESULT STDMETHODCALLTYPE put_accValue(VARIANT child, BSTR value) override;

private:
    ~SampleAccessible();

    ULONG m_references = 1;
    const HWND m_window;
    IAccessible* const m_standard;
};

/// What a sample answers to WM_GETOBJECT when its client area is asked for; 0 if the system has no object for
/// its window.
LRESULT answer_get_object_of_sample(HWND sample, WPARAM flags);

}  // namespace lvx::controls
