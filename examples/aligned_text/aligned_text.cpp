// A text that is aligned by a group of buttons, framed by a toggle, and made plain again by a command.
// docs/toolbar.md tells how it is made.
#include "lvx/controls/button_gadget.h"
#include "lvx/controls/control_bar.h"
#include "owl/application.h"
#include "owl/brush.h"
#include "owl/dc.h"
#include "owl/frame_window.h"
#include "owl/separator_gadget.h"

#include "aligned_text_ids.h"

class AlignedText : public owl::TFrameWindow {
public:
    AlignedText() : TFrameWindow(nullptr, "Aligned text") {
        auto* bar = new LVXControlBar(this);
        for (const int command : {CM_LEFT, CM_CENTRE, CM_RIGHT})
            bar->Insert(*new LVXButtonGadget(command, command, LVXButtonGadget::Exclusive));
        bar->Insert(*new owl::TSeparatorGadget);
        bar->Insert(*new LVXButtonGadget(CM_FRAME, CM_FRAME, LVXButtonGadget::NonExclusive));
        bar->Insert(*new owl::TSeparatorGadget);
        bar->Insert(*new LVXButtonGadget(CM_PLAIN, CM_PLAIN));
        Insert(*bar, Top);
        Attr.Menu = IDM_ALIGNED_TEXT;
        Attr.AccelTable = IDA_ALIGNED_TEXT;
    }
    void Paint(owl::TDC& dc, bool, owl::TRect&) override {
        static constexpr UINT formats[] = {DT_LEFT, DT_CENTER, DT_RIGHT};
        owl::TRect room = GetClientRoom().InflatedBy(-12, -12);
        if (m_framed)
            dc.FrameRect(room, owl::TBrush(owl::TColor::LtRed));
        owl::TRect line = room.InflatedBy(-8, -8);
        dc.DrawText("The text.", line, formats[m_alignment - CM_LEFT] | DT_SINGLELINE);
    }

    void CmAlign(UINT command) { Set(static_cast<int>(command), m_framed); }
    void CeAlign(owl::TCommandEnabler& enabler) {
        enabler.Enable();
        enabler.SetCheck(static_cast<int>(enabler.GetId()) == m_alignment);
    }

    void CmFrame() { Set(m_alignment, !m_framed); }
    void CeFrame(owl::TCommandEnabler& enabler) {
        enabler.Enable();
        enabler.SetCheck(m_framed);
    }

    void CmPlain() { Set(CM_LEFT, false); }
    void CePlain(owl::TCommandEnabler& enabler) { enabler.Enable(m_framed || m_alignment != CM_LEFT); }

    DECLARE_RESPONSE_TABLE(AlignedText);
    void Set(int alignment, bool framed) {
        m_alignment = alignment;
        m_framed = framed;
        Invalidate();
    }
    int m_alignment = CM_LEFT;
    bool m_framed = false;
};

DEFINE_RESPONSE_TABLE1(AlignedText, owl::TFrameWindow)
    EV_COMMAND_AND_ID(CM_LEFT, CmAlign), EV_COMMAND_AND_ID(CM_CENTRE, CmAlign),
        EV_COMMAND_AND_ID(CM_RIGHT, CmAlign), EV_COMMAND_ENABLE(CM_LEFT, CeAlign),
        EV_COMMAND_ENABLE(CM_CENTRE, CeAlign), EV_COMMAND_ENABLE(CM_RIGHT, CeAlign),
        EV_COMMAND(CM_FRAME, CmFrame), EV_COMMAND_ENABLE(CM_FRAME, CeFrame), EV_COMMAND(CM_PLAIN, CmPlain),
        EV_COMMAND_ENABLE(CM_PLAIN, CePlain),
END_RESPONSE_TABLE;

int main() {
    owl::TApplication program("Aligned text");
    program.SetMainWindow(new AlignedText);
    return program.Run();
}
