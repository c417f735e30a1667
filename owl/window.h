// owl/window.h
//
// A window and the object that stands for it. The object is made first, with its parent and its attributes;
// Create makes the window, SetupWindow finishes it, and the object sees every message of it until it is
// destroyed. The object may outlive its window and create it again.
//
// Ownership: a window object owns its child objects and deletes them with itself; one that ends sooner takes
// itself out of its parent. An object that ends destroys its window, unless it was made on a window that
// existed before. TWindow is a virtual base of the classes of the framework; classes that derive from those
// need not name it. A window is used on the thread that created it. Does not: cross threads, know wide
// characters.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <vector>

#include "owl/event_handler.h"
#include "owl/geometry.h"
#include "owl/platform/export.h"
#include "owl/resource_id.h"
#include "owl/response_table.h"

namespace owl {

class TApplication;
class TCommandEnabler;
class TDC;
class TModule;

/// What a window is created with. Set before Create; afterwards ask the window.
struct TWindowAttr {
    DWORD Style = 0;
    DWORD ExStyle = 0;
    int X = 0;
    int Y = 0;
    int W = 0;
    int H = 0;
    /// Of a child its number among its siblings.
    int Id = 0;
    TResId Menu;
    TResId AccelTable;
    /// Handed to the window's WM_CREATE.
    void* Param = nullptr;
};

/// Properties that a window object has or has not; bits.
enum TWindowFlag : unsigned {
    /// Created together with its parent.
    wfAutoCreate = 0x01,
    /// Takes part in the transfer of data.
    wfTransfer = 0x02,
    /// Deleted some time after its window was destroyed. The object was made by new.
    wfDeleteOnClose = 0x04,
    /// Its window is made by a dialog's resource: Create takes it over.
    wfFromResource = 0x08,
    /// Its window was there before the object: the object does not destroy it.
    wfAlias = 0x10,
};

/// Which way data goes in a transfer.
enum TTransferDirection {
    /// From the controls into the buffer.
    tdGetData,
    /// From the buffer into the controls.
    tdSetData,
    /// Nowhere: only the size is asked.
    tdSizeData,
};

class OWL_EXPORT TWindow : public TEventHandler {
public:
    /// A child of `parent`, visible; with no parent give Attr.Style something else than WS_CHILD before
    /// Create. A null `title` is an empty one. `module` is where resources come from; null is the parent's,
    /// or the application's.
    explicit TWindow(TWindow* parent, const char* title = nullptr, TModule* module = nullptr);
    /// Takes over the window `handle`, which exists and has no object yet: its messages come here first from
    /// now on, with wide text if it is a window of wide text. Throws TXWindow if it is no window of this
    /// process or has an object.
    explicit TWindow(HWND handle, TModule* module = nullptr);
    ~TWindow() override;

    /// The object behind a handle, or null.
    static TWindow* FromHandle(HWND handle);

    HWND GetHandle() const { return m_handle; }
    operator HWND() const { return m_handle; }
    /// Whether the object has a window at present.
    bool IsWindow() const { return m_handle != nullptr; }
    /// The application of the process, or null.
    TApplication* GetApplication() const;
    /// Where the window's resources come from. Null if nobody named one and there is no application.
    TModule* GetModule() const;

    bool IsFlagSet(TWindowFlag flag) const { return (m_flags & flag) != 0; }
    void SetFlag(TWindowFlag flag) { m_flags |= flag; }
    void ClearFlag(TWindowFlag flag) { m_flags &= ~static_cast<unsigned>(flag); }
    /// Whether Create of the parent creates this one. Windows made in code are; dialogs and frames are not.
    void EnableAutoCreate(bool enable = true);

    // Parent and children

    /// The parent object, or null. To be changed by SetParent.
    TWindow* Parent = nullptr;
    /// Makes the object a child of `parent`, the last one; null takes it out of its parent. A window that
    /// exists gets the parent's window as its own parent. Throws TXWindow if the object stands above
    /// `parent`.
    virtual void SetParent(TWindow* parent);
    /// The child objects in the order in which they came.
    const std::vector<TWindow*>& GetChildren() const { return m_children; }
    /// The child object with this Attr.Id, or null.
    TWindow* ChildWithId(int id) const;
    unsigned NumChildren() const { return static_cast<unsigned>(m_children.size()); }
    /// Creates the windows of all children that ask for it and have none.
    void CreateChildren();

    // Coming and going

    /// Makes the window and calls SetupWindow, which may destroy it again. True; throws TXWindow with the
    /// system's reason, or what SetupWindow threw, and then there is no window. A window that exists stays as
    /// it is.
    virtual bool Create();
    /// Called when the window has just been made: here children get their contents. By itself it creates the
    /// children and sends the transfer buffer's data to them. What overrides it calls it first.
    virtual void SetupWindow();
    /// Called before the window goes, however that comes; but not by the end of the object, whose class's
    /// part is gone then.
    virtual void CleanupWindow();
    /// Whether it may be closed. By itself all children are asked.
    virtual bool CanClose();
    /// Closes the window if CanClose agrees; a main window asks the application.
    virtual void CloseWindow(int retVal = 0);
    /// Destroys the window at once; the object stays. `retVal` is the result of a modal window.
    virtual void Destroy(int retVal = 0);
    /// Runs a loop until EndModal or the end of the window; `parent` takes no input meanwhile. Returns what
    /// EndModal got; IDCANCEL if the window or the program ended first. What a handler throws comes out of
    /// here; `parent` then takes input again. Throws TXWindow if such a loop of the window runs already.
    /// Requires: the object is not deleted meanwhile.
    int BeginModal(TWindow* parent, int flags = 0);
    void EndModal(int result);
    bool IsModal() const { return m_modal; }
    /// Marks the window as modal or not, for what runs its loop itself.
    void SetModal(bool modal) { m_modal = modal; }

    // Messages

    /// Answers a message as if it had come in. Returns the answer. What a handler throws is thrown here.
    LRESULT HandleMessage(UINT msg, WPARAM wParam = 0, LPARAM lParam = 0);
    /// What the window class would do with the message that is being handled; 0 if none of this window's is.
    /// With arguments: with that message.
    LRESULT DefaultProcessing();
    virtual LRESULT DefWindowProc(UINT msg, WPARAM wParam, LPARAM lParam);
    /// Finds who answers a message and calls it.
    virtual LRESULT WindowProc(UINT msg, WPARAM wParam, LPARAM lParam);
    /// Answers a command (`control` null) or a control's notification. By itself: the control's own table,
    /// then this one's, then DefaultProcessing.
    virtual LRESULT EvCommand(UINT id, HWND control, UINT notifyCode);
    virtual LRESULT EvNotify(UINT id, TNotify& notify);
    /// Answers whether a command is enabled. Without an entry, the receiver of the question enables a command
    /// that it has a function for, and disables one that it has none for.
    virtual void EvCommandEnable(TCommandEnabler& enabler);
    /// Sends `enabler` to this window as WM_COMMAND_ENABLE.
    void AskWhetherEnabled(TCommandEnabler& enabler);
    /// Sees a message of the window or of a child before it is dispatched; true takes it out. By itself it
    /// translates the keys of Attr.AccelTable.
    virtual bool PreProcessMsg(MSG& msg);
    /// Called when no message waits, as told in owl/message_thread.h. By itself it asks the children; true if
    /// one wants more.
    virtual bool IdleAction(long idleCount);
    LRESULT SendMessage(UINT msg, WPARAM wParam = 0, LPARAM lParam = 0) const;
    bool PostMessage(UINT msg, WPARAM wParam = 0, LPARAM lParam = 0) const;
    /// To the child window with this id, whether it has an object or not. 0 if there is none.
    LRESULT SendDlgItemMessage(int id, UINT msg, WPARAM wParam = 0, LPARAM lParam = 0) const;

    // Transfer of data

    /// Where TransferData reads and writes; the caller keeps it. `size` is its length in bytes: TransferData
    /// throws TXOwl rather than pass it, and nothing is moved then. 0 promises that it is long enough.
    void SetTransferBuffer(void* buffer, unsigned size = 0);
    void EnableTransfer(bool enable = true);
    void DisableTransfer() { EnableTransfer(false); }
    /// Moves the data of one control and returns how many bytes it takes in the buffer. By itself 0.
    virtual unsigned Transfer(void* buffer, TTransferDirection direction);
    /// Moves the data of all children that take part, in their order; it lies side by side in the buffer,
    /// without gaps. Without a buffer nothing happens.
    virtual void TransferData(TTransferDirection direction);

    // What the window shows and how. Without a window these do nothing and answer false, null, 0 or what is
    // empty.

    /// Called to paint the client area. `erase` tells whether the background needs to be erased still, `rect`
    /// what is to be painted. By itself nothing.
    virtual void Paint(TDC& dc, bool erase, TRect& rect);
    std::string GetWindowText() const;
    /// Copies at most `size` - 1 bytes and a NUL; returns how many bytes without it.
    int GetWindowText(char* text, int size) const;
    int GetWindowTextLength() const;
    /// Before Create it is the title to create the window with.
    void SetWindowText(const std::string& text);
    const std::string& GetCaption() const { return m_title; }
    bool ShowWindow(int how);
    void UpdateWindow();
    void InvalidateRect(const TRect& rect, bool erase = true);
    void Invalidate(bool erase = true);
    void InvalidateRgn(HRGN region, bool erase = true);
    bool GetUpdateRgn(HRGN region, bool erase = true) const;
    bool RedrawWindow(const TRect* rect, HRGN region, UINT flags);
    TRect GetClientRect() const;
    void GetClientRect(TRect& rect) const { rect = GetClientRect(); }
    TRect GetWindowRect() const;
    void GetWindowRect(TRect& rect) const { rect = GetWindowRect(); }
    bool MoveWindow(int x, int y, int w, int h, bool repaint = true);
    bool MoveWindow(const TRect& rect, bool repaint = true);
    bool SetWindowPos(HWND after, const TRect& rect, UINT flags);
    bool SetWindowPos(HWND after, int x, int y, int w, int h, UINT flags);
    void ScreenToClient(TPoint& point) const;
    void ClientToScreen(TPoint& point) const;
    bool IsWindowVisible() const;
    bool IsWindowEnabled() const;
    bool IsIconic() const;
    bool IsZoomed() const;
    /// Whether it was disabled before.
    bool EnableWindow(bool enable);
    bool IsChild(HWND window) const;
    DWORD GetStyle() const;
    /// These return the former style.
    DWORD SetStyle(DWORD style);
    DWORD GetExStyle() const;
    DWORD SetExStyle(DWORD style);
    void SetRedraw(bool redraw);
    HFONT GetWindowFont() const;
    void SetWindowFont(HFONT font, bool redraw);
    /// The neighbours of the window; null if there is none.
    HWND GetWindow(UINT which) const;
    /// The window among the children that has this id; null if there is none.
    virtual HWND GetDlgItem(int id) const;
    HWND GetNextDlgTabItem(HWND control, bool previous = false) const;

    // Focus, mouse, timers

    /// Returns the window that had the focus.
    HWND SetFocus();
    static HWND GetFocus();
    HWND SetCapture();
    static void ReleaseCapture();
    static HWND GetCapture();
    /// The mouse in screen coordinates.
    static void GetCursorPos(TPoint& point);
    /// The window at a point of the screen, or null.
    static HWND WindowFromPoint(const TPoint& point);
    /// Uses the cursor `id` of `module` over this window; a null module is the system's. False if there is
    /// none.
    bool SetCursor(TModule* module, TResId id);
    UINT SetTimer(UINT id, UINT milliseconds);
    bool KillTimer(UINT id);
    /// A box above this window. Returns which button was pressed.
    virtual int MessageBox(const char* text, const char* caption = nullptr, UINT type = MB_OK);

    // Menu and properties

    HMENU GetMenu() const;
    bool SetMenu(HMENU menu);
    HMENU GetSystemMenu(bool revert = false) const;
    void DrawMenuBar();
    /// A handle that the window carries under a name; null if there is none.
    HANDLE GetProp(const char* name) const;
    bool SetProp(const char* name, HANDLE data);
    HANDLE RemoveProp(const char* name);

    TWindowAttr Attr;

    // What answers messages unless a class says otherwise. Each does what DefaultProcessing does, with the
    // message that is being handled, whatever the arguments are; EvCtlColor goes by its arguments.

    void EvActivate(UINT active, bool minimised, HWND other);
    void EvChar(UINT key, UINT repeat, UINT flags);
    /// Calls CloseWindow.
    void EvClose();
    int EvCreate(CREATESTRUCTA& create);
    HBRUSH EvCtlColor(HDC dc, HWND child, UINT type);
    void EvDestroy();
    void EvEnable(bool enabled);
    bool EvEraseBkgnd(HDC dc);
    UINT EvGetDlgCode(MSG* msg);
    void EvGetMinMaxInfo(MINMAXINFO& info);
    LRESULT EvHelp(HELPINFO* help);
    void EvHScroll(UINT code, UINT position, HWND control);
    void EvInitMenuPopup(HMENU menu, UINT position, bool systemMenu);
    void EvKeyDown(UINT key, UINT repeat, UINT flags);
    void EvKeyUp(UINT key, UINT repeat, UINT flags);
    void EvKillFocus(HWND gets);
    void EvLButtonDblClk(UINT modifiers, const TPoint& point);
    void EvLButtonDown(UINT modifiers, const TPoint& point);
    void EvLButtonUp(UINT modifiers, const TPoint& point);
    void EvMButtonDown(UINT modifiers, const TPoint& point);
    void EvMButtonUp(UINT modifiers, const TPoint& point);
    void EvMenuSelect(UINT item, UINT flags, HMENU menu);
    void EvMouseMove(UINT modifiers, const TPoint& point);
    void EvMove(const TPoint& point);
    void EvNCDestroy();
    void EvPaint();
    void EvPaletteChanged(HWND by);
    bool EvQueryNewPalette();
    void EvRButtonDown(UINT modifiers, const TPoint& point);
    void EvRButtonUp(UINT modifiers, const TPoint& point);
    bool EvSetCursor(HWND window, UINT hit, UINT mouseMessage);
    void EvSetFocus(HWND lost);
    void EvShowWindow(bool show, UINT why);
    void EvSize(UINT how, const TSize& size);
    /// Tells all children.
    void EvSysColorChange();
    void EvSysCommand(UINT command, const TPoint& point);
    void EvTimer(UINT id);
    void EvVScroll(UINT code, UINT position, HWND control);
    void EvWindowPosChanged(WINDOWPOS& position);

protected:
    /// For classes with TWindow as their virtual base; they call Init.
    TWindow();
    /// What the first constructor does. May be called once more, by a class further down.
    void Init(TWindow* parent, const char* title, TModule* module);
    /// What the second constructor does.
    void Init(HWND handle, TModule* module);

    /// The name of the window class. One that the system has already, such as "EDIT", is used as it is; else
    /// it is registered with what GetWindowClass says, once per module: the first window of that name
    /// decides.
    virtual const char* GetClassName();
    /// Fills in what the class is to be registered with. What overrides it calls it first.
    virtual void GetWindowClass(WNDCLASSA& windowClass);
    /// Makes the window: afterwards GetHandle tells it. Throws TXWindow if the system refuses.
    virtual void PerformCreate();

    /// Puts the object behind `handle` and its messages through the object.
    void Attach(HWND handle);
    /// Answers a message for a window procedure: nothing is thrown, but carried to the next loop.
    LRESULT ReceiveMessage(UINT msg, WPARAM wParam, LPARAM lParam) noexcept;
    /// Called when a handler of the window or of a child in it has thrown, and the exception is on its way to
    /// the next loop of the framework: for windows that another loop runs. Must not throw. By itself nothing.
    virtual void ExceptionCarried();
    /// Answers WM_PAINT by Paint.
    void PaintByObject();
    /// For what makes the window and runs it in one go: from now on EndModal counts, also before BeginModal.
    /// Throws TXWindow if a loop of the window runs already.
    void ExpectModal();
    /// What EndModal got last; IDCANCEL if nothing since ExpectModal or BeginModal.
    int GetModalResult() const { return m_modalResult; }
    /// Calls SetupWindow; if that throws, the window goes.
    void FinishCreation();
    /// For a window that was not created with the caption of the object: gives it the object's, or, if that
    /// is empty, the object the window's.
    void AgreeOnCaption();
    /// Asks CanClose, of a main window the application's; false as well if the window went meanwhile: then
    /// the object may be gone too.
    bool MayClose();
    /// What the menu argument of a window's creation is: a child's id, or the menu of Attr, loaded.
    HMENU MenuOrId() const;
    /// The module of GetModule, or the program if there is none.
    HINSTANCE GetInstance() const;
    /// Called when `child` is no child of this one any more. It may be about to end: of such a one only the
    /// address is of use. By itself nothing. Not called for the children that end with this object.
    virtual void ChildLeft(const TWindow& child);

private:
    friend struct WindowProcedures;

    void AddChild(TWindow* child);
    void RemoveChild(const TWindow* child);
    void DeleteChildren();
    void RegisterClass();
    void Detach();
    void AfterDestruction();
    bool IsMainWindow() const;
    void TellOfException();
    LRESULT AnswerMessage(const TEvent& event, UINT lookUp);
    LRESULT AnswerScrollBar(const TEvent& event);
    bool TakeFromResource();
    HACCEL Accelerators();

    HWND m_handle = nullptr;
    WNDPROC m_classProcedure = nullptr;
    bool m_classIsWide = false;
    TModule* m_module = nullptr;
    std::string m_title;
    std::vector<TWindow*> m_children;
    unsigned m_flags = 0;
    bool m_modal = false;
    bool m_modalLoop = false;
    bool m_modalDone = false;
    int m_modalResult = 0;
    HWND m_disabled = nullptr;
    void* m_transferBuffer = nullptr;
    unsigned m_transferSize = 0;
    HACCEL m_accelerators = nullptr;
    HCURSOR m_cursor = nullptr;

    DECLARE_RESPONSE_TABLE(TWindow);
};

/// The object behind a handle, or null; of a window of another process null as well.
OWL_EXPORT TWindow* GetWindowPtr(HWND handle, const TApplication* application = nullptr);

}  // namespace owl
