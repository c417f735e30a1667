// A window with a bar of buttons that paint it, tips that name them, and a line that tells what they do.
// docs/owl-bars.md tells how it is made.
#include "owl/application.h"
#include "owl/brush.h"
#include "owl/command_enabler.h"
#include "owl/control_bar.h"
#include "owl/dc.h"
#include "owl/frame_window.h"
#include "owl/separator_gadget.h"
#include "owl/static.h"

#include "toolbar_ids.h"

class ColourButton : public owl::TGadget {
public:
    ColourButton(int command, owl::TColor colour) : TGadget(command, Raised), m_colour(colour) {
        SetMargins({3, 3, 3, 3});
    }
    void GetDesiredSize(owl::TSize& size) override {
        TGadget::GetDesiredSize(size);
        size += owl::TSize(16, 14);
    }
    void Paint(owl::TDC& dc) override {
        TGadget::Paint(dc);
        dc.FillRect(GetInnerRect(), owl::TBrush(GetEnabled() ? m_colour : owl::TColor::Gray));
    }
    void CommandEnable() override;

    void MouseEnter(UINT, const owl::TPoint&) override { GetGadgetWindow()->SetHintCommand(GetId()); }
    void MouseLeave(UINT, const owl::TPoint&) override { GetGadgetWindow()->SetHintCommand(-1); }

    void LButtonDown(UINT modifiers, const owl::TPoint& point) override {
        TGadget::LButtonDown(modifiers, point);
        SetBorderStyle(Recessed);
    }
    void MouseMove(UINT, const owl::TPoint& point) override {
        SetBorderStyle(PtIn(point) ? Recessed : Raised);
    }
    void LButtonUp(UINT modifiers, const owl::TPoint& point) override {
        TGadget::LButtonUp(modifiers, point);
        if (GetBorderStyle() == Recessed)
            GetGadgetWindow()->PostMessage(WM_COMMAND, static_cast<WPARAM>(GetId()));
        SetBorderStyle(Raised);
    }

private:
    owl::TColor m_colour;
};

class ButtonEnabler : public owl::TCommandEnabler {
public:
    explicit ButtonEnabler(owl::TGadget& button)
        : TCommandEnabler(static_cast<UINT>(button.GetId()), button.GetGadgetWindow()->GetHandle()),
          m_button(button) {}

    void Enable(bool enable) override {
        TCommandEnabler::Enable(enable);
        m_button.SetEnabled(enable);
    }
    void SetText(const char*) override {}
    void SetCheck(int) override {}

private:
    owl::TGadget& m_button;
};

void ColourButton::CommandEnable() {
    ButtonEnabler enabler(*this);
    GetGadgetWindow()->AskWhetherEnabled(enabler);
}

class ToolbarWindow : public owl::TFrameWindow {
public:
    ToolbarWindow()
        : TFrameWindow(nullptr, "Toolbar"),
          m_bar(new owl::TControlBar(this)),
          m_line(new owl::TStatic(this, 1, "", 0, 0, 0, 18)) {
        m_bar->Insert(*new ColourButton(CM_RED, owl::TColor::LtRed));
        m_bar->Insert(*new ColourButton(CM_GREEN, owl::TColor::LtGreen));
        m_bar->Insert(*new ColourButton(CM_BLUE, owl::TColor::LtBlue));
        m_bar->Insert(*new owl::TSeparatorGadget);
        m_bar->Insert(*new ColourButton(CM_CLEAR, owl::TColor::White));
        m_line->Attr.Style |= SS_CENTERIMAGE;
        Insert(*m_bar, Top);
        Insert(*m_line, Bottom);
    }
    void SetupWindow() override {
        TFrameWindow::SetupWindow();
        m_line->SetWindowFont(m_bar->GetFont(), true);
    }
    void ShowHint(int, const std::string& text) override { m_line->SetWindowText(text); }
    void Paint(owl::TDC& dc, bool, owl::TRect& rect) override { dc.FillRect(rect, owl::TBrush(m_colour)); }

    void CmRed() { Show(owl::TColor::LtRed); }
    void CmGreen() { Show(owl::TColor::LtGreen); }
    void CmBlue() { Show(owl::TColor::LtBlue); }
    void CmClear() { Show(owl::TColor::White); }
    void CeClear(owl::TCommandEnabler& enabler) { enabler.Enable(!(m_colour == owl::TColor::White)); }

    DECLARE_RESPONSE_TABLE(ToolbarWindow);
    void Show(owl::TColor colour) {
        m_colour = colour;
        Invalidate();
    }
    owl::TControlBar* m_bar;
    owl::TStatic* m_line;
    owl::TColor m_colour = owl::TColor::White;
};

DEFINE_RESPONSE_TABLE1(ToolbarWindow, owl::TFrameWindow)
    EV_COMMAND(CM_RED, CmRed), EV_COMMAND(CM_GREEN, CmGreen), EV_COMMAND(CM_BLUE, CmBlue),
        EV_COMMAND(CM_CLEAR, CmClear), EV_COMMAND_ENABLE(CM_CLEAR, CeClear),
END_RESPONSE_TABLE;

int main() {
    owl::TApplication toolbar("Toolbar");
    toolbar.SetMainWindow(new ToolbarWindow);
    return toolbar.Run();
}
