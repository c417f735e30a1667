// owl/control_bar.h
//
// A bar of gadgets that shows tips: where the mouse rests on a gadget, a small window says what the gadget's
// command is called. The text is behind the line end of the command's string resource, unless the parent
// answers the question for it (owl/tooltip.h). A frame takes a bar by TFrameWindow::Insert.
#pragma once

#include <vector>

#include "owl/gadget_window.h"

namespace owl {

class TTooltip;

class OWL_EXPORT TControlBar : public TGadgetWindow {
public:
    /// As TGadgetWindow.
    explicit TControlBar(TWindow* parent, TTileDirection direction = Horizontal, TFont* font = nullptr,
                         TModule* module = nullptr);
    ~TControlBar() override;

    /// What shows the tips, to set its delays or to switch it off; it belongs to the bar. Null if somebody
    /// has deleted it: then there are no tips. Its tools are the gadgets with an id above 0, anew with each
    /// layout, and what others have added, which stays until the bar's window ends.
    TTooltip* GetTooltip() const { return m_tooltip; }

    /// Answers TTN_NEEDTEXT by asking for the tip's text as for whether a command is enabled.
    LRESULT EvNotify(UINT id, TNotify& notify) override;
    /// Tells the tooltip of the mouse.
    bool PreProcessMsg(MSG& msg) override;
    void CleanupWindow() override;

protected:
    void TileGadgets() override;
    void ChildLeft(const TWindow& child) override;

private:
    bool HasTooltip() const;
    void MakeTools();
    void RemoveTools();

    TTooltip* m_tooltip;
    // The ids of the gadgets that are tools at present.
    std::vector<UINT> m_tools;
    // The same object: asked for while it ends, too, when the other pointer can no longer be converted.
    const TWindow* m_tooltipBase;
};

}  // namespace owl
