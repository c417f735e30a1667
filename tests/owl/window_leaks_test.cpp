// Windows, dialogs, controls and menus by the thousand.
#include <memory>
#include <stdexcept>

#include "leaks.h"
#include "owl/button.h"
#include "owl/combo_box.h"
#include "owl/dialog.h"
#include "owl/edit.h"
#include "owl/error.h"
#include "owl/list_box.h"
#include "owl/mdi.h"
#include "owl/menu.h"
#include "owl/scroll_bar.h"
#include "owl/static.h"
#include "resource_ids.h"

namespace {

using owl::TFrameWindow;
using owl::TWindow;

/// What all kinds know of the desk.
struct OnDesk {
    explicit OnDesk(TFrameWindow& frame) : desk(frame) {}

    TFrameWindow& desk;
};

// A key that no table has, offered as the loop offers it.
void OfferKey(TWindow& window) {
    MSG key{};
    key.hwnd = window.GetHandle();
    key.message = WM_KEYDOWN;
    key.wParam = VK_F12;
    window.PreProcessMsg(key);
}

void Furnish(TFrameWindow& frame) {
    frame.Attr.Menu = IDM_TEST_MENU;
    frame.Attr.AccelTable = IDA_TEST_KEYS;
    frame.SetIcon(frame.GetApplication(), IDI_TEST_ICON);
}

struct Windows : OnDesk {
    static constexpr const char* name = "windows_of_each_style";
    static constexpr int rounds = 334;
    using OnDesk::OnDesk;

    void Round() {
        TWindow child(&desk, "child");
        child.Create();
        TWindow grandchild(&child, "grandchild");
        grandchild.Create();
        TWindow popup(&desk, "popup");
        popup.Attr.Style = WS_POPUP | WS_CAPTION | WS_SYSMENU;
        popup.Create();
        popup.GetSystemMenu();
        popup.SetTimer(1, 1000);
        popup.SetProp("owl test", &popup);
    }
};

struct AgainAndAgain : OnDesk {
    static constexpr const char* name = "objects_that_create_their_windows_again";
    static constexpr int rounds = 1000;

    explicit AgainAndAgain(TFrameWindow& frame) : OnDesk(frame), again(nullptr, "again") { Furnish(again); }

    void Round() {
        again.Create();
        OfferKey(again);
        again.Destroy();
    }

    TFrameWindow again;
};

struct Aliases : OnDesk {
    static constexpr const char* name = "objects_on_windows_that_were_there";
    static constexpr int rounds = 1000;
    using OnDesk::OnDesk;

    void Round() {
        const HWND field = ::CreateWindowExA(0, "EDIT", "", WS_CHILD, 0, 0, 50, 20, desk.GetHandle(), nullptr,
                                             nullptr, nullptr);
        { const TWindow first(field); }
        const TWindow second(field);
        ::DestroyWindow(field);
    }
};

struct Frames : OnDesk {
    static constexpr const char* name = "frames_with_menu_icon_and_keys";
    static constexpr int rounds = 334;
    using OnDesk::OnDesk;

    void Round() {
        TFrameWindow frame(nullptr, "frame", new TWindow(nullptr, "client"));
        Furnish(frame);
        frame.Create();
        OfferKey(frame);
        frame.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(::GetSubMenu(frame.GetMenu(), 0)));
        frame.AssignMenu(IDM_TEST_MENU);
        delete frame.SetClientWindow(new TWindow(nullptr, "other client"));
    }
};

struct FramesThatShow : OnDesk {
    static constexpr const char* name = "frames_that_show";
    static constexpr int rounds = 334;
    using OnDesk::OnDesk;

    void Round() {
        TFrameWindow frame(nullptr, "frame");
        Furnish(frame);
        desk::Place(frame);
        frame.Create();
        frame.ShowWindow(SW_SHOWNOACTIVATE);
        frame.UpdateWindow();
        frame.CloseWindow();
    }
};

class FailingFrame : public TFrameWindow {
public:
    FailingFrame() : TFrameWindow(nullptr, "failing") {}

    void SetupWindow() override {
        TFrameWindow::SetupWindow();
        throw std::domain_error("in SetupWindow");
    }
};

class RefusedFrame : public TFrameWindow {
public:
    RefusedFrame() : TFrameWindow(nullptr, "refused") {}

    int EvCreate(CREATESTRUCTA&) { return -1; }

    DECLARE_RESPONSE_TABLE(RefusedFrame);
};

DEFINE_RESPONSE_TABLE1(RefusedFrame, TFrameWindow)
    EV_WM_CREATE,
END_RESPONSE_TABLE;

struct FramesThatFail : OnDesk {
    static constexpr const char* name = "frames_that_cannot_be_created";
    static constexpr int rounds = 334;
    using OnDesk::OnDesk;

    void Round() {
        FailingFrame failing;
        Furnish(failing);
        EXPECT_THROW(failing.Create(), std::domain_error);
        RefusedFrame refused;
        Furnish(refused);
        EXPECT_THROW(refused.Create(), owl::TXWindow);
        // Refused before there is a window, which takes its menu with it.
        TFrameWindow misplaced(nullptr, "misplaced");
        Furnish(misplaced);
        misplaced.Attr.ExStyle = WS_EX_MDICHILD;
        EXPECT_THROW(misplaced.Create(), owl::TXWindow);
    }
};

// With an object for each control of the template.
class EveryControl : public owl::TDialog {
public:
    explicit EveryControl(TWindow* parent) : TDialog(parent, IDD_TEST_DIALOG) {
        new owl::TStatic(this, IDC_TEST_STATIC);
        new owl::TEdit(this, IDC_TEST_EDIT, sizeof data.edit);
        new owl::TListBox(this, IDC_TEST_LIST);
        new owl::TComboBox(this, IDC_TEST_COMBO);
        new owl::TScrollBar(this, IDC_TEST_SCROLL);
        new owl::TGroupBox(this, IDC_TEST_GROUP);
        new owl::TCheckBox(this, IDC_TEST_CHECK);
        new owl::TRadioButton(this, IDC_TEST_RADIO_A);
        new owl::TRadioButton(this, IDC_TEST_RADIO_B);
        new owl::TButton(this, IDOK);
        list.Strings = {"one", "two"};
        SetTransferBuffer(&data, sizeof data);
    }

private:
    owl::TListBoxData list;
    struct {
        char edit[40] = "text";
        owl::TListBoxData* list;
        owl::TListBoxData* combo;
        owl::TScrollBarData scroll{0, 100, 50};
        std::uint16_t checks[3] = {1, 1, 0};
    } data{.list = &list, .combo = &list};
};

struct Dialogs : OnDesk {
    static constexpr const char* name = "dialogs_with_every_control";
    static constexpr int rounds = 84;
    using OnDesk::OnDesk;

    void Round() {
        EveryControl dialog(&desk);
        dialog.Create();
        dialog.TransferData(owl::tdGetData);
    }
};

class Hasty : public EveryControl {
public:
    using EveryControl::EveryControl;

    void SetupWindow() override {
        EveryControl::SetupWindow();
        PostMessage(WM_COMMAND, IDOK);
    }
};

struct ModalDialogs : OnDesk {
    static constexpr const char* name = "modal_dialogs";
    static constexpr int rounds = 84;
    using OnDesk::OnDesk;

    void Round() { EXPECT_EQ(IDOK, Hasty(&desk).Execute()); }
};

struct Controls : OnDesk {
    static constexpr const char* name = "controls_made_in_code";
    static constexpr int rounds = 84;
    using OnDesk::OnDesk;

    void Round() {
        TWindow panel(&desk);
        new owl::TStatic(&panel, 1, "label", 0, 0, 50, 10);
        new owl::TEdit(&panel, 2, "text", 0, 0, 50, 20);
        new owl::TEdit(&panel, 3, "text", 0, 0, 50, 50, 100, true);
        new owl::TListBox(&panel, 4, 0, 0, 50, 50);
        new owl::TComboBox(&panel, 5, 0, 0, 50, 50, CBS_DROPDOWN, 20);
        new owl::TScrollBar(&panel, 6, 0, 0, 50, 0, true);
        new owl::TButton(&panel, 7, "button", 0, 0, 50, 20, true);
        new owl::TCheckBox(&panel, 8, "check", 0, 0, 50, 20);
        new owl::TRadioButton(&panel, 9, "radio", 0, 0, 50, 20);
        new owl::TGroupBox(&panel, 10, "group", 0, 0, 50, 20);
        panel.Create();
    }
};

struct MdiFrames : OnDesk {
    static constexpr const char* name = "MDI_frames";
    static constexpr int rounds = 250;
    using OnDesk::OnDesk;

    void Round() {
        owl::TMDIFrame frame("MDI", IDM_TEST_MENU, nullptr, 0);
        frame.Create();
        (new owl::TMDIChild(*frame.GetClientWindow(), "one"))->Create();
        (new owl::TMDIChild(*frame.GetClientWindow(), "two"))->Create();
    }
};

struct MdiChildren : OnDesk {
    static constexpr const char* name = "MDI_children";
    static constexpr int rounds = 1000;

    explicit MdiChildren(TFrameWindow& window) : OnDesk(window) { frame.Create(); }

    void Round() {
        auto* const child = new owl::TMDIChild(*frame.GetClientWindow(), "child");
        Furnish(*child);
        child->Create();
        OfferKey(*child);
        child->PostMessage(WM_CLOSE);
    }

    owl::TMDIFrame frame{"MDI", IDM_TEST_MENU, nullptr, 0};
};

struct Menus : OnDesk {
    static constexpr const char* name = "menus";
    static constexpr int rounds = 250;
    using OnDesk::OnDesk;

    void Round() {
        const owl::TMenu loaded(*desk.GetModule(), IDM_TEST_MENU);
        owl::TMenu bar;
        owl::TPopupMenu dropDown;
        dropDown.AppendMenu(MF_STRING, CM_TEST_FIRST, "First");
        bar.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(dropDown.Release()), "Drop-down");
        bar.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(owl::TPopupMenu().Release()), "Empty");
        bar.DeleteMenu(1, MF_BYPOSITION);
        owl::TMenu taken(bar.GetSubMenu(0), owl::AutoDelete);
        bar.RemoveMenu(0, MF_BYPOSITION);
    }
};

void CALLBACK LeaveMenu(HWND, UINT, UINT_PTR timer, DWORD) {
    ::KillTimer(nullptr, timer);
    ::EndMenu();
}

struct OpenMenus : OnDesk {
    static constexpr const char* name = "menus_that_open";
    static constexpr int rounds = 250;
    explicit OpenMenus(TFrameWindow& frame) : OnDesk(frame) {
        frame.ShowWindow(SW_SHOW);
        desk::Activate(frame);
    }

    void Round() {
        owl::TPopupMenu popup;
        popup.AppendMenu(MF_STRING, CM_TEST_FIRST, "First");
        ::SetTimer(nullptr, 0, 1, &LeaveMenu);
        popup.TrackPopupMenu(TPM_RETURNCMD, 100, 100, desk);
    }
};

using Kinds = testing::Types<Windows, AgainAndAgain, Aliases, Frames, FramesThatShow, FramesThatFail, Dialogs,
                             ModalDialogs, Controls, MdiFrames, MdiChildren, Menus, OpenMenus>;

}  // namespace

namespace owl_test {

INSTANTIATE_TYPED_TEST_SUITE_P(Windows, Leaks, Kinds, KindName);

}  // namespace owl_test
