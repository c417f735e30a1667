// owl/response_messages.h
//
// The entries of response tables. Each names the function that a class must have, or takes its name, and
// tells what the function gets; a function may return nothing where the system's answer is then 0. Included
// by owl/response_table.h; not for use alone.
#pragma once

#include <type_traits>

#include "owl/geometry.h"
#include "owl/response_table.h"

/// The message that asks whether a command is to be enabled: its lParam is the address of a TCommandEnabler.
/// It only travels within a thread, by TWindow::HandleMessage.
#ifndef WM_COMMAND_ENABLE
#define WM_COMMAND_ENABLE 0x7FFF
#endif
/// The one number for the messages WM_CTLCOLORMSGBOX to WM_CTLCOLORSTATIC.
#ifndef WM_CTLCOLOR
#define WM_CTLCOLOR 0x0019
#endif

namespace owl {

class TCommandEnabler;
using TNotify = NMHDR;

// Takes events apart. Each function is named for what it hands over.
namespace crack {

template <class Result>
LRESULT AsResult(Result result) {
    if constexpr (std::is_pointer_v<Result>)
        return reinterpret_cast<LRESULT>(result);
    else
        return static_cast<LRESULT>(result);
}

template <auto Method, class T, class... Arguments>
LRESULT Call(T& object, Arguments&&... arguments) {
    using Result = decltype((object.*Method)(arguments...));
    if constexpr (std::is_void_v<Result>) {
        (object.*Method)(arguments...);
        return 0;
    } else {
        return AsResult((object.*Method)(arguments...));
    }
}

template <class Handle>
Handle HandleOf(WPARAM value) {
    return reinterpret_cast<Handle>(value);
}

template <class Structure>
Structure& StructureOf(LPARAM value) {
    return *reinterpret_cast<Structure*>(value);
}

inline UINT Low(LPARAM value) {
    return static_cast<WORD>(value & 0xFFFF);
}

inline UINT High(LPARAM value) {
    return static_cast<WORD>((value >> 16) & 0xFFFF);
}

// Coordinates left of or above the origin are negative: a second screen may lie there.
inline TPoint PointOf(LPARAM value) {
    return TPoint(static_cast<short>(Low(value)), static_cast<short>(High(value)));
}

template <class T, auto Method>
LRESULT Nothing(T& object, const TEvent&) {
    return Call<Method>(object);
}

template <class T, auto Method>
LRESULT Message(T& object, const TEvent& event) {
    return Call<Method>(object, event.WParam, event.LParam);
}

template <class T, auto Method>
LRESULT Id(T& object, const TEvent& event) {
    return Call<Method>(object, event.Id);
}

template <class T, auto Method>
LRESULT Code(T& object, const TEvent& event) {
    return Call<Method>(object, event.NotifyCode);
}

template <class T, auto Method>
LRESULT Enabler(T& object, const TEvent& event) {
    return Call<Method>(object, StructureOf<TCommandEnabler>(event.LParam));
}

template <class T, auto Method>
LRESULT Notify(T& object, const TEvent& event) {
    return Call<Method>(object, StructureOf<TNotify>(event.LParam));
}

template <class T, auto Method>
LRESULT Flag(T& object, const TEvent& event) {
    return Call<Method>(object, event.WParam != 0);
}

template <class T, auto Method>
LRESULT FlagAndNumber(T& object, const TEvent& event) {
    return Call<Method>(object, event.WParam != 0, static_cast<UINT>(event.LParam));
}

template <class T, auto Method>
LRESULT Number(T& object, const TEvent& event) {
    return Call<Method>(object, static_cast<UINT>(event.WParam));
}

template <class T, auto Method>
LRESULT NumberAndSize(T& object, const TEvent& event) {
    const TSize size(static_cast<int>(Low(event.LParam)), static_cast<int>(High(event.LParam)));
    return Call<Method>(object, static_cast<UINT>(event.WParam), size);
}

template <class T, auto Method>
LRESULT NumberAndPoint(T& object, const TEvent& event) {
    TPoint point = PointOf(event.LParam);
    return Call<Method>(object, static_cast<UINT>(event.WParam), point);
}

template <class T, auto Method>
LRESULT Point(T& object, const TEvent& event) {
    TPoint point = PointOf(event.LParam);
    return Call<Method>(object, point);
}

template <class T, auto Method>
LRESULT Key(T& object, const TEvent& event) {
    return Call<Method>(object, static_cast<UINT>(event.WParam), Low(event.LParam), High(event.LParam));
}

template <class T, auto Method>
LRESULT Window(T& object, const TEvent& event) {
    return Call<Method>(object, HandleOf<HWND>(event.WParam));
}

template <class T, auto Method>
LRESULT TwoWindows(T& object, const TEvent& event) {
    return Call<Method>(object, reinterpret_cast<HWND>(event.LParam), HandleOf<HWND>(event.WParam));
}

template <class T, auto Method>
LRESULT Activation(T& object, const TEvent& event) {
    const LPARAM flags = static_cast<LPARAM>(event.WParam);
    return Call<Method>(object, Low(flags), High(flags) != 0, reinterpret_cast<HWND>(event.LParam));
}

template <class T, auto Method>
LRESULT Context(T& object, const TEvent& event) {
    return Call<Method>(object, HandleOf<HDC>(event.WParam));
}

template <class T, auto Method>
LRESULT Scroll(T& object, const TEvent& event) {
    const LPARAM scroll = static_cast<LPARAM>(event.WParam);
    return Call<Method>(object, Low(scroll), High(scroll), reinterpret_cast<HWND>(event.LParam));
}

template <class T, auto Method>
LRESULT Colour(T& object, const TEvent& event) {
    const UINT type = event.Msg - WM_CTLCOLORMSGBOX;
    return Call<Method>(object, HandleOf<HDC>(event.WParam), reinterpret_cast<HWND>(event.LParam), type);
}

template <class T, auto Method>
LRESULT Cursor(T& object, const TEvent& event) {
    return Call<Method>(object, HandleOf<HWND>(event.WParam), Low(event.LParam), High(event.LParam));
}

template <class T, auto Method>
LRESULT PopupMenu(T& object, const TEvent& event) {
    return Call<Method>(object, HandleOf<HMENU>(event.WParam), Low(event.LParam), High(event.LParam) != 0);
}

template <class T, auto Method>
LRESULT MenuSelection(T& object, const TEvent& event) {
    const LPARAM item = static_cast<LPARAM>(event.WParam);
    return Call<Method>(object, Low(item), High(item), reinterpret_cast<HMENU>(event.LParam));
}

template <class T, auto Method>
LRESULT MessageAddress(T& object, const TEvent& event) {
    return Call<Method>(object, reinterpret_cast<MSG*>(event.LParam));
}

template <class T, auto Method>
LRESULT HelpAddress(T& object, const TEvent& event) {
    return Call<Method>(object, reinterpret_cast<HELPINFO*>(event.LParam));
}

template <class T, auto Method>
LRESULT Creation(T& object, const TEvent& event) {
    return Call<Method>(object, StructureOf<CREATESTRUCTA>(event.LParam));
}

template <class T, auto Method>
LRESULT MinMaxInfo(T& object, const TEvent& event) {
    return Call<Method>(object, StructureOf<MINMAXINFO>(event.LParam));
}

template <class T, auto Method>
LRESULT Position(T& object, const TEvent& event) {
    return Call<Method>(object, StructureOf<WINDOWPOS>(event.LParam));
}

}  // namespace crack

}  // namespace owl

#define OWL_ENTRY(msg, id, code, name, cracker, method) \
    owl::MakeEntry<TMyClass>(msg, id, code, name, &owl::crack::cracker<TMyClass, &TMyClass::method>)
#define OWL_MESSAGE_ENTRY(msg, cracker, method) OWL_ENTRY(msg, 0, 0, nullptr, cracker, method)

/// Any message: `LRESULT method(WPARAM, LPARAM)`.
#define EV_MESSAGE(msg, method) OWL_MESSAGE_ENTRY(msg, Message, method)
/// A message that RegisterWindowMessage gives for `name`: `LRESULT method(WPARAM, LPARAM)`.
#define EV_REGISTERED(name, method) OWL_ENTRY(0, 0, 0, name, Message, method)

/// A command of a menu, an accelerator or a button: `void method()`.
#define EV_COMMAND(id, method) OWL_ENTRY(WM_COMMAND, id, 0, nullptr, Nothing, method)
/// A command: `void method(UINT id)`, for functions that answer several.
#define EV_COMMAND_AND_ID(id, method) OWL_ENTRY(WM_COMMAND, id, 0, nullptr, Id, method)
/// Whether a command is to be enabled: `void method(TCommandEnabler&)`.
#define EV_COMMAND_ENABLE(id, method) OWL_ENTRY(WM_COMMAND_ENABLE, id, 0, nullptr, Enabler, method)

/// A notification of the child `id`: `void method()`. Scroll bars notify with their SB_ codes.
#define EV_CHILD_NOTIFY(id, code, method) \
    OWL_ENTRY(owl::TEventInfo::ChildNotification, id, code, nullptr, Nothing, method)
/// Likewise, `void method(UINT code)`.
#define EV_CHILD_NOTIFY_AND_CODE(id, code, method) \
    OWL_ENTRY(owl::TEventInfo::ChildNotification, id, code, nullptr, Code, method)
/// Any notification of the child `id`: `void method(UINT code)`.
#define EV_CHILD_NOTIFY_ALL_CODES(id, method)                                                                \
    OWL_ENTRY(owl::TEventInfo::ChildNotification, id, owl::TResponseTableEntry<TMyClass>::AllCodes, nullptr, \
              Code, method)
/// In a control's own table, what it would notify its parent of: `void method()`. The parent is not told
/// then, unless the control is a scroll bar.
#define EV_NOTIFY_AT_CHILD(code, method) \
    OWL_ENTRY(owl::TEventInfo::NotificationAtChild, 0, code, nullptr, Nothing, method)
/// A WM_NOTIFY of the child `id`: `LRESULT method(TNotify&)` or `void method(TNotify&)`.
#define EV_NOTIFY(id, code, method) OWL_ENTRY(WM_NOTIFY, id, static_cast<UINT>(code), nullptr, Notify, method)

#define EV_BN_CLICKED(id, method) EV_CHILD_NOTIFY(id, BN_CLICKED, method)
#define EV_EN_CHANGE(id, method) EV_CHILD_NOTIFY(id, EN_CHANGE, method)
#define EV_EN_KILLFOCUS(id, method) EV_CHILD_NOTIFY(id, EN_KILLFOCUS, method)
#define EV_EN_SETFOCUS(id, method) EV_CHILD_NOTIFY(id, EN_SETFOCUS, method)
#define EV_LBN_DBLCLK(id, method) EV_CHILD_NOTIFY(id, LBN_DBLCLK, method)
#define EV_LBN_SELCHANGE(id, method) EV_CHILD_NOTIFY(id, LBN_SELCHANGE, method)
#define EV_CBN_EDITCHANGE(id, method) EV_CHILD_NOTIFY(id, CBN_EDITCHANGE, method)
#define EV_CBN_SELCHANGE(id, method) EV_CHILD_NOTIFY(id, CBN_SELCHANGE, method)

/// `void EvActivate(UINT how, bool minimised, HWND other)`
#define EV_WM_ACTIVATE OWL_MESSAGE_ENTRY(WM_ACTIVATE, Activation, EvActivate)
/// `void EvChar(UINT key, UINT repeat, UINT flags)`
#define EV_WM_CHAR OWL_MESSAGE_ENTRY(WM_CHAR, Key, EvChar)
/// `void EvClose()`
#define EV_WM_CLOSE OWL_MESSAGE_ENTRY(WM_CLOSE, Nothing, EvClose)
/// `int EvCreate(CREATESTRUCTA&)`: -1 refuses to be created.
#define EV_WM_CREATE OWL_MESSAGE_ENTRY(WM_CREATE, Creation, EvCreate)
/// `HBRUSH EvCtlColor(HDC, HWND child, UINT type)`: types are CTLCOLOR_MSGBOX to CTLCOLOR_STATIC.
#define EV_WM_CTLCOLOR OWL_MESSAGE_ENTRY(WM_CTLCOLOR, Colour, EvCtlColor)
/// `void EvDestroy()`
#define EV_WM_DESTROY OWL_MESSAGE_ENTRY(WM_DESTROY, Nothing, EvDestroy)
/// `void EvEnable(bool)`
#define EV_WM_ENABLE OWL_MESSAGE_ENTRY(WM_ENABLE, Flag, EvEnable)
/// `bool EvEraseBkgnd(HDC)`: true if the background is done.
#define EV_WM_ERASEBKGND OWL_MESSAGE_ENTRY(WM_ERASEBKGND, Context, EvEraseBkgnd)
/// `UINT EvGetDlgCode(MSG*)`: the message may be null.
#define EV_WM_GETDLGCODE OWL_MESSAGE_ENTRY(WM_GETDLGCODE, MessageAddress, EvGetDlgCode)
/// `void EvGetMinMaxInfo(MINMAXINFO&)`
#define EV_WM_GETMINMAXINFO OWL_MESSAGE_ENTRY(WM_GETMINMAXINFO, MinMaxInfo, EvGetMinMaxInfo)
/// `LRESULT EvHelp(HELPINFO*)`
#define EV_WM_HELP OWL_MESSAGE_ENTRY(WM_HELP, HelpAddress, EvHelp)
/// `void EvHScroll(UINT code, UINT position, HWND control)`
#define EV_WM_HSCROLL OWL_MESSAGE_ENTRY(WM_HSCROLL, Scroll, EvHScroll)
/// `bool EvInitDialog(HWND focus)`: true if the system is to set the focus.
#define EV_WM_INITDIALOG OWL_MESSAGE_ENTRY(WM_INITDIALOG, Window, EvInitDialog)
/// `void EvInitMenuPopup(HMENU, UINT position, bool systemMenu)`
#define EV_WM_INITMENUPOPUP OWL_MESSAGE_ENTRY(WM_INITMENUPOPUP, PopupMenu, EvInitMenuPopup)
/// `void EvKeyDown(UINT key, UINT repeat, UINT flags)`
#define EV_WM_KEYDOWN OWL_MESSAGE_ENTRY(WM_KEYDOWN, Key, EvKeyDown)
/// `void EvKeyUp(UINT key, UINT repeat, UINT flags)`
#define EV_WM_KEYUP OWL_MESSAGE_ENTRY(WM_KEYUP, Key, EvKeyUp)
/// `void EvKillFocus(HWND gets)`
#define EV_WM_KILLFOCUS OWL_MESSAGE_ENTRY(WM_KILLFOCUS, Window, EvKillFocus)
/// `void EvLButtonDblClk(UINT modifiers, TPoint&)`, as all entries of the mouse.
#define EV_WM_LBUTTONDBLCLK OWL_MESSAGE_ENTRY(WM_LBUTTONDBLCLK, NumberAndPoint, EvLButtonDblClk)
#define EV_WM_LBUTTONDOWN OWL_MESSAGE_ENTRY(WM_LBUTTONDOWN, NumberAndPoint, EvLButtonDown)
#define EV_WM_LBUTTONUP OWL_MESSAGE_ENTRY(WM_LBUTTONUP, NumberAndPoint, EvLButtonUp)
#define EV_WM_MBUTTONDOWN OWL_MESSAGE_ENTRY(WM_MBUTTONDOWN, NumberAndPoint, EvMButtonDown)
#define EV_WM_MBUTTONUP OWL_MESSAGE_ENTRY(WM_MBUTTONUP, NumberAndPoint, EvMButtonUp)
/// `void EvMDIActivate(HWND activated, HWND deactivated)`
#define EV_WM_MDIACTIVATE OWL_MESSAGE_ENTRY(WM_MDIACTIVATE, TwoWindows, EvMDIActivate)
/// `void EvMenuSelect(UINT item, UINT flags, HMENU)`
#define EV_WM_MENUSELECT OWL_MESSAGE_ENTRY(WM_MENUSELECT, MenuSelection, EvMenuSelect)
#define EV_WM_MOUSEMOVE OWL_MESSAGE_ENTRY(WM_MOUSEMOVE, NumberAndPoint, EvMouseMove)
/// `void EvMove(TPoint&)`
#define EV_WM_MOVE OWL_MESSAGE_ENTRY(WM_MOVE, Point, EvMove)
/// `void EvNCDestroy()`
#define EV_WM_NCDESTROY OWL_MESSAGE_ENTRY(WM_NCDESTROY, Nothing, EvNCDestroy)
/// `void EvPaint()`
#define EV_WM_PAINT OWL_MESSAGE_ENTRY(WM_PAINT, Nothing, EvPaint)
/// `void EvPaletteChanged(HWND by)`
#define EV_WM_PALETTECHANGED OWL_MESSAGE_ENTRY(WM_PALETTECHANGED, Window, EvPaletteChanged)
/// `bool EvQueryNewPalette()`
#define EV_WM_QUERYNEWPALETTE OWL_MESSAGE_ENTRY(WM_QUERYNEWPALETTE, Nothing, EvQueryNewPalette)
#define EV_WM_RBUTTONDOWN OWL_MESSAGE_ENTRY(WM_RBUTTONDOWN, NumberAndPoint, EvRButtonDown)
#define EV_WM_RBUTTONUP OWL_MESSAGE_ENTRY(WM_RBUTTONUP, NumberAndPoint, EvRButtonUp)
/// `bool EvSetCursor(HWND, UINT hit, UINT mouseMessage)`
#define EV_WM_SETCURSOR OWL_MESSAGE_ENTRY(WM_SETCURSOR, Cursor, EvSetCursor)
/// `void EvSetFocus(HWND lost)`
#define EV_WM_SETFOCUS OWL_MESSAGE_ENTRY(WM_SETFOCUS, Window, EvSetFocus)
/// `void EvShowWindow(bool show, UINT why)`
#define EV_WM_SHOWWINDOW OWL_MESSAGE_ENTRY(WM_SHOWWINDOW, FlagAndNumber, EvShowWindow)
/// `void EvSize(UINT how, const TSize&)`
#define EV_WM_SIZE OWL_MESSAGE_ENTRY(WM_SIZE, NumberAndSize, EvSize)
/// `void EvSysColorChange()`
#define EV_WM_SYSCOLORCHANGE OWL_MESSAGE_ENTRY(WM_SYSCOLORCHANGE, Nothing, EvSysColorChange)
/// `void EvSysCommand(UINT command, TPoint&)`: the lowest four bits of the command are the system's own.
#define EV_WM_SYSCOMMAND OWL_MESSAGE_ENTRY(WM_SYSCOMMAND, NumberAndPoint, EvSysCommand)
/// `void EvTimer(UINT id)`
#define EV_WM_TIMER OWL_MESSAGE_ENTRY(WM_TIMER, Number, EvTimer)
/// `void EvVScroll(UINT code, UINT position, HWND control)`
#define EV_WM_VSCROLL OWL_MESSAGE_ENTRY(WM_VSCROLL, Scroll, EvVScroll)
/// `void EvWindowPosChanged(WINDOWPOS&)`
#define EV_WM_WINDOWPOSCHANGED OWL_MESSAGE_ENTRY(WM_WINDOWPOSCHANGED, Position, EvWindowPosChanged)
