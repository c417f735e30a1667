// A frame with a bar of the library, which notes what reaches it.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "controls/toolbar_ids.h"
#include "lvx/controls/button_gadget.h"
#include "lvx/controls/control_bar.h"
#include "owl/application.h"
#include "owl/separator_gadget.h"
#include "owl/tooltip.h"
#include "tests/owl/mouse.h"

namespace toolbars {

/// The application window: notes commands and hints, and answers what it is told to.
class Frame : public owl::TFrameWindow {
public:
    Frame() : TFrameWindow(nullptr, "toolbar") { desk::Place(*this); }

    LRESULT EvCommand(UINT id, HWND control, UINT code) override {
        commands.push_back(static_cast<int>(id));
        return TFrameWindow::EvCommand(id, control, code);
    }
    void EvCommandEnable(owl::TCommandEnabler& enabler) override {
        if (dynamic_cast<owl::TTooltipEnabler*>(&enabler) != nullptr) {
            ++tipsAsked;
            if (!answersTips) {
                return;
            }
        } else {
            asked.push_back(static_cast<int>(enabler.GetId()));
        }
        const auto id = static_cast<int>(enabler.GetId());
        enabler.Enable(std::find(disabled.begin(), disabled.end(), id) == disabled.end());
        enabler.SetCheck(id == CM_GRID ? grid : owl::TCommandEnabler::Unchecked);
    }
    void ShowHint(int command, const std::string& text) override {
        hints.push_back(std::to_string(command) + " " + text);
    }

    std::vector<int> TakeCommands() {
        std::vector<int> taken;
        taken.swap(commands);
        return taken;
    }

    std::vector<int> commands;
    std::vector<int> asked;
    std::vector<int> disabled;
    std::vector<std::string> hints;
    int tipsAsked = 0;
    bool answersTips = true;
    int grid = owl::TCommandEnabler::Unchecked;
};

/// A button whose insides show.
class Button : public LVXButtonGadget {
public:
    using LVXButtonGadget::BitmapOrigin;
    using LVXButtonGadget::CelArray;
    using LVXButtonGadget::DitherBrush;
    using LVXButtonGadget::GlyphMask;
    using LVXButtonGadget::LVXButtonGadget;
    using LVXButtonGadget::Pressed;
    using LVXButtonGadget::ResId;

    void Paint(owl::TDC& dc) override {
        ++paints;
        LVXButtonGadget::Paint(dc);
    }

    int paints = 0;
};

/// Nothing is created until Show().
struct Desk {
    explicit Desk(owl::TGadgetWindow::TTileDirection direction = owl::TGadgetWindow::Horizontal)
        : program("toolbars"), frame(new Frame), bar(new LVXControlBar(frame, direction)) {
        MSG quit{};
        ::PeekMessageA(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
        mouse::MoveAway();
        program.SetMainWindow(frame);
        (direction == owl::TGadgetWindow::Horizontal ? bar->Attr.W : bar->Attr.H) = 300;
    }
    ~Desk() { mouse::MoveAway(); }
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    template <class Gadget>
    Gadget* Add(Gadget* gadget) {
        bar->Insert(*gadget);
        return gadget;
    }
    Button* Add(int id, LVXButtonGadget::TType type = LVXButtonGadget::Command) {
        return Add(new Button(id, id, type));
    }

    void Show() {
        frame->Create();
        bar->Create();
        bar->GetTooltip()->SetDelay(owl::TTooltip::Initial, 50);
        frame->ShowWindow(SW_SHOW);
        frame->SetWindowPos(HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
        desk::Activate(*frame);
        frame->UpdateWindow();
        bar->UpdateWindow();
    }

    owl::TPoint MiddleOf(const owl::TGadget& gadget) const {
        const owl::TRect bounds = gadget.GetBounds();
        return {bounds.left + bounds.Width() / 2, bounds.top + bounds.Height() / 2};
    }
    void MoveTo(const owl::TGadget& gadget) { mouse::MoveTo(*bar, MiddleOf(gadget)); }
    /// Off all gadgets, below the bar.
    void MoveOff() { mouse::MoveTo(*bar, {150, 120}); }
    bool Press(const Button& button) {
        MoveTo(button);
        mouse::PressLeft();
        return desk::PumpUntil([&] { return button.Pressed; });
    }
    bool Release(const Button& button) {
        mouse::ReleaseLeft();
        return desk::PumpUntil([&] { return !button.Pressed && ::GetCapture() == nullptr; });
    }
    /// Presses and lets go; what comes of it has been handled.
    void Click(const Button& button) {
        Press(button);
        Release(button);
        Pump();
    }
    /// Handles what is on its way.
    static void Pump(DWORD milliseconds = 50) {
        desk::PumpUntil([] { return false; }, milliseconds);
    }

    owl::TApplication program;
    Frame* frame;
    LVXControlBar* bar;
};

}  // namespace toolbars
