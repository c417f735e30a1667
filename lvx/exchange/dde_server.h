// lvx/exchange/dde_server.h
//
// A DDE server. The host makes one, the master: it hears every WM_DDE_INITIATE on the desk, asks the client,
// and makes a child for each conversation that the client accepts. A child is a server too, with a window of
// its own, and talks to that one partner; it is the LVXDde that the client gets from then on.
//
//     LVXDdeServer server;
//     server.uponEvent(&topics);              // an LVXDdeClient: accepts, supplies, executes
//     …
//     server.updateItem("count");             // it changed: whoever is linked to it is told
//     …
//     while (!server.children().empty()) {
//         server.disconnect();
//     }
//
// A master owns nothing of its children, and a child is never deleted by the host: it deletes itself when its
// conversation ends, and it leaves children() at once. One that is in the midst of an event stays until its
// client has answered. For the thread of the windows; events may come within events, as told in dde.h.
// Does not: send data other than text by itself, know the items of a topic, or compare their names other than
// byte for byte. docs/dde.md tells the protocol. Windows only.
#pragma once

#include <windows.h>

#include <map>
#include <string>
#include <vector>

#include "lvx/exchange/dde.h"
#include "lvx/platform/export.h"

/// A link: a partner wants to hear of an item. Its text is the item's name.
class LVX_EXPORT LVXAdvise : public std::string {
public:
    /// Neither deferred nor of a format. A null `item` is an empty name.
    LVXAdvise(const char* item);
    LVXAdvise(const char* item, bool defer, unsigned format);

    /// Whether the partner wants to be told alone (a warm link) rather than to get the data (a hot one).
    bool defer() const { return m_deferred != 0; }
    /// The clipboard format that it asked for.
    unsigned format() const { return static_cast<unsigned>(m_clipFormat); }

private:
    int m_deferred = 0;
    int m_clipFormat = 0;
};

class LVX_EXPORT LVXDdeServer : public LVXDde {
public:
    // The virtual operations stand in the order of the binary interface. The results of the last five are
    // what the partner is answered: 0x8000 if the client accepted, else 0. A null item is the client's to
    // judge.

    bool Find(owl::TEventInfo& info) override;
    /// A child ends its conversation, waiting for the partner at most the acknowledgement time, and deletes
    /// itself. A master disconnects its children from the first to the last by their places; as each leaves
    /// its place to the next one, every second is passed over: repeat until there are none. True.
    bool disconnect() override;
    /// A child deletes itself, after the client was told, unless it was ending the conversation already. A
    /// master does nothing.
    void rcvTerminate() override;
    /// Somebody at `clientWindow` asks for a topic. Null names stand for any. On acceptance a child answers,
    /// with the names as they are given here; none if its window cannot be made. 1 if so, else 0; a child
    /// does nothing and returns 0. Where any application or topic is asked for, a host overrides this and
    /// calls it with the names that it has, once for each.
    virtual int rcvInitiate(const char* application, const char* topic, void* clientWindow);
    /// Makes or replaces the link if the client accepts.
    virtual unsigned short rcvAdvise(const char* item, unsigned format, unsigned defer);
    /// Ends the link if the client accepts.
    virtual unsigned short rcvUnadvise(const char* item);
    /// The client supplies the item by sendItem; `lParam` is the message's.
    virtual unsigned short rcvRequest(const char* item, unsigned format, LPARAM lParam);
    virtual unsigned short rcvExecute(const char* command);
    /// `size` is that of the block's data less 1; the data may end sooner, and there are zeros behind.
    virtual unsigned short rcvPoke(const char* item, unsigned format, void* data, long size);

    /// Makes the window. If that fails, a box tells why, and the object cannot serve.
    LVXDdeServer();
    ~LVXDdeServer() override;

    // For the host

    /// Sends a text for `item` to the partner, as the answer to a request being handled or else unasked for.
    /// `format` must be CF_TEXT, 1; null `data` is an empty text. True if it was posted; with ackData, if the
    /// partner acknowledged it in time. False and nothing for other formats, without a partner, and for an
    /// item that is null or has not 1 to 255 characters. A master sends it by each child, and returns false.
    bool sendItem(const char* item, const void* data, unsigned format);
    /// Tells the partner, if it is linked to `item`, that it changed. Of a hot link the client is asked for
    /// the data: DdeRequest. A master does so for each child. Null is no item.
    void updateItem(const char* item);
    /// Whether the partner is asked to acknowledge data; not at first. Of a child: a master's own setting is
    /// of no effect.
    void ackData(bool required);
    /// The topic and the application being asked for, while DdeInitiate is reported; null if any will do, and
    /// at other times.
    const char* topic() const { return m_topicName; }
    const char* application() const { return m_applicationName; }
    /// The command, while DdeExecute is reported.
    const char* command() const { return m_commandText; }
    /// The children of a master in the order in which they came.
    const std::vector<LVXDdeServer*>& children() const { return m_children; }

    // Messages

    /// 1 if a conversation began, else 0.
    LRESULT EvWmDdeInitiate(WPARAM window, LPARAM lParam);
    // Each returns 0 and answers by a message.
    LRESULT EvWmDdeRequest(WPARAM window, LPARAM lParam);
    LRESULT EvWmDdeAdvise(WPARAM window, LPARAM lParam);
    LRESULT EvWmDdeUnadvise(WPARAM window, LPARAM lParam);
    LRESULT EvWmDdeExecute(WPARAM window, LPARAM lParam);
    LRESULT EvWmDdePoke(WPARAM window, LPARAM lParam);

protected:
    /// Begins the conversation of a new child, with the names and the partner that `master` holds.
    void serve(LVXDdeServer* master);
    /// Posts WM_DDE_DATA with `block`, which setData made, or without one to tell of a change. `response` not
    /// 0 says that it answers a request; `lParam` is that of the message, or 0. Takes the block over, also if
    /// it fails. The result is that of sendItem; without a block true, unless there is no partner or no name.
    bool sndData(const char* item, void* block, unsigned response, LPARAM lParam);
    /// Makes a link, in the format of the item being handled, in place of one that is there. Null does
    /// nothing.
    void adviseOn(const char* item, bool defer);
    /// Ends a link. An item without one, or null, is ignored.
    void adviseOff(const char* item);
    /// Takes a child out of a master. Another's child is ignored.
    void DetachChild(LVXDdeServer* child);

private:
    class InitiateScope;
    class Answer;

    bool BeginConversation();
    void EndSelf();
    void EndLinks();
    void EndDeadChildren();
    bool DisconnectChildren();
    template <class Action>
    void ForEachChild(const Handling& handling, const Action& action);
    bool HasForeignPartner() const;
    unsigned short UnadviseAll(const Handling& handling);
    const LVXAdvise* LinkTo(const char* item) const;
    void TellOfChange(unsigned short item, LPARAM lParam);
    bool PostData(unsigned short item, HGLOBAL block, unsigned response);
    bool PostOrFree(LPARAM packed);

    const char* m_topicName = nullptr;
    const char* m_applicationName = nullptr;
    const char* m_commandText = nullptr;
    unsigned short m_ackRequired = 0;
    // Of a child never null: one whose master has ended is its own.
    LVXDdeServer* m_master = nullptr;
    std::vector<LVXDdeServer*> m_children;
    std::map<std::string, LVXAdvise*>* m_advises = nullptr;
    // The process that the partner lived in when the conversation began; 0 if it was no window.
    DWORD m_partnerProcess = 0;

    using TMyClass = LVXDdeServer;
    static const owl::TResponseTableEntry<LVXDdeServer> __entries[];
};
