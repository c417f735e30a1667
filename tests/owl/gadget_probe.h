// A gadget that tells what happens to it, and a bar to put it in.
#pragma once

#include <string>
#include <vector>

#include "owl/brush.h"
#include "owl/dc.h"
#include "owl/gadget_window.h"
#include "tests/owl/desk.h"

namespace gadgets {

using Calls = std::vector<std::string>;

inline std::string At(const owl::TPoint& point) {
    return " " + std::to_string(point.x) + "," + std::to_string(point.y);
}

/// 20 by 16 pixels, if not told otherwise, filled with one colour.
class Probe : public owl::TGadget {
public:
    explicit Probe(int id = 0, const owl::TSize& theSize = owl::TSize(20, 16)) : TGadget(id), size(theSize) {}

    void GetDesiredSize(owl::TSize& wanted) override {
        TGadget::GetDesiredSize(wanted);
        wanted += size;
    }
    void CommandEnable() override { Say("enable?"); }
    void SysColorChange() override { Say("colours"); }
    void Created() override { Say("created"); }
    void Inserted() override { Say("inserted"); }
    void Moved() override { Say("moved"); }
    void Removed() override { Say("removed"); }
    void Paint(owl::TDC& dc) override {
        dc.FillRect(owl::TRect(-100, -100, 1000, 1000), owl::TBrush(colour));
        TGadget::Paint(dc);
        ++paints;
    }
    void MouseEnter(UINT, const owl::TPoint& point) override { Say("enter" + At(point)); }
    void MouseMove(UINT, const owl::TPoint& point) override {
        if (point != m_pressed)
            Say("move" + At(point));
    }
    void MouseLeave(UINT, const owl::TPoint&) override { Say("leave"); }
    void LButtonDown(UINT modifiers, const owl::TPoint& point) override {
        TGadget::LButtonDown(modifiers, point);
        m_pressed = point;
        Say("down" + At(point));
    }
    void RButtonDown(UINT, const owl::TPoint& point) override { Say("right down" + At(point)); }
    void LButtonUp(UINT modifiers, const owl::TPoint& point) override {
        TGadget::LButtonUp(modifiers, point);
        Say("up" + At(point));
    }
    void RButtonUp(UINT, const owl::TPoint& point) override { Say("right up" + At(point)); }

    /// What was told since the last time.
    Calls Take() {
        Calls taken;
        taken.swap(calls);
        return taken;
    }

    owl::TSize size;
    owl::TColor colour = owl::TColor::LtRed;
    Calls calls;
    int paints = 0;

private:
    void Say(const std::string& what) { calls.push_back(what); }

    // Some systems tell of a move to where the mouse is as soon as it is captured.
    owl::TPoint m_pressed;
};

/// A frame with an empty bar in it, in the upper left corner and 300 pixels long. Nothing is created yet.
template <class Bar = owl::TGadgetWindow>
struct BarDesk {
    explicit BarDesk(owl::TGadgetWindow::TTileDirection direction = owl::TGadgetWindow::Horizontal)
        : bar(new Bar(desk.frame, direction)) {
        (direction == owl::TGadgetWindow::Horizontal ? bar->Attr.W : bar->Attr.H) = 300;
    }

    template <class Gadget>
    Gadget* Add(Gadget* gadget) {
        bar->Insert(*gadget);
        return gadget;
    }
    Probe* Add(int id, const owl::TSize& size = owl::TSize(20, 16)) { return Add(new Probe(id, size)); }

    /// Creates the bar and shows the frame in front of all.
    void Show() {
        bar->Create();
        desk.frame->ShowWindow(SW_SHOW);
        desk.frame->SetWindowPos(HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
        desk.frame->UpdateWindow();
    }

    desk::Desk desk;
    Bar* bar;
};

}  // namespace gadgets
