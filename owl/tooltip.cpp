#include "owl/tooltip.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <string>
#include <utility>

#include "owl/command_text.h"

namespace owl {

namespace {

void LoadTooltips() {
    INITCOMMONCONTROLSEX controls{sizeof controls, ICC_BAR_CLASSES};
    ::InitCommonControlsEx(&controls);
}

// The last member of the structure is not known to every version of the control.
TOOLINFOA ToolOf(const TWindow& window, UINT_PTR id) {
    TOOLINFOA tool{};
    tool.cbSize = TTTOOLINFOA_V2_SIZE;
    tool.hwnd = window.GetHandle();
    tool.uId = id;
    return tool;
}

UINT_PTR IdOf(HWND control) {
    return reinterpret_cast<UINT_PTR>(control);
}

bool SendTool(const TWindow& tooltip, UINT msg, const TOOLINFOA& tool) {
    return tooltip.SendMessage(msg, 0, reinterpret_cast<LPARAM>(&tool)) != 0;
}

// The control only reads the text, though its structure does not say so.
char* TextOrQuestion(const char* text) {
    return text != nullptr ? const_cast<char*>(text) : LPSTR_TEXTCALLBACKA;
}

UINT CommandOf(const TTooltipText& text) {
    if ((text.uFlags & TTF_IDISHWND) == 0)
        return static_cast<UINT>(text.hdr.idFrom);
    return static_cast<UINT>(::GetDlgCtrlID(reinterpret_cast<HWND>(text.hdr.idFrom)));
}

// Texts that do not fit into the question; the control reads them behind it, and before the next.
thread_local std::string long_text;

}  // namespace

TTooltip::TTooltip(TWindow* parent, bool alwaysTip, TModule* module) {
    LoadTooltips();
    Init(parent, nullptr, module);
    Attr.Style = WS_POPUP | (alwaysTip ? TTS_ALWAYSTIP : 0);
    Attr.ExStyle = WS_EX_TOPMOST;
}

TTooltip::~TTooltip() = default;

const char* TTooltip::GetClassName() {
    return TOOLTIPS_CLASSA;
}

void TTooltip::SetupWindow() {
    m_atWork = 0;
    m_ends = false;
    TWindow::SetupWindow();
}

void TTooltip::Destroy(int retVal) {
    if (m_atWork == 0 || !IsWindow()) {
        TWindow::Destroy(retVal);
        return;
    }
    m_ends = true;
    ShowWindow(SW_HIDE);
}

// Whoever is asked may delete the object, or end the window by way of its owner.
struct TTooltip::AtWork {
    explicit AtWork(TTooltip& theTooltip) : tooltip(theTooltip), handle(theTooltip.GetHandle()) {
        ++tooltip.m_atWork;
    }
    ~AtWork() {
        if (FromHandle(handle) != &tooltip)
            return;
        --tooltip.m_atWork;
        if (tooltip.m_atWork == 0 && std::exchange(tooltip.m_ends, false))
            ::DestroyWindow(handle);
    }
    AtWork(const AtWork&) = delete;
    AtWork& operator=(const AtWork&) = delete;

    TTooltip& tooltip;
    const HWND handle;
};

LRESULT TTooltip::WindowProc(UINT msg, WPARAM wParam, LPARAM lParam) {
    const AtWork work(*this);
    return TWindow::WindowProc(msg, wParam, lParam);
}

bool TTooltip::AddTool(const TWindow& window, const TRect& rect, UINT id, const char* text) {
    TOOLINFOA tool = ToolOf(window, id);
    tool.rect = rect;
    tool.lpszText = TextOrQuestion(text);
    return IsWindow() && SendTool(*this, TTM_ADDTOOLA, tool);
}

bool TTooltip::AddTool(const TWindow& window, HWND control, const char* text) {
    TOOLINFOA tool = ToolOf(window, IdOf(control));
    tool.uFlags = TTF_IDISHWND;
    tool.lpszText = TextOrQuestion(text);
    return IsWindow() && ::IsWindow(control) && SendTool(*this, TTM_ADDTOOLA, tool);
}

void TTooltip::SetToolRect(const TWindow& window, UINT id, const TRect& rect) {
    TOOLINFOA tool = ToolOf(window, id);
    tool.rect = rect;
    SendTool(*this, TTM_NEWTOOLRECTA, tool);
}

void TTooltip::RemoveTool(const TWindow& window, UINT id) {
    SendTool(*this, TTM_DELTOOLA, ToolOf(window, id));
}

void TTooltip::RemoveTool(const TWindow& window, HWND control) {
    SendTool(*this, TTM_DELTOOLA, ToolOf(window, IdOf(control)));
}

void TTooltip::RemoveAllTools() {
    for (unsigned left = NumTools(); left > 0; --left) {
        TOOLINFOA tool{};
        tool.cbSize = TTTOOLINFOA_V2_SIZE;
        if (SendMessage(TTM_ENUMTOOLSA, 0, reinterpret_cast<LPARAM>(&tool)) != 0)
            SendTool(*this, TTM_DELTOOLA, tool);
    }
}

unsigned TTooltip::NumTools() const {
    return static_cast<unsigned>(SendMessage(TTM_GETTOOLCOUNT));
}

void TTooltip::Activate(bool activate) {
    SendMessage(TTM_ACTIVATE, activate);
}

void TTooltip::SetDelay(TDelay which, int milliseconds) {
    SendMessage(TTM_SETDELAYTIME, which, std::clamp(milliseconds, 0, SHRT_MAX));
}

void TTooltip::RelayEvent(const MSG& msg) {
    MSG copy = msg;
    SendMessage(TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&copy));
}

TTooltipEnabler::TTooltipEnabler(TTooltipText& text, TWindow& window)
    : TCommandEnabler(CommandOf(text), window.GetHandle()), m_text(text) {
    TTooltipEnabler::SetText(TipText(window.GetModule(), GetId()).c_str());
}

void TTooltipEnabler::SetText(const char* text) {
    const std::string given = text != nullptr ? text : "";
    m_text.hinst = nullptr;
    if (given.size() < sizeof m_text.szText) {
        std::memcpy(m_text.szText, given.c_str(), given.size() + 1);
        m_text.lpszText = m_text.szText;
    } else {
        long_text = given;
        m_text.lpszText = long_text.data();
    }
}

void TTooltipEnabler::SetCheck(int check) {
    static_cast<void>(check);
}

}  // namespace owl
