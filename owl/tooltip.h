// owl/tooltip.h
//
// The small window that tells what is under the mouse once it rests there: the system's common control. It
// knows tools, which are windows or rectangles in windows, each with its text or with the wish to be asked
// for it, and shows the text of the tool under the mouse. It sees of the mouse what RelayEvent brings it.
//
// A tip without a text of its own is asked for when it is about to show: the tool's window gets a WM_NOTIFY
// with TTN_NEEDTEXT, makes a TTooltipEnabler of it and sends that the way of all questions about commands. A
// TTooltip is a child object of the window that uses it and ends with it. Used on that window's thread.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include "owl/command_enabler.h"
#include "owl/window.h"

namespace owl {

/// What comes with TTN_NEEDTEXT.
using TTooltipText = NMTTDISPINFOA;

class OWL_EXPORT TTooltip : virtual public TWindow {
public:
    /// The times that SetDelay() sets.
    enum TDelay {
        /// All three, in the system's proportions.
        Automatic = TTDT_AUTOMATIC,
        /// How long the mouse rests until the tip shows.
        Initial = TTDT_INITIAL,
        /// How long it then stays.
        AutoPop = TTDT_AUTOPOP,
        /// Until the next one, while the mouse goes from tool to tool.
        Reshow = TTDT_RESHOW,
    };

    /// With `alwaysTip` tips show in windows that are not active, too.
    explicit TTooltip(TWindow* parent, bool alwaysTip = true, TModule* module = nullptr);
    ~TTooltip() override;

    // All of these need the tooltip's window: before Create and after its end they do nothing and answer
    // false or 0. A null text is asked for by TTN_NEEDTEXT; a tool with an empty one shows nothing.

    /// Makes `rect`, in the client area of `window`, a tool; `id` tells it from others of that window and is
    /// what the question for its text is about. False if the control refuses.
    bool AddTool(const TWindow& window, const TRect& rect, UINT id, const char* text = nullptr);
    /// Makes all of `control`, a child of `window`, a tool: the question for its text goes to `window` and is
    /// about the control's id. False if the control refuses.
    bool AddTool(const TWindow& window, HWND control, const char* text = nullptr);
    /// Moves a tool that is a rectangle. Nothing happens if there is none.
    void SetToolRect(const TWindow& window, UINT id, const TRect& rect);
    void RemoveTool(const TWindow& window, UINT id);
    void RemoveTool(const TWindow& window, HWND control);
    void RemoveAllTools();
    unsigned NumTools() const;

    /// Shows tips from now on, as it does at first, or none.
    void Activate(bool activate = true);
    /// In milliseconds, from 0 to 32767; beyond that the nearest of them.
    void SetDelay(TDelay which, int milliseconds);
    /// Tells of a message of the mouse to a tool's window, in front of its dispatch.
    void RelayEvent(const MSG& msg);

    void SetupWindow() override;
    /// While the control is at work, as when it asks for a text, its window is hidden and ends as soon as it
    /// is done: who is asked may destroy the window that has the tips.
    void Destroy(int retVal = 0) override;
    LRESULT WindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override;

protected:
    const char* GetClassName() override;

private:
    struct AtWork;

    // How many messages the control is at work on, one within the other.
    int m_atWork = 0;
    bool m_ends = false;
};

/// The question what the tip of a command says, on its way through the windows. Unless somebody sets another
/// text, it is that of the command's string resource, behind its line end; whether the command is enabled
/// does not matter.
class OWL_EXPORT TTooltipEnabler : public TCommandEnabler {
public:
    /// Asks for `window`, whose module has the texts, about the tool that `text` tells of. `text` must live
    /// as long.
    TTooltipEnabler(TTooltipText& text, TWindow& window);

    /// Null is an empty text, and shows no tip.
    void SetText(const char* text) override;
    void SetCheck(int check) override;

private:
    TTooltipText& m_text;
};

}  // namespace owl
