#include "lvx/controls/bar_accessible.h"

#include <algorithm>
#include <string>
#include <vector>

#include "lvx/controls/button_gadget.h"
#include "lvx/controls/control_bar.h"
#include "owl/tooltip.h"

namespace {

// Neither pressed nor checked, and to be seen.
constexpr LONG state_normal = 0;

LVXControlBar* bar_of(HWND window) {
    return dynamic_cast<LVXControlBar*>(owl::TWindow::FromHandle(window));
}

std::vector<owl::TGadget*> commands_of(const LVXControlBar& bar) {
    std::vector<owl::TGadget*> gadgets;
    for (owl::TGadget* gadget = bar.FirstGadget(); gadget != nullptr; gadget = gadget->NextGadget()) {
        if (gadget->GetId() > 0) {
            gadgets.push_back(gadget);
        }
    }
    return gadgets;
}

std::vector<HWND> controls_of(const LVXControlBar& bar) {
    std::vector<HWND> controls;
    for (HWND child = ::GetWindow(bar.GetHandle(), GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        controls.push_back(child);
    }
    return controls;
}

bool is_self(const VARIANT& child) {
    return child.vt == VT_I4 && child.lVal == CHILDID_SELF;
}

// The gadget that a child's number means; null if it means none.
owl::TGadget* gadget_of(const LVXControlBar& bar, const VARIANT& child) {
    const std::vector<owl::TGadget*> gadgets = commands_of(bar);
    const bool isGadget =
        child.vt == VT_I4 && child.lVal > 0 && child.lVal <= static_cast<LONG>(gadgets.size());
    return isGadget ? gadgets[static_cast<std::size_t>(child.lVal - 1)] : nullptr;
}

HRESULT answer_text(BSTR* text, const std::string& answer) {
    *text = nullptr;
    if (answer.empty()) {
        return S_FALSE;
    }
    const int length =
        ::MultiByteToWideChar(CP_ACP, 0, answer.data(), static_cast<int>(answer.size()), nullptr, 0);
    *text = ::SysAllocStringLen(nullptr, static_cast<UINT>(length));
    if (*text == nullptr) {
        return E_OUTOFMEMORY;
    }
    ::MultiByteToWideChar(CP_ACP, 0, answer.data(), static_cast<int>(answer.size()), *text, length);
    return S_OK;
}

HRESULT answer_number(VARIANT* variant, LONG number) {
    variant->vt = VT_I4;
    variant->lVal = number;
    return S_OK;
}

HRESULT answer_nothing(VARIANT* variant) {
    variant->vt = VT_EMPTY;
    return S_FALSE;
}

// Asked for the way a tip's text is.
std::string tip_of(LVXControlBar& bar, const owl::TGadget& gadget) {
    owl::TTooltipText text{};
    text.hdr.idFrom = static_cast<UINT_PTR>(gadget.GetId());
    owl::TTooltipEnabler enabler(text, bar);
    bar.AskWhetherEnabled(enabler);
    return text.lpszText != nullptr ? text.lpszText : "";
}

LONG role_of(const owl::TGadget& gadget) {
    const auto* const button = dynamic_cast<const LVXButtonGadget*>(&gadget);
    const auto type = button != nullptr ? button->GetButtonType() : LVXButtonGadget::Command;
    switch (type) {
        case LVXButtonGadget::Exclusive:
            return ROLE_SYSTEM_RADIOBUTTON;
        case LVXButtonGadget::NonExclusive:
            return ROLE_SYSTEM_CHECKBUTTON;
        default:
            return ROLE_SYSTEM_PUSHBUTTON;
    }
}

LONG state_of_button(const LVXButtonGadget& button) {
    switch (button.GetButtonState()) {
        case LVXButtonGadget::Down:
            return button.GetButtonType() == LVXButtonGadget::Command ? STATE_SYSTEM_PRESSED
                                                                      : STATE_SYSTEM_CHECKED;
        case LVXButtonGadget::Indeterminate:
            return STATE_SYSTEM_MIXED;
        default:
            return state_normal;
    }
}

LONG state_of(const LVXControlBar& bar, const owl::TGadget& gadget) {
    const auto* const button = dynamic_cast<const LVXButtonGadget*>(&gadget);
    LONG state = button != nullptr ? state_of_button(*button) : state_normal;
    if (!gadget.GetEnabled()) {
        state |= STATE_SYSTEM_UNAVAILABLE;
    }
    if (bar.AtMouse() == &gadget) {
        state |= STATE_SYSTEM_HOTTRACKED;
    }
    return bar.IsWindowVisible() ? state : state | STATE_SYSTEM_INVISIBLE;
}

owl::TRect place_of(const LVXControlBar& bar, const owl::TGadget* gadget) {
    owl::TRect place = gadget != nullptr ? gadget->GetBounds() : bar.GetClientRect();
    ::MapWindowPoints(bar.GetHandle(), nullptr, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

void press(owl::TGadget& gadget) {
    if (auto* const button = dynamic_cast<LVXButtonGadget*>(&gadget)) {
        button->Activate(owl::TPoint());
    } else {
        gadget.GetGadgetWindow()->PostMessage(WM_COMMAND, static_cast<WPARAM>(gadget.GetId()));
    }
}

// Nothing that a host's function throws may pass the border of COM.
template <class Answer>
HRESULT guarded(const Answer& answer) noexcept {
    try {
        return answer();
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (...) {
        return E_FAIL;
    }
}

/// Asks about the bar or one of its gadgets: `answer` gets both, the gadget null for the bar itself.
template <class Answer>
HRESULT about(HWND window, const VARIANT& child, const void* result, const Answer& answer) noexcept {
    if (result == nullptr) {
        return E_POINTER;
    }
    LVXControlBar* const bar = bar_of(window);
    if (bar == nullptr) {
        return CO_E_OBJNOTCONNECTED;
    }
    return guarded([&] {
        owl::TGadget* const gadget = gadget_of(*bar, child);
        return gadget != nullptr || is_self(child) ? answer(*bar, gadget) : E_INVALIDARG;
    });
}

VARIANT self() {
    VARIANT child{};
    child.vt = VT_I4;
    return child;
}

HRESULT answer_no_text(HWND window, const VARIANT& child, BSTR* text) {
    return about(window, child, text,
                 [&](LVXControlBar&, owl::TGadget*) { return answer_text(text, std::string()); });
}

}  // namespace

namespace lvx::controls {

BarAccessible::BarAccessible(HWND bar) : m_window(bar) {}

HRESULT BarAccessible::QueryInterface(REFIID id, void** object) {
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

ULONG BarAccessible::AddRef() {
    return ++m_references;
}

ULONG BarAccessible::Release() {
    const ULONG left = --m_references;
    if (left == 0) {
        delete this;
    }
    return left;
}

HRESULT BarAccessible::GetTypeInfoCount(UINT* count) {
    if (count == nullptr) {
        return E_POINTER;
    }
    *count = 0;
    return S_OK;
}

HRESULT BarAccessible::GetTypeInfo(UINT, LCID, ITypeInfo**) {
    return E_NOTIMPL;
}

HRESULT BarAccessible::GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) {
    return E_NOTIMPL;
}

HRESULT BarAccessible::Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) {
    return E_NOTIMPL;
}

HRESULT BarAccessible::get_accParent(IDispatch** parent) {
    return about(m_window, self(), parent, [&](LVXControlBar&, owl::TGadget*) {
        *parent = nullptr;
        return ::AccessibleObjectFromWindow(m_window, static_cast<DWORD>(OBJID_WINDOW), IID_IDispatch,
                                            reinterpret_cast<void**>(parent));
    });
}

HRESULT BarAccessible::get_accChildCount(LONG* count) {
    return about(m_window, self(), count, [&](LVXControlBar& bar, owl::TGadget*) {
        *count = static_cast<LONG>(commands_of(bar).size() + controls_of(bar).size());
        return S_OK;
    });
}

// Gadgets are no objects of their own; the windows in the bar are.
HRESULT BarAccessible::get_accChild(VARIANT child, IDispatch** object) {
    if (object == nullptr) {
        return E_POINTER;
    }
    *object = nullptr;
    const LVXControlBar* const bar = bar_of(m_window);
    if (bar == nullptr) {
        return CO_E_OBJNOTCONNECTED;
    }
    return guarded([&]() -> HRESULT {
        if (is_self(child) || gadget_of(*bar, child) != nullptr) {
            return S_FALSE;
        }
        const std::vector<HWND> controls = controls_of(*bar);
        const LONG index =
            child.vt == VT_I4 ? child.lVal - 1 - static_cast<LONG>(commands_of(*bar).size()) : -1;
        if (index < 0 || index >= static_cast<LONG>(controls.size())) {
            return E_INVALIDARG;
        }
        return ::AccessibleObjectFromWindow(controls[static_cast<std::size_t>(index)],
                                            static_cast<DWORD>(OBJID_WINDOW), IID_IDispatch,
                                            reinterpret_cast<void**>(object));
    });
}

HRESULT BarAccessible::get_accName(VARIANT child, BSTR* name) {
    return about(m_window, child, name, [&](LVXControlBar& bar, owl::TGadget* gadget) {
        return answer_text(name, gadget != nullptr ? tip_of(bar, *gadget) : bar.GetWindowText());
    });
}

HRESULT BarAccessible::get_accValue(VARIANT child, BSTR* value) {
    return answer_no_text(m_window, child, value);
}

HRESULT BarAccessible::get_accDescription(VARIANT child, BSTR* description) {
    return answer_no_text(m_window, child, description);
}

HRESULT BarAccessible::get_accRole(VARIANT child, VARIANT* role) {
    return about(m_window, child, role, [&](LVXControlBar&, owl::TGadget* gadget) {
        return answer_number(role, gadget != nullptr ? role_of(*gadget) : ROLE_SYSTEM_TOOLBAR);
    });
}

HRESULT BarAccessible::get_accState(VARIANT child, VARIANT* state) {
    return about(m_window, child, state, [&](LVXControlBar& bar, owl::TGadget* gadget) {
        const LONG ofBar = bar.IsWindowVisible() ? state_normal : STATE_SYSTEM_INVISIBLE;
        return answer_number(state, gadget != nullptr ? state_of(bar, *gadget) : ofBar);
    });
}

HRESULT BarAccessible::get_accHelp(VARIANT child, BSTR* help) {
    return answer_no_text(m_window, child, help);
}

HRESULT BarAccessible::get_accHelpTopic(BSTR* file, VARIANT child, LONG* topic) {
    if (topic == nullptr) {
        return E_POINTER;
    }
    *topic = 0;
    return answer_no_text(m_window, child, file);
}

// The keys of commands are those of the host's menu.
HRESULT BarAccessible::get_accKeyboardShortcut(VARIANT child, BSTR* keys) {
    return answer_no_text(m_window, child, keys);
}

HRESULT BarAccessible::get_accFocus(VARIANT* child) {
    return child != nullptr ? answer_nothing(child) : E_POINTER;
}

HRESULT BarAccessible::get_accSelection(VARIANT* children) {
    return children != nullptr ? answer_nothing(children) : E_POINTER;
}

HRESULT BarAccessible::get_accDefaultAction(VARIANT child, BSTR* action) {
    return about(m_window, child, action, [&](LVXControlBar&, owl::TGadget* gadget) {
        return answer_text(action, gadget != nullptr ? "Press" : "");
    });
}

HRESULT BarAccessible::accSelect(LONG, VARIANT) {
    return DISP_E_MEMBERNOTFOUND;
}

HRESULT BarAccessible::accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT child) {
    if (top == nullptr || width == nullptr || height == nullptr) {
        return E_POINTER;
    }
    return about(m_window, child, left, [&](LVXControlBar& bar, owl::TGadget* gadget) {
        const owl::TRect place = place_of(bar, gadget);
        *left = place.left;
        *top = place.top;
        *width = place.Width();
        *height = place.Height();
        return S_OK;
    });
}

HRESULT BarAccessible::accNavigate(LONG direction, VARIANT start, VARIANT* end) {
    return about(m_window, start, end, [&](LVXControlBar& bar, owl::TGadget* gadget) {
        const auto last = static_cast<LONG>(commands_of(bar).size());
        LONG there = 0;
        if (gadget == nullptr) {
            there = direction == NAVDIR_FIRSTCHILD ? 1 : direction == NAVDIR_LASTCHILD ? last : 0;
        } else if (direction == NAVDIR_NEXT) {
            there = start.lVal + 1;
        } else if (direction == NAVDIR_PREVIOUS) {
            there = start.lVal - 1;
        }
        return there >= 1 && there <= last ? answer_number(end, there) : answer_nothing(end);
    });
}

HRESULT BarAccessible::accHitTest(LONG x, LONG y, VARIANT* child) {
    return about(m_window, self(), child, [&](LVXControlBar& bar, owl::TGadget*) {
        owl::TPoint point(x, y);
        bar.ScreenToClient(point);
        if (!bar.GetClientRect().Contains(point)) {
            return answer_nothing(child);
        }
        const std::vector<owl::TGadget*> gadgets = commands_of(bar);
        const auto found = std::find(gadgets.begin(), gadgets.end(), bar.GadgetFromPoint(point));
        return answer_number(
            child, found != gadgets.end() ? static_cast<LONG>(found - gadgets.begin()) + 1 : CHILDID_SELF);
    });
}

HRESULT BarAccessible::accDoDefaultAction(VARIANT child) {
    return about(m_window, child, this, [&](LVXControlBar&, owl::TGadget* gadget) -> HRESULT {
        if (gadget == nullptr) {
            return DISP_E_MEMBERNOTFOUND;
        }
        if (!gadget->GetEnabled()) {
            return S_FALSE;
        }
        press(*gadget);
        return S_OK;
    });
}

HRESULT BarAccessible::put_accName(VARIANT, BSTR) {
    return DISP_E_MEMBERNOTFOUND;
}

HRESULT BarAccessible::put_accValue(VARIANT, BSTR) {
    return DISP_E_MEMBERNOTFOUND;
}

LRESULT answer_get_object(HWND bar, WPARAM flags) {
    auto* const object = new BarAccessible(bar);
    const LRESULT answer = ::LresultFromObject(__uuidof(IAccessible), flags, object);
    object->Release();
    return answer;
}

}  // namespace lvx::controls
