// owl/event_handler.h
//
// What receives events: a window, the application. A class says in a response table (owl/response_table.h)
// which of its functions answer which events; Find looks an event up there, and an event that was found is
// dispatched to the object and the function that the table named. Windows only; one thread at a time.
#pragma once

#include <windows.h>

#include "owl/platform/export.h"

namespace owl {

/// One event as it came in: a message, or a command or notification taken out of one.
struct TEvent {
    UINT Msg = 0;
    WPARAM WParam = 0;
    LPARAM LParam = 0;
    /// Of a command or a notification: the id of the command or of the control; else 0.
    UINT Id = 0;
    /// Of a notification: what happened; else 0.
    UINT NotifyCode = 0;
};

template <class T>
struct TResponseTableEntry;

/// What Find is asked, and what it found. `Msg` is a message, with the `Id` of WM_COMMAND and
/// WM_COMMAND_ENABLE; the notifications of controls go by the numbers below.
class OWL_EXPORT TEventInfo {
public:
    /// In place of a message: a child's notification, told to its parent.
    static constexpr UINT ChildNotification = 0x10000;
    /// In place of a message: a control's notification, told to the control itself.
    static constexpr UINT NotificationAtChild = 0x10001;

    explicit TEventInfo(UINT msg, UINT id = 0, UINT notifyCode = 0);

    bool IsFound() const { return m_call != nullptr; }

    /// Calls the function that was found, and returns its result for the system. Requires: IsFound().
    LRESULT Dispatch(const TEvent& event) const;

    /// Names the function of `entry` on `object` as the one to call. Both must outlive the call.
    template <class T>
    void SetFound(T& object, const TResponseTableEntry<T>& entry) {
        m_object = &object;
        m_entry = &entry;
        m_call = &CallEntry<T>;
    }

    const UINT Msg;
    const UINT Id;
    const UINT NotifyCode;

private:
    template <class T>
    static LRESULT CallEntry(void* object, const void* entry, const TEvent& event) {
        return static_cast<const TResponseTableEntry<T>*>(entry)->Call(*static_cast<T*>(object), event);
    }

    void* m_object = nullptr;
    const void* m_entry = nullptr;
    LRESULT (*m_call)(void*, const void*, const TEvent&) = nullptr;
};

/// The base of all that has a response table.
class OWL_EXPORT TEventHandler {
public:
    TEventHandler() = default;
    virtual ~TEventHandler();
    TEventHandler(const TEventHandler&) = delete;
    TEventHandler& operator=(const TEventHandler&) = delete;

    /// Looks for an entry for `info` in the class's own table, then in those of its bases. True if there is
    /// one; `info` then knows what to call. The macros of owl/response_table.h override it.
    virtual bool Find(TEventInfo& info);
};

}  // namespace owl
