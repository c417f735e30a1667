#include "owl/response_table.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "owl/command_enabler.h"

namespace {

constexpr const char* registered_name = "owl.response_table_test.message";

class Enabler : public owl::TCommandEnabler {
public:
    explicit Enabler(UINT id) : TCommandEnabler(id) {}
    void SetText(const char*) override {}
    void SetCheck(int) override {}
};

class Left : public owl::TEventHandler {
public:
    void CmLeft() { calls.push_back("left"); }
    void CmBoth() { calls.push_back("left of both"); }
    std::vector<std::string> calls;

    DECLARE_RESPONSE_TABLE(Left);
};

DEFINE_RESPONSE_TABLE(Left)
    EV_COMMAND(1, CmLeft), EV_COMMAND(3, CmBoth),
END_RESPONSE_TABLE;

class Right {
public:
    virtual ~Right() = default;
    virtual bool Find(owl::TEventInfo& info);
    void CmRight() { ++rights; }
    int rights = 0;

private:
    using TMyClass = Right;
    static const owl::TResponseTableEntry<Right> __entries[];
};

DEFINE_RESPONSE_TABLE(Right)
    EV_COMMAND(2, CmRight), EV_COMMAND(3, CmRight),
END_RESPONSE_TABLE;

// Stands on two bases, the second of which does not lie at the object's beginning.
class Both : public Left, public Right {
public:
    void CmOwn(UINT id) { calls.push_back("own " + std::to_string(id)); }
    void CeOwn(owl::TCommandEnabler& enabler) { enabler.Enable(enabler.GetId() == 4); }
    void Code(UINT code) { calls.push_back("code " + std::to_string(code)); }
    void Once() { calls.push_back("once"); }
    void Notified(owl::TNotify& notify) { calls.push_back("notify " + std::to_string(notify.idFrom)); }
    LRESULT ByName(WPARAM wParam, LPARAM) { return static_cast<LRESULT>(wParam) + 1; }

    DECLARE_RESPONSE_TABLE(Both);
};

DEFINE_RESPONSE_TABLE2(Both, Left, Right)
    EV_COMMAND_AND_ID(4, CmOwn), EV_COMMAND_AND_ID(5, CmOwn), EV_COMMAND_ENABLE(4, CeOwn),
        EV_COMMAND_ENABLE(5, CeOwn), EV_CHILD_NOTIFY(6, 100, Once), EV_CHILD_NOTIFY_AND_CODE(6, 101, Code),
        EV_CHILD_NOTIFY_ALL_CODES(7, Code), EV_NOTIFY_AT_CHILD(300, Once), EV_NOTIFY(8, -520, Notified),
        EV_REGISTERED(registered_name, ByName),
END_RESPONSE_TABLE;

LRESULT Send(owl::TEventHandler& handler, const owl::TEvent& event) {
    owl::TEventInfo info(event.Msg, event.Id, event.NotifyCode);
    EXPECT_TRUE(handler.Find(info));
    return info.IsFound() ? info.Dispatch(event) : -1;
}

bool Has(Both& both, UINT msg, UINT id = 0, UINT code = 0) {
    owl::TEventInfo info(msg, id, code);
    return both.Find(info);
}

using Calls = std::vector<std::string>;

TEST(ResponseTable, calls_the_function_of_a_base) {
    Both both;
    Send(both, {WM_COMMAND, 1, 0, 1, 0});
    Send(both, {WM_COMMAND, 2, 0, 2, 0});
    EXPECT_EQ(Calls{"left"}, both.calls);
    EXPECT_EQ(1, both.rights);
}

TEST(ResponseTable, asks_the_first_base_before_the_second) {
    Both both;
    Send(both, {WM_COMMAND, 3, 0, 3, 0});
    EXPECT_EQ(Calls{"left of both"}, both.calls);
    EXPECT_EQ(0, both.rights);
}

TEST(ResponseTable, tells_one_function_which_of_its_commands_came) {
    Both both;
    Send(both, {WM_COMMAND, 5, 0, 5, 0});
    EXPECT_EQ(Calls{"own 5"}, both.calls);
}

TEST(ResponseTable, hands_the_enabler_over) {
    Both both;
    Enabler enabler(4);
    Send(both, {WM_COMMAND_ENABLE, 0, reinterpret_cast<LPARAM>(static_cast<owl::TCommandEnabler*>(&enabler)),
                4, 0});
    EXPECT_TRUE(enabler.GetHandled());
}

TEST(ResponseTable, tells_the_notifications_of_a_child_apart) {
    Both both;
    const UINT child = owl::TEventInfo::ChildNotification;
    Send(both, {child, 0, 0, 6, 100});
    Send(both, {child, 0, 0, 6, 101});
    EXPECT_FALSE(Has(both, child, 6, 102));
    EXPECT_EQ((Calls{"once", "code 101"}), both.calls);
}

TEST(ResponseTable, takes_all_codes_of_a_child_where_it_says_so) {
    Both both;
    const UINT child = owl::TEventInfo::ChildNotification;
    Send(both, {child, 0, 0, 7, 0});
    Send(both, {child, 0, 0, 7, 65535});
    EXPECT_EQ((Calls{"code 0", "code 65535"}), both.calls);
}

TEST(ResponseTable, keeps_a_controls_own_notifications_apart_from_its_childrens) {
    Both both;
    EXPECT_TRUE(Has(both, owl::TEventInfo::NotificationAtChild, 0, 300));
    EXPECT_FALSE(Has(both, owl::TEventInfo::ChildNotification, 0, 300));
}

TEST(ResponseTable, hands_the_notification_over) {
    Both both;
    owl::TNotify notify{};
    notify.idFrom = 88;
    Send(both, {WM_NOTIFY, 8, reinterpret_cast<LPARAM>(&notify), 8, static_cast<UINT>(-520)});
    EXPECT_EQ(Calls{"notify 88"}, both.calls);
}

TEST(ResponseTable, finds_a_message_by_its_registered_name) {
    Both both;
    EXPECT_EQ(42, Send(both, {::RegisterWindowMessageA(registered_name), 41, 0, 0, 0}));
    EXPECT_FALSE(Has(both, ::RegisterWindowMessageA("owl.response_table_test.other")));
}

TEST(ResponseTable, does_not_take_a_command_for_a_notification) {
    Both both;
    EXPECT_FALSE(Has(both, owl::TEventInfo::ChildNotification, 4, 0));
    EXPECT_FALSE(Has(both, WM_COMMAND, 7, 0));
}

// Each function notes what it got; the entries take the messages apart.
class Taker : public owl::TEventHandler {
public:
    void EvSize(UINT how, const owl::TSize& size) {
        Note(how, static_cast<UINT>(size.cx), static_cast<UINT>(size.cy));
    }
    void EvMove(const owl::TPoint& point) { Note(0, static_cast<UINT>(point.x), static_cast<UINT>(point.y)); }
    void EvMouseMove(UINT keys, owl::TPoint& point) {
        Note(keys, static_cast<UINT>(point.x), static_cast<UINT>(point.y));
    }
    void EvChar(UINT key, UINT repeat, UINT flags) { Note(key, repeat, flags); }
    void EvHScroll(UINT code, UINT position, HWND control) { Note(code, position, control == nullptr); }
    bool EvEraseBkgnd(HDC dc) {
        Note(static_cast<UINT>(reinterpret_cast<UINT_PTR>(dc)), 0, 0);
        return true;
    }
    HBRUSH EvCtlColor(HDC, HWND, UINT type) {
        Note(type, 0, 0);
        return reinterpret_cast<HBRUSH>(static_cast<UINT_PTR>(0x1234));
    }
    void EvShowWindow(bool show, UINT why) { Note(show, why, 0); }
    void EvActivate(UINT how, bool minimised, HWND) { Note(how, minimised, 0); }
    void EvMDIActivate(HWND activated, HWND deactivated) {
        Note(static_cast<UINT>(reinterpret_cast<UINT_PTR>(activated)),
             static_cast<UINT>(reinterpret_cast<UINT_PTR>(deactivated)), 0);
    }
    void EvMenuSelect(UINT item, UINT flags, HMENU) { Note(item, flags, 0); }
    void EvInitMenuPopup(HMENU, UINT position, bool systemMenu) { Note(position, systemMenu, 0); }
    bool EvSetCursor(HWND, UINT hit, UINT mouse) {
        Note(hit, mouse, 0);
        return false;
    }
    void EvSysCommand(UINT command, const owl::TPoint&) { Note(command, 0, 0); }
    void EvTimer(UINT id) { Note(id, 0, 0); }
    UINT EvGetDlgCode(MSG* msg) {
        Note(msg == nullptr, 0, 0);
        return DLGC_WANTARROWS;
    }

    std::vector<UINT> got;

private:
    void Note(UINT a, UINT b, UINT c) { got = {a, b, c}; }

    DECLARE_RESPONSE_TABLE(Taker);
};

DEFINE_RESPONSE_TABLE(Taker)
    EV_WM_SIZE, EV_WM_MOVE, EV_WM_MOUSEMOVE, EV_WM_CHAR, EV_WM_HSCROLL, EV_WM_ERASEBKGND, EV_WM_CTLCOLOR,
        EV_WM_SHOWWINDOW, EV_WM_ACTIVATE, EV_WM_MDIACTIVATE, EV_WM_MENUSELECT, EV_WM_INITMENUPOPUP,
        EV_WM_SETCURSOR, EV_WM_SYSCOMMAND, EV_WM_TIMER, EV_WM_GETDLGCODE,
END_RESPONSE_TABLE;

struct MessageCase {
    UINT lookUp;
    owl::TEvent event;
    std::vector<UINT> got;
    LRESULT answer;
};

constexpr UINT minus_one = ~0u;

TEST(ResponseMessages, take_each_message_apart) {
    const MessageCase cases[] = {
        {WM_SIZE, {WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(40000, 30), 0, 0}, {SIZE_MAXIMIZED, 40000, 30}, 0},
        {WM_MOVE, {WM_MOVE, 0, MAKELPARAM(0xFFFF, 5), 0, 0}, {0, minus_one, 5}, 0},
        {WM_MOUSEMOVE, {WM_MOUSEMOVE, MK_SHIFT, MAKELPARAM(7, 0xFFFF), 0, 0}, {MK_SHIFT, 7, minus_one}, 0},
        {WM_CHAR, {WM_CHAR, 'x', MAKELPARAM(3, 0x8001), 0, 0}, {'x', 3, 0x8001}, 0},
        {WM_HSCROLL, {WM_HSCROLL, MAKEWPARAM(SB_THUMBTRACK, 90), 0, 0, 0}, {SB_THUMBTRACK, 90, 1}, 0},
        {WM_ERASEBKGND, {WM_ERASEBKGND, 0x77, 0, 0, 0}, {0x77, 0, 0}, 1},
        {WM_CTLCOLOR, {WM_CTLCOLORMSGBOX, 0, 0, 0, 0}, {CTLCOLOR_MSGBOX, 0, 0}, 0x1234},
        {WM_CTLCOLOR, {WM_CTLCOLORSTATIC, 0, 0, 0, 0}, {CTLCOLOR_STATIC, 0, 0}, 0x1234},
        {WM_SHOWWINDOW, {WM_SHOWWINDOW, TRUE, SW_PARENTOPENING, 0, 0}, {1, SW_PARENTOPENING, 0}, 0},
        {WM_ACTIVATE, {WM_ACTIVATE, MAKEWPARAM(WA_CLICKACTIVE, 1), 0, 0, 0}, {WA_CLICKACTIVE, 1, 0}, 0},
        {WM_MDIACTIVATE, {WM_MDIACTIVATE, 5, 6, 0, 0}, {6, 5, 0}, 0},
        {WM_MENUSELECT, {WM_MENUSELECT, MAKEWPARAM(9, MF_POPUP), 0, 0, 0}, {9, MF_POPUP, 0}, 0},
        {WM_INITMENUPOPUP, {WM_INITMENUPOPUP, 0, MAKELPARAM(2, 1), 0, 0}, {2, 1, 0}, 0},
        {WM_SETCURSOR,
         {WM_SETCURSOR, 0, MAKELPARAM(HTCLIENT, WM_MOUSEMOVE), 0, 0},
         {HTCLIENT, WM_MOUSEMOVE, 0},
         0},
        {WM_SYSCOMMAND, {WM_SYSCOMMAND, SC_KEYMENU, 0, 0, 0}, {SC_KEYMENU, 0, 0}, 0},
        {WM_TIMER, {WM_TIMER, 12, 0, 0, 0}, {12, 0, 0}, 0},
        {WM_GETDLGCODE, {WM_GETDLGCODE, 0, 0, 0, 0}, {1, 0, 0}, DLGC_WANTARROWS},
    };
    for (const MessageCase& row : cases) {
        Taker taker;
        owl::TEventInfo info(row.lookUp);
        ASSERT_TRUE(taker.Find(info)) << row.lookUp;
        EXPECT_EQ(row.answer, info.Dispatch(row.event)) << row.lookUp;
        EXPECT_EQ(row.got, taker.got) << row.lookUp;
    }
}

}  // namespace
