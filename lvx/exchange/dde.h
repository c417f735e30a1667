// lvx/exchange/dde.h
//
// One end of a DDE conversation: a hidden window that knows its partner's window, takes the partner's
// acknowledgements and its good-bye, and reports what happens to one client. LVXDdeServer (dde_server.h) is
// what a host uses; this class is its base, and nothing here begins a conversation.
//
//     class Topics : public LVXDdeClient {
//         bool ddeEvent(LVXDde* dde) override;    // true: accepted; asks dde->reason() and the like
//     };
//
// Owns its window, but neither the client nor the partner. For the thread of the window. While it waits for
// an answer the thread handles DDE messages of all its windows, and the client may be asked within a
// question. An object that its client ends, in answer to an event, stays until the client has answered; what
// the client deletes itself is gone at once, and nothing of it is touched again. Global atoms and blocks of
// memory go with the message that carries them: what a message could not be given is freed here, what a
// message brought is freed here or goes back with the answer. Nothing throws. Windows only.
#pragma once

#include <windows.h>

#include "lvx/platform/export.h"
#include "owl/window.h"

class LVXDde;

/// What a client is told or asked.
enum DdeEvent : int {
    /// Somebody asks for this application and topic.
    DdeInitiate = 2,
    /// The partner wants to hear of changes of an item.
    DdeAdvise = 3,
    /// It does no longer.
    DdeUnadvise = 4,
    /// The host is to supply the item: it was asked for, or it changed and is linked.
    DdeRequest = 5,
    /// The partner delivers data for an item.
    DdePoke = 6,
    /// The partner sends a command.
    DdeExecute = 7,
    /// The partner ended the conversation.
    DdeTerminate = 8,
};

/// Who is told what happens in a conversation. Derived by the host, which owns it.
class LVX_EXPORT LVXDdeClient {
public:
    /// `dde` reports an event; ask it for the reason and the rest. The result tells whether it is accepted.
    virtual bool ddeEvent(LVXDde* dde) = 0;

protected:
    LVXDdeClient() = default;
    LVXDdeClient(const LVXDdeClient&) = default;
    LVXDdeClient& operator=(const LVXDdeClient&) = default;
    // Not virtual: nobody deletes a client by this class, and hosts' own operations follow the one above.
    ~LVXDdeClient() = default;
};

class LVX_EXPORT LVXDde : public virtual owl::TWindow {
public:
    // The virtual operations stand in the order of the binary interface.

    bool Find(owl::TEventInfo& info) override;

    /// Ends the conversation: posts WM_DDE_TERMINATE and waits for the partner's, at most the acknowledgement
    /// time. True if it came. False at once, and nothing is sent, without a partner; false behind the time,
    /// and the partner stays.
    virtual bool disconnect();
    /// A WM_DDE_TERMINATE came. If disconnect() waits for it, it is the answer. Else it is answered, by a
    /// message that is sent within this process and posted to another one; there is no partner any more, and
    /// the client is told.
    virtual void rcvTerminate();
    /// A WM_DDE_ACK came: ends the wait with `status` and deletes `atom`, an atom in a pointer's place, or 0.
    virtual void rcvAck(HWND window, unsigned short status, void* atom);

    /// Without partner and client; waits 4000 ms at most. There is no window before Create.
    LVXDde();
    ~LVXDde() override;

    // For the host

    /// How long answers are waited for, in milliseconds; 0 looks once. Returns the object.
    LVXDde& ackTime(unsigned short ms);
    /// Who is told of events; null accepts all.
    void uponEvent(LVXDdeClient* client) { m_client = client; }
    /// The event being reported. Of no meaning between events.
    DdeEvent reason() const { return m_eventReason; }
    /// The item's name, as long as the event is being reported; null if the event has none.
    const char* item() const { return m_eventItem; }
    /// The item's clipboard format.
    unsigned short format() const { return m_itemFormat; }
    /// What DdePoke brings, as long as it is being reported, with zeros behind; null for other events.
    void* dataItem() const { return m_eventData; }

    // Messages. Each returns 0.

    LRESULT EvWmDdeTerminate(WPARAM window, LPARAM lParam);
    /// Takes the words of `lParam` for status and atom, or those that are packed behind it.
    LRESULT EvWmDdeAck(WPARAM window, LPARAM lParam);

    // For what derives from it

    /// Posts WM_DDE_TERMINATE to the partner, or sends it. False without a partner, or if it did not reach
    /// it; sending waits at most the acknowledgement time.
    bool sndTerminate(bool send);
    /// Posts WM_DDE_ACK, or sends it unless `send` is 0. With WM_DDE_INITIATE as `answering` the arguments
    /// are the application and the topic. Else `lParam` is that of the message being answered, and goes into
    /// the answer or is freed; 0 for none. False without a partner, or if it did not reach it: the atom is
    /// the caller's still.
    bool sndAck(unsigned short status, unsigned short item, int send, unsigned answering, LPARAM lParam);
    /// A new block for WM_DDE_DATA of `size` bytes; with null `bytes` of zeros. The caller owns it until
    /// sndData. Null if there is no memory, or `size` is negative.
    HGLOBAL setData(unsigned short format, long size, const char* bytes);
    /// A new fixed block with `text` in it, which the caller owns; null is an empty text. Null if there is no
    /// memory.
    static HGLOBAL strToHandle(const char* text);
    /// Asks the client; true if there is none. `item` and `data` must live until then.
    bool callback(DdeEvent event, const char* item, void* data);
    /// Handles DDE messages, of any window of the thread, until yieldEnd, or for `ms` milliseconds and at
    /// least once; others stay in the queue. True if it ended with the status 0x8000.
    /// A wait within a wait ends the outer one as well. Deeper than any host goes, acknowledgements alone are
    /// handled: a flood of requests does not pile up on the stack.
    bool yieldAck(unsigned long ms);
    /// Ends the wait with `status`.
    void yieldEnd(unsigned short status);

protected:
    // What is under way on an object; lvx/exchange/dde_handling.h.
    class Handling;

    bool m_responding = false;
    LPARAM m_requestParam = 0;
    bool m_closing = false;
    HWND m_partner = nullptr;
    // The last block that setData made; who sent it does not own it any more.
    HGLOBAL m_data = nullptr;
    unsigned short m_ackWait = 4000;
    LVXDdeClient* m_client = nullptr;
    DdeEvent m_eventReason{};
    // 1: nothing came in time.
    unsigned short m_ackStatus = 0;
    const char* m_eventItem = nullptr;
    unsigned short m_itemFormat = 0;
    void* m_eventData = nullptr;
    bool m_waiting = false;

private:
    bool Transmit(bool send, UINT message, LPARAM lParam);

    using TMyClass = LVXDde;
    static const owl::TResponseTableEntry<LVXDde> __entries[];
};
